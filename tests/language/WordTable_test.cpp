#include "language/WordTable.h"

#include "text/LowerCase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tintora {
namespace {

/// What a walk over the words finds.
std::size_t FoundByWalk(const Texts& words, const Text& wanted, WordTable::LetterCase letterCase) {
    const auto found = std::find_if(words.begin(), words.end(), [&](const Text& word) {
        return letterCase == WordTable::LetterCase::Matters ? word == wanted : LowerCase(word) == LowerCase(wanted);
    });
    return found == words.end() ? WordTable::NotFound : static_cast<std::size_t>(found - words.begin());
}

TEST(WordTable, AWordIsFoundWhereItStands) {
    const WordTable table({u"red", u"Green", u"", u"red"}, WordTable::LetterCase::Matters);
    EXPECT_EQ(table.Find(u"red"), 0U);
    EXPECT_EQ(table.Find(u"Green"), 1U);
    EXPECT_EQ(table.Find(u""), 2U);
    for (const TextView word : {u"green", u"re", u"redd", u"r\0d", u"a longer word than any", u"\xD800"})
        EXPECT_FALSE(table.Has(word));
}

TEST(WordTable, LetterCaseMayBeIgnored) {
    const WordTable table({u"Red", u"\x0416\x00C4", u"red"}, WordTable::LetterCase::Ignored);
    EXPECT_EQ(table.Find(u"rED"), 0U);
    EXPECT_EQ(table.Find(u"\x0436\x00E4"), 1U);
    EXPECT_FALSE(table.Has(u"\x0436\x00E5"));
    EXPECT_FALSE(table.Has(u""));
}

TEST(WordTable, AnEmptyTableHasNothing) {
    const WordTable table({}, WordTable::LetterCase::Ignored);
    EXPECT_FALSE(table.Has(u""));
    EXPECT_FALSE(table.Has(u"a"));
    EXPECT_EQ(table.Words(), Texts());
}

TEST(WordTable, ItFindsWhatAWalkFinds) {
    std::mt19937 random(7);
    constexpr TextView Units = u"abAB-\xE4\xC4\xD800@`";
    const auto randomWord = [&] {
        Text word(random() % 6U, u' ');
        for (char16_t& unit : word)
            unit = Units[random() % Units.size()];
        return word;
    };
    for (int round = 0; round < 500; ++round) {
        Texts words(random() % 60U);
        std::generate(words.begin(), words.end(), randomWord);
        for (const auto letterCase : {WordTable::LetterCase::Matters, WordTable::LetterCase::Ignored}) {
            const WordTable table(words, letterCase);
            for (int question = 0; question < 50; ++question) {
                const Text wanted = randomWord();
                ASSERT_EQ(table.Find(wanted), FoundByWalk(words, wanted, letterCase));
            }
        }
    }
}

}  // namespace
}  // namespace tintora
