#include "TextHolder.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

using test::CachedSheet;
using test::TextHolder;

struct PlaceCase {
    Text text;
    int position;
    int number;
    int start;
};

const Text TwoRules = u"a {}\nb {}";
const Text Block = u"x {}\n@media print {\n  a {b: c}\n  d {e: f}\n}\n\nh1 {}";
//                   0    5              20         31        41    45

const std::vector<PlaceCase> Cases = {
    // An empty cache has no statement at all.
    {u"", 0, 0, 0},
    {u" \n", 1, 0, 0},

    // The first statement starts at 1, the others at their offsets, and behind the end it is 0.
    {TwoRules, -3, 1, 1},
    {TwoRules, 0, 1, 1},
    {TwoRules, 4, 1, 1},
    {TwoRules, 5, 2, 5},
    {TwoRules, 8, 2, 5},
    {TwoRules, 9, 2, 0},
    {TwoRules, 32767, 2, 0},
    {u"  a {}", 0, 1, 1},

    // A block counts with its header; its closing brace belongs to no entry.
    {Block, 4, 1, 1},
    {Block, 5, 2, 5},
    {Block, 21, 2, 5},
    {Block, 22, 3, 22},
    {Block, 32, 3, 22},
    {Block, 33, 4, 33},
    {Block, 41, 4, 33},
    {Block, 42, 5, 42},
    {Block, 44, 5, 42},
    {Block, 45, 5, 45},
    {u"@media p { a {} }", 16, 2, 0},
    {u"a {} @media p { b {} }  ", 23, 3, 0},

    // A comment that only mentions the word adds next to nothing while the position lies in it...
    {u"/* @media */ a {} b {}", 2, 2, 0},
    {u"/* @media */ a {} b {}", 12, 3, 0},
    // ...and passes over as many entries as it seems to nest once it lies behind.
    {u"/* @media */ a {} b {}", 13, 3, 13},
    {u"/* @media */ a {}", 13, 2, 0},
    {u"/* @media */ ", 20, 2, 0},
};

TEST(StatementPositions, APositionIsAnsweredAsTheCasesSay) {
    for (const PlaceCase& row : Cases) {
        SCOPED_TRACE(Utf8FromText(row.text) + " at " + std::to_string(row.position));
        CachedSheet sheet(row.text);
        EXPECT_EQ(sheet->GetStatementNumber(row.position), row.number);
        EXPECT_EQ(sheet->GetStatementStartChar(row.position), row.start);
    }
}

TEST(StatementPositions, TheVariantsEnterEveryBlock) {
    CachedSheet sheet(Block);
    EXPECT_EQ(sheet->GetStatementNumber1(45), 5);
    EXPECT_EQ(sheet->GetStatementNumber1(22), 3);
    EXPECT_EQ(sheet->GetStatementNumber1(100), 5);
    EXPECT_EQ(sheet->GetStatementStartChar1(0), 1);
    EXPECT_EQ(sheet->GetStatementStartChar1(18), 5);
    EXPECT_EQ(sheet->GetStatementStartChar1(20), 19) << "the white space behind the brace doesn't count";
    EXPECT_EQ(sheet->GetStatementStartChar1(100), 44) << "what was passed, closing brace and white space left out";
    CachedSheet behind(u"@media p {a {} } b {}");
    EXPECT_EQ(behind->GetStatementNumber(17), 3);
    EXPECT_EQ(behind->GetStatementNumber1(17), 3);
}

TEST(StatementPositions, TheStartOfAnNthStatementIsAlwaysZero) {
    CachedSheet sheet(TwoRules);
    for (const int n : {-1, 0, 1, 2, 3, 100})
        EXPECT_EQ(sheet->GetNthStatementStartChar(n), 0);
}

TEST(StatementPositions, APositionThatDoesNotFitFails) {
    CachedSheet sheet(TwoRules);
    EXPECT_THROW(static_cast<void>(sheet->GetStatementNumber(32768)), OverflowFailure);
    EXPECT_THROW(static_cast<void>(sheet->GetStatementStartChar(32768)), OverflowFailure);
    EXPECT_THROW(static_cast<void>(sheet->getPropertyFromSelection(-32769)), OverflowFailure);
}

TEST(StatementPositions, TheSelectorEndsAtTheFirstBrace) {
    CachedSheet sheet(u"ab {c: d}\nef {g: h}");
    EXPECT_TRUE(sheet->CursorInSelector(0));
    EXPECT_TRUE(sheet->CursorInSelector(4));
    EXPECT_FALSE(sheet->CursorInSelector(5));
    EXPECT_TRUE(sheet->CursorInSelector(13));
    EXPECT_FALSE(sheet->CursorInSelector(14));
    EXPECT_FALSE(sheet->CursorInSelector(19)) << "behind the end the start is 0";
}

TEST(StatementPositions, WhitespaceInFrontOfTheFirstStatementShiftsItsSelector) {
    CachedSheet sheet(u"     a {b: c}");
    EXPECT_TRUE(sheet->CursorInSelector(3));
    EXPECT_FALSE(sheet->CursorInSelector(4));
}

TEST(StatementPositions, AStatementWithNoBraceIsAllSelector) {
    EXPECT_TRUE(CachedSheet(u"")->CursorInSelector(0));
    EXPECT_TRUE(CachedSheet(u"h1, h2")->CursorInSelector(6));
    EXPECT_TRUE(CachedSheet(u"/* c */")->CursorInSelector(3));
}

struct WalkCase {
    Text text;
    int position;
    Text statement;
};

const std::vector<WalkCase> WalkCases = {
    {u"a {b: c} d {e: f}", 0, u"a {b: c}"},
    {u"a {b: c} d {e: f}", 1, u"a {b: c}"},
    {u"a {b: c} d {e: f}", 5, u"a {b: c}"},
    {u"a {b: c} d {e: f}", 8, u""},
    {u"a {b: c} d {e: f}", 9, u" d {e: f}"},
    {u"a {b: c} d {e: f", 12, u" d {e: "},
    {u"} a {}", 0, u"}"},
    {u"/* c */ a {}", 3, u"/* c */"},
    {u"/* c */ a {}", 10, u" a {}"},
    {u"@import x; a {}", 12, u"@import x; a {}"},
    {u"b {} @import x; a {}", 12, u"import x; a {}"},
    {u"b {} @IMPORT x; a {}", 12, u"IMPORT x; a {}"},
    {u"ab", 5, u"a"},
    {u"a {}", 9, u""},
    {u"", 0, u""},
};

TEST(StatementPositions, AWalkThroughTheTextFindsTheStatementAround) {
    for (const WalkCase& row : WalkCases) {
        SCOPED_TRACE(Utf8FromText(row.text) + " at " + std::to_string(row.position));
        EXPECT_EQ(CachedSheet(row.text)->getStatementFromSelectionWalk(row.position), row.statement);
    }
}

}  // namespace
}  // namespace tintora
