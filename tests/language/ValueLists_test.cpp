#include "language/ValueLists.h"

#include "language/Bracketed.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>

namespace tintora {
namespace {

struct ListCase {
    const KeyedList& (*list)();
    TextView items;
};

constexpr auto ListCases = std::to_array<ListCase>({
    {&ColorProperties, u"[color][background-color]"},
    {&KeywordProperties,
     u"[font-size][font-weight][font-stretch][font-variant][font-style][text-align][text-transform][text-direction]"
     u"[unicode-bidi][white-space][display][list-style-type][list-style-image][list-style-position][border-collapse]"
     u"[table-layout][empty-cells][caption-side][background-repeat][background-attachment][margin][margin-top]"
     u"[margin-left][margin-bottom][margin-right][position][top][left][bottom][right][width][height][visibility]"
     u"[float][clear][overflow][min-height][min-width][maxheight][max-width][page-break-before][page-break-after]"
     u"[page-break-inside][cursor][clip][background-image][letter-spacing][word-spacing][text-indent]"
     u"[vertical-align][line-height]"},
    {&LengthProperties,
     u"[letter-spacing][word-spacing][text-indent][vertical-align][top][left][bottom][right][margin][margin-top]"
     u"[margin-left][margin-bottom][margin-right][]"},
    {&PositiveLengthProperties,
     u"[font-size][line-height][padding][padding-top][padding-left][padding-bottom][padding-right][width][height]"
     u"[min-width][min-height][max-width][background-position][]"},
    {&URLProperties, u"[background-image][list-style-image][cursor]"},
});

struct MembershipCase {
    const KeyedList& (*list)();
    TextView key;
    bool isMember;
};

constexpr auto MembershipCases = std::to_array<MembershipCase>({
    {&ColorProperties, u"color", true},
    {&ColorProperties, u"Background-COLOR", true},
    {&ColorProperties, u"border-color", false},
    {&ColorProperties, u"", false},
    {&KeywordProperties, u"maxheight", true},
    {&KeywordProperties, u"max-height", false},
    {&KeywordProperties, u"", false},
    {&LengthProperties, u"", true},
    {&LengthProperties, u"MARGIN", true},
    {&LengthProperties, u"padding", false},
    {&LengthProperties, u" ", false},
    {&PositiveLengthProperties, u"", true},
    {&PositiveLengthProperties, u"padding", true},
    {&PositiveLengthProperties, u"max-height", false},
    {&PositiveLengthProperties, u"margin", false},
    {&URLProperties, u"cursor", true},
    {&URLProperties, u"", false},
    {&URLProperties, u"background", false},
    {&URLProperties, u"\xD800", false},
});

constexpr TextView ColorWords =
    u"[inherit][aqua][black][blue][fuchsia][gray][green][lime][maroon][navy][olive][orange][purple][red][silver][teal]"
    u"[white][yellow]";

constexpr TextView SystemColorWords =
    u"[activeborder][activecaption][appworkspace][background][buttonface][buttonhighlight][buttontext][captiontext]"
    u"[graytext][highlight][highlighttext][inactiveborder][inactivecaption][inactivecaptiontext][infobackground]"
    u"[infotext][menu][menutext][scrollbar][threeddarkshadow][threedface][threedhighlight][threedhighlightshadow]"
    u"[threedshadow][window][windowframe][windowtext]";

TEST(ValueLists, EachListHasItsNamesInOrder) {
    for (const ListCase& row : ListCases)
        EXPECT_EQ(Bracketed(row.list().Items()), row.items);
}

TEST(ValueLists, ANameIsAskedInWhateverCase) {
    for (const MembershipCase& row : MembershipCases)
        EXPECT_EQ(ListHasKey(row.list(), row.key), row.isMember) << Utf8FromText(row.key);
}

TEST(ValueLists, EveryItemIsAKey) {
    for (const ListCase& row : ListCases) {
        for (const Text& item : row.list().Items())
            EXPECT_TRUE(ListHasKey(row.list(), item)) << Utf8FromText(item);
    }
}

TEST(ValueLists, TheColorWordsStandInOrder) {
    EXPECT_EQ(Bracketed(ColorKeywords()), ColorWords);
    EXPECT_EQ(Bracketed(SystemColorKeywords()), SystemColorWords);
}

TEST(ValueLists, TheListsAreBuiltOnce) {
    SetUpValueLists();
    const KeyedList* const before = &LengthProperties();
    const Texts* const words = &ColorKeywords();
    SetUpValueLists();
    EXPECT_EQ(&LengthProperties(), before);
    EXPECT_EQ(&ColorKeywords(), words);
}

}  // namespace
}  // namespace tintora
