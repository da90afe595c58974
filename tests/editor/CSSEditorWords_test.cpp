// Tokens and words around a position.

#include "EditorRecorders.h"
#include "editor/CSSEditorSrcView.h"

namespace tintora::test {
namespace {

struct WordCase {
    Text line;
    int column;
    WordBoundaries word;
    Text text;
};

const std::vector<WordCase> WordCases = {
    {u"a {color: red;}", 3, {3, 8}, u"color"},
    {u"a {color: red;}", 5, {3, 8}, u"color"},
    {u"a {color: red;}", 7, {3, 8}, u"color"},
    {u"a {color: red;}", 10, {10, 13}, u"red"},
    {u"a {color: red;}", 0, {0, 1}, u"a"},

    // On a character that ends words there is none.
    {u"a {color: red;}", 1, {2, 2}, u""},
    {u"a {color: red;}", 2, {3, 3}, u""},
    {u"a {color: red;}", 8, {9, 9}, u""},
    {u"a {color: red;}", 9, {10, 10}, u""},
    {u"a {color: red;}", 13, {14, 14}, u""},
    {u"a {color: red;}", 14, {15, 15}, u""},

    // What is at the end of its line is one character short.
    {u"red", 0, {0, 2}, u"re"},
    {u"red", 2, {0, 2}, u"re"},
    {u"a red", 3, {2, 4}, u"re"},
    {u"a", 0, {0, 0}, u""},
    {u"a b", 2, {2, 2}, u""},

    // At the end of the line and beyond it the word in front.
    {u"red", 3, {0, 2}, u"re"},
    {u"red", 50, {0, 2}, u"re"},
    {u"a {}", 4, {4, 4}, u""},
    {u"red ", 4, {4, 4}, u""},

    // Commas and all other characters belong to words.
    {u"h1,h2.x#y>z {}", 4, {0, 11}, u"h1,h2.x#y>z"},
    {u"a \"b/*c*/\" d", 5, {2, 10}, u"\"b/*c*/\""},
    {u"a\tbc\fd", 2, {2, 4}, u"bc"},
    {u"a\u00A0b c", 0, {0, 3}, u"a\u00A0b"},
    {u"\U0001F600x y", 0, {0, 3}, u"\U0001F600x"},
    {u"url(x.png);", 4, {0, 10}, u"url(x.png)"},

    {u"", 0, {0, 0}, u""},
    {u"", 5, {0, 0}, u""},
};

struct BetweenCase {
    Text text;
    int offset;
    Text between;
};

const std::vector<BetweenCase> BetweenCases = {
    {u"a {color: red, blue;}", 0, u"a"},
    {u"a {color: red, blue;}", 1, u"a"},
    {u"a {color: red, blue;}", 4, u"color"},
    {u"a {color: red, blue;}", 8, u"color"},
    {u"a {color: red, blue;}", 10, u"red"},
    {u"a {color: red, blue;}", 13, u"red"},
    {u"a {color: red, blue;}", 15, u"blue"},
    {u"a {color: red, blue;}", 19, u"blue"},

    // The character in front of the offset counts, and where it is a delimiter there is nothing.
    {u"a {color: red, blue;}", 3, u""},
    {u"a {color: red, blue;}", 9, u""},
    {u"a {color: red, blue;}", 14, u""},
    {u"a {color: red, blue;}", 20, u""},
    {u"a {color: red, blue;}", 21, u""},
    {u"{}", 0, u""},
    {u"{}", 1, u""},

    // Over rows, and trimmed of white space alone.
    {u"a {\r\n\t font \n}", 5, u"font"},
    {u"a {\r\n\t font \n}", 10, u"font"},
    {u"a\nb\nc", 2, u"a\nb\nc"},
    {u"{ a b }", 2, u"a b"},
    {u"{\u00A0a}", 2, u"\u00A0a"},
    {u"{  }", 2, u""},

    // From the last delimiter to the end of the text, and without any of them all of it.
    {u"a: b", 3, u"b"},
    {u"a: b", 4, u"b"},
    {u"a: b", 99, u"b"},
    {u" ab ", 2, u"ab"},
    {u" ab ", 99, u"ab"},
    {u"ab;", 99, u""},
    {u"", 0, u""},
    {u"", 3, u""},
};

TEST_F(EditorTest, AWordHasTheBoundariesOfTheCases) {
    for (const WordCase& row : WordCases) {
        SCOPED_TRACE(Utf8FromText(row.line) + " at " + std::to_string(row.column));
        Load(u"first\r\n" + row.line + u"\r\nlast");
        const WordBoundaries word = editor_.GetWordBoundaries(row.column, 1);
        EXPECT_EQ(word.start, row.word.start);
        EXPECT_EQ(word.end, row.word.end);
        EXPECT_EQ(editor_.GetWholeWord(row.column, 1), row.text);
    }
}

TEST_F(EditorTest, AWordIsSelectedInItsRow) {
    for (const WordCase& row : WordCases) {
        if (row.word.end > std::ssize(row.line))
            continue;
        SCOPED_TRACE(Utf8FromText(row.line) + " at " + std::to_string(row.column));
        Load(u"first\r\n" + row.line + u"\r\nlast");
        editor_.SelectWholeWord(row.column, 1);
        EXPECT_EQ(view_.GetSelectionRange(), (SelectionRange{row.word.start, 1, row.word.end, 1}));
    }
}

TEST_F(EditorTest, InARowThatIsNotThereIsNoWord) {
    Load(u"red");
    EXPECT_EQ(editor_.GetWordBoundaries(1, 7), (WordBoundaries{0, 0}));
    EXPECT_EQ(editor_.GetWholeWord(1, 7), u"");
}

TEST_F(EditorTest, BetweenDelimitersStandsWhatTheCasesSay) {
    for (const BetweenCase& row : BetweenCases) {
        SCOPED_TRACE(Utf8FromText(row.text) + " at " + std::to_string(row.offset));
        Load(row.text);
        EXPECT_EQ(editor_.GetTokenAtCharPosition(row.offset), row.between);
    }
}

TEST_F(EditorTest, ATokenHasItsTextTypeAndPlace) {
    Load(u"a {}\n\U0001F600 {color: red !important;}");
    const TokenText name = editor_.GetTokenAtCaret(6, 1);
    EXPECT_EQ(name.text, u"color");
    EXPECT_EQ(name.type, 19);
    EXPECT_EQ(name.startColumn, 4);
    EXPECT_EQ(name.length, 5);
    const TokenText value = editor_.GetTokenAtCaret(10, 1);
    EXPECT_EQ(value.text, u" red ");
    EXPECT_EQ(value.type, 21);
    EXPECT_EQ(editor_.GetTokenAtCaret(20, 1).text, u"!important");
    EXPECT_EQ(editor_.GetTokenType(20, 1), 26);
    EXPECT_EQ(editor_.GetTokenAtCaret(0, 1).text, u"\U0001F600 ");
    EXPECT_EQ(editor_.GetTokenType(0, 1), 24);
    EXPECT_EQ(editor_.GetTokenType(2, 0), 23);
}

TEST_F(EditorTest, BehindTheLastTokenThereIsNone) {
    Load(u"a {}\n\n");
    for (const auto& [column, row] : {std::pair(4, 0), std::pair(9, 0), std::pair(0, 1), std::pair(0, 2)}) {
        SCOPED_TRACE(std::to_string(column) + "," + std::to_string(row));
        EXPECT_EQ(editor_.GetTokenType(column, row), 0);
        EXPECT_EQ(editor_.GetTokenAtCaret(column, row).text, u"");
        EXPECT_EQ(editor_.GetTokenAtCaret(column, row).length, 0);
    }
}

}  // namespace
}  // namespace tintora::test
