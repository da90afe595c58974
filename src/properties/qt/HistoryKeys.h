#pragma once

class QEvent;

namespace tintora {

/// For a field whose text goes into the style sheet as it is typed: the keys for "undo" and "redo" are those of the
/// style sheet. True for an event about them, which is ignored then; what the field itself would make of it must not
/// happen.
[[nodiscard]] bool LeavesHistoryToTheText(QEvent& event);

}  // namespace tintora
