#include "text/Whitespace.h"

#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct StripCase {
    TextView text;
    TextView left;
    TextView right;
    TextView both;
};

constexpr auto StripCases = std::to_array<StripCase>({
    {u"", u"", u"", u""},
    {u" ", u"", u"", u""},
    {u" \t\n\f\r", u"", u"", u""},
    {u"a", u"a", u"a", u"a"},
    {u" a", u"a", u" a", u"a"},
    {u"a ", u"a ", u"a", u"a"},
    {u"\r\na b\r\n", u"a b\r\n", u"\r\na b", u"a b"},
    {u"\f\ta\n\n b\f ", u"a\n\n b\f ", u"\f\ta\n\n b", u"a\n\n b"},

    // Neither the vertical tab, NUL, the no-break space nor any other unit is white space.
    {u"\va\v", u"\va\v", u"\va\v", u"\va\v"},
    {u" \0 "sv, u"\0 "sv, u" \0"sv, u"\0"sv},
    {u"\xA0 a\xA0", u"\xA0 a\xA0", u"\xA0 a\xA0", u"\xA0 a\xA0"},
    {u" \x0085 ", u"\x0085 ", u" \x0085", u"\x0085"},
    {u" \x2003\x3000\xFEFF ", u"\x2003\x3000\xFEFF ", u" \x2003\x3000\xFEFF", u"\x2003\x3000\xFEFF"},
    {u" \xD800 ", u"\xD800 ", u" \xD800", u"\xD800"},
    {u" \xDC20 ", u"\xDC20 ", u" \xDC20", u"\xDC20"},
});

struct SkipCase {
    TextView text;
    int position;
    int forward;
    int backward;
};

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

constexpr auto SkipCases = std::to_array<SkipCase>({
    {u"", 1, 1, 0},      {u"", 0, 1, 0},        {u"", 5, 1, 0},       {u"", -5, 1, 0},          {u" ", 1, 2, 0},
    {u"   ", 2, 4, 0},   {u"a", 1, 1, 1},       {u"a", 0, 1, 0},      {u"a", -1, 1, 0},         {u"a", 2, 2, 1},
    {u"a", 99, 2, 1},    {u"a b", 2, 3, 1},     {u" a ", 1, 2, 0},    {u" a ", 2, 2, 2},        {u" a ", 3, 4, 2},
    {u" a ", 4, 4, 2},   {u" a ", Least, 2, 0}, {u" a ", Most, 4, 2}, {u"}\r\n\r\na", 2, 6, 1}, {u"\xA0 ", 1, 1, 1},
    {u"\xA0 ", 2, 3, 1},
});

Text RandomText(std::mt19937& random) {
    constexpr TextView Units = u" \t\n\f\r\va\xA0\xD800";
    Text text(random() % 12U, u' ');
    for (char16_t& unit : text)
        unit = Units[random() % Units.size()];
    return text;
}

TEST(Whitespace, ExactlyFiveUnitsAreWhiteSpace) {
    for (unsigned value = 0; value <= 0xFFFF; ++value) {
        const auto unit = static_cast<char16_t>(value);
        const bool expected = value == 9 || value == 10 || value == 12 || value == 13 || value == 32;
        EXPECT_EQ(IsWhitespaceUnit(unit), expected) << value;
        EXPECT_EQ(IsWhitespaceChar(TextView(&unit, 1)), expected) << value;
        EXPECT_EQ(IsAllWhitespace(TextView(&unit, 1)), expected) << value;
    }
}

TEST(Whitespace, AnEmptyTextIsNoWhiteSpace) {
    EXPECT_FALSE(IsWhitespaceChar(u""));
    EXPECT_FALSE(IsAllWhitespace(u""));
}

TEST(Whitespace, TheEndsAreStripped) {
    for (const StripCase& row : StripCases) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        EXPECT_EQ(StripLeftWhitespace(row.text), row.left);
        EXPECT_EQ(StripRightWhitespace(row.text), row.right);
        EXPECT_EQ(TrimWhitespace(row.text), row.both);
        EXPECT_EQ(TrimmedView(row.text), row.both);
        EXPECT_EQ(IsAllWhitespace(row.text), !row.text.empty() && row.both.empty());
    }
}

TEST(Whitespace, SkippingStopsAtTheNearestOtherCharacter) {
    for (const SkipCase& row : SkipCases) {
        SCOPED_TRACE(testing::PrintToString(row.text) + " at " + std::to_string(row.position));
        EXPECT_EQ(SkipWhitespaceForward(row.text, row.position), row.forward);
        EXPECT_EQ(SkipWhitespaceBackward(row.text, row.position), row.backward);
    }
}

TEST(Whitespace, TheIndexOfTheNextOtherUnitIsFound) {
    EXPECT_EQ(FindNonWhitespace(u"", 0), 0U);
    EXPECT_EQ(FindNonWhitespace(u"", 3), 0U);
    EXPECT_EQ(FindNonWhitespace(u" \na", 0), 2U);
    EXPECT_EQ(FindNonWhitespace(u" \na", 2), 2U);
    EXPECT_EQ(FindNonWhitespace(u"a  ", 1), 3U);
    EXPECT_EQ(FindNonWhitespace(u"a  ", TextView::npos), 3U);
}

TEST(Whitespace, ATrimmedViewIsAPartOfTheText) {
    const Text text = u"  ab ";
    EXPECT_EQ(TrimmedView(text).data(), text.data() + 2);
}

TEST(Whitespace, ATextUpToTheLimitPasses) {
    const Text blanks(32767, u' ');
    const Text letters(32767, u'x');
    EXPECT_TRUE(IsAllWhitespace(blanks));
    EXPECT_EQ(StripLeftWhitespace(blanks), u"");
    EXPECT_EQ(StripRightWhitespace(blanks), u"");
    EXPECT_EQ(TrimWhitespace(letters), letters);
    EXPECT_EQ(SkipWhitespaceForward(blanks, 1), 32768);
    EXPECT_EQ(SkipWhitespaceForward(letters, 32767), 32767);
    EXPECT_EQ(SkipWhitespaceBackward(blanks, 32767), 0);
    EXPECT_EQ(SkipWhitespaceBackward(letters, 40000), 32767);
}

TEST(Whitespace, ATextBeyondTheLimitFails) {
    for (const char16_t unit : u" x"sv) {
        const Text text(32768, unit);
        EXPECT_THROW(static_cast<void>(IsAllWhitespace(text)), OverflowFailure);
        EXPECT_THROW(static_cast<void>(StripLeftWhitespace(text)), OverflowFailure);
        EXPECT_THROW(static_cast<void>(StripRightWhitespace(text)), OverflowFailure);
        EXPECT_THROW(static_cast<void>(TrimWhitespace(text)), OverflowFailure);
        EXPECT_THROW(static_cast<void>(SkipWhitespaceForward(text, 1)), OverflowFailure);
        EXPECT_THROW(static_cast<void>(SkipWhitespaceBackward(text, 1)), OverflowFailure);
    }
}

TEST(Whitespace, ViewsAndIndexesHaveNoLimit) {
    const Text text(70000, u' ');
    EXPECT_EQ(TrimmedView(text), u"");
    EXPECT_EQ(FindNonWhitespace(text, 1), 70000U);
    EXPECT_TRUE(IsWhitespaceChar(TextView(text).substr(0, 1)));
}

TEST(Whitespace, TrimmingIsStrippingBothEnds) {
    std::mt19937 random(5);
    for (int round = 0; round < 20000; ++round) {
        const Text text = RandomText(random);
        SCOPED_TRACE(testing::PrintToString(text));
        ASSERT_EQ(TrimWhitespace(text), StripLeftWhitespace(StripRightWhitespace(text)));
        ASSERT_EQ(TrimWhitespace(text), StripRightWhitespace(StripLeftWhitespace(text)));
        ASSERT_EQ(TrimWhitespace(text), TrimmedView(text));
        ASSERT_TRUE(text.ends_with(StripLeftWhitespace(text)));
        ASSERT_TRUE(text.starts_with(StripRightWhitespace(text)));
    }
}

TEST(Whitespace, SkippingAgreesWithLookingAtEachPosition) {
    std::mt19937 random(6);
    for (int round = 0; round < 20000; ++round) {
        const Text text = RandomText(random);
        const int length = static_cast<int>(text.size());
        const int position = static_cast<int>(random() % 18U) - 3;
        const auto isOther = [&](int at) { return !IsWhitespaceUnit(text[static_cast<std::size_t>(at - 1)]); };
        int forward = length + 1;
        int backward = 0;
        for (int at = length; at >= 1; --at) {
            if (at >= position && isOther(at))
                forward = at;
            if (at <= position && isOther(at) && backward == 0)
                backward = at;
        }
        SCOPED_TRACE(testing::PrintToString(text) + " at " + std::to_string(position));
        ASSERT_EQ(SkipWhitespaceForward(text, position), forward);
        ASSERT_EQ(SkipWhitespaceBackward(text, position), backward);
        const auto index = static_cast<std::size_t>(std::max(position, 1) - 1);
        ASSERT_EQ(FindNonWhitespace(text, index), static_cast<std::size_t>(forward - 1));
    }
}

}  // namespace
}  // namespace tintora
