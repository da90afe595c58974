#include "text/StringTable.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct NumberedText {
    int number;
    TextView text;
};

constexpr auto NumberedTexts = std::to_array<NumberedText>({
    {1086, u"a:link a:visited a:hover a:active"},
    {1088, u"elements marked up as <^0>"},
    {1089, u"only elements marked up as <^0 class=\"^1\"> "},
    {1090, u"any elements with the attribute class=\"^0\", eg <body class=\"^0\">, <div class=\"^0\"> etc"},
    {1096, u"The new rule will apply to ^0"},
    {1131, u"blockquote body dd div dl dt p ul"},
    {1300, u"em ex px pt in mm cm %"},
    {1307,
     u"sans-serif/serif/monospace/cursive/fantasy/Times, \"Times New Roman\", serif/Verdana, Helvetica, Arial, "
     u"sans-serif/Courier, \"Courier New\", monospace"},
    {1330, u"inherit"},
    {1336, u"px pt in mm cm %"},
    {1354, u"none underline overline line-through blink"},
});

constexpr auto NumbersWithoutText = std::to_array<int>({
    std::numeric_limits<int>::min(),
    -1,
    0,
    1,
    998,
    1000,
    1055,
    1087,
    1104,
    1299,
    1355,
    1499,
    1501,
    65536,
    std::numeric_limits<int>::max(),
});

struct MessageCase {
    TextView text;
    std::array<TextView, 4> arguments;
    TextView message;
};

constexpr auto MessageCases = std::to_array<MessageCase>({
    {u"", {u"a", u"b", u"c", u"d"}, u""},
    {u"no marks", {u"a", u"b", u"c", u"d"}, u"no marks"},
    {u"^0", {}, u""},
    {u"^0^1^2^3", {u"a", u"b", u"c", u"d"}, u"abcd"},
    {u"^3^2^1^0", {u"a", u"b", u"c", u"d"}, u"dcba"},
    {u"<^0 class=\"^1\"> ", {u"p", u"note"}, u"<p class=\"note\"> "},
    {u"^0, ^0 and ^0", {u"x"}, u"x, x and x"},
    {u"[^0|^1|^2|^3]", {u"a"}, u"[a|||]"},
    {u"[^0|^1|^2|^3]", {u"", u"", u"", u"d"}, u"[|||d]"},

    // There are four marks, and a mark has one digit.
    {u"^4 ^ ^^ ^a 0^", {u"a", u"b", u"c", u"d"}, u"^4 ^ ^^ ^a 0^"},
    {u"^10", {u"a", u"b"}, u"b0"},
    {u"^^0", {u"a"}, u"^a"},

    // A mark that an argument brings in is replaced only by a later argument.
    {u"^0", {u"^1", u"b"}, u"b"},
    {u"^0", {u"^3 ^2 ^1", u"b", u"c", u"d"}, u"d c b"},
    {u"^0", {u"^0"}, u"^0"},
    {u"^1", {u"a", u"^0"}, u"^0"},
    {u"^1", {u"a", u"^1^0"}, u"^1^0"},
    {u"^3", {u"a", u"b", u"c", u"^2"}, u"^2"},
    {u"^0^1", {u"^", u"1"}, u"^1"},
    {u"^01", {u"^", u"b"}, u"b"},
    {u"^^00", {u"", u"b"}, u"^0"},

    {u"a\0^0"sv, {u"\0"sv}, u"a\0\0"sv},
    {u"\xD800^0\xDC00", {u"\xDFFF"}, u"\xD800\xDFFF\xDC00"},
});

TEST(StringTable, ANumberGivesItsText) {
    for (const NumberedText& row : NumberedTexts)
        EXPECT_EQ(LoadResourceString(row.number), row.text) << row.number;
}

TEST(StringTable, ANumberWithoutATextGivesNothing) {
    for (const int number : NumbersWithoutText)
        EXPECT_EQ(LoadResourceString(number), u"") << number;
}

TEST(StringTable, MarksAreReplacedInTheOrderOfTheArguments) {
    for (const MessageCase& row : MessageCases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        const auto& [first, second, third, fourth] = row.arguments;
        EXPECT_EQ(FormatMessage(row.text, first, second, third, fourth), row.message);
    }
}

TEST(StringTable, AMissingArgumentCountsAsEmpty) {
    EXPECT_EQ(FormatMessage(u"[^0^1^2^3]", u"a"), u"[a]");
    EXPECT_EQ(FormatMessage(u"[^0^1^2^3]", u"a", u"b"), u"[ab]");
    EXPECT_EQ(FormatMessage(u"[^0^1^2^3]", u"a", u"b", u"c"), u"[abc]");
}

}  // namespace
}  // namespace tintora
