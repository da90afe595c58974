#include "properties/FontShorthand.h"

#include "PropertyValueDump.h"
#include "language/Vocabulary.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora::test {
namespace {

struct ApartCase {
    TextView value;
    const char* parts;
};

/// 1001 size, 1002 weight, 1009 line height, 1011 family, 1012 style, 1043 variant.
constexpr auto TakenApart = std::to_array<ApartCase>({
    {u"", "1011 []"},
    {u"12px serif", "1001 [12px], 1011 [serif]"},
    {u"12px", "1001 [12px], 1011 []"},
    {u"serif", "1011 [serif]"},
    {u"bold italic 12px/1.5 \"Times New Roman\", serif",
     "1002 [bold], 1012 [italic], 1009 [1.5], 1001 [12px], 1011 [\"Times New Roman\", serif]"},
    {u"italic small-caps bold 1.2em Verdana, Arial",
     "1012 [italic], 1043 [small-caps], 1002 [bold], 1001 [1.2em], 1011 [Verdana, Arial]"},
    {u"BOLD 12px Serif", "1002 [BOLD], 1001 [12px], 1011 [Serif]"},
    {u"400 x-large/120% serif", "1002 [400], 1009 [120%], 1001 [x-large], 1011 [serif]"},
    // Blanks count for nothing, wherever they stand.
    {u"  bold \t\r\n 12px   serif  ", "1002 [bold], 1001 [12px], 1011 [serif  ]"},
    // "normal" is a weight, "inherit" a size.
    {u"normal normal 12px a-font", "1002 [normal], 1002 [normal], 1001 [12px], 1011 [a-font]"},
    {u"inherit", "1001 [inherit], 1011 []"},
    // A word counts wherever its letters stand in a list.
    {u"12px a", "1001 [12px], 1001 [a], 1011 []"},
    {u"12px in, serif", "1001 [12px], 1011 [in, serif]"},
    {u"talic serif", "1012 [talic], 1011 [serif]"},
    {u"12 serif", "1011 [12 serif]"},
    {u"12 m", "1001 [12 m], 1011 []"},
    // Behind a word that is none, the next isn't tested alone.
    {u"Times bold", "1011 [Times bold]"},
    {u"Times 12px", "1011 [Times 12px]"},
    {u"Times New/Roman serif", "1009 [Roman], 1001 [Times New], 1011 [serif]"},
    // A "/" that stands alone gives nothing, and its neighbours no line height.
    {u"12px / 1.5 serif", "1001 [12px], 1011 [1.5 serif]"},
    {u"12px/ 1.5 serif", "1001 [12px], 1011 [1.5 serif]"},
    {u"12px /1.5 serif", "1001 [12px], 1009 [1.5], 1011 [serif]"},
    {u"12px/1/2 serif", "1009 [1/2], 1001 [12px], 1011 [serif]"},
    {u"12px serif !important", "1001 [12px], 1011 [serif !important]"},
    {u"caption", "1011 [caption]"},
    {u"/* c */ 12px serif", "1009 [*], 1001 [c], 1001 [*], 1001 [12px], 1011 [serif]"},
});

struct JoinCase {
    PropertyValues shown;
    TextView value;
};

const std::vector<JoinCase> Joined = {
    {{}, u""},
    {{{1002, u"bold"}}, u"bold"},
    {{{1011, u"serif"}, {1001, u"12px"}}, u"12px serif"},
    {{{1011, u"serif"}, {1001, u"12px"}, {1009, u"1.5"}}, u"12px/1.5 serif"},
    {{{1011, u"serif"}, {1009, u"1.5"}}, u"serif"},
    {{{1002, u"bold"}, {1009, u"1.5"}}, u"bold"},
    {{{1009, u"1.5"}}, u""},
    {{{1043, u"small-caps"}, {1009, u"1.5"}, {1001, u"12px"}}, u"12px/1.5 small-caps"},
    {{{1011, u"a, b"}, {1012, u"italic"}, {1043, u"small-caps"}, {1002, u"bold"}, {1001, u"1em"}, {1009, u"2"}},
     u"bold italic 1em/2 small-caps a, b"},
};

TEST(FontShorthand, AValueIsTakenApartWordByWord) {
    for (const ApartCase& row : TakenApart) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EXPECT_EQ(Dump(TakeFontApart(row.value)), row.parts);
    }
}

TEST(FontShorthand, ThePartsAreWrittenInTheirOrder) {
    for (const JoinCase& row : Joined) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EXPECT_EQ(JoinFont(FontPartsToWrite(ShownBy(row.shown))), row.value);
    }
}

TEST(FontShorthand, EveryWordOfItsPartsIsFoundAgain) {
    for (const int part : {font_part::Size, font_part::Weight, font_part::Style, font_part::Variant}) {
        for (const Text& word : GetPossibleValues(part)) {
            const PropertyValues parts = TakeFontApart(word + u" Georgia");
            ASSERT_EQ(parts.size(), 2U) << Utf8FromText(word);
            EXPECT_EQ(parts[0].value, word);
            EXPECT_EQ(parts[1].value, u"Georgia");
        }
    }
}

TEST(FontShorthand, AFamilyOfManyWordsTakesNoLonger) {
    Text value = u"12px ";
    for (int round = 0; round < 300'000; ++round)
        value += u"z ";
    EXPECT_EQ(TakeFontApart(value).size(), 2U);
    EXPECT_EQ(TakeFontApart(Text(100'000, u'1') + u" " + value).size(), 1U);
}

}  // namespace
}  // namespace tintora::test
