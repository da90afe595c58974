#pragma once

#include "text/Text.h"

#include <cstddef>

/// White space, of which there are exactly five units: tab (9), line feed (10), form feed (12), carriage return (13)
/// and blank (32). A unit above 127 is never white space.
///
/// All operations but `IsWhitespaceUnit`, `IsWhitespaceChar` and `FindNonWhitespace` throw `OverflowFailure` for a text
/// beyond the length limit of a style sheet.
namespace tintora {

[[nodiscard]] constexpr bool IsWhitespaceUnit(char16_t unit) noexcept {
    return unit == u' ' || unit == u'\n' || unit == u'\r' || unit == u'\t' || unit == u'\f';
}

/// Whether the one-character text is white space; false for "".
[[nodiscard]] bool IsWhitespaceChar(TextView character) noexcept;

/// Whether `text` isn't empty and holds nothing but white space; false for "".
[[nodiscard]] bool IsAllWhitespace(TextView text);

/// The text from its first character that isn't white space; "" if it has none.
[[nodiscard]] Text StripLeftWhitespace(TextView text);

/// The text through its last character that isn't white space; "" if it has none.
[[nodiscard]] Text StripRightWhitespace(TextView text);

/// The text without the white space at both ends.
[[nodiscard]] Text TrimWhitespace(TextView text);

/// As `TrimWhitespace`, but a view into the same text, and without its limit.
[[nodiscard]] TextView TrimmedView(TextView text) noexcept;

/// The first position at or after `position` that isn't white space; the length of the text plus 1 if there is none.
/// Positions are 1-based; one below 1 counts as 1.
[[nodiscard]] int SkipWhitespaceForward(TextView text, int position);

/// The last position at or before `position` that isn't white space; 0 if there is none. Positions are 1-based; one
/// beyond the text counts as its last.
[[nodiscard]] int SkipWhitespaceBackward(TextView text, int position);

/// The 0-based index of the first unit at or after `index` that isn't white space; `text.size()` if there is none.
[[nodiscard]] std::size_t FindNonWhitespace(TextView text, std::size_t index) noexcept;

}  // namespace tintora
