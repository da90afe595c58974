#pragma once

#include "text/Text.h"

#include <cstddef>

namespace tintora {

/// Which chunks a line is cut into.
enum class ChunkForm {
    /// What the scanner takes for tokens.
    Tokens,
    /// The same, but that a backslash in front of a double quote is text like any other.
    PlainQuotes,
    /// The same as `Tokens`, but that a text also ends in front of the white space behind its first word: the white
    /// space in front of a word belongs to it ("1px", " solid", " red").
    Words,
};

/// One line of a style sheet and the places where its chunks end.
///
/// A chunk is never empty, so chunks taken one behind the other cover the line. Taking all chunks of a line needs no
/// more time than in proportion to its length.
class LineChunks {
  public:
    LineChunks() = default;

    /// `line` must outlive this object.
    explicit LineChunks(TextView line);

    /// The 0-based index behind the chunk that begins at the 0-based `index`, which is inside of the line.
    [[nodiscard]] std::size_t EndOfChunk(std::size_t index, ChunkForm form) const;

  private:
    [[nodiscard]] bool HasEscapedQuoteAt(std::size_t index) const;
    [[nodiscard]] std::size_t EndOfMediaHead() const;
    [[nodiscard]] std::size_t EndOfText(std::size_t index, ChunkForm form) const;
    [[nodiscard]] bool EndsTextAt(std::size_t index, ChunkForm form) const;

    TextView line_;
    std::size_t behindLastSemicolon_ = 0;
    bool beginsWithMedia_ = false;
};

}  // namespace tintora
