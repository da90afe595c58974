#include "properties/ColorFields.h"

#include "language/FakeFrontDocument.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>
#include <random>

namespace tintora {
namespace {

constexpr ColorValue Red = ColorFromComponents(255, 0, 0);

struct ValueCase {
    TextView value;
    ColorMode mode;
    /// The text of the visible part.
    TextView shown;
    TextView given;
    bool isBad;
    ColorValue preview;
};

constexpr auto Values = std::to_array<ValueCase>({
    {u"rgb(255, 0, 0)", ColorMode::RGB, u"255, 0, 0", u"rgb(255, 0, 0)", false, Red},
    {u"RGB(1,2,3)", ColorMode::RGB, u"1,2,3", u"rgb(1,2,3)", false, ColorFromComponents(1, 2, 3)},
    {u"rgb(100%, 0%, 0%)", ColorMode::RGB, u"100%, 0%, 0%", u"rgb(100%, 0%, 0%)", false, Red},
    {u"#f00", ColorMode::Hex, u"f00", u"#f00", false, Red},
    {u"#FF0000", ColorMode::Hex, u"FF0000", u"#FF0000", false, Red},
    {u"red", ColorMode::Keywords, u"red", u"red", false, Red},
    {u"inherit", ColorMode::Keywords, u"inherit", u"inherit", false, 0},
    {u"orange", ColorMode::Keywords, u"orange", u"orange", false, 0},
    {u"windowtext", ColorMode::UIKeywords, u"windowtext", u"windowtext", false, SystemColorBase + 8},
    {u"background", ColorMode::UIKeywords, u"background", u"background", false, SystemColorBase + 12},
    {u"#f00 !important", ColorMode::Hex, u"f00", u"#f00", false, Red},
    {u"red!IMPORTANT", ColorMode::Keywords, u"red", u"red", false, Red},
    // The form alone decides; what lies between isn't looked at.
    {u"rgbx", ColorMode::RGB, u"", u"", false, ColorFields::NoColor},
    {u"rgba(1, 2, 3, 4)", ColorMode::RGB, u"(1, 2, 3, 4", u"rgb((1, 2, 3, 4)", true, ColorFields::NoColor},
    {u"rgb", ColorMode::RGB, u"", u"", false, ColorFields::NoColor},
    {u"rgb(1, 2", ColorMode::RGB, u"1, ", u"rgb(1, )", false, ColorFromComponents(1, 0, 0)},
    {u"#", ColorMode::Hex, u"", u"", false, ColorFields::NoColor},
    {u"#ff", ColorMode::Hex, u"ff", u"#ff", true, ColorFields::NoColor},
    {u"#ggg", ColorMode::Hex, u"ggg", u"#ggg", true, ColorFields::NoColor},
    // What has none of the forms is shown among the document's colours.
    {u"reddish", ColorMode::Current, u"reddish", u"reddish", true, ColorFields::NoColor},
    {u"Red", ColorMode::Current, u"Red", u"Red", true, ColorFields::NoColor},
    {u"transparent", ColorMode::Current, u"transparent", u"transparent", true, ColorFromComponents(20, 20, 20)},
    {u"hsl(1, 2%, 3%)", ColorMode::Current, u"hsl(1, 2%, 3%)", u"hsl(1, 2%, 3%)", true, ColorFields::NoColor},
    // Nothing.
    {u"", ColorMode::Hex, u"", u"", false, ColorFields::NoColor},
    {u"!important", ColorMode::Hex, u"", u"", false, ColorFields::NoColor},
});

Text VisibleText(const ColorFields& color) {
    switch (color.Mode()) {
        case ColorMode::RGB: return color.RGBText();
        case ColorMode::Hex: return color.HexText();
        default: return Text(color.Words().ChosenText());
    }
}

TEST(ColorFields, TheModesHaveTheirCaptions) {
    EXPECT_EQ(ColorModeCaptions, (std::array<TextView, 5>{u"Current", u"Keywords", u"UI Keywords", u"rgb", u"#"}));
}

TEST(ColorFields, AValueIsShownInTheModeOfItsForm) {
    for (const ValueCase& row : Values) {
        SCOPED_TRACE(Utf8FromText(row.value));
        ColorFields color;
        color.Clear();
        color.SetValue(row.value);
        EXPECT_EQ(color.Mode(), row.mode);
        EXPECT_EQ(VisibleText(color), row.shown);
        EXPECT_EQ(color.GetValue(), row.given);
        EXPECT_EQ(color.IsBad(), row.isBad);
        EXPECT_EQ(color.Preview(), row.preview);
        // The same property once more.
        color.SetValue(row.value);
        EXPECT_EQ(color.GetValue(), row.given);
        EXPECT_EQ(color.IsBad(), row.isBad);
    }
}

TEST(ColorFields, EachListHasItsWords) {
    FakeFrontDocument front;
    front.colors = {u" red", u"#123 "};
    ColorFields color;
    color.Clear(&front);
    EXPECT_TRUE(color.Words().Entries().empty());
    color.ChooseMode(ColorMode::Current, &front);
    EXPECT_EQ(color.Words().Entries(), (Texts{u"red", u"#123"}));
    color.ChooseMode(ColorMode::Keywords);
    EXPECT_EQ(color.Words().Entries(), GetColorKeywords());
    color.ChooseMode(ColorMode::UIKeywords);
    EXPECT_EQ(color.Words().Entries(), GetUIColorKeywords());
    color.ChooseMode(ColorMode::Current);
    EXPECT_TRUE(color.Words().Entries().empty());
    color.ChooseMode(ColorMode::RGB);
    EXPECT_TRUE(color.Words().Entries().empty());
}

TEST(ColorFields, ClearingKeepsTheModeOnly) {
    ColorFields color;
    EXPECT_EQ(color.Mode(), ColorMode::Hex);
    for (const ValueCase& row : Values) {
        color.Clear();
        color.SetValue(row.value);
        const ColorMode mode = color.Mode();
        color.Clear();
        EXPECT_EQ(color.Mode(), mode);
        EXPECT_EQ(color.GetValue(), u"");
        EXPECT_EQ(color.RGBText(), u"");
        EXPECT_EQ(color.HexText(), u"");
        EXPECT_EQ(color.Words().Chosen(), ChoiceList::None);
        EXPECT_FALSE(color.IsBad());
        EXPECT_EQ(color.Preview(), ColorFields::NoColor);
    }
}

TEST(ColorFields, AColorOfTheDocumentIsFoundAndAnotherOneAdded) {
    FakeFrontDocument front;
    front.colors = {u"reddish", u"greenish"};
    ColorFields color;
    color.Clear(&front);
    color.SetValue(u"greenish");
    EXPECT_EQ(color.Words().Chosen(), 1U);
    color.SetValue(u"bluish");
    EXPECT_EQ(color.Words().Entries(), (Texts{u"reddish", u"greenish", u"bluish"}));
    color.SetValue(u"reddish");
    EXPECT_EQ(color.Words().Entries(), front.colors);
}

TEST(ColorFields, AnotherModeKeepsTheWordThatItsListHas) {
    FakeFrontDocument front;
    front.colors = {u"red", u"reddish"};
    ColorFields color;
    color.Clear(&front);
    color.SetValue(u"red");
    color.ChooseMode(ColorMode::Current, &front);
    EXPECT_EQ(color.GetValue(), u"red");
    color.ChooseMode(ColorMode::UIKeywords);
    EXPECT_EQ(color.GetValue(), u"");
    color.ChooseMode(ColorMode::Hex);
    EXPECT_EQ(color.GetValue(), u"");
    // One that nothing knows stays where it is, in red.
    color.SetValue(u"x");
    color.ChooseMode(ColorMode::Current, &front);
    EXPECT_EQ(color.GetValue(), u"x");
    EXPECT_TRUE(color.IsBad());
    color.ChooseMode(ColorMode::Keywords);
    EXPECT_EQ(color.GetValue(), u"");
    EXPECT_FALSE(color.IsBad());
}

TEST(ColorFields, WhatIsTypedIsMarkedUntilItIsAColor) {
    ColorFields color;
    color.Clear();
    Text typed;
    for (const char16_t digit : Text(u"f00f00f")) {
        typed.push_back(digit);
        color.EnterHex(typed);
        EXPECT_EQ(color.GetValue(), u"#" + typed);
        EXPECT_EQ(color.IsBad(), typed.size() != 3 && typed.size() != 6);
    }
    // The swatch has stayed at the last colour.
    EXPECT_EQ(color.Preview(), ColorFromComponents(0xF0, 0x0F, 0));
    color.EnterHex(u"");
    EXPECT_EQ(color.GetValue(), u"");
    EXPECT_FALSE(color.IsBad());
    EXPECT_EQ(color.Preview(), ColorFields::NoColor);
    color.ChooseMode(ColorMode::RGB);
    color.EnterRGB(u"1, 2");
    EXPECT_FALSE(color.IsBad());
    color.EnterRGB(u"1; 2");
    EXPECT_TRUE(color.IsBad());
    EXPECT_EQ(color.GetValue(), u"rgb(1; 2)");
}

TEST(ColorFields, AWordFromTheListIsJudged) {
    ColorFields color;
    color.Clear();
    color.SetValue(u"reddish");
    EXPECT_TRUE(color.IsBad());
    color.ChooseMode(ColorMode::Keywords);
    color.ChooseWord(u"red");
    EXPECT_FALSE(color.IsBad());
    EXPECT_EQ(color.GetValue(), u"red");
    EXPECT_EQ(color.Preview(), Red);
}

TEST(ColorFields, AColorFromTheScreenGoesIntoTheVisibleRgbFieldOrIsHexadecimal) {
    const ColorValue picked = ColorFromComponents(255, 0, 16);
    for (const ColorMode mode : {ColorMode::Current, ColorMode::Keywords, ColorMode::UIKeywords, ColorMode::Hex}) {
        ColorFields color;
        color.Clear();
        color.ChooseMode(mode);
        color.ShowInPreview(picked);
        EXPECT_EQ(color.GetValue(), u"");
        color.TakeColor(color.Preview());
        EXPECT_EQ(color.Mode(), ColorMode::Hex);
        EXPECT_EQ(color.GetValue(), u"#ff0010");
        EXPECT_EQ(color.Preview(), picked);
    }
    ColorFields color;
    color.SetValue(u"rgb(1,2,3)");
    color.TakeColor(picked);
    EXPECT_EQ(color.GetValue(), u"rgb(255, 0, 16)");
    EXPECT_FALSE(color.IsBad());
}

TEST(ColorFields, EveryWordComesBackAsItIs) {
    for (const ColorMode mode : {ColorMode::Keywords, ColorMode::UIKeywords}) {
        ColorFields color;
        color.ChooseMode(mode);
        const Texts words = color.Words().Entries();
        for (const Text& word : words) {
            color.ChooseWord(word);
            ColorFields read;
            read.Clear();
            read.SetValue(color.GetValue());
            EXPECT_EQ(read.GetValue(), word);
            EXPECT_EQ(read.Mode(), mode);
            EXPECT_FALSE(read.IsBad());
        }
    }
}

TEST(ColorFields, ManyColorsCostNoMoreThanTheirNumber) {
    FakeFrontDocument front;
    for (int index = 0; index < 5000; ++index)
        front.colors.push_back(Text(1, static_cast<char16_t>(0x4E00 + index)));
    ColorFields color;
    color.Clear(&front);
    for (int round = 0; round < 100'000; ++round) {
        color.SetValue(u"red");
        color.SetValue(Text(2, static_cast<char16_t>(0x4E00 + round % 20'000)));
    }
    EXPECT_EQ(color.Words().Entries().size(), 5001U);
}

}  // namespace
}  // namespace tintora
