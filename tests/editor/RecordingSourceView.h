#pragma once

#include "CallLog.h"
#include "editor/SourceView.h"
#include "text/Encoding.h"

#include <stdexcept>
#include <utility>

namespace tintora::test {

/// Styles that are written down: "24 text 8018A8", "24 back own", "24 font 1".
class RecordingStyles final : public SourceStyles {
  public:
    void SetForegroundColor(int tokenType, std::int32_t color, Use use) override { Add(tokenType, "text", color, use); }
    void SetBackgroundColor(int tokenType, std::int32_t color, Use use) override { Add(tokenType, "back", color, use); }
    void SetFontStyle(int tokenType, int bits) override {
        log.Add(std::to_string(tokenType) + " font " + std::to_string(bits));
    }

    CallLog log;

  private:
    void Add(int tokenType, const std::string& what, std::int32_t color, Use use) {
        const std::string shown = use == Use::DefaultColor ? "own " : "";
        log.Add(std::to_string(tokenType) + " " + what + " " + shown + std::to_string(color));
    }
};

/// A text control in front of another one: it hands everything on, and writes down what it is told to do as long as
/// `isRecording`. Where `failsAtChanges`, each change throws in its stead.
class RecordingSourceView final : public SourceView, private SourceBuffer {
  public:
    RecordingSourceView(SourceView& inner, CallLog& log) : inner_(inner), log_(log) {}

    bool isRecording = false;
    bool failsAtChanges = false;
    bool handsEventsOn = true;

    /// How many freezes haven't been thawed.
    int frozen = 0;
    RecordingStyles styles;

    void SetEvents(SourceViewEvents* events) override {
        if (handsEventsOn)
            inner_.SetEvents(events);
    }
    [[nodiscard]] SourceBuffer& Buffer() override { return *this; }
    [[nodiscard]] const SourceBuffer& Buffer() const override { return *this; }
    [[nodiscard]] SourceStyles& Styles() override { return styles; }
    [[nodiscard]] Text GetText() const override { return inner_.GetText(); }
    void SetText(TextView text) override {
        Change("SetText(" + Utf8FromText(text) + ")");
        inner_.SetText(text);
    }
    [[nodiscard]] TextView LineEnd() const override { return inner_.LineEnd(); }
    [[nodiscard]] int CharWidth() const override { return inner_.CharWidth(); }
    [[nodiscard]] int LineHeight() const override { return inner_.LineHeight(); }
    [[nodiscard]] int CaretColumn() const override { return inner_.CaretColumn(); }
    [[nodiscard]] int CaretRow() const override { return inner_.CaretRow(); }
    [[nodiscard]] bool HasSelection() const override { return inner_.HasSelection(); }
    [[nodiscard]] SelectionRange GetSelectionRange() const override { return inner_.GetSelectionRange(); }
    void SelectRange(const SelectionRange& range) override {
        Record(CallText("SelectRange", range.startColumn, range.startRow, range.endColumn, range.endRow));
        inner_.SelectRange(range);
    }
    void ScrollToPosition(int row, int column) override {
        Record(CallText("ScrollToPosition", row, column));
        inner_.ScrollToPosition(row, column);
    }
    [[nodiscard]] PixelPosition PositionToPixels(int column, int row) const override {
        return inner_.PositionToPixels(column, row);
    }
    [[nodiscard]] PixelPosition ClientToScreen(PixelPosition position) const override {
        return inner_.ClientToScreen(position);
    }
    [[nodiscard]] TokenInfo GetTokenInfo(int column, int row) override { return inner_.GetTokenInfo(column, row); }
    void CutSelection() override { HandOn("CutSelection", &SourceView::CutSelection); }
    void CopySelection() override { HandOn("CopySelection", &SourceView::CopySelection); }
    void ClearSelection() override { HandOn("ClearSelection", &SourceView::ClearSelection); }
    void PasteClipboard() override { HandOn("PasteClipboard", &SourceView::PasteClipboard); }
    void FindDialog() override { HandOn("FindDialog", &SourceView::FindDialog); }
    void ReplaceDialog() override { HandOn("ReplaceDialog", &SourceView::ReplaceDialog); }
    void FindNext() override { HandOn("FindNext", &SourceView::FindNext); }
    void ExecuteCommand(SourceCommand command) override {
        Record(CallText("ExecuteCommand", static_cast<int>(command)));
        inner_.ExecuteCommand(command);
    }
    void PrintBuffer() override { HandOn("PrintBuffer", &SourceView::PrintBuffer); }
    void Recolor() override { HandOn("Recolor", &SourceView::Recolor); }
    void FreezeRedraw() override {
        ++frozen;
        HandOn("FreezeRedraw", &SourceView::FreezeRedraw);
    }
    void ThawRedraw() override {
        --frozen;
        HandOn("ThawRedraw", &SourceView::ThawRedraw);
    }

  private:
    [[nodiscard]] Text GetLine(int row) const override { return inner_.Buffer().GetLine(row); }
    [[nodiscard]] int GetLineLength(int row) const override { return inner_.Buffer().GetLineLength(row); }
    [[nodiscard]] int GetTrueLineLength(int row) const override { return inner_.Buffer().GetTrueLineLength(row); }
    [[nodiscard]] int NumLines() const override { return inner_.Buffer().NumLines(); }
    [[nodiscard]] int GetLineStart(int row) const override { return inner_.Buffer().GetLineStart(row); }
    [[nodiscard]] int GetRowAt(int offset) const override { return inner_.Buffer().GetRowAt(offset); }
    [[nodiscard]] std::int32_t GetLineData(int row, int slot) const override {
        return inner_.Buffer().GetLineData(row, slot);
    }
    void SetLineData(int row, int slot, std::int32_t value) override { inner_.Buffer().SetLineData(row, slot, value); }
    void Insert(int column, int row, TextView text) override {
        Change(CallText("Insert", column, row) + Quoted(text));
        inner_.Buffer().Insert(column, row, text);
    }
    void Delete(int startColumn, int startRow, int endColumn, int endRow) override {
        Change(CallText("Delete", startColumn, startRow, endColumn, endRow));
        inner_.Buffer().Delete(startColumn, startRow, endColumn, endRow);
    }
    void InsertOverwrite(int startColumn, int startRow, int endColumn, int endRow, TextView text) override {
        Change(CallText("InsertOverwrite", startColumn, startRow, endColumn, endRow) + Quoted(text));
        inner_.Buffer().InsertOverwrite(startColumn, startRow, endColumn, endRow, text);
    }
    void BeginUndoStep() override { inner_.Buffer().BeginUndoStep(); }
    void EndUndoStep() override { inner_.Buffer().EndUndoStep(); }
    [[nodiscard]] bool CanUndo() const override { return inner_.Buffer().CanUndo(); }
    [[nodiscard]] bool CanRedo() const override { return inner_.Buffer().CanRedo(); }
    void Undo() override {
        Record("Buffer.Undo");
        inner_.Buffer().Undo();
    }
    void Redo() override {
        Record("Buffer.Redo");
        inner_.Buffer().Redo();
    }
    void ClearUndoStack() override {
        Record("ClearUndoStack");
        inner_.Buffer().ClearUndoStack();
    }
    void SetLex(std::unique_ptr<LexClass> lex) override {
        Record("SetLex");
        styles.log.Add(lex ? "scanner" : "no scanner");
        inner_.Buffer().SetLex(std::move(lex));
    }

    static std::string Quoted(TextView text) { return " '" + Utf8FromText(text) + "'"; }

    void Record(const std::string& call) {
        if (isRecording)
            log_.Add(call);
    }

    void Change(const std::string& call) {
        Record(call);
        if (failsAtChanges)
            throw std::runtime_error("the control refuses");
    }

    void HandOn(const std::string& name, void (SourceView::*act)()) {
        Record(name);
        (inner_.*act)();
    }

    SourceView& inner_;
    CallLog& log_;
};

}  // namespace tintora::test
