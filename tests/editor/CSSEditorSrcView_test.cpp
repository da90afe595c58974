// The editor's text, its selection and its positions.

#include "editor/CSSEditorSrcView.h"

#include "EditorRecorders.h"
#include "text/Narrowing.h"

#include <array>

namespace tintora::test {
namespace {

struct ReplaceCase {
    Text before;
    Text put;
    int start;
    int end;
    Text after;
};

const std::vector<ReplaceCase> ReplaceCases = {
    {u"abcd", u"X", 1, 3, u"aX|d"},
    {u"abcd", u"XYZ", 0, 4, u"XYZ|"},
    {u"abcd", u"", 1, 2, u"a|cd"},
    {u"abcd", u"X", 2, 2, u"abX|cd"},
    {u"ab\ncd", u"X", 1, 4, u"aX|d"},
    {u"ab\ncd", u"X\r\nY", 4, 4, u"ab\ncX\nY|d"},

    // A start that isn't below the end puts in, and nothing goes.
    {u"abcd", u"X", 3, 1, u"abcX|d"},
    {u"abcd", u"X", 4, 0, u"abcdX|"},

    // Into an empty text, wherever it should go.
    {u"", u"a {}", 0, 0, u"a {}|"},
    {u"", u"a {}", 7, 7, u"a {}|"},
    {u"", u"a {}", 2, 9, u"a {}|"},
    {u"", u"a {}", 9, 2, u"a {}|"},

    // A position on a line end moves to the end of its line's text.
    {u"ab\r\ncd", u"X", 2, 2, u"abX|\r\ncd"},
    {u"ab\r\ncd", u"X", 3, 3, u"abX|\r\ncd"},
    {u"ab\r\ncd", u"X", 1, 3, u"aX|\r\ncd"},
    {u"ab\r\ncd", u"X", 3, 5, u"abX|d"},
    {u"ab\r\ncd", u"X", 3, 4, u"abX|cd"},
    {u"ab\r\ncd", u"X", 2, 3, u"abX|\r\ncd"},

    // Behind the end.
    {u"ab", u"X", 2, 2, u"abX|"},
    {u"ab", u"X", 9, 9, u"abX|"},
    {u"ab", u"X", 1, 99, u"aX|"},
    {u"ab\n", u"X", 3, 3, u"ab\nX|"},
    {u"ab\ncd", u"X", 99, 99, u"ab\ncdX|"},
};

struct OffsetCase {
    int offset;
    int column;
    int row;
};

const Text FourRows = u"ab\ncd\r\n\re";

constexpr auto OffsetCases = std::to_array<OffsetCase>({
    {0, 0, 0},
    {1, 1, 0},
    {2, 2, 0},
    {3, 0, 1},
    {5, 2, 1},
    // On the LF of a CR LF: a column beyond the row's text.
    {6, 3, 1},
    {7, 0, 2},
    {8, 0, 3},
    {9, 1, 3},
    // Beyond the text it is the last row still.
    {10, 2, 3},
    {500, 492, 3},
});

TEST_F(EditorTest, ANewEditorHasHeardOfTheReadyControlAndOfNothingElse) {
    EXPECT_TRUE(editor_.Initialized);
    EXPECT_FALSE(editor_.KeyDown);
    EXPECT_FALSE(editor_.CtrlKeyDown);
    EXPECT_FALSE(editor_.MouseDown);
    EXPECT_FALSE(editor_.Loading);
    EXPECT_EQ(editor_.LastCaretX, 0);
    EXPECT_EQ(editor_.LastCaretY, 0);
    EXPECT_EQ(editor_.LastTokenType, 0);
    EXPECT_EQ(editor_.TypeAheadReturnType, 0);
    EXPECT_EQ(editor_.CurrentSelectionStart, 0);
    EXPECT_EQ(editor_.CurrentSelectionEnd, 0);
    EXPECT_EQ(log_.Take(), "");
}

TEST_F(EditorTest, AnEditorWhoseControlIsNotReadyIsNotInitialized) {
    view_.handsEventsOn = false;
    CSSEditorSrcView other({view_, parent_, frame_, clipboard_, dialogs_, settings_, clock_, popup_});
    EXPECT_FALSE(other.Initialized);
    other.Ready();
    EXPECT_TRUE(other.Initialized);
}

TEST_F(EditorTest, AnEditorThatIsGoneIsToldNothing) {
    MemorySourceView view(clipboard_);
    {
        const CSSEditorSrcView other({view, parent_, frame_, clipboard_, dialogs_, settings_, clock_, popup_});
        view.TypeCharacter(u'a');
        EXPECT_EQ(log_.Count("TextChanged"), 1);
    }
    log_.Forget();
    view.TypeCharacter(u'b');
    EXPECT_EQ(log_.Take(), "");
}

// Loading.

TEST_F(EditorTest, ALoadedTextIsThereWithTheCaretInFrontAndNothingToUndo) {
    Load(u"ab^cd|");
    editor_.ReplaceText(u"x", 0, 0);
    editor_.SetText(u"a {}\r\nb {}");
    EXPECT_EQ(editor_.GetText(), u"a {}\r\nb {}");
    EXPECT_EQ(DrawnText(), u"|a {}\r\nb {}");
    EXPECT_EQ(editor_.GetSelectionStart(), 0);
    EXPECT_FALSE(editor_.CanUndo());
    EXPECT_FALSE(editor_.CanRedo());
}

TEST_F(EditorTest, LoadingTellsTheDocumentNothing) {
    Load(u"abcd|");
    editor_.SetText(u"ef");
    EXPECT_EQ(log_.Take(), "menus");
    EXPECT_FALSE(editor_.Loading);
}

TEST_F(EditorTest, LoadingDrawsNothingBetweenItsSteps) {
    RecordControl();
    editor_.SetText(u"ef");
    EXPECT_EQ(log_.Take(),
              "FreezeRedraw, SetText(ef), ClearUndoStack, ThawRedraw, "
              "ScrollToPosition(0,0), SelectRange(0,0,0,0), menus");
}

TEST_F(EditorTest, LoadingAnEmptyTextLeavesTheSelectionAlone) {
    Load(u"abc|d");
    RecordControl();
    editor_.SetText(u"");
    EXPECT_EQ(log_.Take(), "FreezeRedraw, SetText(), ClearUndoStack, ThawRedraw");
    EXPECT_EQ(editor_.GetSelectionStart(), 3);
    EXPECT_EQ(editor_.GetText(), u"");
    EXPECT_EQ(editor_.GetSelectedText(), u"");
}

TEST_F(EditorTest, ALoadThatFailsLeavesNeitherTheFlagNorTheFreeze) {
    view_.failsAtChanges = true;
    EXPECT_THROW(editor_.SetText(u"a"), std::runtime_error);
    EXPECT_FALSE(editor_.Loading);
    EXPECT_EQ(view_.frozen, 0);
}

// Replacing.

TEST_F(EditorTest, ReplacedTextStandsWhereTheCasesSay) {
    for (const ReplaceCase& row : ReplaceCases) {
        SCOPED_TRACE(Utf8FromText(row.before) + " from " + std::to_string(row.start) + " to " +
                     std::to_string(row.end));
        Load(row.before);
        editor_.ReplaceText(row.put, row.start, row.end);
        EXPECT_EQ(DrawnText(), row.after);
        EXPECT_EQ(view_.frozen, 0);
    }
}

TEST_F(EditorTest, ReplacingIsOneStepToUndo) {
    for (const ReplaceCase& row : ReplaceCases) {
        SCOPED_TRACE(Utf8FromText(row.before) + " from " + std::to_string(row.start) + " to " +
                     std::to_string(row.end));
        Load(row.before);
        editor_.ReplaceText(row.put, row.start, row.end);
        editor_.Undo();
        EXPECT_EQ(editor_.GetText(), row.before);
        EXPECT_FALSE(editor_.CanUndo());
    }
}

TEST_F(EditorTest, ReplacingIsOneCallOfTheControlWithNothingDrawnMeanwhile) {
    Load(u"ab\ncd");
    RecordControl();
    editor_.ReplaceText(u"X", 1, 4);
    EXPECT_EQ(log_.TakeWithout("menus"),
              "FreezeRedraw, InsertOverwrite(1,0,1,1) 'X', TextChanged, SelectionChanged, "
              "CaretPosition: Line 1 Col 2, ThawRedraw");
    editor_.ReplaceText(u"Y", 2, 2);
    EXPECT_EQ(log_.TakeWithout("menus"),
              "FreezeRedraw, Insert(2,0) 'Y', TextChanged, CaretPosition: Line 1 Col 3, ThawRedraw");
}

TEST_F(EditorTest, ThePositionsThatTheControlIsGivenLieOnTheTextOfTheirLines) {
    Load(u"ab\r\ncd");
    RecordControl();
    editor_.ReplaceText(u"X", 3, 99);
    EXPECT_EQ(log_.Count("InsertOverwrite(2,0,2,1) 'X'"), 1);
    Load(u"ab\r\ncd");
    editor_.ReplaceText(u"X", 3, 3);
    EXPECT_EQ(log_.Count("Insert(2,0) 'X'"), 1);
    Load(u"");
    editor_.ReplaceText(u"X", 3, 9);
    EXPECT_EQ(log_.Count("InsertOverwrite(0,0,0,0) 'X'"), 1);
}

TEST_F(EditorTest, AReplacementThatFailsLeavesNoFreeze) {
    Load(u"abcd");
    view_.failsAtChanges = true;
    EXPECT_THROW(editor_.ReplaceText(u"X", 1, 2), std::runtime_error);
    EXPECT_THROW(editor_.InsertText(u"X", 1), std::runtime_error);
    EXPECT_THROW(editor_.ReplaceAllText(u"X"), std::runtime_error);
    EXPECT_THROW(editor_.SetSelectionText(u"X"), std::runtime_error);
    EXPECT_EQ(view_.frozen, 0);
    EXPECT_EQ(editor_.GetText(), u"abcd");
}

TEST_F(EditorTest, AllOfTheTextIsReplacedInOneStep) {
    Load(u"a {}\r\nb {}\r\n");
    editor_.ReplaceAllText(u"c {}\n");
    EXPECT_EQ(DrawnText(), u"c {}\r\n|");
    editor_.Undo();
    EXPECT_EQ(editor_.GetText(), u"a {}\r\nb {}\r\n");
    EXPECT_FALSE(editor_.CanUndo());
    editor_.ReplaceAllText(u"");
    EXPECT_EQ(DrawnText(), u"|");
    editor_.ReplaceAllText(u"d {}");
    EXPECT_EQ(DrawnText(), u"d {}|");
}

TEST_F(EditorTest, TextIsPutInAtAnOffsetAndNothingGoes) {
    Load(u"ab\r\ncd");
    editor_.InsertText(u"X", 5);
    EXPECT_EQ(DrawnText(), u"ab\r\ncX|d");
    editor_.InsertText(u"Y", 3);
    EXPECT_EQ(DrawnText(), u"abY|\r\ncXd");
    Load(u"");
    editor_.InsertText(u"Z", 0);
    EXPECT_EQ(DrawnText(), u"Z|");
}

// Offsets.

TEST_F(EditorTest, EachOffsetHasItsRowAndColumnAndComesBackFromThem) {
    Load(FourRows);
    for (const OffsetCase& row : OffsetCases) {
        SCOPED_TRACE(row.offset);
        EXPECT_EQ(editor_.CharOffsetToRow(row.offset), row.row);
        EXPECT_EQ(editor_.CharOffsetToColumn(row.offset), row.column);
        EXPECT_EQ(editor_.XYToCharOffset(row.column, row.row), row.offset);
    }
}

TEST_F(EditorTest, PositionsOutsideOfTheTextAreReckonedAllTheSame) {
    Load(FourRows);
    EXPECT_EQ(editor_.XYToCharOffset(10, 0), 10);
    EXPECT_EQ(editor_.XYToCharOffset(-2, 1), 1);
    EXPECT_EQ(editor_.XYToCharOffset(0, 4), 9);
    EXPECT_EQ(editor_.XYToCharOffset(3, 99), 12);
    EXPECT_EQ(editor_.XYToCharOffset(5, -1), 5);
    EXPECT_EQ(editor_.CharOffsetToRow(-1), 0);
    EXPECT_EQ(editor_.CharOffsetToColumn(-1), -1);
    Load(u"");
    EXPECT_EQ(editor_.CharOffsetToRow(0), 0);
    EXPECT_EQ(editor_.CharOffsetToColumn(0), 0);
    EXPECT_EQ(editor_.CharOffsetToRow(5), 0);
    EXPECT_EQ(editor_.CharOffsetToColumn(5), 5);
}

TEST_F(EditorTest, TheLargestTextHasAllItsOffsets) {
    const Text text = LongText(32767);
    Load(text);
    EXPECT_EQ(editor_.XYToCharOffset(63, 511), 32767);
    EXPECT_EQ(editor_.CharOffsetToRow(32767), 511);
    EXPECT_EQ(editor_.CharOffsetToColumn(32767), 63);
    editor_.SelectAll();
    EXPECT_EQ(editor_.GetSelectionLength(), 32767);
    EXPECT_TRUE(editor_.GetSelectedText() == text);
    editor_.ReplaceAllText(u"a");
    EXPECT_EQ(editor_.GetText(), u"a");
    Load(Text(32767, u'\n'));
    EXPECT_EQ(editor_.CharOffsetToRow(32767), 32767);
}

TEST_F(EditorTest, OneCharacterMoreOverflowsTheOffsets) {
    const Text text = LongText(32768);
    editor_.SetText(text);
    EXPECT_THROW(static_cast<void>(editor_.XYToCharOffset(0, 512)), OverflowFailure);
    EXPECT_THROW(static_cast<void>(editor_.XYToCharOffset(1, 600)), OverflowFailure);
    EXPECT_THROW(static_cast<void>(editor_.CharOffsetToRow(32768)), OverflowFailure);
    EXPECT_THROW(static_cast<void>(editor_.CharOffsetToColumn(32768)), OverflowFailure);
    EXPECT_THROW(editor_.SelectAll(), OverflowFailure);
    EXPECT_THROW(editor_.ReplaceAllText(u"a"), OverflowFailure);
    EXPECT_THROW(editor_.ReplaceText(u"a", 0, 32768), OverflowFailure);
    EXPECT_THROW(editor_.SetSelection(0, 32768), OverflowFailure);
    EXPECT_THROW(editor_.SetSelectionStart(32768), OverflowFailure);
    EXPECT_TRUE(editor_.GetText() == text) << "nothing was changed";
    EXPECT_EQ(view_.frozen, 0);
    EXPECT_EQ(editor_.XYToCharOffset(63, 511), 32767);
}

}  // namespace
}  // namespace tintora::test
