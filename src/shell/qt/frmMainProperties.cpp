// The toolbar of core properties and the style sheet in front.

#include "language/Vocabulary.h"
#include "shell/qt/CorePropertiesBar.h"
#include "shell/qt/frmMain.h"

namespace tintora {

namespace {

constexpr int FontFamily = 1011;

}  // namespace

void frmMain::SetUpCorePropertyHandlers() {
    for (const CommandOperation operation :
         {CommandOperation::ToggleBold, CommandOperation::ToggleItalic, CommandOperation::ToggleUnderline,
          CommandOperation::ToggleLinethrough, CommandOperation::ToggleTextAlign, CommandOperation::PropertyHasChanged,
          CommandOperation::EditColorGM, CommandOperation::EditBackgroundColorGM})
        handlers_.Set(operation, [this](const Command& command) { coreProperties_->RunTool(command.key); });
}

void frmMain::EnableCorePropertiesToolbar(bool enabled) { coreProperties_->EnableCorePropertiesToolbar(enabled); }

void frmMain::SetUpCorePropertiesToolbar(TextView body) { coreProperties_->SetUpCorePropertiesToolbar(body); }

const FrontDocument* frmMain::ActiveStyleSheet() const {
    StyleSheetPane* const pane = ActiveDocument();
    return pane == nullptr ? nullptr : &pane->Window();
}

Texts frmMain::CurrentDeclarations() const {
    StyleSheetPane* const pane = ActiveDocument();
    return pane == nullptr ? Texts() : pane->Window().GetCurrentStatementProperties();
}

void frmMain::PropertyHasChanged(TextView value, int number) {
    StyleSheetPane* const pane = ActiveDocument();
    if (pane == nullptr)
        return;
    ktStyleSheetWindow& window = pane->Window();
    window.FollowCaretNow();
    window.ChangeCurrentProperty(PropertyNameFromNumber(number), value);
    // The list of fonts is still in the user's hands.
    if (number == FontFamily)
        window.UpdatePropertiesEditor();
    else
        window.UpdateEditorsOnStyleSheetChange();
    window.PreviewNow();
    window.PreviewCurrentRule();
}

void frmMain::FocusText() {
    if (StyleSheetPane* const pane = ActiveDocument())
        pane->setFocus();
}

}  // namespace tintora
