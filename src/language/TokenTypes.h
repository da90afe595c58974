#pragma once

#include <cstdint>

namespace tintora {

/// The types of tokens. Token styles and type-ahead go by the same numbers.
namespace token_type {

/// The end of the line: no token.
inline constexpr std::int32_t EndOfLine = 0;
/// A comment, or the part of one that is on this line.
inline constexpr std::int32_t Comment = 6;
/// ":" or ";" in a rule.
inline constexpr std::int32_t Punctuation = 17;
/// The name of a property that is known, or white space in the place of one.
inline constexpr std::int32_t PropertyName = 19;
inline constexpr std::int32_t UnknownPropertyName = 20;
inline constexpr std::int32_t ValidValue = 21;
/// "{" or "}".
inline constexpr std::int32_t Brace = 23;
/// Text of a selector, and whatever else is outside of rules.
inline constexpr std::int32_t Selector = 24;
/// The head of an `@media` block.
inline constexpr std::int32_t MediaHead = 25;
/// "!important".
inline constexpr std::int32_t Important = 26;
inline constexpr std::int32_t InvalidValue = 27;
/// A value that hides its ";" behind a backslash and a quote from some browsers. It isn't judged.
inline constexpr std::int32_t HiddenValue = 28;

}  // namespace token_type

/// One token of a line. `start` is 0-based, `start` and `length` count code units.
struct LexToken {
    std::int32_t type = token_type::EndOfLine;
    std::int32_t start = 0;
    std::int32_t length = 0;

    friend bool operator==(const LexToken&, const LexToken&) = default;
};

}  // namespace tintora
