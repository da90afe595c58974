#include "linking/LiteralSearch.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace tintora {
namespace {

struct SearchCase {
    TextView text;
    TextView literal;
    std::size_t from;
    std::size_t found;
    std::size_t longestPrefix;
};

constexpr std::size_t None = TextView::npos;

constexpr auto SearchCases = std::to_array<SearchCase>({
    {u"", u"a", 0, None, 0},
    {u"a", u"", 0, None, 0},
    {u"a", u"a", 0, 0, 1},
    {u"a", u"a", 1, None, 1},
    {u"a", u"a", 5, None, 1},
    {u"xxab", u"ab", 0, 2, 2},
    {u"xxab", u"ab", 3, None, 2},
    {u"xxa", u"ab", 0, None, 1},
    {u"aab", u"ab", 0, 1, 2},
    {u"aabaabaac", u"aabaac", 0, 3, 6},
    {u"abcabd", u"abcd", 0, None, 3},
    {u"ABC", u"abc", 0, None, 0},
    {u"\xD800\xD801", u"\xD801", 0, 1, 1},
});

struct ReplaceCase {
    TextView text;
    TextView literal;
    TextView replacement;
    TextView result;
};

constexpr auto ReplaceCases = std::to_array<ReplaceCase>({
    {u"", u"a", u"b", u""},
    {u"abc", u"", u"x", u"abc"},
    {u"abc", u"x", u"y", u"abc"},
    {u"abcabc", u"b", u"", u"acac"},
    {u"aaaa", u"aa", u"b", u"bb"},
    {u"aaa", u"aa", u"b", u"ba"},
    {u"aXa", u"a", u"aa", u"aaXaa"},
    {u"abab", u"abab", u"c", u"c"},
    {u"aA", u"a", u"b", u"bA"},
});

Text RandomText(std::mt19937& random, std::size_t longest) {
    Text text(random() % (longest + 1), u'a');
    for (char16_t& unit : text)
        unit = static_cast<char16_t>(u'a' + static_cast<char16_t>(random() % 2U));
    return text;
}

TEST(LiteralSearch, FindsTheFirstOccurrenceAndTheLongestPrefix) {
    for (const SearchCase& row : SearchCases) {
        SCOPED_TRACE(Utf8FromText(row.text) + " | " + Utf8FromText(row.literal));
        const LiteralSearch search(row.literal);
        EXPECT_EQ(search.Find(row.text, row.from), row.found);
        EXPECT_EQ(search.LongestPrefixIn(row.text), row.longestPrefix);
    }
}

TEST(LiteralSearch, ReplacesEveryOccurrenceFromTheFront) {
    for (const ReplaceCase& row : ReplaceCases) {
        SCOPED_TRACE(Utf8FromText(row.text) + " | " + Utf8FromText(row.literal));
        EXPECT_EQ(ReplaceOccurrences(row.text, row.literal, row.replacement), row.result);
    }
}

TEST(LiteralSearch, FindsWhatAPlainSearchFinds) {
    std::mt19937 random(101);
    for (int round = 0; round < 20000; ++round) {
        const Text text = RandomText(random, 30);
        const Text literal = u"a" + RandomText(random, 6);
        const std::size_t from = random() % 8U;
        const LiteralSearch search(literal);
        SCOPED_TRACE(Utf8FromText(text) + " | " + Utf8FromText(literal));
        ASSERT_EQ(search.Find(text, from), text.find(literal, from));
        std::size_t longest = literal.size();
        while (text.find(TextView(literal).substr(0, longest)) == Text::npos)
            --longest;
        ASSERT_EQ(search.LongestPrefixIn(text), longest);
    }
}

TEST(LiteralSearch, TakesNoLongerWhereEverythingRepeats) {
    const Text text(4'000'000, u'a');
    const Text literal = Text(1'000'000, u'a') + u"b";
    EXPECT_EQ(LiteralSearch(literal).Find(text, 0), None);
    EXPECT_EQ(LiteralSearch(literal).LongestPrefixIn(text), literal.size() - 1);
}

}  // namespace
}  // namespace tintora
