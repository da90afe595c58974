// The palette and the toolbar of properties, and the style sheet in front.

#include "language/Vocabulary.h"
#include "properties/qt/ktPropertiesEditor.h"
#include "shell/Layouts.h"
#include "shell/qt/CorePropertiesBar.h"
#include "shell/qt/WindowProperties.h"
#include "shell/qt/frmMain.h"
#include "text/qt/QtText.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr int FontFamily = 1011;

}  // namespace

void frmMain::SetUpPropertiesPane() {
    properties_ = std::make_unique<WindowProperties>(
        WindowProperties::Surroundings{
            .store = store_,
            .menus = *this,
            .warnings = unbuilt_,
            .askColor = askColor_,
            .askFiles = askFiles_,
            .active = [this] { return ActiveDocument() == nullptr ? nullptr : &ActiveDocument()->Edited(); },
            .called = [this](TextView caption) -> EditedDocument* {
                const auto found = std::ranges::find_if(
                    openDocuments_, [&](const StyleSheetPane* pane) { return ToText(pane->Caption()) == caption; });
                return found == openDocuments_.end() ? nullptr : &(*found)->Edited();
            },
            .showPane = [this](TextView pane) { ShowFloatingWindow(workspace_, pane); },
            .focusText = [this] { FocusText(); }},
        *this);
    workspace_.AddPane(u"dwPropertiesEditor", QStringLiteral("Properties"), &properties_->Palette());
}

void frmMain::SetUpPropertyHandlers() {
    handlers_.Set(CommandOperation::OpenPropertyEditor,
                  [this](const Command& command) { this->OpenPropertyEditor(command.parameter); });
    handlers_.Set(CommandOperation::EditMoreFonts, [this](const Command&) { coreProperties_->EditMoreFonts(); });
    handlers_.SetOwn(u"miFoProperty", [this] { EditPropertyAtCaret(); });
}

void frmMain::OpenPropertyEditor(TextView name) { properties_->OpenPropertyEditor(name); }

void frmMain::EditPropertyAtCaret() {
    StyleSheetPane* const pane = ActiveDocument();
    if (pane == nullptr)
        return;
    properties_->Palette().ShowWindow();
    pane->Window().FollowCaretNow();
    pane->Window().EditCurrentProperty();
}

void frmMain::SetUpCorePropertyHandlers() {
    for (const CommandOperation operation :
         {CommandOperation::ToggleBold, CommandOperation::ToggleItalic, CommandOperation::ToggleUnderline,
          CommandOperation::ToggleLinethrough, CommandOperation::ToggleTextAlign, CommandOperation::PropertyHasChanged,
          CommandOperation::EditColorGM, CommandOperation::EditBackgroundColorGM})
        handlers_.Set(operation, [this](const Command& command) { coreProperties_->RunTool(command.key); });
}

void frmMain::EnableCorePropertiesToolbar(bool enabled) {
    coreProperties_->EnableCorePropertiesToolbar(enabled);
    UpdateMenuItem(u"miFoFont", enabled);
}

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
