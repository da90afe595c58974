#include "editor/qt/QtTypeAheadPopup.h"

#include "editor/qt/ScintillaSourceView.h"
#include "editor/qt/frmTypeAhead.h"

#include <QApplication>

namespace tintora {

bool QtTypeAheadPopup::CanOpen() const {
    return view_.Control().hasFocus() && QApplication::activePopupWidget() == nullptr;
}

void QtTypeAheadPopup::GetTypeAheadValue(const Texts& list, TextView partial, int top, int left) {
    // It deletes itself when it is closed.
    auto* const form = new frmTypeAhead(view_.Control(), view_.LineHeight(), onChosen_);
    form->GetTypeAheadValue(list, partial, top, left);
}

}  // namespace tintora
