#include "language/Words.h"

#include "language/Bracketed.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct SplitCase {
    TextView text;
    TextView separator;
    TextView words;
};

constexpr auto SplitCases = std::to_array<SplitCase>({
    {u"", u" ", u""},
    {u"a", u" ", u"[a]"},
    {u"a b c", u" ", u"[a][b][c]"},
    {u"a,b,", u",", u"[a][b][]"},
    {u"a ", u" ", u"[a][]"},
    {u" a", u" ", u"[ a]"},
    {u"  a", u" ", u"[ ][a]"},
    {u"a  b", u" ", u"[a][ b]"},
    {u"a   b", u" ", u"[a][ ][b]"},
    {u"a    b", u" ", u"[a][ ][ b]"},
    {u" ", u" ", u"[ ]"},
    {u"  ", u" ", u"[ ][]"},
    {u"   ", u" ", u"[ ][ ]"},
    {u",", u",", u"[,]"},
    {u"a\tb\nc", u" ", u"[a\tb\nc]"},
    {u"a b", u"/", u"[a b]"},
    {u"serif/Times, \"Times New Roman\"", u"/", u"[serif][Times, \"Times New Roman\"]"},

    // Separators of more than one unit.
    {u"a^^^b", u"^^^", u"[a][b]"},
    {u"a^^^b^^^", u"^^^", u"[a][b][]"},
    {u"a^^^^^^b", u"^^^", u"[a][^^^b]"},
    {u"^^^a", u"^^^", u"[^^^a]"},
    {u"a^^b", u"^^^", u"[a^^b]"},
    {u"^^^^a", u"^^^", u"[^][a]"},
    {u"aXbxc", u"X", u"[a][bxc]"},

    {u"a\0b c"sv, u" ", u"[a\0b][c]"sv},
    {u"a\0b"sv, u"\0"sv, u"[a][b]"},
    {u"\xD800 \xDC00", u" ", u"[\xD800][\xDC00]"},
    {u"a\xA0 b", u" ", u"[a\xA0][b]"},
});

struct DuplicatesCase {
    TextView items;
    TextView left;
};

/// Items of a list, parted by "/".
constexpr auto DuplicatesCases = std::to_array<DuplicatesCase>({
    {u"", u""},
    {u"a", u"[a]"},
    {u"a/b/c", u"[a][b][c]"},
    {u"a/a", u"[a]"},
    {u"a/b/a", u"[b][a]"},
    {u"a/b/a/c/b", u"[a][c][b]"},
    {u"a/A/a", u"[A][a]"},
    {u"a/a /a", u"[a ][a]"},
    {u"a/b/", u"[a][b][]"},
    {u"\xD800/\xD800", u"[\xD800]"},
});

/// The same split by the positions themselves, 1-based.
Texts SplitByPositions(const Text& text, const Text& separator) {
    Texts words;
    std::size_t start = 1;
    for (std::size_t at = 1; at <= text.size(); ++at) {
        if (text.compare(at - 1, separator.size(), separator) == 0 && at > start) {
            words.push_back(text.substr(start - 1, at - start));
            start = at + separator.size();
        }
    }
    if (!text.empty())
        words.push_back(text.substr(start - 1));
    return words;
}

TEST(Words, ATextIsCutAtEachSeparator) {
    for (const SplitCase& row : SplitCases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(Bracketed(GetWordsFromText(row.text, row.separator)), row.words);
    }
}

TEST(Words, CuttingAgreesWithAWalkOverThePositions) {
    std::mt19937 random(44);
    constexpr TextView Units = u",,a\xD800";
    for (int round = 0; round < 20000; ++round) {
        Text text(random() % 14U, u',');
        for (char16_t& unit : text)
            unit = Units[random() % Units.size()];
        for (const Text& separator : {Text(u","), Text(u",,"), Text(u",a"), Text(u",,,")}) {
            SCOPED_TRACE(Utf8FromText(text + u" at " + separator));
            ASSERT_EQ(GetWordsFromText(text, separator), SplitByPositions(text, separator));
        }
    }
}

TEST(Words, JoiningTheWordsGivesTheTextBack) {
    for (const SplitCase& row : SplitCases)
        EXPECT_EQ(JoinItems(GetWordsFromText(row.text, row.separator), row.separator), row.text);
}

TEST(Words, ItemsAreJoinedWithSeparatorsBetweenThem) {
    EXPECT_EQ(JoinItems({}, u"/"), u"");
    EXPECT_EQ(JoinItems({u"a"}, u"/"), u"a");
    EXPECT_EQ(JoinItems({u"a", u"b", u"c"}, u"/"), u"a/b/c");
    EXPECT_EQ(JoinItems({u"a", u"b"}, u"^^^"), u"a^^^b");
    EXPECT_EQ(JoinItems({u"a", u"b"}, u""), u"ab");
    EXPECT_EQ(JoinItems({u""}, u"/"), u"");
    EXPECT_EQ(JoinItems({u"", u""}, u"/"), u"/");
    EXPECT_EQ(JoinItems({u"a", u""}, u", "), u"a, ");
}

TEST(Words, AnEntryOfAListIsFoundExactly) {
    const Texts list = {u"red", u"Green", u"", u"red"};
    EXPECT_TRUE(ListContains(list, u"red"));
    EXPECT_TRUE(ListContains(list, u"Green"));
    EXPECT_TRUE(ListContains(list, u""));
    EXPECT_FALSE(ListContains(list, u"green"));
    EXPECT_FALSE(ListContains(list, u"re"));
    EXPECT_FALSE(ListContains(list, u"red "));
    EXPECT_FALSE(ListContains({}, u""));
}

TEST(Words, OfEqualEntriesTheLastStaysInItsPlace) {
    for (const DuplicatesCase& row : DuplicatesCases) {
        SCOPED_TRACE(Utf8FromText(row.items));
        EXPECT_EQ(Bracketed(RemoveDuplicateItems(GetWordsFromText(row.items, u"/"))), row.left);
    }
}

TEST(Words, AKeyedListKeepsItsItemsAndAnswersInWhateverCase) {
    const Texts items = {u"font-size", u"Margin", u"\x0416"};
    const KeyedList list(items);
    EXPECT_EQ(list.Items(), items);
    for (const TextView key : {u"font-size"sv, u"FONT-Size"sv, u"margin"sv, u"MARGIN"sv, u"\x0436"sv, u"\x0416"sv})
        EXPECT_TRUE(ListHasKey(list, key)) << Utf8FromText(key);
    for (const TextView key : {u""sv, u"font"sv, u"font-size "sv, u"margin\0"sv, u"\xD800"sv})
        EXPECT_FALSE(ListHasKey(list, key)) << Utf8FromText(key);
    EXPECT_TRUE(list.HasKey(u"mArGiN"));
}

TEST(Words, TheEmptyItemIsAKeyWhereItStands) {
    EXPECT_TRUE(ListHasKey(KeyedList({u"a", u""}), u""));
    EXPECT_FALSE(ListHasKey(KeyedList({u"a"}), u""));
    EXPECT_FALSE(ListHasKey(KeyedList({}), u""));
}

}  // namespace
}  // namespace tintora
