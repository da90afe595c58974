#include "language/ValueParsers.h"

#include "text/Encoding.h"
#include "text/Whitespace.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct UnitCase {
    TextView characters;
    bool isUnit;
};

constexpr auto UnitCases = std::to_array<UnitCase>({
    {u"em", true},
    {u"ex", true},
    {u"px", true},
    {u"pc", true},
    {u"pt", true},
    {u"in", true},
    {u"mm", true},
    {u"cm", true},
    {u"% ", true},
    {u" %", true},
    {u"nu", true},
    {u"um", true},
    {u"mb", true},
    {u"be", true},
    {u"er", true},
    {u"x ", true},
    {u" p", true},
    {u"m ", true},
    {u" n", true},
    {u"EM", false},
    {u"Px", false},
    {u"xp", false},
    {u"rn", false},
    {u"re", false},
    {u"  ", false},
    {u"%%", false},
    {u"12", false},
    {u"kHz", false},
    {u"\xFF50\xFF58", false},
    {u"\0x"sv, false},
    {u"\xD800\xDC00", false},
});

struct LengthCase {
    TextView text;
    bool isLength;
    bool isPositiveLength;
};

constexpr auto LengthCases = std::to_array<LengthCase>({
    {u"0", true, true},
    {u"0px", true, true},
    {u"1.5em", true, true},
    {u"+2px", true, true},
    {u"-2px", true, false},
    {u"10%", true, true},
    {u"-10%", true, false},
    {u"+0.5%", true, true},
    {u".5em", true, true},
    {u"5.em", true, true},
    {u"-0px", true, false},
    {u"007mm", true, true},
    {u"1e3px", true, true},
    {u"1e-3px", true, true},
    {u"1E3pt", true, true},

    // Pairs that stand in the list of units are units too.
    {u"10er", true, true},
    {u"10nu", true, true},
    {u"10x ", true, true},
    {u"10 p", true, true},
    {u"10% ", true, true},

    // One sign goes, and the number may have another.
    {u"--2px", true, false},
    {u"+-2px", true, true},
    {u"-+2px", true, false},
    {u"++2px", true, true},
    {u"+++2px", false, false},

    {u"", false, false},
    {u"%", false, false},
    {u"+", false, false},
    {u"-", false, false},
    {u"+%", false, false},
    {u"-0", false, false},
    {u"+0", false, false},
    {u"00", false, false},
    {u"0.0", false, false},
    {u"5", false, false},
    {u"10", false, false},
    {u"-10", false, false},
    {u"px", false, false},
    {u"-px", false, false},
    {u"+m", false, false},
    {u"+5", false, false},
    {u".em", false, false},
    {u"e", false, false},
    {u"5m", false, false},
    {u"10PX", false, false},
    {u"10Em", false, false},
    {u"10 px", false, false},
    {u" 10px", false, false},
    {u"10px ", false, false},
    {u"10px;", false, false},
    {u"10%%", false, false},
    {u"1 0%", false, false},
    {u"1.2.3px", false, false},
    {u"1,5px", false, false},
    {u"1eem", false, false},
    {u"10number", false, false},
    {u"auto", false, false},
    {u"number", false, false},
    {u"10pxpx", false, false},
    {u"\xFF11px", false, false},
    {u"10p\0"sv, false, false},
    {u"1\0px"sv, false, false},
    {u"1\xD800px", false, false},
});

struct TextCase {
    TextView text;
    bool isValue;
};

constexpr auto URLCases = std::to_array<TextCase>({
    {u"", false},          {u"url(a.png)", true},   {u"url(", true},
    {u"URL(a.png)", true}, {u"Url(A", true},        {u"url()", true},
    {u"url((", true},      {u"none", true},         {u"NONE", true},
    {u"None", true},       {u"none ", false},       {u" none", false},
    {u"nonesuch", false},  {u"non", false},         {u"url", false},
    {u"ur", false},        {u"url (a.png)", false}, {u" url(a.png)", false},
    {u"a.png", false},     {u"xurl(a.png)", false}, {u"url(a.png) no-repeat", true},
    {u"none\0"sv, false},  {u"url(\0"sv, true},     {u"url(\xD800", true},
});

constexpr auto RectCases = std::to_array<TextCase>({
    {u"inherit", true},
    {u"auto", true},
    {u"INHERIT", true},
    {u"Auto", true},
    {u"rect(1px 2px 3px 4px)", true},
    {u"RECT(1px 2px 3px auto)", true},
    {u"rect(1px, 2px, 3px, 4px)", true},
    {u"rect(a b c d) and more", true},
    {u"rect(a b c d))", true},
    {u"rect(a b (c d)", true},

    // A double blank leaves a blank in front of a word, one in front of the first word too; one at the end makes a
    // word.
    {u"rect(1px  2px 3px 4px)", true},
    {u"rect( 1px 2px 3px 4px)", true},
    {u"rect(1px 2px 3px )", true},
    {u"rect(1px 2px 3px 4px )", false},
    {u"rect(    1px )", true},

    {u"", false},
    {u"auto ", false},
    {u" inherit", false},
    {u"rect", false},
    {u"rect(", false},
    {u"rect()", false},
    {u"rect( )", false},
    {u"rect(1px,2px,3px,4px)", false},
    {u"rect(1px 2px 3px)", false},
    {u"rect(1px 2px 3px 4px 5px)", false},
    {u"rect(1px 2px 3px 4px", false},
    {u"rect(1px 2px)3px 4px)", false},
    {u"rect (1px 2px 3px 4px)", false},
    {u" rect(1px 2px 3px 4px)", false},
    {u"1px 2px 3px 4px)", false},
    {u"rect(1px\t2px\t3px\t4px)", false},
    {u"rect(\0 \xD800 \0 \xDC00)"sv, true},
});

struct WordEndCase {
    TextView text;
    int position;
    int end;
};

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

constexpr auto WordEndCases = std::to_array<WordEndCase>({
    {u"", 1, 1},
    {u"", 0, 1},
    {u"", 9, 1},
    {u"", Least, 1},
    {u"", Most, 1},
    {u"color", 1, 6},
    {u"color", 5, 6},
    {u"color", 6, 6},
    {u"color", 7, 6},
    {u"color", Most, 6},
    {u"color:red", 1, 6},
    {u"color:red", 6, 6},
    {u"color:red", 7, 10},
    {u"color red", 1, 6},
    {u"a,b", 1, 2},
    {u"a;b", 1, 2},
    {u"a{b", 1, 2},
    {u"a}b", 1, 2},
    {u"a\tb", 1, 2},
    {u"a\fb", 1, 2},
    {u"a\r\nb", 1, 2},
    {u" a", 1, 1},
    {u" a", 2, 3},
    {u" a", 0, 1},
    {u" a", Least, 1},
    {u"a.b#c>d+e(f)g", 1, 14},
    {u"a\xA0"
     u"b\vc\0d"sv,
     1, 8},
    {u"\xD800:", 1, 2},
});

TEST(ValueParsers, PairsThatStandInTheListAreUnits) {
    for (const UnitCase& row : UnitCases)
        EXPECT_EQ(IsLengthUnit(row.characters), row.isUnit) << Utf8FromText(row.characters);
}

TEST(ValueParsers, ALengthIsANumberWithAUnit) {
    for (const LengthCase& row : LengthCases)
        EXPECT_EQ(IsLengthValue(row.text), row.isLength) << Utf8FromText(row.text);
}

TEST(ValueParsers, APositiveLengthHasNoMinusInFront) {
    for (const LengthCase& row : LengthCases)
        EXPECT_EQ(IsPositiveLengthValue(row.text), row.isPositiveLength) << Utf8FromText(row.text);
}

TEST(ValueParsers, AURLNeedsNoEnd) {
    for (const TextCase& row : URLCases)
        EXPECT_EQ(IsURLValue(row.text), row.isValue) << Utf8FromText(row.text);
}

TEST(ValueParsers, ARectangleHasFourWords) {
    for (const TextCase& row : RectCases)
        EXPECT_EQ(IsRectValue(row.text), row.isValue) << Utf8FromText(row.text);
}

TEST(ValueParsers, ExactlyFiveUnitsAreDelimiters) {
    for (unsigned value = 0; value <= 0xFFFF; ++value) {
        const auto unit = static_cast<char16_t>(value);
        EXPECT_EQ(IsCSSDelimiter(unit), u":,;{}"sv.find(unit) != TextView::npos) << value;
    }
}

TEST(ValueParsers, AWordEndsAtWhiteSpaceOrADelimiter) {
    for (const WordEndCase& row : WordEndCases) {
        SCOPED_TRACE(Utf8FromText(row.text) + " at " + std::to_string(row.position));
        EXPECT_EQ(FindWordEnd(row.text, row.position), row.end);
    }
}

TEST(ValueParsers, TheEndOfAWordAgreesWithLookingAtEachPosition) {
    std::mt19937 random(9);
    constexpr TextView Units = u"ab:,;{} \t\xD800";
    for (int round = 0; round < 20000; ++round) {
        Text text(random() % 12U, u'a');
        for (char16_t& unit : text)
            unit = Units[random() % Units.size()];
        const int position = static_cast<int>(random() % 18U) - 3;
        int end = static_cast<int>(text.size()) + 1;
        for (int at = static_cast<int>(text.size()); at >= std::max(position, 1); --at) {
            const char16_t unit = text[static_cast<std::size_t>(at - 1)];
            if (IsWhitespaceUnit(unit) || IsCSSDelimiter(unit))
                end = at;
        }
        SCOPED_TRACE(Utf8FromText(text) + " at " + std::to_string(position));
        ASSERT_EQ(FindWordEnd(text, position), end);
    }
}

TEST(ValueParsers, NoTextIsTooLong) {
    const Text blanks(70000, u' ');
    EXPECT_FALSE(IsLengthValue(blanks));
    EXPECT_TRUE(IsLengthValue(Text(70000, u'0') + u"px"));
    EXPECT_TRUE(IsURLValue(u"url(" + blanks));
    EXPECT_FALSE(IsRectValue(u"rect(" + blanks + u")"));
    EXPECT_EQ(FindWordEnd(Text(70000, u'a'), 1), 70001);
}

}  // namespace
}  // namespace tintora
