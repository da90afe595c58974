#pragma once

#include "text/Text.h"

/// Numbers as text and back. No locale has a part in any of it: the decimal sign is the point.
namespace tintora {

/// The general conversion: a leading blank for a number that isn't negative (" 12", "-3", " 0.5"). Decimals are the
/// fewest that give the same number back. Generated text and stored keys show the blank, and must.
[[nodiscard]] Text NumberText(long long number);
[[nodiscard]] Text NumberText(int number);
[[nodiscard]] Text NumberText(double number);

/// The number that `text` begins with: optional white space and sign, then digits with at most one decimal point, and
/// an exponent where digits follow it. What comes behind is ignored ("12px" is 12); 0 where no number stands. One that
/// is too large is the largest that there is.
[[nodiscard]] double LeadingNumber(TextView text);

/// Whether the whole of `text` is a number: an optional sign, digits with at most one decimal point and at least one
/// digit, and an optional exponent ("e", optional sign, digits). Blanks make it none.
[[nodiscard]] bool IsNumeric(TextView text) noexcept;

}  // namespace tintora
