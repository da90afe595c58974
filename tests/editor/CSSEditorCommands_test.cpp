// The editor's commands and what they tell the document.

#include "EditorRecorders.h"
#include "editor/CSSEditorSrcView.h"

namespace tintora::test {
namespace {

struct CommentCase {
    Text before;
    Text after;
};

const std::vector<CommentCase> CommentCases = {
    {u"a ^{}| b", u"a /*{}*/| b"},
    {u"a |{}^ b", u"a /*{}*/| b"},
    {u"^a {}\nb {}|", u"/*a {}\nb {}*/|"},
    {u"a^\r\n|b", u"a/*\r\n*/|b"},
    {u"|a {}\r\nb^ {}", u"/*a {}\r\nb*/| {}"},
    {u"^/* a */|", u"/*/* a */*/|"},

    // Nothing selected, nothing changed.
    {u"a {}|", u"a {}|"},
    {u"|", u"|"},
};

struct GotoCase {
    std::optional<int> number;
    /// Where the caret is then; nothing if it stays.
    std::optional<Text> drawn;
};

const std::vector<GotoCase> GotoCases = {
    {1, u"|ab\r\n\r\nc"},
    {2, u"ab\r\n|\r\nc"},
    {3, u"ab\r\n\r\n|c"},
    {0, u"|ab\r\n\r\nc"},
    {-4, u"|ab\r\n\r\nc"},
    // One line more than there are is the end of the text, a further one is nowhere.
    {4, u"ab\r\n\r\nc|"},
    {5, std::nullopt},
    {99999, std::nullopt},
    {std::nullopt, std::nullopt},
};

// The clipboard.

TEST_F(EditorTest, CuttingTellsTheDocumentWhatTheClipboardHasThen) {
    Load(u"a^bc|d");
    RecordControl();
    clipboard_.log = &log_;
    editor_.Cut();
    EXPECT_EQ(log_.TakeWithout("menus"),
              "CutSelection, TextChanged, CaretPosition: Line 1 Col 1, clipboard read, HandleCutPasteClear(bc)");
    EXPECT_EQ(clipboard_.text, u"bc");
    EXPECT_EQ(DrawnText(), u"a|d");
}

TEST_F(EditorTest, CuttingNothingStillTellsWhatTheClipboardHas) {
    Load(u"ab|d");
    clipboard_.text = u"old";
    editor_.Cut();
    EXPECT_EQ(log_.Take(), "HandleCutPasteClear(old)");
    EXPECT_EQ(DrawnText(), u"ab|d");
}

TEST_F(EditorTest, PastingReadsTheClipboardFirstAndTellsOfItLast) {
    Load(u"a^bc|d");
    RecordControl();
    clipboard_.text = u"xyz";
    clipboard_.log = &log_;
    editor_.Paste();
    EXPECT_EQ(log_.TakeWithout("menus"),
              "clipboard read, PasteClipboard, clipboard read, TextChanged, CaretPosition: Line 1 Col 4, "
              "HandleCutPasteClear(xyz)");
    EXPECT_EQ(DrawnText(), u"axyz|d");
}

TEST_F(EditorTest, ClearingTellsTheTextThatWasSelected) {
    Load(u"a^bc|d");
    RecordControl();
    clipboard_.text = u"old";
    editor_.Clear();
    EXPECT_EQ(log_.TakeWithout("menus"),
              "ClearSelection, TextChanged, CaretPosition: Line 1 Col 1, HandleCutPasteClear(bc)");
    EXPECT_EQ(clipboard_.text, u"old");
    EXPECT_EQ(DrawnText(), u"a|d");
    editor_.Clear();
    EXPECT_EQ(log_.TakeWithout("menus"), "ClearSelection, HandleCutPasteClear()");
}

TEST_F(EditorTest, ClearingASelectionThatWasMadeBackwardsTellsTheTextAtItsFarEnd) {
    Load(u"a|bc^de");
    editor_.Clear();
    EXPECT_EQ(log_.Count("HandleCutPasteClear(de)"), 1);
    EXPECT_EQ(DrawnText(), u"a|de");
}

TEST_F(EditorTest, CopyingTellsTheDocumentNothing) {
    Load(u"a^bc|d");
    RecordControl();
    editor_.Copy();
    EXPECT_EQ(log_.Take(), "CopySelection");
    EXPECT_EQ(clipboard_.text, u"bc");
}

TEST_F(EditorTest, AllIsSelectedFromTheStartToTheEnd) {
    Load(u"ab\r\ncd|\r\n");
    editor_.SelectAll();
    EXPECT_EQ(DrawnText(), u"^ab\r\ncd\r\n|");
    EXPECT_EQ(editor_.GetSelectionStart(), 0);
    EXPECT_EQ(editor_.CurrentSelectionEnd, 8);
    Load(u"");
    editor_.SelectAll();
    EXPECT_EQ(DrawnText(), u"|");
}

// Undo.

TEST_F(EditorTest, AnUndoReachesTheDocumentAtOnceARedoOnlyMarksIt) {
    Load(u"ab|");
    editor_.InsertText(u"c", 2);
    EXPECT_TRUE(editor_.CanUndo());
    EXPECT_FALSE(editor_.CanRedo());
    log_.Forget();
    RecordControl();
    editor_.Undo();
    EXPECT_EQ(log_.TakeWithout("menus"), "Buffer.Undo, TextChanged, CaretPosition: Line 1 Col 2, Undo");
    EXPECT_EQ(editor_.GetText(), u"ab");
    EXPECT_FALSE(editor_.CanUndo());
    EXPECT_TRUE(editor_.CanRedo());
    editor_.Redo();
    EXPECT_EQ(log_.TakeWithout("menus"), "Buffer.Redo, TextChanged, CaretPosition: Line 1 Col 3, NeedsUpdating");
    EXPECT_EQ(editor_.GetText(), u"abc");
}

TEST_F(EditorTest, WhatCannotBeUndoneOrRedoneTellsNobody) {
    Load(u"ab|");
    RecordControl();
    editor_.Undo();
    editor_.Redo();
    EXPECT_EQ(log_.Take(), "");
}

// What the control does by itself.

TEST_F(EditorTest, TheControlsOwnCommandsAreHandedOn) {
    Load(u"a|");
    RecordControl();
    editor_.Find();
    editor_.Replace();
    editor_.FindAgain();
    editor_.PrintStyleSheet();
    EXPECT_EQ(log_.Take(), "FindDialog, ReplaceDialog, FindNext, PrintBuffer");
}

TEST_F(EditorTest, RowsAreIndentedAndOutdentedByTheControl) {
    Load(u"^a\nb|");
    RecordControl();
    editor_.Indent();
    EXPECT_EQ(log_.Count("ExecuteCommand(43)"), 1);
    EXPECT_EQ(DrawnText(), u"\t^a\n\tb|");
    editor_.Outdent();
    EXPECT_EQ(log_.Count("ExecuteCommand(44)"), 1);
    EXPECT_EQ(DrawnText(), u"^a\nb|");
}

TEST_F(EditorTest, TheFontAndTheEyedropperDoNothing) {
    Load(u"a^b|");
    RecordControl();
    editor_.SetFont(u"Courier New");
    editor_.EyedropperClick(1, 1);
    EXPECT_EQ(log_.Take(), "");
    EXPECT_EQ(DrawnText(), u"a^b|");
}

// Comments.

TEST_F(EditorTest, TheSelectionIsMadeAComment) {
    for (const CommentCase& row : CommentCases) {
        SCOPED_TRACE(Utf8FromText(row.before));
        Load(row.before);
        editor_.CommentOut();
        EXPECT_EQ(DrawnText(), row.after);
    }
}

TEST_F(EditorTest, MakingACommentIsOneStepToUndo) {
    for (const CommentCase& row : CommentCases) {
        SCOPED_TRACE(Utf8FromText(row.before));
        Load(row.before);
        editor_.CommentOut();
        editor_.Undo();
        EXPECT_EQ(editor_.GetText(), ReadMarks(row.before).text);
        EXPECT_FALSE(editor_.CanUndo());
    }
}

TEST_F(EditorTest, MakingNoCommentTellsNobody) {
    Load(u"a| {}");
    editor_.CommentOut();
    EXPECT_EQ(log_.Take(), "");
    EXPECT_FALSE(editor_.CanUndo());
}

TEST_F(EditorTest, ACommentIsPutInFromTheEarlierEndToTheLater) {
    Load(u"a|b\ncd^");
    RecordControl();
    editor_.CommentOut();
    EXPECT_EQ(log_.Count("InsertOverwrite(1,0,2,1) '/*b\ncd*/'"), 1);
}

// Going to a line.

TEST_F(EditorTest, ALineIsGoneToWhereItIsThere) {
    for (const GotoCase& row : GotoCases) {
        SCOPED_TRACE(row.number ? std::to_string(*row.number) : "cancelled");
        Load(u"a^b\r\n|\r\nc");
        dialogs_.lineNumber = row.number;
        editor_.GotoLine();
        EXPECT_EQ(log_.Count("AskLineNumber"), 1);
        EXPECT_EQ(DrawnText(), row.drawn.value_or(u"a^b\r\n|\r\nc"));
    }
}

TEST_F(EditorTest, ALineThatIsNotThereMovesNothing) {
    Load(u"a|b");
    RecordControl();
    dialogs_.lineNumber = 3;
    editor_.GotoLine();
    dialogs_.lineNumber = std::nullopt;
    editor_.GotoLine();
    EXPECT_EQ(log_.Take(), "AskLineNumber, AskLineNumber");
}

// Status bar and messages.

TEST_F(EditorTest, TheStatusBarCountsLinesFromOneAndColumnsFromZero) {
    editor_.LastCaretX = 5;
    editor_.LastCaretY = 11;
    editor_.UpdateStatusBar();
    EXPECT_EQ(log_.Take(), "CaretPosition: Line 12 Col 5");
    editor_.LastCaretX = 0;
    editor_.LastCaretY = 0;
    editor_.UpdateStatusBar();
    EXPECT_EQ(log_.Take(), "CaretPosition: Line 1 Col 0");
    editor_.LastCaretX = 32767;
    editor_.LastCaretY = 32767;
    editor_.UpdateStatusBar();
    EXPECT_EQ(log_.Take(), "CaretPosition: Line 32768 Col 32767");
}

TEST_F(EditorTest, AnErrorIsShownWithItsNumber) {
    editor_.ShowError(53, u"File not found");
    EXPECT_EQ(log_.Take(), "[File Error] Error( 53): File not found");
    editor_.ShowError(-7, u"");
    EXPECT_EQ(log_.Take(), "[File Error] Error(-7): ");
}

}  // namespace
}  // namespace tintora::test
