#include "language/PropertyValidation.h"

#include "language/LexClass.h"
#include "text/Encoding.h"
#include "text/Whitespace.h"

#include <gtest/gtest.h>

#include <array>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct ValueCase {
    TextView name;
    TextView value;
    bool isValid;
};

constexpr auto ValueCases = std::to_array<ValueCase>({
    {u"color", u"red", true},
    {u"color", u"#12", false},
    {u"color", u"#123", true},
    {u"color", u"rgb(1,2,3)", true},
    {u"color", u"rgb(a,2,3)", false},
    {u"color", u"", true},
    {u"color", u"inherit", true},
    {u"width", u"10px", true},
    {u"width", u"-10px", false},
    {u"margin", u"-10px", true},
    {u"margin", u"1px 2px", true},
    {u"margin", u"1px bad", false},
    {u"margin", u"bad", false},
    {u"top", u"10xx", false},
    {u"font-family", u"Times New Roman, serif", false},
    {u"font-family", u"\"Times New Roman\", serif", true},
    {u"font", u"nonsense here", true},
    {u"quotes", u"anything", true},
    {u"outline", u"thin", true},
    {u"outline", u"1px solid red", false},
    {u"border", u"1px solid red", true},
    {u"border-left", u"1px solid transparent", true},
    {u"border-left", u"1px solid invert", false},
    {u"background", u"url(a.gif) no-repeat top left", true},
    {u"background", u"nonsense", false},
    {u"text-decoration", u"underline overline", true},
    {u"colour", u"red", false},
    {u"colour", u"10px", false},
    {u"colour", u"em", true},
    {u"z-index", u"5", true},
    {u"z-index", u"auto", true},

    // Case and white space around name and value count for nothing.
    {u" COLOR\t", u"\r\n Red \f", true},
    {u"Width", u"10PX", true},
    {u"MARGIN", u"1EM Auto", true},
    {u"Border", u"1PX Solid RED", true},
    {u"color", u" \t\n\f\r", true},
    {u"nonsense", u"", true},
    {u"", u"", true},

    // Only the bare "inherit" passes everywhere.
    {u"text-decoration", u"inherit", true},
    {u"text-decoration", u" inherit", false},
    {u"text-decoration", u"INHERIT", false},
    {u"text-decoration", u"inherit underline", false},
    {u"nonsense", u"inherit", true},
    {u"nonsense", u"Inherit", false},
    {u"color", u" inherit ", true},
    {u"width", u"Inherit", true},
    {u"list-style-type", u"INHERIT", true},
    {u"font-family", u"Inherit", true},

    // The words of a property.
    {u"width", u"em", true},
    {u"width", u"auto", true},
    {u"width", u"number", false},
    {u"line-height", u"number", true},
    {u"z-index", u"number", true},
    {u"color", u"%", true},
    {u"color", u"transparent", false},
    {u"float", u"left", true},
    {u"float", u"center", false},
    {u"display", u"block", true},
    {u"display", u"block inline", false},
    {u"table-layout", u"fixed", false},
    {u"table-layout", u"em", true},
    {u"border-right-color", u"em", true},
    {u"border-rightcolor", u"red", true},
    {u"font-size", u"x-large", true},
    {u"margin", u"em", false},
    {u"margin", u"px", true},
    {u"padding", u"ex", true},

    // Lengths.
    {u"letter-spacing", u"-1px", true},
    {u"word-spacing", u"-1px", true},
    {u"text-indent", u"-1px", true},
    {u"vertical-align", u"-1px", true},
    {u"bottom", u"-1px", true},
    {u"left", u"-1px", true},
    {u"right", u"-1px", true},
    {u"margin-top", u"-1px", true},
    {u"margin-bottom", u"10er", true},
    {u"padding", u"-1px", false},
    {u"padding-left", u"+1px", true},
    {u"height", u"0", true},
    {u"min-height", u"1px", true},
    {u"max-width", u"1px", true},
    {u"max-height", u"1px", false},
    {u"max-height", u"px", true},
    {u"font-size", u"-1px", false},
    {u"font-size", u"12", false},
    {u"border-spacing", u"1px", true},
    {u"marker-offset", u"1px", false},
    {u"", u"-1px", true},
    {u" ", u"-1px", true},
    {u"", u"red", false},

    // URLs.
    {u"background-image", u"url(a)", true},
    {u"background-image", u"none", true},
    {u"background-image", u"a.gif", false},
    {u"background-image", u"URL(", true},
    {u"list-style-image", u"none", true},
    {u"list-style-image", u"url(a b)", true},
    {u"list-style-image", u"red", false},
    {u"cursor", u"url(a.cur)", true},
    {u"cursor", u"none", true},
    {u"cursor", u"hand", false},

    // Colours.
    {u"background-color", u"transparent", true},
    {u"background-color", u"ActiveBorder", true},
    {u"background-color", u"#ABCDEF", true},
    {u"background-color", u"orange red", false},
    {u"outline-color", u"red", false},

    // Numbers.
    {u"z-index", u"-1.5e3", true},
    {u"z-index", u"1 2", false},
    {u"z-index", u"5px", false},
    {u"line-height", u"1.4", true},
    {u"line-height", u"-1.4", true},
    {u"line-height", u"-1.4em", false},
    {u"line-height", u"normal", true},
    {u"widows", u"2", false},
    {u"font-size-adjust", u"0.5", false},

    // What nobody can tell.
    {u"content", u"\"a\" counter(b)", true},
    {u"quotes", u"\xD800", true},
    {u"voice-family", u"anything", false},
    {u"voice-family", u"list", true},

    // Decorations: every word is one of them, and a double blank spoils the next.
    {u"text-decoration", u"none", true},
    {u"text-decoration", u"Underline BLINK", true},
    {u"text-decoration", u"underline bold", false},
    {u"text-decoration", u"underline  overline", false},
    {u"text-decoration", u"underline\toverline", false},

    {u"background-position", u"top left", true},
    {u"background-position", u"10% 5px", true},
    {u"background-position", u"-10% 5px", false},
    {u"background-position", u"Top Inherit", true},
    {u"background-position", u"top middle", false},
    {u"background-position", u"top  left", false},
    {u"background-position", u"em em", true},

    {u"clip", u"rect(1px 2px 3px 4px)", true},
    {u"clip", u"rect(1px, 2px, 3px, 4px)", true},
    {u"clip", u"rect(1px,2px,3px,4px)", false},
    {u"clip", u"rectangle", true},
    {u"clip", u"AUTO", true},

    {u"outline", u"1px", false},
    {u"outline", u"thin thin", false},
    {u"outline", u"em", true},
    {u"outline-style", u"solid", true},

    // Sides.
    {u"margin", u"1px 2px 3px 4px 5px", true},
    {u"margin", u"auto -1px", true},
    {u"margin", u"0 1px", true},
    {u"margin", u"1px  2px", true},
    {u"margin", u"1px   2px", true},
    {u"margin", u"1px \t 2px", true},
    {u"margin", u"1px\t2px", false},
    {u"margin", u"inherit inherit", true},
    {u"margin", u"1 2", false},
    {u"padding", u"1px 2px", true},
    {u"padding", u"1px -2px", false},
    {u"padding", u"1px auto", false},
    {u"padding", u"1px bad", false},
    {u"margin-left", u"1px 2px", false},

    // Backgrounds.
    {u"background", u"transparent", true},
    {u"background", u"none", true},
    {u"background", u"red scroll", true},
    {u"background", u"#fff 10px 20%", true},
    {u"background", u"-10px", false},
    {u"background", u"red  top", true},
    {u"background", u"red  #fff", false},
    {u"background", u"url(a b)", false},
    {u"background", u"url(a top)", false},
    {u"background", u"url(a em)", false},
    {u"background", u"url(a em", true},
    {u"background", u"repeat-x inherit fixed", true},
    {u"background", u"rgb(1, 2, 3)", false},
    {u"background", u"rgb(1,2,3)", true},

    {u"list-style", u"square inside", true},
    {u"list-style", u"url(a.gif) none", true},
    {u"list-style", u"em", true},
    {u"list-style", u"square nonsense", false},
    {u"list-style", u"1px", false},

    {u"font", u"!", true},
    {u"font", u"12px/1.5 \"Times New Roman\"", true},

    // Edges: a part of the widths' list passes, whatever it is a part of.
    {u"border", u"e", true},
    {u"border", u"hi", true},
    {u"border", u"m", true},
    {u"border", u"hick em", true},
    {u"border", u"thin medium thick", true},
    {u"border", u"transparent", true},
    {u"border", u"invert", false},
    {u"border", u"-1px", false},
    {u"border", u"1px  solid", false},
    {u"border", u"1px  thin", true},
    {u"border", u"solid;", false},
    {u"border", u"z", false},
    {u"border-color", u"red #fff", true},
    {u"border-style", u"groove ridge", true},
    {u"border-collapse", u"solid", true},
    {u"border-collapse", u"collapse solid", false},
    {u"border-unheard-of", u"1px solid red", true},
    {u"borders", u"dashed", true},
    {u"BORDER-Top", u"1px double Teal", true},
    {u"-border", u"dashed", false},
    {u"bord", u"dashed", false},

    {u"color", u"red\0"sv, false},
    {u"color\0"sv, u"red", false},
    {u"width", u"\xDC00\xD800", false},
    {u"color", u"\x0130red", false},
    {u"border", u"1px solid \x0420", false},
});

struct FontFamilyCase {
    TextView value;
    bool isValid;
    /// Whether the value editors take it, which part the families at ", ".
    bool isValidInEditors;
};

constexpr auto FontFamilyCases = std::to_array<FontFamilyCase>({
    {u"Times New Roman, serif", false, false},
    {u"\"Times New Roman\", serif", true, true},
    {u"'Times New Roman', serif", true, true},
    {u"\"Times New Roman\",serif", true, false},
    {u"\"A B\",\"C D\"", true, true},
    {u"Arial,Helvetica", true, true},
    {u"Arial, Helvetica", true, true},
    {u"Arial,  Helvetica", true, true},
    {u"Arial,\tHelvetica", true, true},
    {u"Arial ,Helvetica", true, false},
    {u"'A,B C'", false, true},
    {u"'A, B C'", false, false},
    {u"'A B\"", false, false},
    {u"\"A B'", false, false},
    {u"A\tB", true, true},
    {u"serif", true, true},
    {u"em", true, true},
    {u"two words", false, false},
    {u"\"", true, true},
    {u"\" \"", true, true},
    {u",", true, true},
    {u"a,,'b c'", false, false},
    {u"a, , 'b c'", true, false},
});

struct PartCase {
    bool (*test)(TextView, TextView);
    TextView name;
    TextView value;
    bool isValid;
};

bool IsFontFamily(TextView name, TextView value) { return isValidFontFamilyValue(name, value); }
bool IsFontFamilyOfEditors(TextView name, TextView value) {
    return isValidFontFamilyValue(name, value, FontFamilySplit::AtCommaAndBlank);
}
bool IsFont(TextView name, TextView value) { return isValidFontValue(name, value); }

/// The parts, asked by themselves.
constexpr auto PartCases = std::to_array<PartCase>({
    {&isValidTextDecorationValue, u"", u"", true},
    {&isValidTextDecorationValue, u"", u"blink none", true},
    {&isValidTextDecorationValue, u"", u"Blink", false},
    {&isValidTextDecorationValue, u"", u"blink ", false},
    {&isValidTextDecorationValue, u"", u"inherit", false},
    {&IsFontFamily, u"", u"", true},
    {&IsFontFamily, u"", u"'a b',c", true},
    {&IsFontFamilyOfEditors, u"", u"'a b',c", false},
    {&isValidBackgroundPositionValue, u"background-position", u"", false},
    {&isValidBackgroundPositionValue, u"background-position", u"TOP 1px", true},
    {&isValidBackgroundPositionValue, u"background-position", u"auto", false},
    {&isValidBackgroundPositionValue, u"width", u"auto", true},
    {&isValidBackgroundPositionValue, u"nonsense", u"top", false},
    {&isValidBackgroundPositionValue, u"background-position", u"top ", false},
    {&isValidEdgeValue, u"border", u"", true},
    {&isValidEdgeValue, u"border", u"thin ", true},
    {&isValidEdgeValue, u"border", u"transparent", true},
    {&isValidEdgeValue, u"border", u"invert", false},
    {&isValidEdgeValue, u"outline", u"invert", true},
    {&isValidEdgeValue, u"outline", u"transparent", false},
    {&isValidEdgeValue, u"border-left", u"invert", true},
    {&isValidEdgeValue, u"outline", u"1px solid red", true},
    {&isValidEdgeValue, u"border", u"RED", false},
    {&IsFont, u"font", u"", true},
    {&IsFont, u"", u"  what \xD800 ever ", true},
});

Text Shown(TextView name, TextView value) { return Text(name).append(u": ").append(value); }

TEST(PropertyValidation, AValueIsAcceptableOrNot) {
    for (const ValueCase& row : ValueCases) {
        SCOPED_TRACE(Utf8FromText(Shown(row.name, row.value)));
        EXPECT_EQ(ValidPropertyValue(row.name, row.value), row.isValid);
        EXPECT_EQ(LexClass::ValidPropertyValue(row.name, row.value), row.isValid);
        EXPECT_EQ(ValidPropertyValue(RulesOfProperty(TrimmedView(row.name)), row.value), row.isValid);
    }
}

TEST(PropertyValidation, TheEditorsTakeTheSameButForFontFamilies) {
    for (const ValueCase& row : ValueCases)
        EXPECT_EQ(ValidatePropertyValue(row.name, row.value), row.isValid) << Utf8FromText(Shown(row.name, row.value));
}

TEST(PropertyValidation, FontFamiliesArePartedAtCommasAndInTheEditorsAtCommasWithABlank) {
    for (const FontFamilyCase& row : FontFamilyCases) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EXPECT_EQ(ValidPropertyValue(u"font-family", row.value), row.isValid);
        EXPECT_EQ(ValidatePropertyValue(u"font-family", row.value), row.isValidInEditors);
        EXPECT_EQ(LexClass::isValidFontFamilyValue(u"font-family", row.value), row.isValid);
    }
}

TEST(PropertyValidation, EachPartAnswersByItself) {
    for (const PartCase& row : PartCases)
        EXPECT_EQ(row.test(row.name, row.value), row.isValid) << Utf8FromText(Shown(row.name, row.value));
}

TEST(PropertyValidation, TheScannersPartsAreTheSame) {
    EXPECT_TRUE(LexClass::isValidTextDecorationValue(u"", u"blink"));
    EXPECT_FALSE(LexClass::isValidTextDecorationValue(u"", u"bold"));
    EXPECT_TRUE(LexClass::isValidBackgroundPositionValue(u"background-position", u"top"));
    EXPECT_FALSE(LexClass::isValidBackgroundPositionValue(u"background-position", u"auto"));
    EXPECT_TRUE(LexClass::isValidEdgeValue(u"outline", u"invert"));
    EXPECT_FALSE(LexClass::isValidEdgeValue(u"border", u"invert"));
    EXPECT_TRUE(LexClass::isValidFontValue(u"font", u"nonsense"));
}

TEST(PropertyValidation, NoLengthOfTextFails) {
    const Text blanks(100000, u' ');
    const Text letters(100000, u'X');
    for (const TextView name : {u"margin"sv, u"font"sv, u"background"sv, u"font-family"sv, u"border"sv, u"clip"sv}) {
        EXPECT_TRUE(ValidPropertyValue(blanks + Text(name) + blanks, blanks));
        EXPECT_EQ(ValidPropertyValue(name, letters), name == u"font" || name == u"font-family");
    }
    EXPECT_FALSE(ValidPropertyValue(letters, u"red"));
    EXPECT_TRUE(ValidPropertyValue(u"border" + letters, u"red"));
}

}  // namespace
}  // namespace tintora
