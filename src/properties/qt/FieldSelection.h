#pragma once

#include "editor/EditorSurroundings.h"

class QLineEdit;

/// The clipboard, for the selection of a text field. The field reports a change as if it were typed.
namespace tintora {

/// Puts the selected text on the clipboard; without one the clipboard keeps what it has.
void CopySelection(const QLineEdit& field, Clipboard& clipboard);

/// Deletes the selected text, where there is one.
void ClearSelectionOf(QLineEdit& field);

void CutSelection(QLineEdit& field, Clipboard& clipboard);

/// Puts a text in the place of the selection, or at the caret. What is beyond the length of a field is cut off.
void PutIntoSelection(QLineEdit& field, TextView text);

}  // namespace tintora
