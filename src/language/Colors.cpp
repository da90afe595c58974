#include "language/Colors.h"

#include "language/ValueLists.h"
#include "language/Words.h"
#include "text/LowerCase.h"
#include "text/NumberText.h"
#include "text/StringTable.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tintora {

namespace {

constexpr int ColorWords = 1129;
constexpr int SystemColorWords = 1130;

constexpr TextView RGBOpening = u"rgb(";

struct NamedColor {
    TextView name;
    ColorValue color;
};

constexpr auto NamedColors = std::to_array<NamedColor>({
    {u"aqua", ColorFromComponents(0, 255, 255)},
    {u"black", ColorFromComponents(0, 0, 0)},
    {u"blue", ColorFromComponents(0, 0, 255)},
    {u"fuchsia", ColorFromComponents(255, 0, 255)},
    {u"gray", ColorFromComponents(153, 153, 153)},
    {u"green", ColorFromComponents(0, 153, 0)},
    {u"lime", ColorFromComponents(0, 255, 0)},
    {u"maroon", ColorFromComponents(153, 0, 0)},
    {u"navy", ColorFromComponents(0, 0, 153)},
    {u"olive", ColorFromComponents(153, 153, 0)},
    {u"purple", ColorFromComponents(153, 0, 153)},
    {u"red", ColorFromComponents(255, 0, 0)},
    {u"silver", ColorFromComponents(204, 204, 204)},
    {u"teal", ColorFromComponents(0, 153, 153)},
    {u"white", ColorFromComponents(255, 255, 255)},
    {u"yellow", ColorFromComponents(255, 255, 0)},
    {u"transparent", ColorFromComponents(20, 20, 20)},
    {u"scrollbar", SystemColorBase + 0},
    {u"inactivecaption", SystemColorBase + 3},
    {u"menu", SystemColorBase + 4},
    {u"window", SystemColorBase + 5},
    {u"windowframe", SystemColorBase + 6},
    {u"menutext", SystemColorBase + 7},
    {u"windowtext", SystemColorBase + 8},
    {u"activecaption", SystemColorBase + 9},
    {u"captiontext", SystemColorBase + 9},
    {u"activeborder", SystemColorBase + 10},
    {u"inactiveborder", SystemColorBase + 11},
    {u"appworkspace", SystemColorBase + 12},
    {u"background", SystemColorBase + 12},
    {u"highlight", SystemColorBase + 13},
    {u"highlighttext", SystemColorBase + 14},
    {u"buttonface", SystemColorBase + 15},
    {u"threedface", SystemColorBase + 15},
    {u"buttonhighlight", SystemColorBase + 16},
    {u"threedshadow", SystemColorBase + 16},
    {u"graytext", SystemColorBase + 17},
    {u"buttontext", SystemColorBase + 18},
    {u"inactivecaptiontext", SystemColorBase + 19},
    {u"threedhighlight", SystemColorBase + 20},
    {u"threeddarkshadow", SystemColorBase + 21},
    {u"threedhighlightshadow", SystemColorBase + 22},
    {u"infotext", SystemColorBase + 23},
    {u"infobackground", SystemColorBase + 24},
});

unsigned HexDigitValue(char16_t unit) {
    if (unit <= u'9')
        return static_cast<unsigned>(unit - u'0');
    return static_cast<unsigned>(LowerCaseUnit(unit) - u'a') + 10U;
}

ColorValue HexColorValue(TextView digits) {
    const std::size_t width = digits.size() / 3;
    const auto component = [&](std::size_t index) {
        const char16_t high = digits[index * width];
        const char16_t low = digits[index * width + width - 1];
        return HexDigitValue(high) * 16U + HexDigitValue(low);
    };
    return ColorFromComponents(component(0), component(1), component(2));
}

ColorValue RGBColorValue(TextView text) {
    TextView rest = text.substr(RGBOpening.size(), text.size() - RGBOpening.size() - 1);
    const bool isPercentage = rest.find(u'%') != TextView::npos;
    const auto nextComponent = [&] {
        const std::size_t comma = rest.find(u',');
        const double number = LeadingNumber(rest.substr(0, comma));
        rest = comma == TextView::npos ? TextView() : rest.substr(comma + 1);
        const double value = isPercentage ? number * 255 / 100 : number;
        return static_cast<unsigned>(std::nearbyint(std::min(value, 255.0)));
    };
    const unsigned red = nextComponent();
    const unsigned green = nextComponent();
    const unsigned blue = nextComponent();
    return ColorFromComponents(red, green, blue);
}

}  // namespace

bool IsHexColor(TextView text) noexcept {
    return (text.size() == 4 || text.size() == 7) && text.front() == u'#' &&
           std::all_of(text.begin() + 1, text.end(), IsHexDigit);
}

bool IsRGBColor(TextView text) noexcept {
    return HasLoweredAt(text, 0, RGBOpening) && text.ends_with(u')') &&
           std::all_of(text.begin() + RGBOpening.size(), text.end() - 1, IsRGBChar);
}

bool IsColorKeyword(TextView text) {
    static const WordTable words(ColorKeywords(), WordTable::LetterCase::Matters);
    return words.Has(text);
}

bool IsSystemColorKeyword(TextView text) {
    static const WordTable words(SystemColorKeywords(), WordTable::LetterCase::Matters);
    return words.Has(text);
}

bool IsValidColor(TextView text) {
    return !text.empty() &&
           (IsHexColor(text) || IsRGBColor(text) || IsColorKeyword(text) || IsSystemColorKeyword(text));
}

Texts GetColorKeywords() { return GetWordsFromText(LoadResourceString(ColorWords), u" "); }

Texts GetUIColorKeywords() { return GetWordsFromText(LoadResourceString(SystemColorWords), u" "); }

ColorValue ColorValueFromText(TextView text) {
    if (IsHexColor(text))
        return HexColorValue(text.substr(1));
    if (IsRGBColor(text))
        return RGBColorValue(text);
    const auto* const found =
        std::find_if(NamedColors.begin(), NamedColors.end(), [=](const NamedColor& row) { return row.name == text; });
    return found == NamedColors.end() ? 0 : found->color;
}

Text ColorToHex(ColorValue color) {
    constexpr TextView Digits = u"0123456789abcdef";
    Text hex;
    for (unsigned shift = 0; shift < 24; shift += 8) {
        hex.push_back(Digits[(color >> (shift + 4U)) & 0xFU]);
        hex.push_back(Digits[(color >> shift) & 0xFU]);
    }
    return hex;
}

Text ColorToRGBText(ColorValue color) {
    const auto component = [&](unsigned shift) { return NumberText(static_cast<int>((color >> shift) & 0xFFU)); };
    return component(0).substr(1) + u"," + component(8) + u"," + component(16);
}

}  // namespace tintora
