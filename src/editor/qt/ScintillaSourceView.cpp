#include "editor/qt/ScintillaSourceView.h"

#include "editor/Indentation.h"
#include "editor/qt/FindBar.h"
#include "editor/qt/KeyCodes.h"
#include "editor/qt/PageLayout.h"
#include "text/Encoding.h"
#include "text/LineEnds.h"
#include "text/Narrowing.h"

#include <Qsci/qsciprinter.h>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPrintDialog>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace tintora {

namespace {

using Control = QsciScintillaBase;

constexpr int LineNumberMargin = 0;
constexpr int TextGap = 1;
constexpr int GapWidth = 6;

unsigned long Word(long value) { return static_cast<unsigned long>(value); }

QsciScintilla::EolMode LineEndMode(TextView lineEnd) {
    if (lineEnd == u"\n")
        return QsciScintilla::EolUnix;
    return lineEnd == u"\r" ? QsciScintilla::EolMac : QsciScintilla::EolWindows;
}

TextView LineEndOfMode(QsciScintilla::EolMode mode) {
    if (mode == QsciScintilla::EolUnix)
        return u"\n";
    return mode == QsciScintilla::EolMac ? u"\r" : u"\r\n";
}

MouseButton ButtonOf(const QMouseEvent& event) {
    if (event.button() == Qt::RightButton)
        return MouseButton::Right;
    return event.button() == Qt::MiddleButton ? MouseButton::Middle : MouseButton::Left;
}

PixelPosition PlaceOf(const QMouseEvent& event) { return {event.pos().x(), event.pos().y()}; }

/// How many bytes of UTF-8 the units take.
std::size_t Utf8Length(TextView text) { return Utf8FromText(text).size(); }

}  // namespace

/// What a call does to the control is told when it is done.
class ScintillaSourceView::Call {
  public:
    template <typename Act>
    Call(ScintillaSourceView& view, Act act) {
        ++view.callDepth_;
        act();
        --view.callDepth_;
        view.Tell();
    }
};

ScintillaSourceView::ScintillaSourceView(QWidget* parent)
    : QWidget(parent),
      control_(*this, this),
      styles_(control_),
      offsets_(control_),
      findBar_(new FindBar(
          control_,
          [this](const std::function<void()>& change) {
              ++callDepth_;
              change();
              --callDepth_;
              TellChangeOfOtherKind();
          },
          this)) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(&control_);
    layout->addWidget(findBar_);
    setFocusProxy(&control_);
    SetUpControl();
    tokens_.Reset(1);
}

ScintillaSourceView::~ScintillaSourceView() {
    events_ = nullptr;
    control_.disconnect(this);
}

void ScintillaSourceView::SetUpControl() {
    control_.setUtf8(true);
    UseUtf8(control_);
    control_.setFrameShape(QFrame::NoFrame);
    control_.setAccessibleName(QStringLiteral("Style sheet text"));
    control_.setMarginType(LineNumberMargin, QsciScintilla::NumberMargin);
    control_.setMarginWidth(LineNumberMargin, QStringLiteral("00000"));
    control_.setMarginType(TextGap, QsciScintilla::TextMargin);
    control_.setMarginWidth(TextGap, GapWidth);
    control_.setBraceMatching(QsciScintilla::SloppyBraceMatch);
    control_.setTabWidth(4);
    control_.setEolMode(QsciScintilla::EolUnix);
    control_.SendScintilla(Control::SCI_SETSCROLLWIDTH, 1UL);
    control_.SendScintilla(Control::SCI_SETSCROLLWIDTHTRACKING, 1UL);
    control_.SendScintilla(Control::SCI_USEPOPUP, 0UL);
    control_.SendScintilla(Control::SCI_SETMULTIPLESELECTION, 0UL);
    connect(&control_, &QsciScintillaBase::SCN_MODIFIED, this,
            [this](int position, int type, const char* text, int length, int linesAdded) {
                const std::string_view bytes =
                    text == nullptr ? std::string_view() : std::string_view(text, static_cast<std::size_t>(length));
                OnModified(position, type, bytes, linesAdded);
            });
    connect(&control_, &QsciScintillaBase::SCN_STYLENEEDED, this, [this] {
        try {
            ScanStale();
        } catch (const OverflowFailure&) {
            // Told by the change that made the row too long; drawing goes on without its colours.
        }
    });
}

void ScintillaSourceView::SetEvents(SourceViewEvents* events) {
    events_ = events;
    if (events_ != nullptr)
        events_->Ready();
}

// The text.

Text ScintillaSourceView::GetText() const { return ControlText(control_); }

void ScintillaSourceView::SetText(TextView text) {
    Call(*this, [&] {
        control_.setEolMode(LineEndMode(FirstLineEnd(text)));
        LoadControlText(control_, text);
        tokens_.Reset(NumLines());
    });
}

int ScintillaSourceView::NumLines() const {
    return static_cast<int>(control_.SendScintilla(Control::SCI_GETLINECOUNT));
}

long ScintillaSourceView::LineStartByte(int row) const {
    if (row < 0)
        return 0;
    return row < NumLines() ? control_.SendScintilla(Control::SCI_POSITIONFROMLINE, Word(row))
                            : control_.SendScintilla(Control::SCI_GETLENGTH);
}

int ScintillaSourceView::GetLineStart(int row) const { return offsets_.Rows().StartOf(row); }

int ScintillaSourceView::GetRowAt(int offset) const { return offsets_.Rows().RowAt(offset); }

int ScintillaSourceView::GetTrueLineLength(int row) const { return offsets_.Rows().LengthOf(row); }

Text ScintillaSourceView::GetLine(int row) const {
    if (row < 0 || row >= NumLines())
        return {};
    Text line = TextFromUtf8(offsets_.BytesOf(row));
    line.resize(static_cast<std::size_t>(GetLineLength(row)));
    return line;
}

int ScintillaSourceView::GetLineLength(int row) const {
    if (row < 0 || row >= NumLines())
        return 0;
    // A terminator is as many bytes as it is units.
    const long end = control_.SendScintilla(Control::SCI_GETLINEENDPOSITION, Word(row));
    return GetTrueLineLength(row) - static_cast<int>(LineStartByte(row + 1) - end);
}

long ScintillaSourceView::ByteOf(int column, int row) const {
    if (row < 0)
        return 0;
    if (row >= NumLines())
        return control_.SendScintilla(Control::SCI_GETLENGTH);
    return offsets_.BytePosition(GetLineStart(row) + std::clamp(column, 0, GetLineLength(row)));
}

TextView ScintillaSourceView::LineEnd() const { return LineEndOfMode(control_.eolMode()); }

QString ScintillaSourceView::LineEndName() const {
    switch (control_.eolMode()) {
        case QsciScintilla::EolWindows: return QStringLiteral("CR LF");
        case QsciScintilla::EolMac: return QStringLiteral("CR");
        default: return QStringLiteral("LF");
    }
}

// Changes.

void ScintillaSourceView::ReplaceBytes(long start, long end, TextView text) {
    if (end < start)
        std::swap(start, end);
    const std::string bytes = Utf8FromText(WithLineEnds(text, LineEnd()));
    if (start == end && bytes.empty())
        return;
    Call(*this, [&] {
        control_.SendScintilla(Control::SCI_BEGINUNDOACTION);
        control_.SendScintilla(Control::SCI_SETTARGETRANGE, Word(start), end);
        control_.SendScintilla(Control::SCI_REPLACETARGET, bytes.size(), bytes.data());
        control_.SendScintilla(Control::SCI_SETEMPTYSELECTION, Word(start) + bytes.size());
        control_.SendScintilla(Control::SCI_ENDUNDOACTION);
    });
}

void ScintillaSourceView::Insert(int column, int row, TextView text) {
    const long position = ByteOf(column, row);
    ReplaceBytes(position, position, text);
}

void ScintillaSourceView::Delete(int startColumn, int startRow, int endColumn, int endRow) {
    InsertOverwrite(startColumn, startRow, endColumn, endRow, {});
}

void ScintillaSourceView::InsertOverwrite(int startColumn, int startRow, int endColumn, int endRow, TextView text) {
    ReplaceBytes(ByteOf(startColumn, startRow), ByteOf(endColumn, endRow), text);
}

void ScintillaSourceView::BeginUndoStep() { control_.beginUndoAction(); }

void ScintillaSourceView::EndUndoStep() { control_.endUndoAction(); }

bool ScintillaSourceView::CanUndo() const { return control_.isUndoAvailable(); }

bool ScintillaSourceView::CanRedo() const { return control_.isRedoAvailable(); }

void ScintillaSourceView::Undo() {
    Call(*this, [this] { control_.undo(); });
}

void ScintillaSourceView::Redo() {
    Call(*this, [this] { control_.redo(); });
}

void ScintillaSourceView::ClearUndoStack() { control_.SendScintilla(Control::SCI_EMPTYUNDOBUFFER); }

void ScintillaSourceView::OnModified(int position, int type, std::string_view text, int linesAdded) {
    if ((type & (Control::SC_MOD_INSERTTEXT | Control::SC_MOD_DELETETEXT)) == 0)
        return;
    const auto rowAt = [this](long byte) {
        return static_cast<int>(control_.SendScintilla(Control::SCI_LINEFROMPOSITION, Word(byte)));
    };
    const int row = rowAt(position);
    if (linesAdded == 0 && text.find_first_of("\r\n") == std::string_view::npos) {
        tokens_.RowsChanged(row, 0, 0);
        offsets_.RowsChanged(row, 0, 1);
    } else {
        // A CR and an LF that meet become one line end, and one that is parted becomes two: the row in front is
        // concerned too.
        const bool isInsertion = (type & Control::SC_MOD_INSERTTEXT) != 0;
        const int first = std::max(row - 1, 0);
        const int last = rowAt(position + (isInsertion ? static_cast<long>(text.size()) : 0));
        const int added = std::min(last + 1, NumLines() - 1) - first;
        tokens_.RowsChanged(first, added - linesAdded, added);
        offsets_.RowsChanged(first, added - linesAdded, added + 1);
    }
    isModified_ = true;
    // What the control does by itself, outside of any call, is told from the event loop.
    if (callDepth_ == 0)
        QMetaObject::invokeMethod(
            this, [this] { Tell(); }, Qt::QueuedConnection);
}

// The selection.

int ScintillaSourceView::CaretRow() const {
    return static_cast<int>(control_.SendScintilla(Control::SCI_LINEFROMPOSITION,
                                                   Word(control_.SendScintilla(Control::SCI_GETCURRENTPOS))));
}

int ScintillaSourceView::CaretColumn() const {
    return offsets_.OffsetOf(control_.SendScintilla(Control::SCI_GETCURRENTPOS)) - GetLineStart(CaretRow());
}

bool ScintillaSourceView::HasSelection() const { return control_.SendScintilla(Control::SCI_GETSELECTIONEMPTY) == 0; }

SelectionRange ScintillaSourceView::GetSelectionRange() const {
    const int anchor = offsets_.OffsetOf(control_.SendScintilla(Control::SCI_GETANCHOR));
    const int anchorRow = GetRowAt(anchor);
    return {anchor - GetLineStart(anchorRow), anchorRow, CaretColumn(), CaretRow()};
}

void ScintillaSourceView::SelectRange(const SelectionRange& range) {
    Call(*this, [&] {
        control_.SendScintilla(Control::SCI_SETSEL, Word(ByteOf(range.startColumn, range.startRow)),
                               ByteOf(range.endColumn, range.endRow));
    });
}

void ScintillaSourceView::ScrollToPosition(int row, int column) {
    const long position = ByteOf(column, row);
    control_.SendScintilla(Control::SCI_ENSUREVISIBLEENFORCEPOLICY, Word(row));
    control_.SendScintilla(Control::SCI_SCROLLRANGE, Word(position), position);
}

PixelPosition ScintillaSourceView::PositionToPixels(int column, int row) const {
    const long position = ByteOf(column, row);
    return {static_cast<int>(control_.SendScintilla(Control::SCI_POINTXFROMPOSITION, 0UL, position)),
            static_cast<int>(control_.SendScintilla(Control::SCI_POINTYFROMPOSITION, 0UL, position))};
}

PixelPosition ScintillaSourceView::ClientToScreen(PixelPosition position) const {
    const QPoint place = control_.viewport()->mapToGlobal(QPoint(position.x, position.y));
    return {place.x(), place.y()};
}

int ScintillaSourceView::CharWidth() const {
    return static_cast<int>(control_.SendScintilla(Control::SCI_TEXTWIDTH, Word(Control::STYLE_DEFAULT), "0"));
}

int ScintillaSourceView::LineHeight() const {
    return static_cast<int>(control_.SendScintilla(Control::SCI_TEXTHEIGHT, 0UL));
}

// Tokens.

void ScintillaSourceView::SetLex(std::unique_ptr<LexClass> lex) {
    tokens_.SetLex(std::move(lex));
    Recolor();
}

std::int32_t ScintillaSourceView::GetLineData(int row, [[maybe_unused]] int slot) const {
    return static_cast<std::int32_t>(control_.SendScintilla(Control::SCI_GETLINESTATE, Word(row)));
}

void ScintillaSourceView::SetLineData(int row, [[maybe_unused]] int slot, std::int32_t value) {
    control_.SendScintilla(Control::SCI_SETLINESTATE, Word(row), static_cast<long>(value));
}

void ScintillaSourceView::ScanStale() {
    if (tokens_.IsUpToDate())
        return;
    const auto styleTheRest = [this] {
        // The rows that weren't scanned have their styles still.
        control_.SendScintilla(Control::SCI_STARTSTYLING, Word(control_.SendScintilla(Control::SCI_GETLENGTH)), 0L);
    };
    try {
        tokens_.Scan(
            *this, [this](int row) { return GetLine(row); }, [this](int row) { StyleRow(row); });
    } catch (const OverflowFailure&) {
        styleTheRest();
        throw;
    }
    styleTheRest();
}

void ScintillaSourceView::StyleRow(int row) {
    const long start = LineStartByte(row);
    const auto length = static_cast<std::size_t>(LineStartByte(row + 1) - start);
    std::string styles(length, '\0');
    const Text line = GetLine(row);
    std::size_t at = 0;
    int unit = 0;
    for (const LexToken& token : tokens_.TokensOf(row)) {
        at += Utf8Length(
            TextView(line).substr(static_cast<std::size_t>(unit), static_cast<std::size_t>(token.start - unit)));
        const std::size_t bytes = Utf8Length(
            TextView(line).substr(static_cast<std::size_t>(token.start), static_cast<std::size_t>(token.length)));
        std::fill_n(styles.begin() + static_cast<std::ptrdiff_t>(at), bytes,
                    static_cast<char>(ScintillaStyles::StyleNumber(token.type)));
        at += bytes;
        unit = token.start + token.length;
    }
    control_.SendScintilla(Control::SCI_STARTSTYLING, Word(start), 0L);
    control_.SendScintilla(Control::SCI_SETSTYLINGEX, styles.size(), styles.data());
}

TokenInfo ScintillaSourceView::GetTokenInfo(int column, int row) {
    ScanStale();
    return tokens_.TokenAt(column, row);
}

void ScintillaSourceView::Recolor() {
    tokens_.Reset(NumLines());
    ScanStale();
    control_.update();
}

// Commands.

void ScintillaSourceView::CutSelection() {
    Call(*this, [this] { control_.cut(); });
}

void ScintillaSourceView::CopySelection() { control_.copy(); }

void ScintillaSourceView::ClearSelection() {
    if (HasSelection())
        Call(*this, [this] { control_.SendScintilla(Control::SCI_CLEAR); });
}

void ScintillaSourceView::PasteClipboard() {
    Call(*this, [this] { control_.paste(); });
}

void ScintillaSourceView::FindDialog() { findBar_->Open(FindBar::Mode::Find); }

void ScintillaSourceView::ReplaceDialog() { findBar_->Open(FindBar::Mode::Replace); }

void ScintillaSourceView::FindNext() { findBar_->FindNext(); }

void ScintillaSourceView::ExecuteCommand(SourceCommand command) { IndentSelectedRows(*this, command); }

void ScintillaSourceView::PrintBuffer() {
    QsciPrinter printer;
    printer.setPageLayout(ChosenPageLayout());
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        PrintTo(printer);
}

void ScintillaSourceView::PrintTo(QsciPrinter& printer) { printer.printRange(&control_); }

void ScintillaSourceView::FreezeRedraw() {
    control_.setUpdatesEnabled(false);
    ++frozen_;
}

void ScintillaSourceView::ThawRedraw() {
    if (--frozen_ == 0)
        control_.setUpdatesEnabled(true);
}

// What is told.

void ScintillaSourceView::Tell() {
    if (callDepth_ > 0)
        return;
    if (std::exchange(isModified_, false) && events_ != nullptr)
        events_->TextChanged();
    TellSelection();
}

void ScintillaSourceView::TellChangeOfOtherKind() {
    const bool isModified = isModified_;
    Tell();
    if (isModified && events_ != nullptr)
        events_->ChangedOtherwise();
}

void ScintillaSourceView::TellSelection() {
    const long anchor = control_.SendScintilla(Control::SCI_GETANCHOR);
    const long caret = control_.SendScintilla(Control::SCI_GETCURRENTPOS);
    // A change in front of the caret may move it to another row at the same place of the text, or the other way round.
    const SelectionRange range = GetSelectionRange();
    const bool isNew = anchor != toldAnchor_ || caret != toldCaret_ || range != toldRange_;
    toldAnchor_ = anchor;
    toldCaret_ = caret;
    toldRange_ = range;
    if (isNew && events_ != nullptr)
        events_->SelectionChanged(range.endColumn, range.endRow);
}

void ScintillaSourceView::KeyPressing(const QKeyEvent& event) {
    if (events_ == nullptr)
        return;
    const int code = KeyCodeOf(event);
    codesOfPressedKeys_[event.key()] = code;
    events_->KeyPressedDown(code, ShiftStateOf(event.modifiers()));
    for (const QChar unit : IsControlWithSpace(event) ? QString() : event.text())
        events_->CharacterTyped(unit.unicode());
    ++callDepth_;
}

void ScintillaSourceView::KeyPressed() {
    callDepth_ = std::max(callDepth_ - 1, 0);
    Tell();
}

void ScintillaSourceView::KeyReleasedBy(const QKeyEvent& event) {
    if (events_ == nullptr)
        return;
    // The code is that of the press: with Shift released first the same key would give another character.
    const auto pressed = codesOfPressedKeys_.extract(event.key());
    events_->KeyReleased(pressed ? pressed.mapped() : KeyCodeOf(event), ShiftStateOf(event.modifiers()));
}

void ScintillaSourceView::MousePressing(const QMouseEvent& event) {
    if (events_ != nullptr)
        events_->MousePressed(ButtonOf(event), ShiftStateOf(event.modifiers()), PlaceOf(event));
}

void ScintillaSourceView::MouseReleasedBy(const QMouseEvent& event) {
    if (events_ == nullptr)
        return;
    events_->MouseReleased(ButtonOf(event), ShiftStateOf(event.modifiers()), PlaceOf(event));
    if (event.button() == Qt::LeftButton)
        events_->SelectionChanged(CaretColumn(), CaretRow());
}

void ScintillaSourceView::Touched() { TellChangeOfOtherKind(); }

void ScintillaSourceView::LookChanged() { styles_.ApplyPalette(); }

}  // namespace tintora
