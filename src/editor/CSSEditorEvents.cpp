// What the control tells: the road by which a user's action reaches the document.

#include "editor/CSSEditorSrcView.h"
#include "language/TokenTypes.h"
#include "text/Narrowing.h"

namespace tintora {

void CSSEditorSrcView::Ready() { Initialized = true; }

void CSSEditorSrcView::StoreCaret(int column, int row) {
    LastCaretX = Narrow(column);
    LastCaretY = Narrow(row);
    UpdateStatusBar();
}

void CSSEditorSrcView::SelectionChanged(int column, int row) {
    if (!Initialized || Loading)
        return;
    UpdateMenu();
    if (column == LastCaretX && row == LastCaretY) {
        StoreSelectionStart();
        return;
    }
    // While the button is down the caret's new place isn't recorded either: the report on its release finds it new.
    if (KeyDown || MouseDown)
        return;
    const int type = GetTokenType(column, row);
    const bool staysInToken = row == LastCaretY && (type == token_type::Punctuation || type == LastTokenType);
    if (staysInToken) {
        StoreSelectionStart();
        StoreCaret(column, row);
        return;
    }
    LastTokenType = type;
    StoreSelectionStart();
    parent_.SelectionChanged();
    StoreCaret(column, row);
}

void CSSEditorSrcView::TextChanged() {
    if (Loading)
        return;
    parent_.TextChanged();
    UpdateMenu();
}

void CSSEditorSrcView::ChangedOtherwise() { parent_.SetNeedsUpdating(true); }

void CSSEditorSrcView::KeyPressedDown(int code, int shift) {
    if (code == key_code::Control)
        CtrlKeyDown = true;
    if (code == key_code::Space && shift == shift_state::Control)
        StartTypeAhead(0, false);
    if (code == key_code::Delete)
        parent_.DeleteKeyDown();
}

void CSSEditorSrcView::CharacterTyped(char16_t character) {
    StartTypeAhead(static_cast<std::int16_t>(character), CtrlKeyDown);
}

void CSSEditorSrcView::KeyReleased(int code, [[maybe_unused]] int shift) {
    CtrlKeyDown = false;
    if (code == key_code::Backspace)
        parent_.SpecialKeyUp();
}

void CSSEditorSrcView::MousePressed(MouseButton button, [[maybe_unused]] int shift,
                                    [[maybe_unused]] PixelPosition position) {
    if (button == MouseButton::Left)
        MouseDown = true;
}

void CSSEditorSrcView::MouseReleased(MouseButton button, [[maybe_unused]] int shift,
                                     [[maybe_unused]] PixelPosition position) {
    if (button == MouseButton::Right)
        RunContextMenuEntry(dialogs_.ChooseFromMenu(UpdateContextualMenu()));
    if (button == MouseButton::Left) {
        MouseDown = false;
        UpdateMenu();
    }
}

}  // namespace tintora
