#pragma once

#include "properties/PropertyValues.h"
#include "text/Text.h"

/// The value of `font`, apart and together. Three editors show its parts, and each must be able to write it whole.
namespace tintora {

namespace font_part {

inline constexpr int Size = 1001;
inline constexpr int Weight = 1002;
inline constexpr int LineHeight = 1009;
inline constexpr int Family = 1011;
inline constexpr int Style = 1012;
inline constexpr int Variant = 1043;

}  // namespace font_part

/// The parts of a `font` value in the order in which they stand, with the family at the end, "" if nothing is left for
/// it. A part may occur more than once.
///
/// A word is what its letters say wherever they stand in a list: the sizes are asked first, then the weights, styles
/// and variants. So a family that is spelled "a" or "in" is taken for a size. What is none of these is tested again
/// with the word behind it, so that the second word of a family isn't tested alone.
///
///     TakeFontApart(u"bold 12px/1.5 Times, serif")    // weight, size 12px, line height 1.5, family "Times, serif"
[[nodiscard]] PropertyValues TakeFontApart(TextView value);

/// The parts that a `font` value is written of, without those that are "": weight, style, size, line height, variant
/// and family. Without a size there is no line height.
[[nodiscard]] PropertyValues FontPartsToWrite(const ShownValue& valueOf);

/// These parts as a value: a "/" stands between size and line height, a blank between all others.
[[nodiscard]] Text JoinFont(const PropertyValues& parts);

}  // namespace tintora
