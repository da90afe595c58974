#include "properties/FontFamilyList.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>
#include <vector>

namespace tintora {
namespace {

struct SplitCase {
    Text family;
    Texts fonts;
};

const std::vector<SplitCase> Families = {
    {u"", {}},
    {u" , ,", {}},
    {u"serif", {u"serif"}},
    {u"\"Times New Roman\", serif", {u"\"Times New Roman\"", u"serif"}},
    {u" a ,b\t,\n c", {u"a", u"b", u"c"}},
    {u"\"a, b\", c", {u"\"a", u"b\"", u"c"}},
};

struct AddCase {
    TextView name;
    TextView family;
};

constexpr auto Added = std::to_array<AddCase>({
    {u"Arial", u"serif, Arial"},
    {u"Times New Roman", u"serif, \"Times New Roman\""},
    {u"\"Arial Black\"", u"serif, \"Arial Black\""},
    {u"\"Arial Black", u"serif, \"Arial Black\""},
    {u"", u"serif"},
});

TEST(FontFamilyList, TheTabsHaveTheirSets) {
    const std::array<TextView, 5> captions = {u"This Computer", u"Generic", u"Cross-Platform", u"Windows",
                                              u"Macintosh"};
    for (std::size_t index = 0; index < captions.size(); ++index)
        EXPECT_EQ(FontSets[index].caption, captions[index]);
    const Texts installed = {u"A", u"B C"};
    EXPECT_EQ(FontsOfTab(1, installed), installed);
    EXPECT_EQ(FontsOfTab(2, installed), (Texts{u"serif", u"sans-serif", u"cursive", u"fantasy", u"monospace"}));
    EXPECT_EQ(FontsOfTab(3, installed),
              (Texts{u"\"Arial Black\"", u"\"Comic Sans\"", u"Impact", u"Verdana", u"Webdings", u"Trebuchet",
                     u"Georgia", u"Monotype.com", u"\"Minion Web\""}));
    EXPECT_EQ(FontsOfTab(4, installed).front(), u"Arial");
    EXPECT_GT(FontsOfTab(4, installed).size(), 10U);
    EXPECT_EQ(FontsOfTab(5, installed), (Texts{u"Charcoal", u"Chicago", u"Courier", u"Geneva", u"Helvetica", u"Monaco",
                                               u"\"New York\"", u"Palatino", u"Times", u"Symbol"}));
    for (const int none : {0, 6, -1})
        EXPECT_TRUE(FontsOfTab(none, installed).empty());
}

TEST(FontFamilyList, AFamilyIsCutAtItsCommasAndComesBackUnchanged) {
    for (const SplitCase& row : Families) {
        SCOPED_TRACE(Utf8FromText(row.family));
        FontFamilyList list;
        list.EditFonts(row.family);
        EXPECT_EQ(list.Fonts(), row.fonts);
        EXPECT_EQ(list.FamilyText(), row.family);
    }
}

TEST(FontFamilyList, ANameWithABlankIsQuoted) {
    for (const AddCase& row : Added) {
        FontFamilyList list;
        list.EditFonts(u"serif");
        list.AddOneFont(row.name);
        EXPECT_EQ(list.FamilyText(), row.family);
    }
}

TEST(FontFamilyList, TheSelectedFontIsMovedAndRemoved) {
    FontFamilyList list;
    list.EditFonts(u"a,b,c");
    EXPECT_FALSE(list.CanRemove() || list.CanMoveUp() || list.CanMoveDown());
    list.MoveUp();
    list.MoveDown();
    list.RemoveOneFont();
    EXPECT_EQ(list.FamilyText(), u"a,b,c");
    list.Select(0);
    EXPECT_FALSE(list.CanMoveUp());
    list.MoveDown();
    EXPECT_EQ(list.FamilyText(), u"b, a, c");
    EXPECT_EQ(list.Selected(), 1U);
    list.MoveDown();
    EXPECT_FALSE(list.CanMoveDown());
    list.MoveDown();
    EXPECT_EQ(list.FamilyText(), u"b, c, a");
    list.MoveUp();
    EXPECT_EQ(list.FamilyText(), u"b, a, c");
    list.RemoveOneFont();
    EXPECT_EQ(list.FamilyText(), u"b, c");
    EXPECT_FALSE(list.CanRemove());
    list.Select(9);
    EXPECT_EQ(list.Selected(), FontFamilyList::None);
}

}  // namespace
}  // namespace tintora
