#include "properties/qt/FilteredField.h"

#include "properties/qt/BadValueMark.h"
#include "properties/qt/ControlLayout.h"
#include "properties/qt/HistoryKeys.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QStyleOptionFrame>
#include <algorithm>

namespace tintora {

namespace {

constexpr char16_t SelectAllCode = 1;
constexpr char16_t CopyCode = 3;
constexpr char16_t PasteCode = 22;
constexpr char16_t CutCode = 24;

struct CodeOfKey {
    QKeySequence::StandardKey key;
    char16_t code;
};

/// Other keys than Ctrl and a letter may stand for these, too.
constexpr CodeOfKey CodesOfKeys[] = {
    {QKeySequence::SelectAll, SelectAllCode},
    {QKeySequence::Copy, CopyCode},
    {QKeySequence::Paste, PasteCode},
    {QKeySequence::Cut, CutCode},
};

bool IsClipboardKey(FieldKey key) { return key != FieldKey::Passes && key != FieldKey::IsDropped; }

}  // namespace

FilteredField::FilteredField(const QString& name, Judge judge, const QString& sample, const QString& least,
                             QWidget* parent)
    : QLineEdit(parent), judge_(judge), sample_(sample), least_(least) {
    setObjectName(name);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (TellsClipboard()) {
        setAcceptDrops(false);
        setDragEnabled(false);
    }
}

bool FilteredField::TellsClipboard() const noexcept { return judge_(PasteCode) == FieldKey::Pastes; }

void FilteredField::ShowText(TextView text) { ShowFieldText(*this, text); }

void FilteredField::MarkBad(bool isBad) {
    if (isBad_ == isBad)
        return;
    isBad_ = isBad;
    setAccessibleDescription(BadValueDescription(isBad));
    setPalette(isBad ? WithBadText(QPalette()) : QPalette());
}

char16_t FilteredField::ClipboardCode(QKeyEvent& event) {
    for (const CodeOfKey& row : CodesOfKeys) {
        if (event.matches(row.key))
            return row.code;
    }
    return 0;
}

FieldKey FilteredField::JudgeKey(QKeyEvent& event) const {
    if (const char16_t code = ClipboardCode(event); code != 0)
        return judge_(code);
    const bool isShortcut = event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::MetaModifier);
    for (const QChar unit : event.text()) {
        const FieldKey key = judge_(unit.unicode());
        if (IsClipboardKey(key) || (key == FieldKey::IsDropped && !isShortcut))
            return key;
    }
    return FieldKey::Passes;
}

bool FilteredField::event(QEvent* event) { return !LeavesHistoryToTheText(*event) && QLineEdit::event(event); }

void FilteredField::keyPressEvent(QKeyEvent* event) {
    const FieldKey key = JudgeKey(*event);
    if (key == FieldKey::Passes) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    event->accept();
    if (IsClipboardKey(key))
        Q_EMIT KeyWasTold(key);
}

void FilteredField::inputMethodEvent(QInputMethodEvent* event) {
    QString taken = event->commitString();
    taken.removeIf([this](QChar unit) { return judge_(unit.unicode()) != FieldKey::Passes; });
    if (taken != event->commitString())
        event->setCommitString(taken, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(event);
}

void FilteredField::contextMenuEvent(QContextMenuEvent* event) {
    if (!TellsClipboard()) {
        QLineEdit::contextMenuEvent(event);
        return;
    }
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& text, const QString& icon, FieldKey key, bool isEnabled) {
        QAction* const action = menu->addAction(QIcon::fromTheme(icon), text);
        action->setEnabled(isEnabled);
        connect(action, &QAction::triggered, this, [this, key] { Q_EMIT KeyWasTold(key); });
    };
    add(QStringLiteral("Cu&t"), QStringLiteral("edit-cut"), FieldKey::Cuts, hasSelectedText());
    add(QStringLiteral("&Copy"), QStringLiteral("edit-copy"), FieldKey::Copies, hasSelectedText());
    add(QStringLiteral("&Paste"), QStringLiteral("edit-paste"), FieldKey::Pastes, true);
    menu->addSeparator();
    add(QStringLiteral("Select &All"), QStringLiteral("edit-select-all"), FieldKey::SelectsAll, !text().isEmpty());
    menu->popup(event->globalPos());
}

void FilteredField::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::MiddleButton || !TellsClipboard())
        QLineEdit::mouseReleaseEvent(event);
    Q_EMIT MouseWasReleased();
}

void FilteredField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::MenuBarFocusReason)
        Q_EMIT FocusHasCome();
}

void FilteredField::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (isBad_ && NeedsBadFrame(palette().color(QPalette::Base)))
        DrawBadFrame(*this);
}

QSize FilteredField::SizeFor(const QString& sample) const {
    ensurePolished();
    QStyleOptionFrame option;
    initStyleOption(&option);
    // Two pixels at each side, and one for the caret.
    constexpr int FieldMargins = 5;
    const QSize content(fontMetrics().horizontalAdvance(sample) + FieldMargins,
                        std::max(fontMetrics().height(), 14) + 2);
    return style()->sizeFromContents(QStyle::CT_LineEdit, &option, content, this);
}

}  // namespace tintora
