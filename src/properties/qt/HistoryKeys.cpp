#include "properties/qt/HistoryKeys.h"

#include <QKeyEvent>

namespace tintora {

bool LeavesHistoryToTheText(QEvent& event) {
    if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<QKeyEvent&>(event);
    if (!key.matches(QKeySequence::Undo) && !key.matches(QKeySequence::Redo))
        return false;
    event.ignore();
    return true;
}

}  // namespace tintora
