#pragma once

#include "editor/EditorSurroundings.h"
#include "editor/LineTokens.h"
#include "editor/SourceView.h"

#include <vector>

namespace tintora {

/// A text control with no window: text, selection, undo, lines with their data, tokens and events.
///
/// It stands for the text control in tests and in the tool. `TypeCharacter` and the other acts of a user are what a
/// window's keyboard does there. Its cells are one pixel square; it has no find and no printing.
class MemorySourceView final : public SourceView, private SourceBuffer {
  public:
    /// `clipboard` must outlive the control.
    explicit MemorySourceView(Clipboard& clipboard);

    void SetEvents(SourceViewEvents* events) override;
    [[nodiscard]] SourceBuffer& Buffer() override { return *this; }
    [[nodiscard]] const SourceBuffer& Buffer() const override { return *this; }
    [[nodiscard]] SourceStyles& Styles() override { return styles_; }
    [[nodiscard]] Text GetText() const override { return text_; }
    void SetText(TextView text) override;
    [[nodiscard]] TextView LineEnd() const override { return lineEnd_; }
    [[nodiscard]] int CharWidth() const override { return 1; }
    [[nodiscard]] int LineHeight() const override { return 1; }
    [[nodiscard]] int CaretColumn() const override;
    [[nodiscard]] int CaretRow() const override;
    [[nodiscard]] bool HasSelection() const override { return anchor_ != caret_; }
    [[nodiscard]] SelectionRange GetSelectionRange() const override;
    void SelectRange(const SelectionRange& range) override;
    void ScrollToPosition(int, int) override {}
    [[nodiscard]] PixelPosition PositionToPixels(int column, int row) const override { return {column, row}; }
    [[nodiscard]] PixelPosition ClientToScreen(PixelPosition position) const override { return position; }
    [[nodiscard]] TokenInfo GetTokenInfo(int column, int row) override;
    void CutSelection() override;
    void CopySelection() override;
    void ClearSelection() override;
    void PasteClipboard() override;
    void FindDialog() override {}
    void ReplaceDialog() override {}
    void FindNext() override {}
    void ExecuteCommand(SourceCommand command) override;
    void PrintBuffer() override {}
    void Recolor() override;
    void FreezeRedraw() override {}
    void ThawRedraw() override {}

    // What a user does.

    /// One typed character, "\n" or "\r" being the Enter key, in the place of the selection.
    void TypeCharacter(char16_t character);
    void PressBackspace();
    void PressDelete();

    /// Puts the caret at a 0-based offset, as an arrow key or a click does.
    void MoveCaret(int offset);

    /// What the control counts on being told of, for tests: how many rows have been scanned.
    [[nodiscard]] long ScannedRows() const noexcept { return tokens_.ScannedCount(); }

  private:
    /// A change of the text, in the way in which it can be taken back and made again.
    struct Change {
        int offset = 0;
        Text removed;
        Text added;
    };

    /// Styles that nobody sees.
    class NoStyles final : public SourceStyles {
      public:
        void SetForegroundColor(int, std::int32_t, Use) override {}
        void SetBackgroundColor(int, std::int32_t, Use) override {}
        void SetFontStyle(int, int) override {}
    };

    [[nodiscard]] Text GetLine(int row) const override;
    [[nodiscard]] int GetLineLength(int row) const override;
    [[nodiscard]] int GetTrueLineLength(int row) const override;
    [[nodiscard]] int NumLines() const override { return static_cast<int>(lineStarts_.size()); }
    [[nodiscard]] int GetLineStart(int row) const override;
    [[nodiscard]] int GetRowAt(int offset) const override;
    [[nodiscard]] std::int32_t GetLineData(int row, int slot) const override;
    void SetLineData(int row, int slot, std::int32_t value) override;
    void Insert(int column, int row, TextView text) override;
    void Delete(int startColumn, int startRow, int endColumn, int endRow) override;
    void InsertOverwrite(int startColumn, int startRow, int endColumn, int endRow, TextView text) override;
    void BeginUndoStep() override { ++openSteps_; }
    void EndUndoStep() override;
    [[nodiscard]] bool CanUndo() const override { return !undoSteps_.empty(); }
    [[nodiscard]] bool CanRedo() const override { return !redoSteps_.empty(); }
    void Undo() override;
    void Redo() override;
    void ClearUndoStack() override;
    void SetLex(std::unique_ptr<LexClass> lex) override;

    [[nodiscard]] int OffsetOf(int column, int row) const;
    [[nodiscard]] int Length() const { return static_cast<int>(text_.size()); }
    void FindLineStarts();

    /// Replaces a range as one undoable step.
    void ReplaceRange(int start, int end, TextView text);
    void Apply(int offset, int removedLength, TextView added, int caret);
    void ReportSelection();

    /// 2 where a CR LF or a character of two units stands at the offset `pair`; else 1 if there is a unit in front of
    /// the offset `single`, and 0 if there is none.
    [[nodiscard]] int LengthOfCharacterAt(int pair, int single) const;
    void ScanStale();

    Clipboard& clipboard_;
    SourceViewEvents* events_ = nullptr;
    NoStyles styles_;
    Text text_;
    Text lineEnd_ = u"\n";
    std::vector<int> lineStarts_ = {0};
    std::vector<std::int32_t> lineData_ = {0};
    LineTokens tokens_;
    int anchor_ = 0;
    int caret_ = 0;
    int reportedAnchor_ = 0;
    int reportedCaret_ = 0;
    SelectionRange reportedRange_;
    std::vector<std::vector<Change>> undoSteps_;
    std::vector<std::vector<Change>> redoSteps_;
    int openSteps_ = 0;
    bool continuesStep_ = false;
};

}  // namespace tintora
