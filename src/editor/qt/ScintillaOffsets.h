#pragma once

#include "editor/RowIndex.h"
#include "text/Text.h"

#include <string_view>

class QsciScintillaBase;

namespace tintora {

/// The number of code units that UTF-8 stands for.
[[nodiscard]] int CodeUnitsIn(std::string_view utf8) noexcept;

/// Offsets of a Scintilla control in code units. The control itself holds and counts bytes of UTF-8.
///
/// The control has an index of its own, but that takes some valid characters for single bytes, and loses count where a
/// CR and an LF meet. So the rows are counted here, and the bytes of one row where a column is asked for.
class ScintillaOffsets {
  public:
    /// `control` must outlive the object.
    explicit ScintillaOffsets(const QsciScintillaBase& control) : control_(control) {}

    /// The whole text is another.
    void Reset();

    /// In the place of row `first` and the `removed` rows behind it there are `rows` rows now.
    void RowsChanged(int first, int removed, int rows);

    [[nodiscard]] const RowIndex& Rows() const noexcept { return rows_; }

    /// The byte position of a 0-based offset; one beyond the text gives the text's end, one below 0 its start. Of an
    /// offset between the two halves of a character it is the character's start.
    [[nodiscard]] long BytePosition(int offset) const;

    /// The offset of a byte position.
    [[nodiscard]] int OffsetOf(long position) const;

    /// The bytes of a row with its terminator; they stay until the control is called again.
    [[nodiscard]] std::string_view BytesOf(int row) const;

  private:
    const QsciScintillaBase& control_;
    RowIndex rows_;
};

/// Has the control take its text for UTF-8.
void UseUtf8(QsciScintillaBase& control);

/// The whole text.
[[nodiscard]] Text ControlText(const QsciScintillaBase& control);

/// Puts `text` in the place of the control's, NUL characters included, and forgets what could be undone.
void LoadControlText(QsciScintillaBase& control, TextView text);

}  // namespace tintora
