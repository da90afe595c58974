#pragma once

#include "text/Text.h"

/// Lower case that keeps every offset: one code unit gives one code unit.
///
/// It covers Basic Latin, Latin-1, Latin Extended-A, Greek and Cyrillic. A unit outside of these blocks, and one whose
/// lower case isn't a single unit (the capital I with a dot), stays as it is.
namespace tintora {

[[nodiscard]] char16_t LowerCaseUnit(char16_t unit) noexcept;

/// The lower-case form of `text`, of the same length.
[[nodiscard]] Text LowerCase(TextView text);

/// Whether the lower-case form of `text` equals `lowered`, which is in lower case already.
[[nodiscard]] bool EqualsLowered(TextView text, TextView lowered) noexcept;

/// Whether the lower-case form of `text` has `lowered`, which is in lower case already, at the 0-based `index`.
[[nodiscard]] bool HasLoweredAt(TextView text, std::size_t index, TextView lowered) noexcept;

/// The 0-based index of the first place at or after `from` where the lower-case form of `text` has `lowered`, which is
/// in lower case already and not empty; `TextView::npos` if there is none.
[[nodiscard]] std::size_t FindLowered(TextView text, TextView lowered, std::size_t from = 0) noexcept;

}  // namespace tintora
