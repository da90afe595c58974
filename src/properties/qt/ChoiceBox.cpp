#include "properties/qt/ChoiceBox.h"

#include "properties/qt/BadValueMark.h"
#include "properties/qt/ChoiceModel.h"
#include "properties/qt/ControlLayout.h"
#include "properties/qt/FilteredField.h"
#include "properties/qt/HistoryKeys.h"
#include "text/qt/QtText.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <algorithm>
#include <utility>

namespace tintora {

namespace {

constexpr int MostRows = 16;

/// Whether the focus comes back by itself.
bool IsForAWhile(const QFocusEvent& event) {
    return event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason;
}

}  // namespace

ChoiceBox::ChoiceBox(Kind kind, const QString& name, const QString& sample, const QString& least, QWidget* parent)
    : QComboBox(parent), sample_(sample), least_(least), model_(new ChoiceModel(this)) {
    setObjectName(name);
    setModel(model_);
    setMaxVisibleItems(MostRows);
    // The wheel doesn't give the focus.
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (kind == Kind::Editable) {
        setEditable(true);
        setInsertPolicy(QComboBox::NoInsert);
        setCompleter(nullptr);
        connect(lineEdit(), &QLineEdit::textEdited, this, &ChoiceBox::Typed);
    }
    connect(this, &QComboBox::activated, this, [this](int index) {
        // The toolkit chooses an entry whose text was typed when the field is left.
        if (isLeaving_)
            return;
        if (isEditable())
            lineEdit()->home(false);
        Q_EMIT Chosen(index);
    });
}

void ChoiceBox::ShowText(const ChoiceList& list, TextView text) {
    if (IsListOpen()) {
        waiting_ = Shown{list, Text(text)};
        return;
    }
    waiting_.reset();
    const QSignalBlocker blocker(this);
    const Text before = ShownText();
    const int caret = isEditable() ? lineEdit()->cursorPosition() : 0;
    const int present = currentIndex();
    model_->Offer(list.Entries());
    const bool isChosen = list.Chosen() != ChoiceList::None && list.ChosenText() == text;
    const std::size_t place = isChosen ? list.Chosen() : list.Find(text);
    const int first = place == ChoiceList::None ? -1 : static_cast<int>(place);
    // Of equal entries the one that was chosen stays, or the arrow keys wouldn't get past them.
    const bool isEqual = present >= 0 && present < count() && EntryAt(present) == text;
    ShowIndexAndText(isEqual ? present : first, ToQString(text));
    if (isEditable() && ShownText() == before)
        lineEdit()->setCursorPosition(caret);
}

void ChoiceBox::ShowIndexAndText(int index, const QString& text) {
    const bool isThere = isEditable() && lineEdit()->text() == text;
    // Choosing nothing would empty the field, and lose its caret.
    if (currentIndex() != index && !(isThere && index < 0))
        setCurrentIndex(index);
    if (!isEditable() || isThere)
        return;
    if (lineEdit()->text() != text)
        setEditText(text);
    // The beginning of a long text says more than its end.
    lineEdit()->home(false);
}

Text ChoiceBox::EntryAt(int index) const {
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < model_->Entries().size() ? model_->Entries()[place] : Text();
}

Text ChoiceBox::ShownText() const { return isEditable() ? ToText(lineEdit()->text()) : EntryAt(currentIndex()); }

bool ChoiceBox::IsListOpen() const { return openList_ != nullptr && openList_->isVisible(); }

void ChoiceBox::showPopup() {
    WidenList(*this);
    openList_ = view();
    if (count() > 0)
        Q_EMIT ListHasDroppedDown();
    QComboBox::showPopup();
    view()->window()->installEventFilter(this);
}

// The desktop closes lists, too.
bool ChoiceBox::eventFilter(QObject* watched, QEvent* event) {
    // The choice is still to be told, by its place in the list that was open.
    if (event->type() == QEvent::Hide && waiting_)
        QMetaObject::invokeMethod(this, &ChoiceBox::ShowWaiting, Qt::QueuedConnection);
    return QComboBox::eventFilter(watched, event);
}

void ChoiceBox::ShowWaiting() {
    if (const std::optional<Shown> shown = std::exchange(waiting_, std::nullopt))
        ShowText(shown->list, shown->text);
}

void ChoiceBox::MarkBad(bool isBad) {
    if (isBad_ == isBad)
        return;
    isBad_ = isBad;
    setAccessibleDescription(BadValueDescription(isBad));
    ShowMark();
}

void ChoiceBox::ShowMark() {
    if (isEditable())
        lineEdit()->setPalette(isBad_ ? WithBadText(QPalette()) : QPalette());
    update();
}

// The field takes over what is new in the palette of its box.
void ChoiceBox::changeEvent(QEvent* event) {
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isBad_)
        QMetaObject::invokeMethod(this, &ChoiceBox::ShowMark, Qt::QueuedConnection);
}

void ChoiceBox::paintEvent(QPaintEvent* event) {
    if (isEditable())
        QComboBox::paintEvent(event);
    else
        PaintFixed();
    if (isBad_ && NeedsBadFrame(palette().color(isEditable() ? QPalette::Base : QPalette::Button)))
        DrawBadFrame(*this);
}

// The toolkit would cut a text off, and colour the arrow too.
void ChoiceBox::PaintFixed() {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    if (isBad_)
        option.palette = WithBadText(option.palette);
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, field.width());
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

QSize ChoiceBox::SizeFor(const QString& sample) const {
    ensurePolished();
    QStyleOptionComboBox option;
    initStyleOption(&option);
    // The field keeps two pixels at each side, and the caret takes one.
    constexpr int FieldMargins = 5;
    const QSize content(fontMetrics().horizontalAdvance(sample) + FieldMargins, std::max(fontMetrics().height(), 14));
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this);
}

void ChoiceBox::NoteTextWritten() {
    if (isEditable())
        lineEdit()->setModified(false);
}

bool ChoiceBox::event(QEvent* event) {
    const bool isBeingTyped = isEditable() && lineEdit()->isModified();
    return (isBeingTyped || !LeavesHistoryToTheText(*event)) && QComboBox::event(event);
}

void ChoiceBox::keyPressEvent(QKeyEvent* event) {
    // A fixed list would look for an entry that begins with the key.
    const bool isForClipboard = !isEditable() && FilteredField::ClipboardCode(*event) != 0;
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && isEditable()) {
        event->accept();
        Q_EMIT Entered();
    } else if (isEnter || event->key() == Qt::Key_Escape || isForClipboard) {
        event->ignore();
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void ChoiceBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void ChoiceBox::focusInEvent(QFocusEvent* event) {
    QComboBox::focusInEvent(event);
    if (!IsForAWhile(*event))
        Q_EMIT FocusHasCome();
}

void ChoiceBox::focusOutEvent(QFocusEvent* event) {
    {
        const QScopedValueRollback leaving(isLeaving_, true);
        QComboBox::focusOutEvent(event);
    }
    if (!IsForAWhile(*event))
        Q_EMIT FocusHasGone();
}

}  // namespace tintora
