#include "model/MediaBlocks.h"

#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

struct BlockCase {
    Text block;
    Texts nested;
    Texts nestedWithoutSkip;
    int headerLength;
};

const std::vector<BlockCase> Cases = {
    {u"@media print {\n  a {b: c}\n  d {e: f}\n}\n",
     {u"a {b: c}\n  ", u"d {e: f}\n"},
     {u"\n  a {b: c}", u"\n  d {e: f}"},
     17},
    {u"@media print {}", {}, {}, 14},
    {u"@media p{a{}}", {u"a{}"}, {u"a{}"}, 9},
    {u"@media p { /* } */ a {} }", {u"/* } */ ", u"a {} "}, {u" /* } */", u" a {}"}, 11},
    {u"@media p { a { /* } */ b: c } }", {u"a { /* } ", u"*/ b: c } "}, {u" a { /* }", u" */ b: c }"}, 11},
    {u"@media p { a {} left over", {u"a {} "}, {u" a {}"}, 11},
    {u"@media p { /*/ a {} }", {u"/*/ ", u"a {} "}, {u" /*/", u" a {}"}, 11},
    {u"@media p { a {} } }", {u"a {} "}, {u" a {}"}, 11},
    // Text with no block in it at all.
    {u"/* @media */ ", {u"/* @media */ "}, {u"/* @media */"}, 0},
    {u"  @media ", {}, {}, 2},
    {u"a {} ", {}, {}, 3},
    {u"", {}, {}, 0},
};

TEST(MediaBlocks, NestedStatementsAreCutAsTheCasesSay) {
    for (const BlockCase& row : Cases) {
        SCOPED_TRACE(Utf8FromText(row.block));
        EXPECT_EQ(GetAtMediaStatements(row.block), row.nested);
        EXPECT_EQ(GetAtMediaStatements1(row.block), row.nestedWithoutSkip);
        EXPECT_EQ(MediaHeaderLength(row.block), row.headerLength);
    }
}

TEST(MediaBlocks, ABlockBeyondTheLimitFails) {
    EXPECT_THROW(static_cast<void>(GetAtMediaStatements(Text(MaximumTextLength + 1, u'a'))), OverflowFailure);
}

TEST(MediaBlocks, TheWordIsFoundAnywhereAndInAnyCase) {
    EXPECT_TRUE(MentionsMedia(u"@media"));
    EXPECT_TRUE(MentionsMedia(u"a {b: @@MeDiA}"));
    EXPECT_FALSE(MentionsMedia(u"@medi a"));
    EXPECT_FALSE(MentionsMedia(u""));
}

}  // namespace
}  // namespace tintora
