#pragma once

#include "text/Text.h"

/// A length as text, apart and together: sign, number and unit.
///
/// Taking apart is loose on purpose. It looks for signs and units anywhere, so a text that is no length gives parts
/// too; whoever calls looks first whether it is one.
namespace tintora {

/// "+" if the text holds one anywhere, else "-" if it holds one anywhere, else "".
[[nodiscard]] TextView GetPropertySign(TextView text) noexcept;

/// "%" if the text holds one anywhere; else its last two characters, blanks at its end aside, if they are a unit by
/// `IsLengthUnit`; else "".
///
///     GetPropertyUnits(u"12px")           // "px"
///     GetPropertyUnits(u"1.5")            // ""
///     GetPropertyUnits(u"item")           // "em"
[[nodiscard]] TextView GetPropertyUnits(TextView text) noexcept;

/// The text behind the first sign, in front of the unit, where `GetPropertySign` and `GetPropertyUnits` find one.
///
///     GetPropertyValue(u"-12px")          // "12"
///     GetPropertyValue(u"1.5")            // "1.5"
[[nodiscard]] TextView GetPropertyValue(TextView text) noexcept;

/// The value that the three fields of a length control stand for. "number" is a unit that writes nothing; any other
/// word that is no unit is the value itself. "" for a unit without a number.
///
///     JoinLength(u"-", u"12", u"px")      // "-12px"
///     JoinLength(u"", u"1.5", u"number")  // "1.5"
///     JoinLength(u"-", u"12", u"auto")    // "auto"
///     JoinLength(u"", u"", u"px")         // ""
[[nodiscard]] Text JoinLength(TextView sign, TextView number, TextView unit);

}  // namespace tintora
