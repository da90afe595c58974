// The list of what may be typed: when it comes up, and what a choice of it writes.

#include "editor/CSSEditorSrcView.h"
#include "editor/TypeAhead.h"
#include "editor/TypeAheadList.h"
#include "language/TokenTypes.h"
#include "settings/Separators.h"
#include "settings/Settings.h"
#include "text/Narrowing.h"
#include "text/Whitespace.h"

namespace tintora {

void CSSEditorSrcView::StartTypeAhead(std::int16_t key, bool isControlHeld) {
    const bool isRequest = key == 0;
    if ((isControlHeld || !isRequest) && !Settings(settings_).GetTypeAhead())
        return;
    switch (isRequest ? TypeAheadKey::Restarts : TypeAheadKeyOf(static_cast<char16_t>(key))) {
        case TypeAheadKey::Starts:
            if (!typeAheadDelay_->IsRunning())
                typeAheadDelay_->Restart();
            return;
        case TypeAheadKey::Stops: typeAheadDelay_->Stop(); return;
        case TypeAheadKey::LeavesAlone: return;
        case TypeAheadKey::Restarts: break;
    }
    if (TypeAheadTypeAt(GetText(), GetSelectionStart()) == 0)
        return;
    if (isRequest)
        TypeAhead();
    else
        typeAheadDelay_->Restart();
}

void CSSEditorSrcView::TypeAhead() {
    const Text text = GetText();
    NarrowLength(text);
    const std::optional<TypeAheadRequest> request = TypeAheadRequestAt(text, GetSelectionStart());
    if (!request)
        return;
    PixelPosition place = textEditor_.PositionToPixels(textEditor_.CaretColumn(), textEditor_.CaretRow());
    place.x += 3 * textEditor_.CharWidth();
    place.y += textEditor_.LineHeight();
    place = textEditor_.ClientToScreen(place);
    GetTypeAheadValue(request->type, request->first, request->second, place.y, place.x);
    TypeAheadReturnType = Narrow(request->type);
}

void CSSEditorSrcView::GetTypeAheadValue(int type, TextView first, TextView second, int top, int left) {
    const bool isValue = type == token_type::ValidValue;
    const Text partial = StripLeftWhitespace(isValue ? second : first);
    const Texts list = ItemsBeginningWith(isValue ? TypeAheadValues(first, parent_) : TypeAheadNames(), partial);
    if (!IsWorthOffering(list, partial) || !typeAheadPopup_.CanOpen())
        return;
    // A list that is waiting still would come up behind this one.
    typeAheadDelay_->Stop();
    parent_.DisableUpdates();
    // A key that is down now comes up in the list, which has the focus then.
    CtrlKeyDown = false;
    typeAheadPopup_.GetTypeAheadValue(list, partial, top, left);
}

void CSSEditorSrcView::SetTypeAheadChoice(TextView choice) {
    const std::optional<TypeAheadEdit> edit =
        EditOfTypeAheadChoice(GetText(), GetSelectionStart(), TypeAheadReturnType, choice,
                              GetPropertySeparator(settings_), GetLastPropertySeparator(settings_));
    if (!edit)
        return;
    {
        const UndoStep step(textEditor_.Buffer());
        SetSelection(edit->start, edit->end);
        SetSelectionText(edit->text);
    }
    // The palettes follow the choice only if the document knows that they are stale.
    parent_.SetNeedsUpdating(true);
}

}  // namespace tintora
