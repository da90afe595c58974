#pragma once

#include "SourceViewTest.h"

/// The text control's contract: changes of the text, and how they are taken back.
namespace tintora::test {

template <typename Maker>
class SourceViewEdits : public SourceViewTest<Maker> {};

TYPED_TEST_SUITE_P(SourceViewEdits);

struct EditCase {
    Text text;
    SelectionRange range;
    Text put;
    Text after;
    Text undone;
};

inline const std::vector<EditCase>& EditCases() {
    static const std::vector<EditCase> cases = {
        // In a row.
        {u"abc", {1, 0, 1, 0}, u"X", u"aX|bc", u"a|bc"},
        {u"abc", {0, 0, 0, 0}, u"XY", u"XY|abc", u"|abc"},
        {u"abc", {3, 0, 3, 0}, u"X", u"abcX|", u"abc|"},
        {u"abc", {1, 0, 2, 0}, u"", u"a|c", u"ab|c"},
        {u"abc", {1, 0, 2, 0}, u"XYZ", u"aXYZ|c", u"ab|c"},
        {u"abc", {0, 0, 3, 0}, u"", u"|", u"abc|"},
        {u"", {0, 0, 0, 0}, u"h1 {}", u"h1 {}|", u"|"},

        // Over rows.
        {u"a\nb", {1, 0, 0, 1}, u"", u"a|b", u"a\n|b"},
        {u"a\nb\nc\nd", {0, 1, 0, 3}, u"", u"a\n|d", u"a\nb\nc\n|d"},
        {u"a\nb\nc", {1, 0, 0, 2}, u"X\nY\nZ", u"aX\nY\nZ|c", u"a\nb\n|c"},
        {u"a\nb", {0, 1, 0, 1}, u"X\n", u"a\nX\n|b", u"a\n|b"},
        {u"a\nb", {1, 1, 1, 1}, u"\n", u"a\nb\n|", u"a\nb|"},
        {u"\n\n\n", {0, 1, 0, 2}, u"", u"\n|\n", u"\n\n|\n"},

        // A position beyond the row's text is its end, and one beyond the last row the end of the text.
        {u"ab\ncd", {99, 0, 99, 0}, u"X", u"abX|\ncd", u"ab|\ncd"},
        {u"ab\r\ncd", {3, 0, 3, 0}, u"X", u"abX|\r\ncd", u"ab|\r\ncd"},
        {u"ab\r\ncd", {4, 0, 4, 0}, u"X", u"abX|\r\ncd", u"ab|\r\ncd"},
        {u"ab\ncd", {0, 9, 0, 9}, u"X", u"ab\ncdX|", u"ab\ncd|"},
        {u"ab\ncd\n", {5, 7, 5, 7}, u"X", u"ab\ncd\nX|", u"ab\ncd\n|"},
        {u"ab\ncd", {1, 0, 0, 9}, u"", u"a|", u"ab\ncd|"},
        {u"ab\ncd", {9, 0, 9, 1}, u"", u"ab|", u"ab\ncd|"},

        // What is put in gets the document's own line end, whatever its own are.
        {u"ab", {1, 0, 1, 0}, u"x\r\ny\rz\n", u"ax\ny\nz\n|b", u"a|b"},
        {u"a\nb", {0, 1, 0, 1}, u"x\r\ny\rz\n", u"a\nx\ny\nz\n|b", u"a\n|b"},
        {u"a\r\nb", {0, 1, 0, 1}, u"x\r\ny\rz\n", u"a\r\nx\r\ny\r\nz\r\n|b", u"a\r\n|b"},
        {u"a\rb", {0, 1, 0, 1}, u"x\r\ny\rz\n", u"a\rx\ry\rz\r|b", u"a\r|b"},
        {u"a\nb\r\nc", {0, 2, 0, 2}, u"x\r\n", u"a\nb\r\nx\n|c", u"a\nb\r\n|c"},
        {u"a\r\nb\nc", {0, 2, 0, 2}, u"x\n", u"a\r\nb\nx\r\n|c", u"a\r\nb\n|c"},

        // Columns count units, not characters.
        {u"\U0001F600b", {2, 0, 2, 0}, u"X", u"\U0001F600X|b", u"\U0001F600|b"},
        {u"\U0001F600b", {0, 0, 2, 0}, u"", u"|b", u"\U0001F600|b"},
        {u"\u00E9\u4E2Db", {1, 0, 2, 0}, u"\U0001F600", u"\u00E9\U0001F600|b", u"\u00E9\u4E2D|b"},
    };
    return cases;
}

inline SelectionRange TurnedAround(const SelectionRange& range) {
    return {range.endColumn, range.endRow, range.startColumn, range.startRow};
}

/// The ways in which a case can be had: by which of the three calls, and in which order of the ends.
inline std::vector<std::function<void(SourceBuffer&)>> WaysOf(const EditCase& edit) {
    std::vector<std::function<void(SourceBuffer&)>> ways;
    for (const SelectionRange& range : {edit.range, TurnedAround(edit.range)}) {
        ways.emplace_back([=](SourceBuffer& buffer) {
            buffer.InsertOverwrite(range.startColumn, range.startRow, range.endColumn, range.endRow, edit.put);
        });
        if (edit.put.empty()) {
            ways.emplace_back([=](SourceBuffer& buffer) {
                buffer.Delete(range.startColumn, range.startRow, range.endColumn, range.endRow);
            });
        }
        if (edit.range == TurnedAround(edit.range)) {
            ways.emplace_back(
                [=](SourceBuffer& buffer) { buffer.Insert(range.startColumn, range.startRow, edit.put); });
        }
    }
    return ways;
}

TYPED_TEST_P(SourceViewEdits, AChangeLeavesTheCaretBehindWhatWasPutIn) {
    for (const EditCase& row : EditCases()) {
        SCOPED_TRACE(Utf8FromText(row.after));
        for (const auto& change : WaysOf(row)) {
            this->Put(row.text);
            change(this->Buffer());
            EXPECT_EQ(this->DrawnText(), row.after);
        }
    }
}

TYPED_TEST_P(SourceViewEdits, AChangeIsOneStepThatIsTakenBackAndMadeAgain) {
    for (const EditCase& row : EditCases()) {
        SCOPED_TRACE(Utf8FromText(row.after));
        for (const auto& change : WaysOf(row)) {
            this->Put(row.text);
            EXPECT_FALSE(this->Buffer().CanUndo());
            change(this->Buffer());
            EXPECT_TRUE(this->Buffer().CanUndo());
            EXPECT_FALSE(this->Buffer().CanRedo());
            this->Buffer().Undo();
            EXPECT_EQ(this->DrawnText(), row.undone);
            EXPECT_FALSE(this->Buffer().CanUndo());
            EXPECT_TRUE(this->Buffer().CanRedo());
            this->Buffer().Redo();
            EXPECT_EQ(this->DrawnText(), row.after);
            EXPECT_TRUE(this->Buffer().CanUndo());
            EXPECT_FALSE(this->Buffer().CanRedo());
        }
    }
}

TYPED_TEST_P(SourceViewEdits, AChangeLeavesNothingSelected) {
    this->Put(u"^ab\ncd|");
    this->Buffer().Insert(1, 0, u"X");
    EXPECT_EQ(this->DrawnText(), u"aX|b\ncd");
    this->Put(u"|ab\ncd^");
    this->Buffer().Delete(0, 1, 1, 1);
    EXPECT_EQ(this->DrawnText(), u"ab\n|d");
    SelectOffsets(this->View(), 0, 3);
    this->Buffer().Undo();
    EXPECT_EQ(this->DrawnText(), u"ab\nc|d");
    SelectOffsets(this->View(), 3, 0);
    this->Buffer().Redo();
    EXPECT_EQ(this->DrawnText(), u"ab\n|d");
}

TYPED_TEST_P(SourceViewEdits, NeighbouringChangesAreStepsOfTheirOwn) {
    this->Put(u"");
    for (int column = 0; column < 5; ++column)
        this->Buffer().Insert(column, 0, u"x");
    for (int column = 5; column > 2; --column)
        this->Buffer().Delete(column - 1, 0, column, 0);
    EXPECT_EQ(this->DrawnText(), u"xx|");
    this->Buffer().Undo();
    EXPECT_EQ(this->DrawnText(), u"xxx|");
    EXPECT_EQ(this->UndoAll(), 7);
    EXPECT_EQ(this->DrawnText(), u"|");
}

TYPED_TEST_P(SourceViewEdits, ANewChangeForgetsWhatWasTakenBack) {
    this->Put(u"a|");
    this->Buffer().Insert(1, 0, u"b");
    this->Buffer().Insert(2, 0, u"c");
    this->Buffer().Undo();
    this->Buffer().Undo();
    this->Buffer().Insert(1, 0, u"d");
    EXPECT_FALSE(this->Buffer().CanRedo());
    this->Buffer().Redo();
    EXPECT_EQ(this->DrawnText(), u"ad|");
    EXPECT_EQ(this->UndoAll(), 1);
}

TYPED_TEST_P(SourceViewEdits, ClearedStepsAreNeitherTakenBackNorMadeAgain) {
    this->Put(u"a");
    this->Buffer().Insert(1, 0, u"b");
    this->Buffer().Insert(2, 0, u"c");
    this->Buffer().Undo();
    this->Buffer().ClearUndoStack();
    EXPECT_FALSE(this->Buffer().CanUndo());
    EXPECT_FALSE(this->Buffer().CanRedo());
    this->Buffer().Undo();
    this->Buffer().Redo();
    EXPECT_EQ(this->View().GetText(), u"ab");
    this->Buffer().Insert(2, 0, u"d");
    EXPECT_EQ(this->UndoAll(), 1);
    EXPECT_EQ(this->View().GetText(), u"ab");
}

TYPED_TEST_P(SourceViewEdits, TheDocumentsLineEndIsThatOfTheLoadedTextWhateverBecomesOfIt) {
    this->Put(u"a\r\nb");
    this->Buffer().InsertOverwrite(0, 0, 1, 1, u"x");
    this->Buffer().Insert(1, 0, u"\ny");
    EXPECT_EQ(this->View().GetText(), u"x\r\ny");
    this->Put(u"a\nb");
    this->Buffer().Insert(1, 1, u"\r\n");
    EXPECT_EQ(this->View().GetText(), u"a\nb\n");
    this->Put(u"");
    this->Buffer().Insert(0, 0, u"a\r\nb\rc");
    EXPECT_EQ(this->View().GetText(), u"a\nb\nc");
}

TYPED_TEST_P(SourceViewEdits, ACRAndAnLFThatMeetAreOneLineEndUntilTheyArePartedAgain) {
    this->Put(u"a\rX\nb");
    EXPECT_EQ(this->Buffer().NumLines(), 3);
    this->Buffer().Delete(0, 1, 1, 1);
    EXPECT_EQ(this->View().GetText(), u"a\r\nb");
    EXPECT_EQ(this->Buffer().NumLines(), 2);
    EXPECT_EQ(this->Buffer().GetTrueLineLength(0), 3);
    EXPECT_EQ(this->Buffer().GetLine(1), u"b");
    this->Buffer().Undo();
    EXPECT_EQ(this->View().GetText(), u"a\rX\nb");
    EXPECT_EQ(this->Buffer().NumLines(), 3);
    EXPECT_EQ(this->Buffer().GetLine(1), u"X");
    this->Buffer().Redo();
    EXPECT_EQ(this->View().GetText(), u"a\r\nb");
    EXPECT_EQ(this->Buffer().NumLines(), 2);
}

TYPED_TEST_P(SourceViewEdits, ACRThatIsPutInFrontOfAnLFIsOneLineEndWithIt) {
    this->Put(u"x\ry\nz");
    this->Buffer().Insert(1, 1, u"\n");
    EXPECT_EQ(this->View().GetText(), u"x\ry\r\nz");
    EXPECT_EQ(this->Buffer().NumLines(), 3);
    EXPECT_EQ(this->Buffer().GetLine(1), u"y");
    EXPECT_EQ(this->Buffer().GetTrueLineLength(1), 3);
    this->Buffer().Undo();
    EXPECT_EQ(this->View().GetText(), u"x\ry\nz");
    EXPECT_EQ(this->Buffer().GetTrueLineLength(1), 2);
}

TYPED_TEST_P(SourceViewEdits, NoPositionLiesBetweenTheTwoUnitsOfALineEnd) {
    this->Put(u"a\r\nb");
    this->Buffer().Delete(2, 0, 0, 1);
    EXPECT_EQ(this->View().GetText(), u"ab") << "the end of the row's text is what a position beyond it means";
    this->Put(u"a\r\nb");
    this->Buffer().InsertOverwrite(1, 0, 2, 0, u"X");
    EXPECT_EQ(this->View().GetText(), u"aX\r\nb");
}

TYPED_TEST_P(SourceViewEdits, ThousandsOfChangesAreTakenBackAndMadeAgain) {
    const std::vector<Text> pieces = {u"",   u"a", u"bc", u"\n", u"{\n}", u"\r\n", u"\u00E9",
                                      u"/*", u";", u"\r", u" ",  u"*/",   u"x: y", u"\U0001F600"};
    const Text loaded = u"h1 {\r\n  color: red\r}\na\r\n";
    RandomNumbers random(4711);
    this->Put(loaded);
    Text text = loaded;
    int steps = 0;
    while (steps < 2000) {
        const std::vector<PlainRow> rows = RowsOf(text);
        const auto position = [&](int& column, int& row) {
            row = random.UpTo(rows.size() - 1);
            const PlainRow& plain = rows[static_cast<std::size_t>(row)];
            column = random.UpTo(plain.text.size());
            // Never between the two units of a character.
            if (column > 0 && (plain.text[static_cast<std::size_t>(column - 1)] & 0xFC00) == 0xD800)
                --column;
            return plain.start + column;
        };
        SelectionRange range;
        const int one = position(range.startColumn, range.startRow);
        const int other = random.UpTo(2) == 0
                              ? position(range.endColumn, range.endRow)
                              : (range.endColumn = range.startColumn, range.endRow = range.startRow, one);
        if (std::abs(one - other) > 40)
            continue;
        const Text put = random.OneOf(pieces);
        if (one == other && put.empty())
            continue;
        this->Buffer().InsertOverwrite(range.startColumn, range.startRow, range.endColumn, range.endRow, put);
        Text converted;
        for (const PlainRow& row : RowsOf(put))
            converted += row.text + (row.lineEnd.empty() ? u"" : u"\r\n");
        text = Replaced(text, std::min(one, other), std::max(one, other), converted);
        ASSERT_TRUE(this->View().GetText() == text) << steps;
        ASSERT_EQ(this->Buffer().NumLines(), std::ssize(RowsOf(text))) << steps;
        ++steps;
    }
    EXPECT_EQ(this->UndoAll(), steps);
    EXPECT_TRUE(this->View().GetText() == loaded);
    EXPECT_EQ(this->Buffer().NumLines(), std::ssize(RowsOf(loaded)));
    for (; this->Buffer().CanRedo(); --steps)
        this->Buffer().Redo();
    EXPECT_EQ(steps, 0);
    EXPECT_TRUE(this->View().GetText() == text);
    EXPECT_EQ(this->Buffer().NumLines(), std::ssize(RowsOf(text)));
}

REGISTER_TYPED_TEST_SUITE_P(SourceViewEdits, AChangeLeavesTheCaretBehindWhatWasPutIn,
                            AChangeIsOneStepThatIsTakenBackAndMadeAgain, AChangeLeavesNothingSelected,
                            NeighbouringChangesAreStepsOfTheirOwn, ANewChangeForgetsWhatWasTakenBack,
                            ClearedStepsAreNeitherTakenBackNorMadeAgain,
                            TheDocumentsLineEndIsThatOfTheLoadedTextWhateverBecomesOfIt,
                            ACRAndAnLFThatMeetAreOneLineEndUntilTheyArePartedAgain,
                            ACRThatIsPutInFrontOfAnLFIsOneLineEndWithIt, NoPositionLiesBetweenTheTwoUnitsOfALineEnd,
                            ThousandsOfChangesAreTakenBackAndMadeAgain);

}  // namespace tintora::test
