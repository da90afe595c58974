// What a type-ahead list holds, how it is narrowed, and how high it stands.

#include "editor/TypeAheadList.h"

#include "language/Bracketed.h"
#include "language/FakeFrontDocument.h"
#include "language/Words.h"
#include "text/Encoding.h"
#include "text/StringTable.h"

#include <gtest/gtest.h>

#include <vector>

namespace tintora {
namespace {

constexpr TextView ColorWords =
    u"[inherit][aqua][black][blue][fuchsia][gray][green][lime][maroon][navy][olive][orange][purple][red][silver][teal]"
    u"[white][yellow]";

struct ValueCase {
    Text property;
    Text values;
};

const std::vector<ValueCase> ValueCases = {
    // Words of the vocabulary, without units and placeholders.
    {u"font-weight", u"[inherit][normal][bold][bolder][lighter][100][200][300][400][500][600][700][800][900]"},
    {u"FLOAT", u"[inherit][none][left][right]"},
    {u"line-height", u"[inherit][normal]"},
    {u"z-index", u"[inherit][auto]"},
    {u"quotes", u"[inherit][none]"},
    {u"content", u"[inherit]"},
    {u"margin", u"[inherit][auto]"},
    {u"text-decoration", u"[none][underline][overline][line-through][blink]"},
    {u"clip", u"[inherit][auto][rectangle]"},

    // Properties with units alone, and what is no property.
    {u"border-color", u""},
    {u"border-spacing", u"[inherit][auto]"},
    {u"nonsense", u""},
    {u"table-layout", u""},
    {u"", u""},
    {u"color ", u""},

    // The style sheet's own values.
    {u"color", Text(ColorWords) + u"[#abc][rgb(1,2,3)]"},
    {u"Background-Color", Text(ColorWords) + u"[#abc][rgb(1,2,3)]"},
    {u"background-image", u"[inherit][url(b.gif)][URL(a.gif)]"},
    {u"list-style-image", u"[inherit][none][url(b.gif)][URL(a.gif)]"},
    {u"font-family",
     u"[sans-serif][monospace][cursive][fantasy][Times, \"Times New Roman\", serif][Verdana, Helvetica, Arial, "
     u"sans-serif][Courier, \"Courier New\", monospace][Georgia][serif]"},
    // Exactly this name brings the fonts of the style sheet in its own turn, the vocabulary brings them in any case.
    {u"FONT-FAMILY",
     u"[sans-serif][monospace][cursive][fantasy][Times, \"Times New Roman\", serif][Verdana, Helvetica, Arial, "
     u"sans-serif][Courier, \"Courier New\", monospace][Georgia][serif]"},
};

struct NarrowCase {
    Text partial;
    Text found;
    bool isWorthOffering;
};

const std::vector<NarrowCase> NarrowCases = {
    {u"", u"[}][color][content][cursor][Cursive]", true},
    {u"c", u"[color][content][cursor]", true},
    {u"co", u"[color][content]", true},
    {u"C", u"[Cursive]", true},
    {u"CO", u"", false},
    {u"cur", u"[cursor]", true},
    {u"cursor", u"[cursor]", false},
    {u"cursors", u"", false},
    {u"}", u"[}]", false},
    {u" c", u"", false},
};

const std::vector<NarrowCase> RowCases = {
    {u"", u"[}][color][content][cursor][Cursive]", true},
    {u"CO", u"[color][content]", true},
    // Rows aren't turned into lower case.
    {u"Curs", u"[cursor]", true},
    {u"Cursi", u"", false},
    {u"x", u"", false},
};

struct KeyCase {
    Text characters;
    TypeAheadListKey key;
};

const std::vector<KeyCase> KeyCases = {
    {u".\x1B\f\b", TypeAheadListKey::Closes},
    {u"\t\r", TypeAheadListKey::Chooses},
    {u"abzABZ0129 -_;:{}\n\v\x7F\u00E9", TypeAheadListKey::IsTheLists},
};

struct HeightCase {
    int rows;
    int height;
};

/// Rows of 240 twips, which are 16 pixels.
const std::vector<HeightCase> HeightCases = {
    {0, 270}, {1, 270}, {2, 270}, {3, 747}, {4, 986}, {10, 2420}, {15, 3615}, {16, 2430}, {100, 2430}, {32'767, 2430},
};

/// Rows so low that the twip between them counts.
const std::vector<HeightCase> LowRowHeights = {{1, 40}, {2, 40}, {3, 57}, {16, 174}, {17, 130}};

const Texts Rows = {u"}", u"color", u"content", u"cursor", u"Cursive"};

FakeFrontDocument SheetInUse() {
    FakeFrontDocument sheet;
    sheet.colors = {u"#abc", u"red ", u"nonsense", u"rgb(1,2,3)", u""};
    sheet.urls = {u"URL(a.gif)", u"url(b.gif)"};
    sheet.fonts = {u"Georgia", u"serif"};
    return sheet;
}

TEST(TypeAheadList, ABraceStandsInFrontOfEveryNameOfTheVocabulary) {
    const Texts names = TypeAheadNames();
    ASSERT_EQ(names.size(), 103U);
    EXPECT_EQ(names[0], u"}");
    EXPECT_EQ(names[1], u"background");
    EXPECT_EQ(names[2], u"background-attachment");
    EXPECT_EQ(names.back(), u"z-index");
    EXPECT_EQ(Texts(names.begin() + 1, names.end()), GetWordsFromText(LoadResourceString(1500), u" "));
}

TEST(TypeAheadList, APropertyIsOfferedWhatTheCasesSay) {
    const FakeFrontDocument sheet = SheetInUse();
    for (const ValueCase& row : ValueCases)
        EXPECT_EQ(Bracketed(TypeAheadValues(row.property, sheet)), row.values) << Utf8FromText(row.property);
}

TEST(TypeAheadList, WithoutValuesOfTheSheetTheVocabularyIsOffered) {
    const FakeFrontDocument empty;
    EXPECT_EQ(Bracketed(TypeAheadValues(u"color", empty)), ColorWords);
    EXPECT_EQ(Bracketed(TypeAheadValues(u"background-image", empty)), u"[inherit]");
}

TEST(TypeAheadList, OfEqualValuesTheLastStays) {
    FakeFrontDocument sheet;
    sheet.colors = {u"red", u"#fff", u"blue"};
    const Texts colors = TypeAheadValues(u"color", sheet);
    ASSERT_EQ(colors.size(), 19U);
    EXPECT_EQ(Bracketed(Texts(colors.end() - 4, colors.end())), u"[yellow][red][#fff][blue]");
    // The words of a cursor come first, the latest URL of the sheet in front of the earlier ones.
    sheet.urls = {u"none", u"url(a)", u"url(b)", u"url(a)"};
    const Texts cursors = TypeAheadValues(u"cursor", sheet);
    EXPECT_EQ(cursors[0], u"inherit");
    EXPECT_EQ(cursors[1], u"auto");
    EXPECT_EQ(Bracketed(Texts(cursors.end() - 4, cursors.end())), u"[w-resize][url(b)][url(a)][none]");
}

TEST(TypeAheadList, APartIsComparedAsItStands) {
    for (const NarrowCase& row : NarrowCases) {
        SCOPED_TRACE(Utf8FromText(row.partial));
        const Texts found = ItemsBeginningWith(Rows, row.partial);
        EXPECT_EQ(Bracketed(found), row.found);
        EXPECT_EQ(IsWorthOffering(found, row.partial), row.isWorthOffering);
    }
}

TEST(TypeAheadList, AnOpenListComparesTheLowerCaseOfWhatIsTyped) {
    for (const NarrowCase& row : RowCases) {
        SCOPED_TRACE(Utf8FromText(row.partial));
        EXPECT_EQ(Bracketed(RowsToShow(Rows, row.partial)), row.found);
    }
}

TEST(TypeAheadList, EachKeyDoesToAnOpenListWhatTheCasesSay) {
    for (const KeyCase& row : KeyCases) {
        for (const char16_t character : row.characters)
            EXPECT_EQ(TypeAheadListKeyOf(character), row.key) << static_cast<int>(character);
    }
    EXPECT_EQ(TypeAheadListKeyOf(u'\0'), TypeAheadListKey::IsTheLists);
}

TEST(TypeAheadList, AListIsAsHighAsTheCasesSay) {
    for (const HeightCase& row : HeightCases)
        EXPECT_EQ(TypeAheadFormHeight(240, row.rows), row.height) << row.rows;
    for (const HeightCase& row : LowRowHeights)
        EXPECT_EQ(TypeAheadFormHeight(10, row.rows), row.height) << row.rows;
}

}  // namespace
}  // namespace tintora
