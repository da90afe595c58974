#include "language/TextTokens.h"

#include "language/TextLines.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct LinesCase {
    TextView text;
    /// Each line in brackets.
    TextView lines;
};

constexpr auto LinesCases = std::to_array<LinesCase>({
    {u"", u"[]"},
    {u"a", u"[a]"},
    {u"a\nb", u"[a][b]"},
    {u"a\rb", u"[a][b]"},
    {u"a\r\nb", u"[a][b]"},
    {u"a\n\rb", u"[a][][b]"},
    {u"\r\n", u"[][]"},
    {u"a\n", u"[a][]"},
    {u"\r\r\n\n", u"[][][][]"},
    {u"a\fb\tc", u"[a\fb\tc]"},
    {u"a\0b\r"sv, u"[a\0b][]"sv},
    {u"a\x2028"
     u"b",
     u"[a\x2028"
     u"b]"},
});

struct TokensCase {
    TextView text;
    /// Line, start, length and type of each token, and the name that it was judged against.
    TextView tokens;
};

constexpr auto TokensCases = std::to_array<TokensCase>({
    {u"", u""},
    {u"\r\n", u""},
    {u"a {Color: x}", u"0 0 2 24;0 2 1 23;0 3 5 19;0 8 1 17;0 9 2 27 color;0 11 1 23;"},
    {u"a {\r\n width:\r1px;\n}", u"0 0 2 24;0 2 1 23;1 0 6 19;1 6 1 17;2 0 3 21 width;2 3 1 17;3 0 1 23;"},
    {u"/*\n\nx*/a", u"0 0 2 6;2 0 3 6;2 3 1 24;"},
    {u"a{voice-family:\\\";\ncolour:x",
     u"0 0 1 24;0 1 1 23;0 2 12 19;0 14 1 17;0 15 3 28;1 0 6 20;1 6 1 17;1 7 1 27 colour;"},
});

Text Bracketed(const TextLines& lines) {
    Text text;
    for (std::int32_t row = 0; row < lines.Count(); ++row)
        text.append(u"[").append(lines.Line(row)).append(u"]");
    return text;
}

std::string Dump(const std::vector<TextToken>& tokens) {
    std::string dump;
    for (const TextToken& token : tokens) {
        dump += std::to_string(token.line) + " " + std::to_string(token.start) + " " + std::to_string(token.length) +
                " " + std::to_string(token.type);
        dump += (token.propertyName.empty() ? "" : " ") + Utf8FromText(token.propertyName) + ";";
    }
    return dump;
}

TEST(TextTokens, ATextIsCutIntoLines) {
    for (const LinesCase& row : LinesCases)
        EXPECT_EQ(Bracketed(TextLines(row.text)), row.lines) << Utf8FromText(row.text);
}

TEST(TextTokens, ALineHasItsLengthAndItsData) {
    TextLines lines(u"abc\r\n\nd");
    EXPECT_EQ(lines.GetLineLength(0), 3);
    EXPECT_EQ(lines.GetLineLength(1), 0);
    EXPECT_EQ(lines.GetLineLength(2), 1);
    EXPECT_EQ(lines.GetLineData(1, 0), 0);
    lines.SetLineData(1, 0, 4711);
    EXPECT_EQ(lines.GetLineData(1, 0), 4711);
    EXPECT_EQ(lines.GetLineData(2, 0), 0);
}

TEST(TextTokens, AWholeTextIsScannedFromItsTop) {
    for (const TokensCase& row : TokensCases)
        EXPECT_EQ(Dump(ScanLines(row.text)), Utf8FromText(row.tokens)) << Utf8FromText(row.text);
}

TEST(TextTokens, OnlyALineIsLimitedNotTheText) {
    const Text line(MaximumTextLength, u'a');
    EXPECT_EQ(ScanLines(line + u"\n" + line).size(), 2U);
    EXPECT_THROW(static_cast<void>(ScanLines(u"a\n" + line + u"a")), OverflowFailure);
}

}  // namespace
}  // namespace tintora
