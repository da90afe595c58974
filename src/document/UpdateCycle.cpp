// What follows a key, a move of the caret or a change of the text, and when.

#include "document/ktStyleSheetWindow.h"
#include "language/FeatureNames.h"
#include "language/PropertyValidation.h"
#include "settings/Settings.h"
#include "text/Whitespace.h"

#include <array>

namespace tintora {

void ktStyleSheetWindow::SetNeedsUpdating(bool needsUpdating) {
    needsUpdating_ = needsUpdating;
    if (needsUpdating)
        idleTimer_->Restart();
    else
        idleTimer_->Stop();
}

void ktStyleSheetWindow::SetSelectorsNeedUpdating(bool needUpdating) {
    selectorsNeedUpdating_ = needUpdating;
    if (needUpdating)
        idleTimer_->Restart();
    else
        idleTimer_->Stop();
}

void ktStyleSheetWindow::TextChanged() {
    SetDirty(true);
    unsavedCopy_.TextChanged();
    isCacheStale_ = true;
    cacheStatementsDelay_->Restart();
}

void ktStyleSheetWindow::SelectionChanged() { selectionChangedDelay_->Restart(); }

void ktStyleSheetWindow::CacheStatements() {
    styleSheet_.CacheStatements();
    isCacheStale_ = false;
    frame_.StatementsCached();
}

void ktStyleSheetWindow::CatchUpWithText() {
    if (isCacheStale_)
        CacheStatements();
}

void ktStyleSheetWindow::UpdateOnIdle() {
    if (needsUpdating_) {
        UpdateEditorsOnStyleSheetChange();
        DoLivePreview();
    } else if (needsPreviewing_) {
        DoLivePreview();
    }
    if (selectorsNeedUpdating_)
        UpdateSelectorsPalette();
    needsPreviewing_ = false;
    SetNeedsUpdating(false);
    SetSelectorsNeedUpdating(false);
}

void ktStyleSheetWindow::UpdateNow() {
    CacheStatements();
    if (needsUpdating_) {
        UpdateEditorsOnStyleSheetChange();
        DoLivePreview();
    } else if (needsPreviewing_) {
        DoLivePreview();
    }
    needsPreviewing_ = false;
    SetNeedsUpdating(false);
}

void ktStyleSheetWindow::DisableUpdates() { idleTimer_->Stop(); }

void ktStyleSheetWindow::ResetIdleTimer() { idleTimer_->Restart(); }

void ktStyleSheetWindow::LivePreview() { previewDelay_->Restart(); }

void ktStyleSheetWindow::DisableNextPreview() { previewDelay_->Stop(); }

void ktStyleSheetWindow::DoLivePreview() {
    if (!IsInFront() || !Settings(settings_).GetLivePreviewOn())
        return;
    preview_.PreviewNow();
    preview_.PreviewCurrentRule();
}

void ktStyleSheetWindow::UpdateEditors() {
    UpdateSelectorsPalette();
    UpdatePropertiesEditor();
    UpdateCorePropertiesToolbar();
}

void ktStyleSheetWindow::UpdateEditorsOnStyleSheetChange() {
    UpdatePropertiesEditor();
    UpdateCorePropertiesToolbar();
    UpdateSelectorsPalette();
}

void ktStyleSheetWindow::UpdateSelectorsPalette() {
    if (IsInFront() && statements_.IsOpen())
        statements_.UpdateSelectors(styleSheet_.GetAllStatementsAsText(), StripLeftWhitespace(GetCurrentSelector()));
}

void ktStyleSheetWindow::ClearSelectorsPalette() {
    if (statements_.IsOpen())
        statements_.UpdateSelectors({}, {});
}

void ktStyleSheetWindow::UpdatePropertiesEditor() {
    if (!IsInFront() || !properties_.IsOpen() || properties_.IsChangingProperty())
        return;
    const int offset = GetSelectionStart();
    const int type = styleSheet_.GetSelectorType(styleSheet_.GetSelectorFromSelection(offset));
    const Text statement = GetCurrentStatement();
    const bool hasRule = statement.find(u'{') != Text::npos && type >= selector_type::Type;
    const int end = styleSheet_.GetStatementStartChar(offset) + static_cast<int>(statement.size());
    if (!hasRule || offset > end) {
        ClearPropertiesEditor();
        return;
    }
    properties_.Enable();
    properties_.SetProperties(styleSheet_.GetPropertiesFromSelection(offset));
}

void ktStyleSheetWindow::ClearPropertiesEditor() {
    properties_.Disable();
    properties_.SetProperties({});
}

void ktStyleSheetWindow::DisablePropertiesEditors() {
    if (properties_.IsOpen())
        ClearPropertiesEditor();
}

void ktStyleSheetWindow::UpdateCorePropertiesToolbar() {
    if (!IsInFront())
        return;
    const int offset = GetSelectionStart();
    const int type = styleSheet_.GetSelectorType(styleSheet_.GetSelectorFromSelection(offset));
    const bool hasRule = GetCurrentStatement().find(u'{') != Text::npos && type >= selector_type::Type;
    frame_.EnableCorePropertiesToolbar(hasRule);
    if (hasRule)
        frame_.SetUpCorePropertiesToolbar(styleSheet_.GetPropertiesFromSelection(offset));
}

void ktStyleSheetWindow::SelectionChangedEvent(int offset) {
    if (IsInFront())
        BringPalettesTo(offset, GetCurrentStatementNumber(offset));
}

void ktStyleSheetWindow::BringPalettesTo(int offset, int number) {
    statements_.SelectStatement(number);
    const bool isPaletteWriting = properties_.IsChangingProperty();
    // The caret at the end of the text may belong to the last statement without the number having changed.
    const bool isOther = number != lastSelectedStatement_ || (number == StatementCount() && !isPaletteWriting);
    if (isOther) {
        lastSelectedStatement_ = number;
        UpdateCorePropertiesToolbar();
        UpdatePropertiesEditor();
        if (!isPaletteWriting && Settings(settings_).GetLivePreviewOn())
            preview_.PreviewCurrentRule();
    }
    if (!isPaletteWriting)
        ShowPropertyAtCaret(styleSheet_.GetPropertyName(styleSheet_.GetPropertyAtSelection(offset)));
    frame_.UpdateMenus();
}

void ktStyleSheetWindow::ShowPropertyAtCaret(TextView name) {
    if (properties_.IsOpen())
        properties_.SelectPropertyinText(name);
    if (!name.empty() || GetCurrentSelector().empty())
        return;
    const int type = GetCurrentSelectorType();
    warnings_.SetUpWarnings(type);
    if (properties_.IsOpen())
        properties_.SetLastProperty(type);
}

void ktStyleSheetWindow::FollowChangeOfPalette() {
    if (!IsInFront() || !properties_.IsChangingProperty())
        return;
    const int offset = GetSelectionStart();
    const int number = GetCurrentStatementNumber(offset);
    // A palette that shows another rule than the one it has changed must come to this one, though not at once.
    if (number != lastSelectedStatement_) {
        selectionChangedDelay_->Restart();
        return;
    }
    selectionChangedDelay_->Stop();
    // Its list of properties follows. Its controls, which are in the user's hands, take nothing now.
    if (properties_.IsOpen())
        properties_.SetProperties(styleSheet_.GetPropertiesFromSelection(offset));
    BringPalettesTo(offset, number);
}

void ktStyleSheetWindow::FollowCaretNow() {
    if (!selectionChangedDelay_->IsRunning())
        return;
    selectionChangedDelay_->Stop();
    CatchUpWithText();
    SelectionChangedEvent(GetSelectionStart());
}

void ktStyleSheetWindow::PreviewNow() { preview_.PreviewNow(); }

void ktStyleSheetWindow::PreviewCurrentRule() { preview_.PreviewCurrentRule(); }

void ktStyleSheetWindow::EnableMenus() {
    if (!IsInFront())
        return;
    frame_.EnableDocumentCommands(true);
    editor_.UpdateMenu();
}

void ktStyleSheetWindow::DisableMenus() {
    frame_.EnableDocumentCommands(false);
    editor_.UpdateMenu();
}

void ktStyleSheetWindow::Activate() {
    UpdateEditors();
    frame_.StyleSheetWindowActivated();
    RegisterWithEditors();
    EnableMenus();
    UpdateMenus();
    preview_.PreviewCurrentRule();
    preview_.PreviewNow();
    editor_.UpdateStatusBar();
    // What waited while another document was in front comes up now.
    selectionChangedDelay_->Restart();
}

void ktStyleSheetWindow::KeyDown(int code) {
    if (GetCurrentSelectorType() < selector_type::Type || code == key_code::ClosingBracketOrBrace ||
        code == key_code::SemicolonOrColon) {
        SetNeedsUpdating(true);
    } else {
        const Text declaration = GetCurrentProperty();
        Text value = styleSheet_.GetPropertyValue(declaration);
        if (code != 0)
            value.push_back(static_cast<char16_t>(code));
        // A declaration that was valid before this key goes out to the palettes now.
        if (value.empty() || !ValidatePropertyValue(styleSheet_.GetPropertyName(declaration), value))
            SetNeedsUpdating(false);
        else
            UpdateOnIdle();
    }
    // While a key is down nothing is updated.
    DisableUpdates();
}

void ktStyleSheetWindow::KeyUp(int code) {
    if (GetCurrentSelectorType() < selector_type::Type) {
        SetSelectorsNeedUpdating(true);
    } else if (CursorInSelector()) {
        SetSelectorsNeedUpdating(true);
        SetNeedsUpdating(true);
    } else if (WholeStatementSelected()) {
        SetSelectorsNeedUpdating(true);
    } else if (code == key_code::ClosingBracketOrBrace || code == key_code::Backspace) {
        SetNeedsUpdating(true);
    } else if (code == key_code::SemicolonOrColon) {
        const Text declaration = GetCurrentPropertyFromChar(GetSelectionStart() - 1);
        const Text value = styleSheet_.GetPropertyValue(declaration);
        // Where the value is valid the press has set the flag already, and stopped the timer.
        if (!value.empty() && !ValidatePropertyValue(styleSheet_.GetPropertyName(declaration), value))
            SetNeedsUpdating(true);
        else if (needsUpdating_)
            ResetIdleTimer();
    } else {
        const Text declaration = GetCurrentPropertyFromText();
        const Text value = styleSheet_.GetPropertyValue(declaration);
        SetNeedsUpdating(!value.empty() && ValidatePropertyValue(styleSheet_.GetPropertyName(declaration), value));
    }
}

bool ktStyleSheetWindow::WholeStatementSelected() const {
    const Text selected = editor_.GetSelectedText();
    constexpr auto Marks = std::to_array<TextView>({u"{", u"}", u"/*", u"*/", u"@media"});
    for (const TextView mark : Marks) {
        if (selected.find(mark) != Text::npos)
            return true;
    }
    return false;
}

void ktStyleSheetWindow::DeleteKeyDown() {
    SetNeedsUpdating(true);
    DisableUpdates();
    EnableUpdates();
}

void ktStyleSheetWindow::HandleCutPasteClear(TextView) {
    SetNeedsUpdating(true);
    UpdateNow();
}

void ktStyleSheetWindow::Undo() {
    SetNeedsUpdating(true);
    CacheStatements();
    UpdateEditorsOnStyleSheetChange();
}

void ktStyleSheetWindow::FinishChange() {
    CacheStatements();
    UpdateEditorsOnStyleSheetChange();
    LivePreview();
}

}  // namespace tintora
