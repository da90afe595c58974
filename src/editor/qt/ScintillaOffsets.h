#pragma once

#include "text/Text.h"

class QsciScintillaBase;

/// The text of a Scintilla control in UTF-16 code units. The control itself holds and counts bytes of UTF-8.
namespace tintora {

/// Has the control keep an index of its lines in code units, so that the conversions below take logarithmic time in the
/// number of lines. Call it once, before the other functions.
void KeepCodeUnitIndex(QsciScintillaBase& control);

/// The byte position of a 0-based offset in code units; one beyond the text gives the text's end.
[[nodiscard]] long BytePosition(const QsciScintillaBase& control, int offset);

/// The offset in code units of a byte position.
[[nodiscard]] int CodeUnitOffset(const QsciScintillaBase& control, long position);

/// The whole text.
[[nodiscard]] Text ControlText(const QsciScintillaBase& control);

/// Puts `text` in the place of the control's, NUL characters included, and forgets what could be undone.
void LoadControlText(QsciScintillaBase& control, TextView text);

}  // namespace tintora
