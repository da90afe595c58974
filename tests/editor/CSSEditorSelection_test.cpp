// The editor's selection.

#include "EditorRecorders.h"
#include "editor/CSSEditorSrcView.h"

namespace tintora::test {
namespace {

struct SelectedCase {
    Text drawn;
    int start;
    int length;
    Text selected;
};

const std::vector<SelectedCase> SelectedCases = {
    {u"|", 0, 0, u""},
    {u"ab|cd", 2, 0, u""},
    {u"a^bc|d", 1, 2, u"bc"},
    {u"^abcd|", 0, 4, u"abcd"},
    {u"a^b\r\nc|d", 1, 4, u"b\r\nc"},
    {u"ab\n^\n|cd", 3, 1, u"\n"},

    // One that was made backwards starts at its far end, and so does the text that is taken for the selected one.
    {u"a|bc^de", 3, 2, u"de"},
    {u"a|b\r\nc^def", 5, 4, u"def"},
    {u"|abcd^", 4, 4, u""},
};

struct SelectCase {
    Text text;
    int start;
    int end;
    Text drawn;
};

const std::vector<SelectCase> SelectCases = {
    {u"abcd", 1, 3, u"a^bc|d"},     {u"abcd", 3, 1, u"a|bc^d"},
    {u"abcd", 2, 2, u"ab|cd"},      {u"ab\ncd", 1, 4, u"a^b\nc|d"},
    {u"ab\ncd", 4, 1, u"a|b\nc^d"}, {u"ab\r\ncd", 3, 5, u"ab^\r\nc|d"},
    {u"ab", 0, 99, u"^ab|"},        {u"", 0, 0, u"|"},
};

TEST_F(EditorTest, TheSelectionHasTheStartLengthAndTextOfTheCases) {
    for (const SelectedCase& row : SelectedCases) {
        SCOPED_TRACE(Utf8FromText(row.drawn));
        Load(row.drawn);
        EXPECT_EQ(editor_.GetSelectionStart(), row.start);
        EXPECT_EQ(editor_.GetSelectionLength(), row.length);
        EXPECT_EQ(editor_.GetSelectedText(), row.selected);
    }
}

TEST_F(EditorTest, ASelectionIsSetByItsOffsets) {
    for (const SelectCase& row : SelectCases) {
        SCOPED_TRACE(Utf8FromText(row.drawn));
        Load(row.text);
        editor_.SetSelection(row.start, row.end);
        EXPECT_EQ(DrawnText(), row.drawn);
        EXPECT_EQ(editor_.GetSelectionStart(), row.start);
        EXPECT_EQ(editor_.CurrentSelectionStart, row.start);
        EXPECT_EQ(editor_.CurrentSelectionEnd, row.end);
        EXPECT_EQ(editor_.GetText(), row.text);
    }
}

TEST_F(EditorTest, ASetSelectionIsScrolledToItsStartAndUpdatesTheMenus) {
    Load(u"ab {}\nbc {}");
    RecordControl();
    editor_.SetSelection(7, 1);
    EXPECT_EQ(log_.Take(),
              "ScrollToPosition(1,1), SelectRange(1,1,1,0), menus, SelectionChanged, CaretPosition: Line 1 Col 1, "
              "menus");
    EXPECT_TRUE(frame_.items["miECut"]);
    editor_.SetSelection(1, 1);
    EXPECT_EQ(log_.Take(), "ScrollToPosition(0,1), SelectRange(1,0,1,0), menus, menus");
    EXPECT_FALSE(frame_.items["miECut"]);
}

TEST_F(EditorTest, ASelectionStartIsAnEmptySelection) {
    Load(u"^ab {}\nbc| {}");
    editor_.CurrentSelectionEnd = 77;
    RecordControl();
    editor_.SetSelectionStart(7);
    EXPECT_EQ(log_.Take(), "ScrollToPosition(1,1), SelectRange(1,1,1,1), menus, CaretPosition: Line 2 Col 1")
        << "the menus are those of the selection event";
    EXPECT_EQ(DrawnText(), u"ab {}\nb|c {}");
    EXPECT_EQ(editor_.GetSelectionStart(), 7);
    EXPECT_EQ(editor_.CurrentSelectionEnd, 77);
    editor_.SetSelectionStart(7);
    EXPECT_EQ(log_.Take(), "ScrollToPosition(1,1), SelectRange(1,1,1,1)");
}

TEST_F(EditorTest, ASelectionStartIsReadBackASelectionIsNot) {
    Load(u"ab\r\ncd");
    editor_.SetSelectionStart(3);
    EXPECT_EQ(editor_.GetSelectionStart(), 2);
    EXPECT_EQ(DrawnText(), u"ab|\r\ncd");
    editor_.SetSelectionStart(99);
    EXPECT_EQ(editor_.GetSelectionStart(), 6);
    editor_.SetSelection(3, 3);
    EXPECT_EQ(editor_.GetSelectionStart(), 3);
    EXPECT_EQ(DrawnText(), u"ab|\r\ncd");
}

TEST_F(EditorTest, ASelectionLengthChangesNothing) {
    Load(u"a^bc|d");
    RecordControl();
    for (const int length : {0, 1, 4, -1, 99999})
        editor_.SetSelectionLength(length);
    EXPECT_EQ(log_.Take(), "");
    EXPECT_EQ(DrawnText(), u"a^bc|d");
    EXPECT_EQ(editor_.GetSelectionLength(), 2);
}

TEST_F(EditorTest, ASelectedTextIsReplacedInTwoSteps) {
    Load(u"a^bc|d");
    editor_.SetSelectionText(u"XYZ");
    EXPECT_EQ(DrawnText(), u"aXYZ|d");
    editor_.Undo();
    EXPECT_EQ(DrawnText(), u"a|d");
    editor_.Undo();
    EXPECT_EQ(editor_.GetText(), u"abcd");
    EXPECT_FALSE(editor_.CanUndo());
}

TEST_F(EditorTest, ASelectedTextIsReplacedWithNothingDrawnMeanwhile) {
    Load(u"a^b\nc|d");
    RecordControl();
    editor_.SetSelectionText(u"X");
    EXPECT_EQ(log_.TakeWithout("menus"),
              "FreezeRedraw, Delete(1,0,1,1), TextChanged, SelectionChanged, CaretPosition: Line 1 Col 1, "
              "Insert(1,0) 'X', TextChanged, CaretPosition: Line 1 Col 2, ThawRedraw");
    EXPECT_EQ(view_.frozen, 0);
}

TEST_F(EditorTest, ASelectionThatWasMadeBackwardsIsReplacedAtItsEarlierEnd) {
    Load(u"a|b\ncd^e");
    editor_.SetSelectionText(u"X");
    EXPECT_EQ(DrawnText(), u"aX|e");
    Load(u"a|bc^d");
    editor_.SetSelectionText(u"X");
    EXPECT_EQ(DrawnText(), u"aX|d");
}

TEST_F(EditorTest, WithoutASelectionTheTextIsPutInAtTheCaret) {
    Load(u"ab\r\nc|d");
    editor_.SetSelectionText(u"X\nY");
    EXPECT_EQ(DrawnText(), u"ab\r\ncX\r\nY|d");
    editor_.Undo();
    EXPECT_EQ(editor_.GetText(), u"ab\r\ncd");
    Load(u"");
    editor_.SetSelectionText(u"X");
    EXPECT_EQ(DrawnText(), u"X|");
}

TEST_F(EditorTest, AnEmptyTextInThePlaceOfTheSelectionIsItsEnd) {
    Load(u"a^bc|d");
    editor_.SetSelectionText(u"");
    EXPECT_EQ(DrawnText(), u"a|d");
    editor_.SetSelectionText(u"");
    EXPECT_EQ(DrawnText(), u"a|d");
}

TEST_F(EditorTest, TheSelectionsStartFollowsEachEdit) {
    Load(u"abcd|");
    editor_.ReplaceText(u"X\n", 0, 2);
    EXPECT_EQ(DrawnText(), u"X\n|cd");
    EXPECT_EQ(editor_.GetSelectionStart(), 2);
    editor_.Undo();
    EXPECT_EQ(DrawnText(), u"ab|cd");
    EXPECT_EQ(editor_.GetSelectionStart(), 2);
}

}  // namespace
}  // namespace tintora::test
