#include "text/NumberText.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <utility>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct IntegerCase {
    long long number;
    TextView text;
};

constexpr auto IntegerCases = std::to_array<IntegerCase>({
    {0, u" 0"},
    {1, u" 1"},
    {12, u" 12"},
    {-3, u"-3"},
    {1000000, u" 1000000"},
    {2147483647, u" 2147483647"},
    {-2147483648, u"-2147483648"},
    {std::numeric_limits<long long>::max(), u" 9223372036854775807"},
    {std::numeric_limits<long long>::min(), u"-9223372036854775808"},
});

struct DecimalCase {
    double number;
    TextView text;
};

constexpr auto DecimalCases = std::to_array<DecimalCase>({
    {0.0, u" 0"},
    {-0.0, u" 0"},
    {5.0, u" 5"},
    {-3.0, u"-3"},
    {0.5, u" 0.5"},
    {-0.25, u"-0.25"},
    {0.1, u" 0.1"},
    {12.75, u" 12.75"},
    {1.0 / 3.0, u" 0.3333333333333333"},
    {0.0000001, u" 0.0000001"},
    {1e15, u" 1000000000000000"},
});

struct LeadingCase {
    TextView text;
    double number;
};

constexpr auto LeadingCases = std::to_array<LeadingCase>({
    {u"", 0},       {u"0", 0},        {u"12", 12},       {u"12px", 12},   {u" 12", 12},     {u"\t\r\n\f 7", 7},
    {u"+5", 5},     {u"-5", -5},      {u" -5%", -5},     {u"0.5em", 0.5}, {u".5", 0.5},     {u"-.5x", -0.5},
    {u"+.5", 0.5},  {u"5.", 5},       {u"5.px", 5},      {u"1.2.3", 1.2}, {u"1,5", 1},      {u"1 2", 1},
    {u"1e3", 1000}, {u"1E3", 1000},   {u"1e+2x", 100},   {u"25e-1", 2.5}, {u"1.e2", 100},   {u".5e1", 5},
    {u"1e", 1},     {u"1em", 1},      {u"1ex", 1},       {u"1e+", 1},     {u"2e-px", 2},    {u"2e 5", 2},
    {u"px", 0},     {u"e5", 0},       {u".", 0},         {u"..5", 0},     {u".e5", 0},      {u"+", 0},
    {u"-", 0},      {u"- 5", 0},      {u"+-5", 0},       {u"--5", 0},     {u"#12", 0},      {u"x12", 0},
    {u"inf", 0},    {u"nan", 0},      {u"0x10", 0},      {u"007", 7},     {u"\xA0\x35", 0}, {u"\xFF15", 0},
    {u"\xD800", 0}, {u"\0\x35"sv, 0}, {u"5\0\x36"sv, 5}, {u"1e-400", 0},
});

constexpr auto NumericTexts = std::to_array<TextView>({
    u"0",   u"5",   u"12",   u"007",  u"+5",    u"-5",   u"1.5",  u".5",    u"5.",      u"-.5",   u"+5.",
    u"1e5", u"1E5", u"1e+5", u"1e-5", u"1.5e2", u".5e1", u"5.e1", u"-1e-1", u"+0.0e+0", u"1e400", u"1e007",
});

constexpr auto OtherTexts = std::to_array<TextView>({
    u"",         u" ",      u"+",      u"-",      u".",          u"+.",     u"-.",    u"e",     u"e5",  u".e5",  u"+e5",
    u"1e",       u"1e+",    u"1e-",    u"1e.5",   u"1e5.",       u"1e5.5",  u"1e5e5", u"1.2.3", u"..5", u"5..",  u"+-5",
    u"--5",      u"5-",     u"5+",     u" 5",     u"5 ",         u"1 2",    u"\t5",   u"5\n",   u"- 5", u"1e 5", u"1,5",
    u"1,000",    u"5px",    u"5%",     u"0x10",   u"&H10",       u"1d5",    u"inf",   u"nan",   u"abc", u"$5",   u"(5)",
    u"\xA0\x35", u"\xFF15", u"\x0665", u"\x00BD", u"\x2212\x35", u"\xD800", u"5\0"sv, u"\0"sv,
});

TEST(NumberText, ABlankBeforeANumberThatIsNotNegative) {
    for (const IntegerCase& row : IntegerCases) {
        EXPECT_EQ(NumberText(row.number), row.text);
        if (std::in_range<int>(row.number)) {
            EXPECT_EQ(NumberText(static_cast<int>(row.number)), row.text);
        }
    }
}

TEST(NumberText, DecimalsAreTheFewestThatGiveTheNumberBack) {
    for (const DecimalCase& row : DecimalCases)
        EXPECT_EQ(NumberText(row.number), row.text);
}

TEST(NumberText, AnyNumberComesBackFromItsText) {
    std::mt19937_64 random(64);
    for (int round = 0; round < 20000; ++round) {
        const auto number = std::bit_cast<double>(static_cast<std::uint64_t>(random()));
        if (!std::isfinite(number))
            continue;
        const Text text = NumberText(number);
        SCOPED_TRACE(Utf8FromText(text));
        ASSERT_EQ(LeadingNumber(text), number);
        ASSERT_EQ(text.front(), number < 0 ? u'-' : u' ');
        ASSERT_TRUE(IsNumeric(number < 0 ? text : text.substr(1)));
    }
}

TEST(NumberText, TheNumberInFrontIsReadAndTheRestIgnored) {
    for (const LeadingCase& row : LeadingCases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(LeadingNumber(row.text), row.number);
    }
}

TEST(NumberText, AWholeNumberIsNumeric) {
    for (const TextView text : NumericTexts)
        EXPECT_TRUE(IsNumeric(text)) << Utf8FromText(text);
}

TEST(NumberText, AnythingElseIsNot) {
    for (const TextView text : OtherTexts)
        EXPECT_FALSE(IsNumeric(text)) << Utf8FromText(text);
}

TEST(NumberText, ANumericTextIsReadToItsEnd) {
    for (const TextView text : NumericTexts)
        EXPECT_EQ(LeadingNumber(text), LeadingNumber(Text(text) + u"px")) << Utf8FromText(text);
}

TEST(NumberText, ALocaleChangesNothing) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* const name : {"de_DE.UTF-8", "fr_FR.UTF-8", ""}) {
        static_cast<void>(std::setlocale(LC_ALL, name));
        EXPECT_EQ(NumberText(0.5), u" 0.5");
        EXPECT_EQ(LeadingNumber(u"1.5"), 1.5);
        EXPECT_EQ(LeadingNumber(u"1,5"), 1.0);
        EXPECT_FALSE(IsNumeric(u"1,5"));
    }
    static_cast<void>(std::setlocale(LC_ALL, before.c_str()));
}

}  // namespace
}  // namespace tintora
