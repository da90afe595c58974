#pragma once

#include "text/Text.h"

/// Small tests of the forms that values take. They look at the form only, and more loosely than CSS does: what an
/// editor accepts while a value is typed depends on it.
namespace tintora {

/// Whether the two characters stand anywhere in "em ex px pc pt in mm cm % number": pairs such as "nu", "er" and "x "
/// are units too.
[[nodiscard]] bool IsLengthUnit(TextView twoCharacters) noexcept;

/// Whether `text` is "0", or an optional sign, a number, and "%" or a unit.
[[nodiscard]] bool IsLengthValue(TextView text) noexcept;

/// As `IsLengthValue`, but false for a text that begins with "-".
[[nodiscard]] bool IsPositiveLengthValue(TextView text) noexcept;

/// Whether `text`, in whatever case, begins with "url(" or is "none". The closing parenthesis isn't asked for.
[[nodiscard]] bool IsURLValue(TextView text) noexcept;

/// Whether `text`, in whatever case, is "inherit", "auto" or a "rect(" with four words up to its first ")". The words
/// are parted by single blanks; commas part nothing.
[[nodiscard]] bool IsRectValue(TextView text);

/// Whether the one character is `:`, `,`, `;`, `{` or `}`.
[[nodiscard]] constexpr bool IsCSSDelimiter(char16_t character) noexcept {
    return character == u':' || character == u',' || character == u';' || character == u'{' || character == u'}';
}

/// The first position at or after `position` that holds white space or a delimiter; the length of the text plus 1 if
/// there is none. Positions are 1-based; one below 1 counts as 1.
[[nodiscard]] int FindWordEnd(TextView text, int position) noexcept;

}  // namespace tintora
