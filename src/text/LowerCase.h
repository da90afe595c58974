#pragma once

#include "text/Text.h"

/// Lower case that keeps every offset: one code unit gives one code unit.
///
/// It covers Basic Latin, Latin-1, Latin Extended-A, Greek and Cyrillic. A unit outside of these blocks, and one whose
/// lower case isn't a single unit (the capital I with a dot), stays as it is.
namespace tintora {

/// `LowerCaseUnit` of a unit from 0x80 on.
[[nodiscard]] char16_t LowerCaseUnitBeyondASCII(char16_t unit) noexcept;

[[nodiscard]] inline char16_t LowerCaseUnit(char16_t unit) noexcept {
    if (unit >= 0x80)
        return LowerCaseUnitBeyondASCII(unit);
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
}

/// The lower-case form of `text`, of the same length.
[[nodiscard]] Text LowerCase(TextView text);

/// Turns `text` into its lower-case form where it stands.
void TurnIntoLowerCase(Text& text) noexcept;

/// Whether the lower-case form of `text` equals `lowered`, which is in lower case already.
[[nodiscard]] bool EqualsLowered(TextView text, TextView lowered) noexcept;

/// Whether the lower-case form of `text` has `lowered`, which is in lower case already, at the 0-based `index`.
[[nodiscard]] bool HasLoweredAt(TextView text, std::size_t index, TextView lowered) noexcept;

/// The 0-based index of the first place at or after `from` where the lower-case form of `text` has `lowered`, which is
/// in lower case already and not empty; `TextView::npos` if there is none.
[[nodiscard]] std::size_t FindLowered(TextView text, TextView lowered, std::size_t from = 0) noexcept;

}  // namespace tintora
