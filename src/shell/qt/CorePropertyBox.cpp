#include "shell/qt/CorePropertyBox.h"

#include "properties/qt/ControlLayout.h"
#include "properties/qt/HistoryKeys.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QStringListModel>
#include <QStyleOptionComboBox>
#include <algorithm>
#include <utility>

namespace tintora {

namespace {

constexpr int MostRows = 16;

/// Whether the focus comes back by itself.
bool IsForAWhile(Qt::FocusReason reason) {
    return reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason || reason == Qt::ActiveWindowFocusReason;
}

}  // namespace

CorePropertyBox::CorePropertyBox(const QString& sample, QWidget* parent)
    : QComboBox(parent), sample_(sample), words_(new QStringListModel(this)) {
    setModel(words_);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    // It would show more than was typed, and thus more than was written.
    setCompleter(nullptr);
    setMaxVisibleItems(MostRows);
    // The wheel doesn't give the focus.
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(lineEdit(), &QLineEdit::textEdited, this, &CorePropertyBox::ReportChange);
    connect(this, &QComboBox::activated, this, [this] {
        // The beginning of a long text says more than its end.
        lineEdit()->home(false);
        ReportChange();
    });
}

CorePropertyBox::Hand CorePropertyBox::PresentHand() const {
    const QLineEdit& field = *lineEdit();
    const int selected = static_cast<int>(field.selectedText().size());
    const bool isForward = field.cursorPosition() == field.selectionEnd();
    return {field.text(), field.cursorPosition(), isForward ? -selected : selected};
}

void CorePropertyBox::PutBack(const Hand& hand) {
    setCurrentIndex(findText(hand.text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(hand.text);
    knownText_ = hand.text;
    if (hand.selected == 0)
        lineEdit()->setCursorPosition(hand.caret);
    else
        lineEdit()->setSelection(hand.caret + hand.selected, -hand.selected);
}

void CorePropertyBox::ClearText() {
    if (isGuarded_)
        return;
    if (hasFocus() && !currentText().isEmpty())
        inHand_ = PresentHand();
    PutBack({});
}

void CorePropertyBox::ShowText(const QString& text) {
    const bool isAsBefore = std::exchange(documentText_, text) == text;
    if (isGuarded_)
        return;
    const std::optional<Hand> hand = std::exchange(inHand_, std::nullopt);
    const bool isSame = hand && (isAsBefore || hand->text.trimmed() == text);
    PutBack(isSame ? *hand : Hand{text});
}

void CorePropertyBox::ShowList(const QStringList& words) {
    if (isGuarded_ || view()->isVisible() || words_->stringList() == words)
        return;
    const Hand hand = PresentHand();
    words_->setStringList(words);
    PutBack(hand);
}

void CorePropertyBox::ReportChange() {
    const QString before = std::exchange(knownText_, currentText());
    inHand_.reset();
    if (knownText_.trimmed() != before.trimmed())
        Report();
}

void CorePropertyBox::Report() {
    if (isGuarded_)
        return;
    const Hand hand = PresentHand();
    const bool hadFocus = hasFocus();
    {
        const QScopedValueRollback guard(isGuarded_, true);
        Q_EMIT TextChanged(hand.text.trimmed());
    }
    // The change may have ended the rule.
    if (!isEnabled()) {
        ClearText();
    } else if (hadFocus && !hasFocus()) {
        setFocus(Qt::OtherFocusReason);
        PutBack(hand);
    }
}

QSize CorePropertyBox::sizeHint() const {
    ensurePolished();
    QStyleOptionComboBox option;
    initStyleOption(&option);
    // The field keeps two pixels at each side, and the caret takes one.
    constexpr int FieldMargins = 5;
    const QSize content(fontMetrics().horizontalAdvance(sample_) + FieldMargins, QComboBox::sizeHint().height());
    const int width = style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this).width();
    return {width, QComboBox::sizeHint().height()};
}

void CorePropertyBox::showPopup() {
    WidenList(*this);
    QComboBox::showPopup();
}

bool CorePropertyBox::event(QEvent* event) { return !LeavesHistoryToTheText(*event) && QComboBox::event(event); }

void CorePropertyBox::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter || event->key() == Qt::Key_Escape)
        Q_EMIT Left();
    else
        QComboBox::keyPressEvent(event);
}

void CorePropertyBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void CorePropertyBox::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    if (IsForAWhile(event->reason()))
        return;
    inHand_.reset();
    lineEdit()->home(false);
}

}  // namespace tintora
