#include "properties/ValueWords.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>
#include <vector>

namespace tintora {
namespace {

struct SplitCase {
    Text value;
    Texts words;
};

const std::vector<SplitCase> Splits = {
    {u"", {}},
    {u"  \t\n", {}},
    {u"1px", {u"1px"}},
    {u"1px 2px", {u"1px", u"2px"}},
    {u" 1px   2px ", {u"1px", u"2px"}},
    {u"1px\r\n\t2px\f3px", {u"1px", u"2px", u"3px"}},
    {u"rgb(1, 2, 3)", {u"rgb(1, 2, 3)"}},
    {u"1px rgb(1, 2, 3) solid", {u"1px", u"rgb(1, 2, 3)", u"solid"}},
    {u"url(a b.gif) fixed", {u"url(a b.gif)", u"fixed"}},
    {u"a(b (c d) e) f", {u"a(b (c d) e)", u"f"}},
    {u"f( 1 )g h", {u"f( 1 )g", u"h"}},
    // A string at the start of an argument hides the parentheses in it.
    {u"url(\"a) b.gif\") fixed", {u"url(\"a) b.gif\")", u"fixed"}},
    {u"url( 'a( b.gif' ) fixed", {u"url( 'a( b.gif' )", u"fixed"}},
    {u"url(it's) 'a b'", {u"url(it's)", u"'a", u"b'"}},
    {u"url(\"a b) c", {u"url(\"a b)", u"c"}},
    // What isn't closed takes the rest, and what isn't open closes nothing.
    {u"url(a b c", {u"url(a b c"}},
    {u"a) b (c", {u"a)", u"b", u"(c"}},
    {u")) a", {u"))", u"a"}},
    {u"\"a b\" c", {u"\"a", u"b\"", u"c"}},
};

struct QuoteCase {
    TextView text;
    TextView quoted;
};

constexpr auto Quoted = std::to_array<QuoteCase>({
    {u"a", u"\"a\""},
    {u"", u"\"\""},
    {u"a b", u"\"a b\""},
    {u"it's", u"\"it's\""},
    {u"\"", u"'\"'"},
    {u"a\"b'c", u"'a\"b'c'"},
});

struct StripCase {
    TextView text;
    TextView stripped;
};

constexpr auto Stripped = std::to_array<StripCase>({
    {u"\"a\"", u"a"},
    {u"'a b'", u"a b"},
    {u"abc", u"b"},
    {u"ab", u""},
    {u"a", u""},
    {u"", u""},
});

constexpr auto URLs = std::to_array<StripCase>({
    {u"url(a.gif)", u"a.gif"},
    {u"url(\"a/b.gif\")", u"a/b.gif"},
    {u"URL(a.gif)", u"a.gif"},
    {u"url('a.gif')", u"'a.gif'"},
    {u"url(a(1).gif)", u"a(1).gif"},
    {u"url(a.gif) tv", u"a.gif"},
    {u"url(a.gif", u"a.gif"},
    {u"url()", u""},
    {u"url(", u""},
    {u"url(\"a.gif)", u"a.gif"},
    {u" url( a b.gif )", u" a b.gif "},
    {u"@import url(a.css);", u"a.css"},
    {u"url(url(a))", u"url(a)"},
    // Without "url(".
    {u"a.gif", u"a.gif"},
    {u"\"a.gif\"", u"a.gif"},
    {u"a(1).gif", u"a(1).gif"},
    {u"none", u"none"},
    {u"", u""},
});

TEST(ValueWords, WhiteSpaceOutsideOfParenthesesPartsTheWords) {
    for (const SplitCase& row : Splits) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EXPECT_EQ(SplitAtBlanks(row.value), row.words);
    }
}

TEST(ValueWords, AStringGetsTheQuotesThatItDoesntHold) {
    for (const QuoteCase& row : Quoted) {
        EXPECT_EQ(QuoteString(row.text), row.quoted);
        EXPECT_EQ(StripQuotes(QuoteString(row.text)), row.text);
    }
    for (const StripCase& row : Stripped)
        EXPECT_EQ(StripQuotes(row.text), row.stripped);
}

TEST(ValueWords, AURLIsWhatStandsInItsParentheses) {
    for (const StripCase& row : URLs) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(StripURL(row.text), row.stripped);
    }
}

TEST(ValueWords, NothingTakesLongerThanItsText) {
    Text openings;
    for (int round = 0; round < 300'000; ++round)
        openings += round % 2 == 0 ? u"(\" " : u"(' ";
    EXPECT_FALSE(SplitAtBlanks(openings).empty());
    EXPECT_EQ(SplitAtBlanks(Text(1'000'000, u'(')).size(), 1U);
    EXPECT_EQ(StripURL(Text(1'000'000, u')')).size(), 1'000'000U);
}

}  // namespace
}  // namespace tintora
