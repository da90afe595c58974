#include "language/Colors.h"

#include "language/ValueLists.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct NamedCase {
    TextView name;
    unsigned red;
    unsigned green;
    unsigned blue;
};

/// Names with the colours that are shown for them.
constexpr auto NamedCases = std::to_array<NamedCase>({
    {u"aqua", 0, 255, 255},       {u"black", 0, 0, 0},     {u"blue", 0, 0, 255},      {u"fuchsia", 255, 0, 255},
    {u"gray", 153, 153, 153},     {u"green", 0, 153, 0},   {u"lime", 0, 255, 0},      {u"maroon", 153, 0, 0},
    {u"navy", 0, 0, 153},         {u"olive", 153, 153, 0}, {u"purple", 153, 0, 153},  {u"red", 255, 0, 0},
    {u"silver", 204, 204, 204},   {u"teal", 0, 153, 153},  {u"white", 255, 255, 255}, {u"yellow", 255, 255, 0},
    {u"transparent", 20, 20, 20}, {u"orange", 0, 0, 0},    {u"inherit", 0, 0, 0},
});

struct SystemCase {
    TextView name;
    unsigned index;
};

constexpr auto SystemCases = std::to_array<SystemCase>({
    {u"scrollbar", 0},
    {u"inactivecaption", 3},
    {u"menu", 4},
    {u"window", 5},
    {u"windowframe", 6},
    {u"menutext", 7},
    {u"windowtext", 8},
    {u"activecaption", 9},
    {u"captiontext", 9},
    {u"activeborder", 10},
    {u"inactiveborder", 11},
    {u"appworkspace", 12},
    {u"background", 12},
    {u"highlight", 13},
    {u"highlighttext", 14},
    {u"buttonface", 15},
    {u"threedface", 15},
    {u"buttonhighlight", 16},
    {u"threedshadow", 16},
    {u"graytext", 17},
    {u"buttontext", 18},
    {u"inactivecaptiontext", 19},
    {u"threedhighlight", 20},
    {u"threeddarkshadow", 21},
    {u"threedhighlightshadow", 22},
    {u"infotext", 23},
    {u"infobackground", 24},
});

struct HexCase {
    TextView text;
    bool isHex;
    TextView digits;
};

constexpr auto HexCases = std::to_array<HexCase>({
    {u"#abc", true, u"aabbcc"},     {u"#123", true, u"112233"},       {u"#ABCDEF", true, u"abcdef"},
    {u"#09afAF", true, u"09afaf"},  {u"#000", true, u"000000"},       {u"#fff", true, u"ffffff"},
    {u"#010203", true, u"010203"},  {u"#F0a", true, u"ff00aa"},       {u"", false, u"000000"},
    {u"#", false, u"000000"},       {u"#a", false, u"000000"},        {u"#ab", false, u"000000"},
    {u"#abcd", false, u"000000"},   {u"#abcde", false, u"000000"},    {u"#abcdeff", false, u"000000"},
    {u"abc", false, u"000000"},     {u"abcd", false, u"000000"},      {u"#abg", false, u"000000"},
    {u"#ab ", false, u"000000"},    {u" #abc", false, u"000000"},     {u"#abc ", false, u"000000"},
    {u"##ab", false, u"000000"},    {u"#-12", false, u"000000"},      {u"#\xFF11\xFF12\xFF13", false, u"000000"},
    {u"#ab\0"sv, false, u"000000"}, {u"#\xD800zz", false, u"000000"},
});

struct RGBCase {
    TextView text;
    bool isRGB;
    TextView shown;
};

constexpr auto RGBCases = std::to_array<RGBCase>({
    {u"rgb(1,2,3)", true, u"1, 2, 3"},
    {u"RGB(1,2,3)", true, u"1, 2, 3"},
    {u"rGb( 1 , 2 , 3 )", true, u"1, 2, 3"},
    {u"rgb(255, 255, 255)", true, u"255, 255, 255"},
    {u"rgb(256, 999, 100000)", true, u"255, 255, 255"},

    // Components are rounded to the nearest, ties to even.
    {u"rgb(0.4, 0.6, 254.9)", true, u"0, 1, 255"},
    {u"rgb(0.5, 1.5, 2.5)", true, u"0, 2, 2"},
    {u"rgb(.5, 3.5, 4.)", true, u"0, 4, 4"},

    // One percent sign anywhere makes percentages of all.
    {u"rgb(100%,0%,0%)", true, u"255, 0, 0"},
    {u"rgb(100%, 50, 0)", true, u"255, 128, 0"},
    {u"rgb(10%, 30%, 50%)", true, u"26, 76, 128"},
    {u"rgb(70%, 90%, 200%)", true, u"178, 230, 255"},
    {u"rgb(12.5%, 0.1%, 99.9%)", true, u"32, 0, 255"},
    {u"rgb(100, 100, 100 %)", true, u"255, 255, 255"},

    // The components aren't counted.
    {u"rgb()", true, u"0, 0, 0"},
    {u"rgb( )", true, u"0, 0, 0"},
    {u"rgb(,,)", true, u"0, 0, 0"},
    {u"rgb(7)", true, u"7, 0, 0"},
    {u"rgb(7,8)", true, u"7, 8, 0"},
    {u"rgb(,8)", true, u"0, 8, 0"},
    {u"rgb(7,8,9,10,11)", true, u"7, 8, 9"},
    {u"rgb(1.9.3,..,.)", true, u"2, 0, 0"},

    {u"", false, u"0, 0, 0"},
    {u"rgb", false, u"0, 0, 0"},
    {u"rgb(", false, u"0, 0, 0"},
    {u"rgb(1,2,3", false, u"0, 0, 0"},
    {u"rgb(1,2,3) ", false, u"0, 0, 0"},
    {u" rgb(1,2,3)", false, u"0, 0, 0"},
    {u"rgb (1,2,3)", false, u"0, 0, 0"},
    {u"rgba(1,2,3)", false, u"0, 0, 0"},
    {u"rgb(-1,2,3)", false, u"0, 0, 0"},
    {u"rgb(+1,2,3)", false, u"0, 0, 0"},
    {u"rgb(1e2,2,3)", false, u"0, 0, 0"},
    {u"rgb(1;2;3)", false, u"0, 0, 0"},
    {u"rgb(1,\t2,3)", false, u"0, 0, 0"},
    {u"rgb((1,2,3)", false, u"0, 0, 0"},
    {u"rgb(1,2,3))", false, u"0, 0, 0"},
    {u"rgb(1,2,3\0)"sv, false, u"0, 0, 0"},
    {u"rgb(\xFF11,2,3)", false, u"0, 0, 0"},
    {u"rgb(\xD800)", false, u"0, 0, 0"},
});

constexpr auto NoColors = std::to_array<TextView>({
    u"",
    u" ",
    u"nonsense",
    u"Red",
    u"RED",
    u"red ",
    u" red",
    u"Window",
    u"redblue",
    u"none",
    u"currentcolor",
    u"re",
    u"red\0"sv,
    u"\0"sv,
    u"\xD800",
    u"hsl(1,2,3)",
});

struct ShownColor {
    ColorValue color;
    TextView hex;
    TextView rgb;
};

constexpr auto ShownColors = std::to_array<ShownColor>({
    {0, u"000000", u"0, 0, 0"},
    {0x0000FF, u"ff0000", u"255, 0, 0"},
    {0x00FF00, u"00ff00", u"0, 255, 0"},
    {0xFF0000, u"0000ff", u"0, 0, 255"},
    {0x030201, u"010203", u"1, 2, 3"},
    {0xEFCDAB, u"abcdef", u"171, 205, 239"},
    {0xFFFFFF, u"ffffff", u"255, 255, 255"},
    {SystemColorBase + 24, u"180000", u"24, 0, 0"},
    {0xFF000000, u"000000", u"0, 0, 0"},
});

TEST(Colors, ANameHasTheColorOfTheProgram) {
    for (const NamedCase& row : NamedCases)
        EXPECT_EQ(ColorValueFromText(row.name), row.red + row.green * 256 + row.blue * 65536) << Utf8FromText(row.name);
}

TEST(Colors, ASystemColorIsItsIndex) {
    for (const SystemCase& row : SystemCases)
        EXPECT_EQ(ColorValueFromText(row.name), 0x80000000U + row.index) << Utf8FromText(row.name);
}

TEST(Colors, EverySystemColorKeywordHasAnIndex) {
    EXPECT_EQ(GetUIColorKeywords().size(), SystemCases.size());
    for (const SystemCase& row : SystemCases)
        EXPECT_TRUE(IsSystemColorKeyword(row.name)) << Utf8FromText(row.name);
}

TEST(Colors, EveryKeywordIsAValidColor) {
    for (const NamedCase& row : NamedCases) {
        const bool isKeyword = row.name != u"transparent";
        EXPECT_EQ(IsColorKeyword(row.name), isKeyword) << Utf8FromText(row.name);
        EXPECT_EQ(IsValidColor(row.name), isKeyword) << Utf8FromText(row.name);
        EXPECT_FALSE(IsSystemColorKeyword(row.name)) << Utf8FromText(row.name);
    }
    for (const SystemCase& row : SystemCases) {
        EXPECT_TRUE(IsValidColor(row.name)) << Utf8FromText(row.name);
        EXPECT_FALSE(IsColorKeyword(row.name)) << Utf8FromText(row.name);
    }
    EXPECT_EQ(GetColorKeywords().size(), NamedCases.size() - 1);
}

TEST(Colors, TheKeywordsComeInTheOrderOfTheirLists) {
    EXPECT_EQ(GetColorKeywords(), ColorKeywords());
    EXPECT_EQ(GetUIColorKeywords(), SystemColorKeywords());
    EXPECT_EQ(GetColorKeywords().front(), u"inherit");
    EXPECT_EQ(GetColorKeywords().back(), u"yellow");
    EXPECT_EQ(GetUIColorKeywords().front(), u"activeborder");
    EXPECT_EQ(GetUIColorKeywords().back(), u"windowtext");
}

TEST(Colors, AHexColorHasThreeOrSixDigits) {
    for (const HexCase& row : HexCases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(IsHexColor(row.text), row.isHex);
        EXPECT_EQ(IsValidColor(row.text), row.isHex);
        EXPECT_EQ(ColorToHex(ColorValueFromText(row.text)), row.digits);
    }
}

TEST(Colors, AnRGBColorIsReadByItsCommas) {
    for (const RGBCase& row : RGBCases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(IsRGBColor(row.text), row.isRGB);
        EXPECT_EQ(IsValidColor(row.text), row.isRGB);
        EXPECT_EQ(ColorToRGBText(ColorValueFromText(row.text)), row.shown);
    }
}

TEST(Colors, AnythingElseIsNoColor) {
    for (const TextView text : NoColors) {
        SCOPED_TRACE(Utf8FromText(text));
        EXPECT_FALSE(IsValidColor(text));
        EXPECT_FALSE(IsHexColor(text));
        EXPECT_FALSE(IsRGBColor(text));
        EXPECT_FALSE(IsColorKeyword(text));
        EXPECT_FALSE(IsSystemColorKeyword(text));
        EXPECT_EQ(ColorValueFromText(text), 0U);
    }
}

TEST(Colors, AColorIsWrittenRedFirst) {
    for (const ShownColor& row : ShownColors) {
        EXPECT_EQ(ColorToHex(row.color), row.hex);
        EXPECT_EQ(ColorToRGBText(row.color), row.rgb);
    }
}

TEST(Colors, AnyColorComesBackFromBothForms) {
    std::mt19937 random(24);
    for (int round = 0; round < 20000; ++round) {
        const auto color = static_cast<ColorValue>(random() & 0xFFFFFFU);
        ASSERT_EQ(ColorValueFromText(u"#" + ColorToHex(color)), color);
        ASSERT_EQ(ColorValueFromText(u"rgb(" + ColorToRGBText(color) + u")"), color);
    }
}

TEST(Colors, TheUnitsOfAColorAreThese) {
    for (unsigned value = 0; value <= 0xFFFF; ++value) {
        const auto unit = static_cast<char16_t>(value);
        EXPECT_EQ(IsHexDigit(unit), u"0123456789abcdefABCDEF"sv.find(unit) != TextView::npos) << value;
        EXPECT_EQ(IsRGBChar(unit), u"0123456789,.% "sv.find(unit) != TextView::npos) << value;
    }
}

}  // namespace
}  // namespace tintora
