#pragma once

#include "SourceViewTest.h"

/// The text control's contract: the selection, what is told, the clipboard, indenting.
namespace tintora::test {

template <typename Maker>
class SourceViewSelection : public SourceViewTest<Maker> {};

TYPED_TEST_SUITE_P(SourceViewSelection);

struct IndentCase {
    Text before;
    SourceCommand command;
    Text after;
};

inline const std::vector<IndentCase>& IndentCases() {
    using enum SourceCommand;
    static const std::vector<IndentCase> cases = {
        // Without a selection it is the caret's row.
        {u"a|b", Indent, u"\ta|b"},
        {u"|ab", Indent, u"\t|ab"},
        {u"ab|", Indent, u"\tab|"},
        {u"a\nb|\nc", Indent, u"a\n\tb|\nc"},
        {u"\ta|b", Outdent, u"a|b"},
        {u"\t|ab", Outdent, u"|ab"},
        {u"|\tab", Outdent, u"|ab"},
        {u"a|b", Outdent, u"a|b"},

        // A tab goes, or up to four blanks, and nothing of what stands behind them.
        {u"\t\ta|", Outdent, u"\ta|"},
        {u" a|", Outdent, u"a|"},
        {u"    a|", Outdent, u"a|"},
        {u"      a|", Outdent, u"  a|"},
        {u"  \ta|", Outdent, u"\ta|"},
        {u"\t  a|", Outdent, u"  a|"},
        {u"  |  a", Outdent, u"|a"},
        {u"    |", Outdent, u"|"},

        // An empty row is left alone, a row of blanks isn't.
        {u"|", Indent, u"|"},
        {u"a\n|\nb", Indent, u"a\n|\nb"},
        {u"^a\n\nb|", Indent, u"\t^a\n\n\tb|"},
        {u" |", Indent, u"\t |"},

        // The rows of a selection, whichever end was first.
        {u"^a\nb\nc|", Indent, u"\t^a\n\tb\n\tc|"},
        {u"|a\nb\nc^", Indent, u"\t|a\n\tb\n\tc^"},
        {u"a\nb^b\nc|c\nd", Indent, u"a\n\tb^b\n\tc|c\nd"},
        {u"\t^a\n\tb\n\tc|", Outdent, u"^a\nb\nc|"},
        {u"\t|a\n  b\nc^", Outdent, u"|a\nb\nc^"},
        {u"a^bc|d", Indent, u"\ta^bc|d"},

        // A row that the selection ends at the very start of isn't one of them.
        {u"^a\nb\n|c", Indent, u"\t^a\n\tb\n|c"},
        {u"|a\nb\n^c", Indent, u"\t|a\n\tb\n^c"},
        {u"^\ta\n|\tb", Outdent, u"^a\n|\tb"},

        // Rows keep the line end of the document.
        {u"^a\r\nb|\r\n", Indent, u"\t^a\r\n\tb|\r\n"},
        {u"\t^a\r\tb|\r", Outdent, u"^a\rb|\r"},
    };
    return cases;
}

TYPED_TEST_P(SourceViewSelection, ItRunsFromItsAnchorToTheCaretInEitherDirection) {
    this->Put(u"ab\ncd\nef");
    for (const SelectionRange& range : {SelectionRange{1, 0, 2, 1}, SelectionRange{2, 1, 1, 0},
                                        SelectionRange{0, 2, 2, 2}, SelectionRange{2, 2, 0, 2}}) {
        this->View().SelectRange(range);
        EXPECT_EQ(this->View().GetSelectionRange(), range);
        EXPECT_TRUE(this->View().HasSelection());
        EXPECT_EQ(this->View().CaretColumn(), range.endColumn);
        EXPECT_EQ(this->View().CaretRow(), range.endRow);
    }
    this->View().SelectRange({1, 1, 1, 1});
    EXPECT_FALSE(this->View().HasSelection());
    EXPECT_EQ(this->View().GetSelectionRange(), (SelectionRange{1, 1, 1, 1}));
    EXPECT_EQ(this->DrawnText(), u"ab\nc|d\nef");
}

TYPED_TEST_P(SourceViewSelection, APositionBeyondARowOrTheTextIsItsEnd) {
    this->Put(u"ab\r\ncd");
    this->View().SelectRange({99, 0, 5, 7});
    EXPECT_EQ(this->DrawnText(), u"ab^\r\ncd|");
    this->View().SelectRange({3, 0, 3, 0});
    EXPECT_EQ(this->DrawnText(), u"ab|\r\ncd");
}

TYPED_TEST_P(SourceViewSelection, WhoeverListensIsToldOnceThatTheControlIsReady) {
    this->View().SetEvents(&this->events_);
    EXPECT_EQ(this->log_.Take(), "Ready");
    this->Put(u"a");
    EXPECT_EQ(this->log_.Count("Ready"), 0);
    this->View().SetEvents(nullptr);
    this->log_.Forget();
    this->Buffer().Insert(0, 0, u"a");
    EXPECT_EQ(this->log_.Take(), "");
}

TYPED_TEST_P(SourceViewSelection, AMoveIsToldOnceWithTheCaretsPlaceAndNoMoveIsNot) {
    this->Put(u"ab\ncd");
    this->Listen();
    this->View().SelectRange({1, 0, 2, 1});
    EXPECT_EQ(this->log_.Take(), "SelectionChanged(2,1)");
    this->View().SelectRange({1, 0, 2, 1});
    EXPECT_EQ(this->log_.Take(), "");
    this->View().SelectRange({0, 0, 2, 1});
    EXPECT_EQ(this->log_.Take(), "SelectionChanged(2,1)") << "the anchor has moved";
    this->View().SelectRange({2, 1, 0, 0});
    EXPECT_EQ(this->log_.Take(), "SelectionChanged(0,0)");
    this->View().SelectRange({0, 0, 0, 0});
    EXPECT_EQ(this->log_.Take(), "SelectionChanged(0,0)") << "nothing is selected any longer";
    this->View().SelectRange({0, 0, 0, 0});
    EXPECT_EQ(this->log_.Take(), "");
}

TYPED_TEST_P(SourceViewSelection, AChangeOfTheTextIsToldOnceAndTheCaretOnlyWhereItMoved) {
    this->Put(u"ab\ncd|");
    this->Listen();
    this->Buffer().Insert(0, 1, u"X\nY");
    EXPECT_EQ(this->log_.TakeSorted(), "SelectionChanged(1,2), TextChanged");
    this->Buffer().InsertOverwrite(1, 0, 2, 0, u"ZZ");
    EXPECT_EQ(this->log_.TakeSorted(), "SelectionChanged(3,0), TextChanged");
    this->Buffer().Delete(3, 0, 0, 1);
    EXPECT_EQ(this->log_.TakeSorted(), "TextChanged");
    this->Buffer().Undo();
    EXPECT_EQ(this->log_.TakeSorted(), "SelectionChanged(0,1), TextChanged");
    this->Buffer().Redo();
    EXPECT_EQ(this->log_.TakeSorted(), "SelectionChanged(3,0), TextChanged");
}

TYPED_TEST_P(SourceViewSelection, WhatChangesNothingIsNotTold) {
    this->Put(u"a|b");
    this->Listen();
    this->Buffer().Insert(1, 0, u"");
    this->Buffer().Delete(1, 0, 1, 0);
    this->Buffer().InsertOverwrite(1, 0, 1, 0, u"");
    this->Buffer().Undo();
    this->Buffer().Redo();
    this->Buffer().ClearUndoStack();
    this->View().CutSelection();
    this->View().CopySelection();
    this->View().ClearSelection();
    this->View().ExecuteCommand(SourceCommand::Outdent);
    this->View().FreezeRedraw();
    this->View().ThawRedraw();
    EXPECT_EQ(this->log_.Take(), "");
    EXPECT_EQ(this->DrawnText(), u"a|b");
}

TYPED_TEST_P(SourceViewSelection, ALoadedTextIsToldAsOneChange) {
    this->Put(u"ab");
    this->Listen();
    this->View().SetText(u"cd\nef");
    EXPECT_EQ(this->log_.Count("TextChanged"), 1);
}

TYPED_TEST_P(SourceViewSelection, WhoeverIsToldFindsTheNewState) {
    this->Put(u"|ab");
    Text textThen;
    SelectionRange selectionThen;
    this->events_.whenTextChanges = [&] { textThen = this->View().GetText(); };
    this->events_.whenSelectionChanges = [&] { selectionThen = this->View().GetSelectionRange(); };
    this->Listen();
    this->Buffer().Insert(0, 0, u"X\n");
    EXPECT_EQ(textThen, u"X\nab");
    EXPECT_EQ(selectionThen, (SelectionRange{0, 1, 0, 1}));
    this->View().SelectRange({1, 1, 0, 0});
    EXPECT_EQ(selectionThen, (SelectionRange{1, 1, 0, 0}));
    this->Buffer().Undo();
    EXPECT_EQ(textThen, u"ab");
}

TYPED_TEST_P(SourceViewSelection, CopyingPutsTheSelectedTextIntoTheClipboard) {
    this->Put(u"a^b\nc|d");
    this->View().CopySelection();
    EXPECT_EQ(this->Clip().GetText(), u"b\nc");
    this->Put(u"|ab^\ncd");
    this->View().CopySelection();
    EXPECT_EQ(this->Clip().GetText(), u"ab");
    this->Put(u"ab|\ncd");
    this->View().CopySelection();
    EXPECT_EQ(this->Clip().GetText(), u"ab") << "where nothing is selected the clipboard stays as it is";
    EXPECT_EQ(this->DrawnText(), u"ab|\ncd");
}

TYPED_TEST_P(SourceViewSelection, CuttingTakesTheSelectedTextAwayInOneStep) {
    this->Clip().SetText(u"old");
    this->Put(u"a^b\nc|d");
    this->View().CutSelection();
    EXPECT_EQ(this->DrawnText(), u"a|d");
    EXPECT_EQ(this->Clip().GetText(), u"b\nc");
    EXPECT_EQ(this->UndoAll(), 1);
    EXPECT_EQ(this->View().GetText(), u"ab\ncd");
    this->Put(u"a|d");
    this->View().CutSelection();
    EXPECT_EQ(this->DrawnText(), u"a|d");
    EXPECT_EQ(this->Clip().GetText(), u"b\nc");
    EXPECT_FALSE(this->Buffer().CanUndo());
}

TYPED_TEST_P(SourceViewSelection, ClearingLeavesTheClipboardAlone) {
    this->Clip().SetText(u"old");
    this->Put(u"a|b\nc^d");
    this->View().ClearSelection();
    EXPECT_EQ(this->DrawnText(), u"a|d");
    EXPECT_EQ(this->Clip().GetText(), u"old");
    EXPECT_EQ(this->UndoAll(), 1);
    EXPECT_EQ(this->View().GetText(), u"ab\ncd");
    this->View().SelectRange({1, 0, 1, 0});
    this->View().ClearSelection();
    EXPECT_EQ(this->DrawnText(), u"a|b\ncd") << "nothing is selected, so nothing goes";
}

TYPED_TEST_P(SourceViewSelection, PastingPutsTheClipboardInThePlaceOfTheSelection) {
    this->Clip().SetText(u"x\r\ny");
    this->Put(u"a^b|c\nd");
    this->View().PasteClipboard();
    EXPECT_EQ(this->DrawnText(), u"ax\ny|c\nd");
    this->View().PasteClipboard();
    EXPECT_EQ(this->DrawnText(), u"ax\nyx\ny|c\nd");
    EXPECT_EQ(this->UndoAll(), 2);
    EXPECT_EQ(this->View().GetText(), u"abc\nd");
    this->Put(u"a\r\nb|");
    this->View().PasteClipboard();
    EXPECT_EQ(this->DrawnText(), u"a\r\nbx\r\ny|");
}

TYPED_TEST_P(SourceViewSelection, ClipboardCommandsAreToldLikeAnyChange) {
    this->Clip().SetText(u"xyz");
    this->Put(u"^ab|cd");
    this->Listen();
    this->View().PasteClipboard();
    EXPECT_EQ(this->log_.TakeSorted(), "SelectionChanged(3,0), TextChanged");
    this->View().SelectRange({1, 0, 3, 0});
    this->log_.Forget();
    this->View().CutSelection();
    EXPECT_EQ(this->log_.TakeSorted(), "SelectionChanged(1,0), TextChanged");
    this->View().SelectRange({1, 0, 2, 0});
    this->log_.Forget();
    this->View().ClearSelection();
    EXPECT_EQ(this->log_.TakeSorted(), "SelectionChanged(1,0), TextChanged");
}

TYPED_TEST_P(SourceViewSelection, IndentingMovesRowsAndLeavesTheSelectionOnItsText) {
    for (const IndentCase& row : IndentCases()) {
        SCOPED_TRACE(Utf8FromText(row.before));
        this->Put(row.before);
        this->View().ExecuteCommand(row.command);
        EXPECT_EQ(this->DrawnText(), row.after);
    }
}

TYPED_TEST_P(SourceViewSelection, IndentingIsOneStep) {
    for (const IndentCase& row : IndentCases()) {
        SCOPED_TRACE(Utf8FromText(row.before));
        this->Put(row.before);
        this->View().ExecuteCommand(row.command);
        EXPECT_EQ(this->UndoAll(), ReadMarks(row.before).text == ReadMarks(row.after).text ? 0 : 1);
        EXPECT_EQ(this->View().GetText(), ReadMarks(row.before).text);
    }
}

REGISTER_TYPED_TEST_SUITE_P(SourceViewSelection, ItRunsFromItsAnchorToTheCaretInEitherDirection,
                            APositionBeyondARowOrTheTextIsItsEnd, WhoeverListensIsToldOnceThatTheControlIsReady,
                            AMoveIsToldOnceWithTheCaretsPlaceAndNoMoveIsNot,
                            AChangeOfTheTextIsToldOnceAndTheCaretOnlyWhereItMoved, WhatChangesNothingIsNotTold,
                            ALoadedTextIsToldAsOneChange, WhoeverIsToldFindsTheNewState,
                            CopyingPutsTheSelectedTextIntoTheClipboard, CuttingTakesTheSelectedTextAwayInOneStep,
                            ClearingLeavesTheClipboardAlone, PastingPutsTheClipboardInThePlaceOfTheSelection,
                            ClipboardCommandsAreToldLikeAnyChange, IndentingMovesRowsAndLeavesTheSelectionOnItsText,
                            IndentingIsOneStep);

}  // namespace tintora::test
