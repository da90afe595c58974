#include "shell/qt/options/FormattingEditor.h"

#include "document/FormattingSample.h"
#include "editor/qt/KeyCodes.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace tintora {

namespace {

int SampleKeyCode(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Tab: return sample_key::Tab;
        case Qt::Key_Return:
        case Qt::Key_Enter: return sample_key::Return;
        case Qt::Key_Left: return sample_key::FirstArrow;
        case Qt::Key_Up: return sample_key::FirstArrow + 1;
        case Qt::Key_Right: return sample_key::FirstArrow + 2;
        case Qt::Key_Down: return sample_key::LastArrow;
        default: return KeyCodeOf(event);
    }
}

/// Keys that belong to the form: those that go from tab to tab.
bool IsKeyOfForm(const QKeyEvent& event) {
    const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    return isTab && event.modifiers().testFlag(Qt::ControlModifier);
}

bool LeavesBackwards(const QKeyEvent& event) {
    return event.key() == Qt::Key_Backtab ||
           (event.key() == Qt::Key_Tab && event.modifiers().testFlag(Qt::ShiftModifier));
}

SampleSelection SelectionOf(const ScintillaSourceView& view) {
    const SelectionRange range = view.GetSelectionRange();
    const SourceBuffer& buffer = view.Buffer();
    return {buffer.GetLineStart(range.startRow) + range.startColumn,
            buffer.GetLineStart(range.endRow) + range.endColumn};
}

}  // namespace

FormattingEditor::FormattingEditor(const QString& name, QWidget* parent) : StyleSheetSample(name, parent) {
    // A Tab is a tab also where it would indent.
    View().Control().setTabIndents(false);
    View().Control().setWhitespaceVisibility(QsciScintilla::WsVisible);
    ShowWhitespace();
}

void FormattingEditor::LoadSample(TextView sample) {
    SetText(sample);
    View().Control().setEolMode(QsciScintilla::EolMac);
}

void FormattingEditor::changeEvent(QEvent* event) {
    StyleSheetSample::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ShowWhitespace();
}

void FormattingEditor::ShowWhitespace() {
    View().Control().setWhitespaceForegroundColor(palette().color(QPalette::PlaceholderText));
}

bool FormattingEditor::InterceptKey(QKeyEvent& event) {
    // Shift with Tab moves the focus, since the control holds a text that it must not change.
    if (isKeyActing_ || LeavesBackwards(event))
        return false;
    if (StyleSheetSample::InterceptKey(event))
        return true;
    if (IsKeyOfForm(event)) {
        event.ignore();
        return true;
    }
    if (MayKeyActInSample(View().GetText(), SelectionOf(View()), SampleKeyCode(event), ShiftStateOf(event.modifiers())))
        LetKeyAct(event);
    event.accept();
    return true;
}

void FormattingEditor::LetKeyAct(QKeyEvent& event) {
    const Writing writing(*this);
    const QScopedValueRollback acting(isKeyActing_, true);
    QCoreApplication::sendEvent(&View().Control(), &event);
}

void FormattingEditor::FocusLeaves() {
    const int column = View().CaretColumn();
    const int row = View().CaretRow();
    View().SelectRange({column, row, column, row});
}

}  // namespace tintora
