#include "editor/MemorySourceView.h"

#include "editor/Indentation.h"
#include "text/LineEnds.h"

#include <algorithm>
#include <iterator>

namespace tintora {

MemorySourceView::MemorySourceView(Clipboard& clipboard) : clipboard_(clipboard) {}

void MemorySourceView::SetEvents(SourceViewEvents* events) {
    events_ = events;
    if (events_ != nullptr)
        events_->Ready();
}

// The text.

void MemorySourceView::SetText(TextView text) {
    lineEnd_ = FirstLineEnd(text);
    text_ = text;
    undoSteps_.clear();
    redoSteps_.clear();
    FindLineStarts();
    lineData_.assign(lineStarts_.size(), 0);
    tokens_.Reset(NumLines());
    anchor_ = caret_ = 0;
    if (events_ != nullptr)
        events_->TextChanged();
    ReportSelection();
}

void MemorySourceView::FindLineStarts() { lineStarts_ = LineStarts(text_); }

int MemorySourceView::GetRowAt(int offset) const {
    const auto behind = std::upper_bound(lineStarts_.begin(), lineStarts_.end(), offset);
    return std::max(static_cast<int>(behind - lineStarts_.begin()) - 1, 0);
}

int MemorySourceView::GetLineStart(int row) const {
    if (row < 0)
        return 0;
    return row < NumLines() ? lineStarts_[static_cast<std::size_t>(row)] : Length();
}

int MemorySourceView::GetTrueLineLength(int row) const { return GetLineStart(row + 1) - GetLineStart(row); }

int MemorySourceView::GetLineLength(int row) const {
    const int start = GetLineStart(row);
    int end = GetLineStart(row + 1);
    if (end > start && text_[static_cast<std::size_t>(end - 1)] == u'\n')
        --end;
    if (end > start && text_[static_cast<std::size_t>(end - 1)] == u'\r')
        --end;
    return end - start;
}

Text MemorySourceView::GetLine(int row) const {
    return text_.substr(static_cast<std::size_t>(GetLineStart(row)), static_cast<std::size_t>(GetLineLength(row)));
}

int MemorySourceView::OffsetOf(int column, int row) const {
    if (row < 0)
        return 0;
    return std::min(GetLineStart(row) + std::clamp(column, 0, GetLineLength(row)), Length());
}

// Changes.

void MemorySourceView::Apply(int offset, int removedLength, TextView added, int caret) {
    const auto start = static_cast<std::size_t>(offset);
    const auto length = static_cast<std::size_t>(removedLength);
    const auto hasLineEnd = [](TextView text) { return text.find_first_of(u"\r\n") != TextView::npos; };
    const bool staysInRow = !hasLineEnd(added) && !hasLineEnd(TextView(text_).substr(start, length));
    const int row = GetRowAt(offset);
    const int lastRow = GetRowAt(offset + removedLength);
    const int rowsBefore = NumLines();
    text_.replace(start, length, added);
    FindLineStarts();
    if (staysInRow && NumLines() == rowsBefore) {
        tokens_.RowsChanged(row, 0, 0);
    } else {
        // A CR and an LF that meet become one line end, and one that is parted becomes two: the row in front is
        // concerned too.
        const int first = std::max(row - 1, 0);
        const int removedRows = std::min(lastRow + 1, rowsBefore - 1) - first;
        const int addedRows = NumLines() - rowsBefore + removedRows;
        const auto behind = lineData_.begin() + first + 1;
        lineData_.insert(lineData_.erase(behind, behind + removedRows), static_cast<std::size_t>(addedRows), 0);
        tokens_.RowsChanged(first, removedRows, addedRows);
    }
    anchor_ = caret_ = caret;
    if (events_ != nullptr)
        events_->TextChanged();
    ReportSelection();
}

void MemorySourceView::ReplaceRange(int start, int end, TextView text) {
    if (end < start)
        std::swap(start, end);
    const Text added = WithLineEnds(text, lineEnd_);
    if (start == end && added.empty())
        return;
    const Text removed = text_.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
    if (!continuesStep_)
        undoSteps_.emplace_back();
    continuesStep_ = openSteps_ > 0;
    undoSteps_.back().push_back({start, removed, added});
    redoSteps_.clear();
    Apply(start, end - start, added, start + static_cast<int>(added.size()));
}

void MemorySourceView::Insert(int column, int row, TextView text) {
    const int offset = OffsetOf(column, row);
    ReplaceRange(offset, offset, text);
}

void MemorySourceView::Delete(int startColumn, int startRow, int endColumn, int endRow) {
    InsertOverwrite(startColumn, startRow, endColumn, endRow, {});
}

void MemorySourceView::InsertOverwrite(int startColumn, int startRow, int endColumn, int endRow, TextView text) {
    ReplaceRange(OffsetOf(startColumn, startRow), OffsetOf(endColumn, endRow), text);
}

void MemorySourceView::EndUndoStep() {
    --openSteps_;
    continuesStep_ = continuesStep_ && openSteps_ > 0;
}

void MemorySourceView::Undo() {
    if (undoSteps_.empty())
        return;
    redoSteps_.push_back(std::move(undoSteps_.back()));
    undoSteps_.pop_back();
    const std::vector<Change> step = redoSteps_.back();
    for (auto change = step.rbegin(); change != step.rend(); ++change)
        Apply(change->offset, static_cast<int>(change->added.size()), change->removed,
              change->offset + static_cast<int>(change->removed.size()));
}

void MemorySourceView::Redo() {
    if (redoSteps_.empty())
        return;
    undoSteps_.push_back(std::move(redoSteps_.back()));
    redoSteps_.pop_back();
    const std::vector<Change> step = undoSteps_.back();
    for (const Change& change : step)
        Apply(change.offset, static_cast<int>(change.removed.size()), change.added,
              change.offset + static_cast<int>(change.added.size()));
}

void MemorySourceView::ClearUndoStack() {
    continuesStep_ = false;
    undoSteps_.clear();
    redoSteps_.clear();
}

// Selection.

int MemorySourceView::CaretRow() const { return GetRowAt(caret_); }

int MemorySourceView::CaretColumn() const { return caret_ - GetLineStart(CaretRow()); }

SelectionRange MemorySourceView::GetSelectionRange() const {
    const int anchorRow = GetRowAt(anchor_);
    return {anchor_ - GetLineStart(anchorRow), anchorRow, CaretColumn(), CaretRow()};
}

void MemorySourceView::SelectRange(const SelectionRange& range) {
    anchor_ = OffsetOf(range.startColumn, range.startRow);
    caret_ = OffsetOf(range.endColumn, range.endRow);
    ReportSelection();
}

void MemorySourceView::ReportSelection() {
    // A change in front of the caret may move it to another row at the same offset, or the other way round.
    const SelectionRange range = GetSelectionRange();
    if (anchor_ == reportedAnchor_ && caret_ == reportedCaret_ && range == reportedRange_)
        return;
    reportedAnchor_ = anchor_;
    reportedCaret_ = caret_;
    reportedRange_ = range;
    if (events_ != nullptr)
        events_->SelectionChanged(range.endColumn, range.endRow);
}

// Tokens.

void MemorySourceView::SetLex(std::unique_ptr<LexClass> lex) { tokens_.SetLex(std::move(lex)); }

std::int32_t MemorySourceView::GetLineData(int row, [[maybe_unused]] int slot) const {
    return row >= 0 && row < std::ssize(lineData_) ? lineData_[static_cast<std::size_t>(row)] : 0;
}

void MemorySourceView::SetLineData(int row, [[maybe_unused]] int slot, std::int32_t value) {
    lineData_.at(static_cast<std::size_t>(row)) = value;
}

void MemorySourceView::ScanStale() {
    if (!tokens_.IsUpToDate())
        tokens_.Scan(
            *this, [this](int row) { return GetLine(row); }, [](int) {});
}

TokenInfo MemorySourceView::GetTokenInfo(int column, int row) {
    ScanStale();
    return tokens_.TokenAt(column, row);
}

void MemorySourceView::Recolor() {
    tokens_.Reset(NumLines());
    ScanStale();
}

// Commands.

void MemorySourceView::CutSelection() {
    CopySelection();
    ClearSelection();
}

void MemorySourceView::CopySelection() {
    if (HasSelection()) {
        const auto start = static_cast<std::size_t>(std::min(anchor_, caret_));
        clipboard_.SetText(TextView(text_).substr(start, static_cast<std::size_t>(std::abs(caret_ - anchor_))));
    }
}

void MemorySourceView::ClearSelection() { ReplaceRange(anchor_, caret_, {}); }

void MemorySourceView::PasteClipboard() { ReplaceRange(anchor_, caret_, clipboard_.GetText()); }

void MemorySourceView::ExecuteCommand(SourceCommand command) { IndentSelectedRows(*this, command); }

void MemorySourceView::TypeCharacter(char16_t character) { ReplaceRange(anchor_, caret_, TextView(&character, 1)); }

int MemorySourceView::LengthOfCharacterAt(int pair, int single) const {
    const bool hasPair = pair >= 0 && pair + 1 < Length();
    if (hasPair) {
        const char16_t first = text_[static_cast<std::size_t>(pair)];
        const char16_t second = text_[static_cast<std::size_t>(pair + 1)];
        const bool isLineEnd = first == u'\r' && second == u'\n';
        const bool isSurrogatePair = (first & 0xFC00) == 0xD800 && (second & 0xFC00) == 0xDC00;
        if (isLineEnd || isSurrogatePair)
            return 2;
    }
    return single >= 1 && single <= Length() ? 1 : 0;
}

void MemorySourceView::PressBackspace() {
    if (HasSelection())
        ClearSelection();
    else
        ReplaceRange(caret_ - LengthOfCharacterAt(caret_ - 2, caret_), caret_, {});
}

void MemorySourceView::PressDelete() {
    if (HasSelection())
        ClearSelection();
    else
        ReplaceRange(caret_, caret_ + LengthOfCharacterAt(caret_, caret_ + 1), {});
}

void MemorySourceView::MoveCaret(int offset) {
    anchor_ = caret_ = std::clamp(offset, 0, Length());
    ReportSelection();
}

}  // namespace tintora
