#pragma once

#include "language/PropertyRules.h"
#include "text/Text.h"

/// Whether a value is acceptable for a property.
///
/// It is a sieve, not the grammar of CSS: word lists first, then the forms of values, then some rules of single
/// properties. It is lenient where nobody can tell (`quotes`, `content`, `font`), and it has gaps that callers show:
/// a unit's name alone passes, `outline` takes no more than one word, an unknown property takes the units.
///
///     ValidPropertyValue(u"color", u" Red ")              true
///     ValidPropertyValue(u"margin", u"1px -2em")          true
///     ValidPropertyValue(u"width", u"-10px")              false
///     ValidPropertyValue(u"outline", u"1px solid red")    false
///
/// Nothing here throws, whatever the text, and no test takes longer than in proportion to the value.
namespace tintora {

/// Where the pieces of a `font-family` are parted: the one thing in which the scanner and the editors differ.
enum class FontFamilySplit { AtComma, AtCommaAndBlank };

/// Whether `value` is acceptable for the property `name`. Case and white space around both count for nothing, but that
/// "inherit" passes for every property only where it is written exactly so; in any other way it must be one of the
/// property's words. "" is always acceptable.
[[nodiscard]] bool ValidPropertyValue(TextView name, TextView value, FontFamilySplit split = FontFamilySplit::AtComma);

/// The same for the property that has these rules, for callers that ask about it again and again.
[[nodiscard]] bool ValidPropertyValue(const PropertyRules& rules, TextView value,
                                      FontFamilySplit split = FontFamilySplit::AtComma);

/// The test as the value editors make it: `ValidPropertyValue` with the font families parted at comma and blank.
[[nodiscard]] bool ValidatePropertyValue(TextView name, TextView value);

// The parts of the test, to be asked with lower-case values that have no white space around them. Values are cut into
// words at single blanks, so that a double blank leaves a blank in front of the next word, which then fits nothing; ""
// has no words. `name` only matters where it is said.

/// Whether every word is one of `text-decoration`; true for "".
[[nodiscard]] bool isValidTextDecorationValue(TextView name, TextView value);

/// Whether every piece that holds a blank stands in quotes, double or single ones; true for "". The white space around
/// a piece isn't part of it.
[[nodiscard]] bool isValidFontFamilyValue(TextView name, TextView value,
                                          FontFamilySplit split = FontFamilySplit::AtComma);

/// Whether every word, in whatever case, is a length without a minus sign or one of the words of the property `name`;
/// false for "".
[[nodiscard]] bool isValidBackgroundPositionValue(TextView name, TextView value);

/// Whether every word may stand for an edge: a colour, a length without a minus sign, a border style, any part of
/// "inherit thin medium thick em ex px pt in mm cm %" ("hi" passes), and "transparent" where `name` is "border",
/// "invert" where it isn't. True for "".
[[nodiscard]] bool isValidEdgeValue(TextView name, TextView value);

/// Always true: the test of the font's style accepts every word.
[[nodiscard]] bool isValidFontValue(TextView name, TextView value, FontFamilySplit split = FontFamilySplit::AtComma);

}  // namespace tintora
