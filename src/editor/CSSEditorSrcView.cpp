#include "editor/CSSEditorSrcView.h"

#include "editor/ColorCoding.h"
#include "editor/TokenStyles.h"
#include "text/Narrowing.h"
#include "text/NumberText.h"

#include <algorithm>
#include <chrono>

namespace tintora {

namespace {

constexpr std::chrono::milliseconds TypeAheadInterval{1000};

/// Nothing is drawn as long as it lives.
class RedrawFreeze {
  public:
    explicit RedrawFreeze(SourceView& view) : view_(view) { view_.FreezeRedraw(); }
    ~RedrawFreeze() { view_.ThawRedraw(); }
    RedrawFreeze(const RedrawFreeze&) = delete;
    RedrawFreeze& operator=(const RedrawFreeze&) = delete;

  private:
    SourceView& view_;
};

/// Sets a flag as long as it lives.
class FlagSet {
  public:
    explicit FlagSet(bool& flag) : flag_(flag) { flag_ = true; }
    ~FlagSet() { flag_ = false; }
    FlagSet(const FlagSet&) = delete;
    FlagSet& operator=(const FlagSet&) = delete;

  private:
    bool& flag_;
};

}  // namespace

CSSEditorSrcView::CSSEditorSrcView(const Surroundings& surroundings)
    : textEditor_(surroundings.textEditor),
      parent_(surroundings.parent),
      frame_(surroundings.frame),
      clipboard_(surroundings.clipboard),
      dialogs_(surroundings.dialogs),
      settings_(surroundings.settings),
      typeAheadPopup_(surroundings.typeAheadPopup),
      typeAheadDelay_(surroundings.clock.MakeTimer(TypeAheadInterval, [this] { TypeAhead(); })) {
    SetupColorCoding();
    textEditor_.SetEvents(this);
}

CSSEditorSrcView::~CSSEditorSrcView() { textEditor_.SetEvents(nullptr); }

Text CSSEditorSrcView::GetText() const { return textEditor_.GetText(); }

bool CSSEditorSrcView::IsTextEmpty() const {
    const SourceBuffer& buffer = textEditor_.Buffer();
    return buffer.NumLines() == 1 && buffer.GetTrueLineLength(0) == 0;
}

void CSSEditorSrcView::SetText(TextView text) {
    {
        const RedrawFreeze freeze(textEditor_);
        const FlagSet loading(Loading);
        textEditor_.SetText(text);
        textEditor_.Buffer().ClearUndoStack();
    }
    if (!text.empty())
        SetSelection(0, 0);
}

void CSSEditorSrcView::ReplaceAllText(TextView text) { ReplaceText(text, 0, NarrowLength(GetText())); }

CSSEditorSrcView::Position CSSEditorSrcView::PositionInLine(int offset) const {
    if (IsTextEmpty())
        return {};
    const int row = CharOffsetToRow(offset);
    return {std::min(CharOffsetToColumn(offset), textEditor_.Buffer().GetLineLength(row)), row};
}

void CSSEditorSrcView::ReplaceText(TextView text, int start, int end) {
    const Position from = PositionInLine(start);
    const Position to = PositionInLine(end);
    const RedrawFreeze freeze(textEditor_);
    if (start >= end)
        textEditor_.Buffer().Insert(from.column, from.row, text);
    else
        textEditor_.Buffer().InsertOverwrite(from.column, from.row, to.column, to.row, text);
}

int CSSEditorSrcView::GetSelectionLength() const {
    if (!textEditor_.HasSelection())
        return 0;
    const SelectionRange range = textEditor_.GetSelectionRange();
    return std::abs(XYToCharOffset(range.endColumn, range.endRow) - XYToCharOffset(range.startColumn, range.startRow));
}

Text CSSEditorSrcView::GetSelectedText() const {
    const Text text = GetText();
    const auto start = std::min(static_cast<std::size_t>(std::max<int>(CurrentSelectionStart, 0)), text.size());
    return text.substr(start, static_cast<std::size_t>(GetSelectionLength()));
}

void CSSEditorSrcView::SetSelection(int start, int end) {
    const std::int16_t storedStart = Narrow(start);
    const std::int16_t storedEnd = Narrow(end);
    const int startRow = CharOffsetToRow(start);
    const int startColumn = CharOffsetToColumn(start);
    textEditor_.ScrollToPosition(startRow, startColumn);
    textEditor_.SelectRange({startColumn, startRow, CharOffsetToColumn(end), CharOffsetToRow(end)});
    CurrentSelectionStart = storedStart;
    CurrentSelectionEnd = storedEnd;
    UpdateMenu();
}

void CSSEditorSrcView::SetSelectionStart(int offset) {
    const int row = CharOffsetToRow(offset);
    const int column = CharOffsetToColumn(offset);
    textEditor_.ScrollToPosition(row, column);
    textEditor_.SelectRange({column, row, column, row});
    StoreSelectionStart();
}

void CSSEditorSrcView::SetSelectionLength([[maybe_unused]] int length) noexcept {}

void CSSEditorSrcView::SetSelectionText(TextView text) {
    const RedrawFreeze freeze(textEditor_);
    SelectionRange range = textEditor_.GetSelectionRange();
    // Of a selection made backwards the earlier end is the place that is left when it has gone.
    if (std::pair(range.endRow, range.endColumn) < std::pair(range.startRow, range.startColumn))
        range = {range.endColumn, range.endRow, range.startColumn, range.startRow};
    textEditor_.Buffer().Delete(range.startColumn, range.startRow, range.endColumn, range.endRow);
    textEditor_.Buffer().Insert(range.startColumn, range.startRow, text);
}

int CSSEditorSrcView::XYToCharOffset(int column, int row) const {
    return Narrow(static_cast<long long>(textEditor_.Buffer().GetLineStart(row)) + column);
}

int CSSEditorSrcView::CharOffsetToRow(int offset) const {
    return Narrow(textEditor_.Buffer().GetRowAt(Narrow(offset)));
}

int CSSEditorSrcView::CharOffsetToColumn(int offset) const {
    return Narrow(static_cast<long long>(offset) - XYToCharOffset(0, CharOffsetToRow(offset)));
}

void CSSEditorSrcView::StoreSelectionStart() {
    const SelectionRange range = textEditor_.GetSelectionRange();
    CurrentSelectionStart = Narrow(XYToCharOffset(range.startColumn, range.startRow));
}

void CSSEditorSrcView::SetupColorCoding() {
    tintora::SetupColorCoding(textEditor_, [this](int tokenType) { return GetTokenStyle(settings_, tokenType); });
}

void CSSEditorSrcView::SetupTokenStyle(int tokenType) {
    if (const std::optional<TokenStyle> style = GetTokenStyle(settings_, tokenType))
        tintora::SetupTokenStyle(textEditor_.Styles(), tokenType, *style);
}

void CSSEditorSrcView::UpdateColorCoding() {
    SetupColorCoding();
    textEditor_.Recolor();
}

void CSSEditorSrcView::SetFont([[maybe_unused]] TextView name) noexcept {}

void CSSEditorSrcView::EyedropperClick([[maybe_unused]] int x, [[maybe_unused]] int y) noexcept {}

void CSSEditorSrcView::ShowError(int number, TextView description) {
    dialogs_.ShowMessage(u"File Error", Text(u"Error(") + NumberText(number) + u"): " + Text(description));
}

}  // namespace tintora
