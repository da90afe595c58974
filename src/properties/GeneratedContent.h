#pragma once

#include "text/Text.h"

/// The values of `quotes` and `content` as lists of their parts.
namespace tintora {

/// The pairs of strings in a `quotes` value, each as it is written with a blank between. What stands outside of strings
/// isn't looked at; a string that isn't closed, and a last one without a partner, are dropped.
///
///     GetQuotePairs(u"\"<\" \">\" '(' ')'")       // "\"<\" \">\"", "'(' ')'"
[[nodiscard]] Texts GetQuotePairs(TextView value);

/// The parts of a `content` value: what white space parts outside of double quotes.
///
///     GetContentValues(u"\"a b\" attr(x)")        // "\"a b\"", "attr(x)"
[[nodiscard]] Texts GetContentValues(TextView value);

}  // namespace tintora
