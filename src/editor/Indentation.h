#pragma once

#include "editor/SourceView.h"

namespace tintora {

/// Indents or outdents the rows of the selection, or the caret's row, as one undoable step; the selection stays on the
/// same text. A row that the selection ends at the very start of isn't one of them.
///
/// Indenting puts a tab in front of each row that isn't empty; outdenting takes one away, or up to four blanks.
void IndentSelectedRows(SourceView& view, SourceCommand command);

}  // namespace tintora
