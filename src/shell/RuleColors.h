#pragma once

#include "language/Colors.h"
#include "text/Text.h"

#include <optional>
#include <vector>

/// The colours of a rule and of its style sheet, where they can be shown.
///
/// They can for hexadecimal digits, "rgb()" and the names that have a colour, in whatever case. There is none to show
/// for `inherit`, `transparent`, a colour of the system, and for what is no colour.
namespace tintora {

/// The colour of `property`, a name in lower case, in declaration texts with or without their ";"; of two declarations
/// the last holds. An "!important" is put aside. Nothing where there is no such declaration, or no colour to show.
[[nodiscard]] std::optional<ColorValue> RuleColor(const Texts& declarations, TextView property);

/// The colours among values, each once, in their order.
[[nodiscard]] std::vector<ColorValue> ColorsToShow(const Texts& values);

}  // namespace tintora
