#pragma once

#include "text/Text.h"

#include <cstdint>

/// Colours in their CSS forms, and the colours that the program shows for them.
namespace tintora {

/// A colour to show: blue, green and red from the third byte down, red in the lowest. The highest byte is 0, or 0x80
/// for a colour of the system, whose index then stands in the lowest byte.
using ColorValue = std::uint32_t;

inline constexpr ColorValue SystemColorBase = 0x80000000;

[[nodiscard]] constexpr ColorValue ColorFromComponents(unsigned red, unsigned green, unsigned blue) noexcept {
    return red | (green << 8U) | (blue << 16U);
}

[[nodiscard]] constexpr bool IsHexDigit(char16_t unit) noexcept {
    return (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'f') || (unit >= u'A' && unit <= u'F');
}

/// Whether the unit may stand between the parentheses of an "rgb()": a digit, ",", ".", "%" or a blank.
[[nodiscard]] constexpr bool IsRGBChar(char16_t unit) noexcept {
    return (unit >= u'0' && unit <= u'9') || unit == u',' || unit == u'.' || unit == u'%' || unit == u' ';
}

/// Whether `text` is "#" and three or six hexadecimal digits.
[[nodiscard]] bool IsHexColor(TextView text) noexcept;

/// Whether `text` is "rgb(" in whatever case, units that pass `IsRGBChar`, and ")" at the end. The components aren't
/// counted.
[[nodiscard]] bool IsRGBColor(TextView text) noexcept;

/// Whether `text` is exactly a colour keyword, or a system colour keyword.
[[nodiscard]] bool IsColorKeyword(TextView text);
[[nodiscard]] bool IsSystemColorKeyword(TextView text);

/// Whether `text` has any of the four forms; false for "".
[[nodiscard]] bool IsValidColor(TextView text);

/// The keywords, in the order of their lists.
[[nodiscard]] Texts GetColorKeywords();
[[nodiscard]] Texts GetUIColorKeywords();

/// The colour that the program shows for a CSS colour; 0 for what is none. Keywords are matched exactly, in lower case.
///
/// The named colours are the program's own: they have 153 and 204 in the place of 128 and 192, `transparent` is a dark
/// grey, and `orange` is 0. A component above 255 counts as 255; one that is missing as 0.
[[nodiscard]] ColorValue ColorValueFromText(TextView text);

/// Six hexadecimal digits in lower case, red first. Of a system colour only the three low bytes count.
[[nodiscard]] Text ColorToHex(ColorValue color);

/// "r, g, b" in decimal.
[[nodiscard]] Text ColorToRGBText(ColorValue color);

}  // namespace tintora
