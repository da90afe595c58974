#include "model/SelectorText.h"

#include "TextHolder.h"
#include "language/FeatureNames.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

struct TypeCase {
    Text selector;
    int type;
};

const std::vector<TypeCase> TypeCases = {
    {u"", 0},
    {u" \t\r\n", 0},
    {u"h1", 5},
    {u"*", 5},
    {u"@font-face", 5},
    {u"h1, h2", 10},
    {u"a[title=\"a,b\"]", 10},
    {u"a[title=\"a b\"]", 18},
    {u"body > p", 16},
    {u"h1 + h2", 17},
    {u"ul li", 9},
    {u"ul\tli", 9},
    {u"h1 ", 5},
    {u" h1", 5},
    {u"a[b c] d", 9},
    {u"a :hover", 9},
    {u"a:hover", 6},
    {u"A:HOVER", 6},
    {u"abbr:hover", 6},
    {u"p:hover", 11},
    {u"p.note:hover", 11},
    {u"input:focus", 11},
    {u"p.link:first-line", 6},
    {u"p.visited:before", 6},
    {u"q:lang(fr)", 12},
    {u"p:first-letter", 13},
    {u"h1:before", 14},
    {u"h1:AFTER", 14},
    {u"li:first-child", 15},
    {u"a.x", 7},
    {u".x", 7},
    {u"div#nav", 8},
    {u"div#nav.x", 7},
    {u"h1:unknown", 5},
    {u"input.x:unknown", 7},
    {u"[title]", 18},
    {u"@page", 3},
    {u"@page :first", 3},
    {u" @Import", 1},
    {u"@media print, screen", 2},
    {u"/* a, b */", 4},
    {u"a, b > c", 10},
    {u"a > b + c", 16},
    {u"link", 5},
};

TEST(SelectorText, TheFirstTestThatFitsGivesTheType) {
    for (const TypeCase& row : TypeCases) {
        SCOPED_TRACE(Utf8FromText(row.selector));
        EXPECT_EQ(GetSelectorType(row.selector), row.type);
    }
}

struct SelectorCase {
    Text statement;
    Text selector;
};

const std::vector<SelectorCase> SelectorCases = {
    {u"", u""},
    {u"h1 {a: b}", u"h1"},
    {u"h1\r\n{a: b}", u"h1"},
    {u"h1\n{a: b}", u"h1"},
    {u"h1,\r\nh2,\r\n  h3 {", u"h1, h2,   h3"},
    {u"h1,\nh2 {", u"h1,\nh2"},
    {u"H1 , H2", u"H1 , H2"},
    {u"  a:hover  {} ", u"a:hover"},
    {u"{}", u""},
    {u"@IMPORT url(x);", u"@import"},
    {u"@page :first {margin: 0}", u"@page"},
    {u"  @Font-Face {a: b}", u"@font-face"},
    {u"@media print { a {} }", u"@media print"},
    {u"/* Head\r\nER */ ", u"/* head er */ "},
    {u"/* open {", u"/* open {"},
    {u"a } b {", u"a } b"},
};

TEST(SelectorText, ASelectorIsWhatStandsInFrontOfTheBrace) {
    for (const SelectorCase& row : SelectorCases) {
        SCOPED_TRACE(Utf8FromText(row.statement));
        EXPECT_EQ(ExtractSelector(row.statement), row.selector);
    }
}

TEST(SelectorText, OnlyAPairOfCarriageReturnAndLineFeedBecomesABlank) {
    EXPECT_EQ(NewlinesToBlanks(u"a\r\nb\rc\nd\r\r\ne\r"), u"a b\rc\nd\r e\r");
}

TEST(SelectorText, ASelectorBeyondTheLimitFails) {
    const Text limit(MaximumTextLength, u'a');
    EXPECT_EQ(GetSelectorType(limit), selector_type::Type);
    EXPECT_EQ(ExtractSelector(limit), limit);
    EXPECT_THROW(static_cast<void>(GetSelectorType(limit + u"a")), OverflowFailure);
    EXPECT_THROW(static_cast<void>(ExtractSelector(limit + u"a")), OverflowFailure);
}

TEST(SelectorText, TheSheetAnswersByNumberAndByPosition) {
    test::CachedSheet sheet(u"\n h1 {a: b}\n\n p em {c: d}");
    EXPECT_EQ(sheet->GetAllSelectorsAsText(), (Texts{u"h1", u"p em"}));
    EXPECT_EQ(sheet->GetNthSelector(0), u"h1");
    EXPECT_EQ(sheet->GetNthSelector(1), u"p em");
    EXPECT_EQ(sheet->GetNthSelector(-1), u"");
    EXPECT_EQ(sheet->GetNthSelector(2), u"");
    EXPECT_EQ(sheet->GetNthSelectorUnstripped(0), u"\n h1");
    EXPECT_EQ(sheet->GetNthSelectorUnstripped(1), u"p em");
    EXPECT_EQ(sheet->GetSelectorFromSelection(0), u"h1");
    EXPECT_EQ(sheet->GetSelectorFromSelection(16), u"p em");
    EXPECT_EQ(sheet->GetSelectorFromSelection(1000), u"p em");
    EXPECT_EQ(sheet->GetSelectorType(u"p em"), selector_type::Descendant);
    EXPECT_EQ(sheet->ExtractSelector(u"a {}"), u"a");
}

}  // namespace
}  // namespace tintora
