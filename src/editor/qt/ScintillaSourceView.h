#pragma once

#include "editor/LineTokens.h"
#include "editor/SourceView.h"
#include "editor/qt/ScintillaControl.h"
#include "editor/qt/ScintillaOffsets.h"
#include "editor/qt/ScintillaStyles.h"

#include <QWidget>
#include <map>
#include <memory>
#include <string_view>

class QsciPrinter;

namespace tintora {

class FindBar;

/// The text control in a window: a Scintilla control with the find bar at its foot.
///
/// The control holds UTF-8, so a lone surrogate, which no file can hold, becomes U+FFFD when it enters.
///
/// What a call or a key does is told when the control has done with it, so no exception of a handler ever passes
/// through the control. An exception of the scanner in the middle of drawing is thrown again from the event loop.
class ScintillaSourceView final : public QWidget, public SourceView, private SourceBuffer, private ControlEvents {
    Q_OBJECT

  public:
    explicit ScintillaSourceView(QWidget* parent = nullptr);
    ~ScintillaSourceView() override;

    void SetEvents(SourceViewEvents* events) override;
    [[nodiscard]] SourceBuffer& Buffer() override { return *this; }
    [[nodiscard]] const SourceBuffer& Buffer() const override { return *this; }
    [[nodiscard]] SourceStyles& Styles() override { return styles_; }
    [[nodiscard]] Text GetText() const override;
    void SetText(TextView text) override;
    [[nodiscard]] TextView LineEnd() const override;
    [[nodiscard]] int CharWidth() const override;
    [[nodiscard]] int LineHeight() const override;
    [[nodiscard]] int CaretColumn() const override;
    [[nodiscard]] int CaretRow() const override;
    [[nodiscard]] bool HasSelection() const override;
    [[nodiscard]] SelectionRange GetSelectionRange() const override;
    void SelectRange(const SelectionRange& range) override;
    void ScrollToPosition(int row, int column) override;
    [[nodiscard]] PixelPosition PositionToPixels(int column, int row) const override;
    [[nodiscard]] PixelPosition ClientToScreen(PixelPosition position) const override;
    [[nodiscard]] TokenInfo GetTokenInfo(int column, int row) override;
    void CutSelection() override;
    void CopySelection() override;
    void ClearSelection() override;
    void PasteClipboard() override;
    void FindDialog() override;
    void ReplaceDialog() override;
    void FindNext() override;
    void ExecuteCommand(SourceCommand command) override;
    void PrintBuffer() override;
    void Recolor() override;
    void FreezeRedraw() override;
    void ThawRedraw() override;

    /// The control itself, for what belongs to no document: the focus, its zoom.
    [[nodiscard]] QsciScintilla& Control() noexcept { return control_; }

    /// Whether the text differs from what was loaded.
    [[nodiscard]] bool IsModified() const { return control_.isModified(); }

    /// "LF", "CR" or "CR LF": what a new line ends with.
    [[nodiscard]] QString LineEndName() const;

    /// Prints the text with its colours.
    void PrintTo(QsciPrinter& printer);

    /// How many rows have been scanned since the control was made.
    [[nodiscard]] long ScannedRows() const noexcept { return tokens_.ScannedCount(); }

  private:
    class Call;

    // SourceBuffer
    [[nodiscard]] Text GetLine(int row) const override;
    [[nodiscard]] int GetLineLength(int row) const override;
    [[nodiscard]] int GetTrueLineLength(int row) const override;
    [[nodiscard]] int NumLines() const override;
    [[nodiscard]] int GetLineStart(int row) const override;
    [[nodiscard]] int GetRowAt(int offset) const override;
    [[nodiscard]] std::int32_t GetLineData(int row, int slot) const override;
    void SetLineData(int row, int slot, std::int32_t value) override;
    void Insert(int column, int row, TextView text) override;
    void Delete(int startColumn, int startRow, int endColumn, int endRow) override;
    void InsertOverwrite(int startColumn, int startRow, int endColumn, int endRow, TextView text) override;
    void BeginUndoStep() override;
    void EndUndoStep() override;
    [[nodiscard]] bool CanUndo() const override;
    [[nodiscard]] bool CanRedo() const override;
    void Undo() override;
    void Redo() override;
    void ClearUndoStack() override;
    void SetLex(std::unique_ptr<LexClass> lex) override;

    // ControlEvents
    void KeyPressing(const QKeyEvent& event) override;
    void KeyPressed() override;
    void KeyReleasedBy(const QKeyEvent& event) override;
    void MousePressing(const QMouseEvent& event) override;
    void MouseReleasedBy(const QMouseEvent& event) override;
    void Touched() override;
    void LookChanged() override;

    void SetUpControl();
    void OnModified(int position, int type, std::string_view text, int linesAdded);
    void ScanStale();
    void StyleRow(int row);
    void Tell();
    void TellChangeOfOtherKind();
    void TellSelection();

    [[nodiscard]] long LineStartByte(int row) const;
    [[nodiscard]] long ByteOf(int column, int row) const;
    void ReplaceBytes(long start, long end, TextView text);

    ScintillaControl control_;
    ScintillaStyles styles_;
    ScintillaOffsets offsets_;
    FindBar* findBar_;
    SourceViewEvents* events_ = nullptr;
    LineTokens tokens_;
    std::map<int, int> codesOfPressedKeys_;
    int callDepth_ = 0;
    int frozen_ = 0;
    bool isModified_ = false;
    long toldAnchor_ = 0;
    long toldCaret_ = 0;
    SelectionRange toldRange_;
};

}  // namespace tintora
