#pragma once

#include "properties/PropertyValues.h"
#include "text/Text.h"

/// The values of `margin` and `padding`, apart and together.
///
/// The program's order is top, left, bottom, right, on both ways: the second word is left's and the fourth right's.
/// That isn't the order of CSS, but what is written is read alike.
namespace tintora {

/// The numbers of the two shorthands. Those of their sides follow in the program's order.
namespace box {

inline constexpr int Margin = 1019;
inline constexpr int Padding = 1024;
inline constexpr int SideCount = 4;

}  // namespace box

/// The values that a shorthand gives to its controls, without an "!important": its one word to the control for all
/// sides, or, of more words, the first to top and bottom, the second to left and right, the third to bottom and the
/// fourth to right. Words behind the fourth count for nothing; a value without words gives none.
///
///     TakeSidesApart(box::Margin, u"0")           // 1019 "0"
///     TakeSidesApart(box::Margin, u"1px 2px")     // 1020 "1px", 1022 "1px", 1021 "2px", 1023 "2px"
[[nodiscard]] PropertyValues TakeSidesApart(int shorthand, TextView value);

/// The sides that show a value, in the program's order, with a blank between. Nothing tells which sides are missing:
/// one side alone is written as a value for all four.
[[nodiscard]] Text JoinSides(int shorthand, const ShownValue& valueOf);

}  // namespace tintora
