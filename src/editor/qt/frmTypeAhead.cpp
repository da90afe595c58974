#include "editor/qt/frmTypeAhead.h"

#include "editor/TypeAheadList.h"
#include "text/Whitespace.h"
#include "text/qt/QtText.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace tintora {

namespace {

constexpr int FontSize = 8;
constexpr int EdgeWidth = 1;
constexpr int LeastWidth = 120;
constexpr int MostWidth = 480;

/// The code of the character that a key gives; 0 for none.
char16_t CharacterCodeOf(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Backspace: return u'\b';
        case Qt::Key_Tab: return u'\t';
        case Qt::Key_Clear: return u'\f';
        case Qt::Key_Return:
        case Qt::Key_Enter: return u'\r';
        case Qt::Key_Escape: return u'\x1B';
        default: return event.text().isEmpty() ? u'\0' : event.text().at(0).unicode();
    }
}

int PixelsAround(int twips) { return (twips + TwipsPerPixel - 1) / TwipsPerPixel; }

}  // namespace

frmTypeAhead::frmTypeAhead(QWidget& text, int lineHeight, OnChosen onChosen)
    : QWidget(&text, Qt::Popup | Qt::FramelessWindowHint),
      text_(text),
      lineHeight_(lineHeight),
      onChosen_(std::move(onChosen)),
      typeAheadList_(new QListWidget(this)) {
    setObjectName(QStringLiteral("frmTypeAhead"));
    setAttribute(Qt::WA_DeleteOnClose);
    SetUpList();
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive)
            close();
    });
}

void frmTypeAhead::SetUpList() {
    QListWidget& list = *typeAheadList_;
    list.setObjectName(QStringLiteral("TypeAheadList"));
    list.setAccessibleName(QStringLiteral("Suggestions"));
    QFont font = list.font();
    font.setPointSize(FontSize);
    list.setFont(font);
    list.setFrameStyle(QFrame::Box | QFrame::Plain);
    list.setLineWidth(EdgeWidth);
    // The edge is drawn in this colour; the text's own would be too loud.
    QPalette palette = list.palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::PlaceholderText));
    list.setPalette(palette);
    list.setUniformItemSizes(true);
    list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list.installEventFilter(this);
    connect(&list, &QListWidget::itemClicked, this, &frmTypeAhead::ReturnTypeAheadChoice);
    setFocusProxy(&list);
}

void frmTypeAhead::GetTypeAheadValue(const Texts& list, TextView partial, int top, int left) {
    currentValue_ = StripLeftWhitespace(partial);
    typeAheadList_->clear();
    for (const Text& item : list)
        typeAheadList_->addItem(ToQString(item));
    SelectChoice();
    PlaceAt(top, left);
    show();
    typeAheadList_->setFocus(Qt::PopupFocusReason);
}

void frmTypeAhead::SelectChoice() {
    Texts rows;
    for (int row = 0; row < typeAheadList_->count(); ++row)
        rows.push_back(ToText(typeAheadList_->item(row)->text()));
    typeAheadList_->clear();
    for (const Text& row : RowsToShow(rows, currentValue_))
        typeAheadList_->addItem(ToQString(row));
    typeAheadList_->setCurrentRow(0);
    SizeListBox();
}

void frmTypeAhead::SizeListBox() {
    QListWidget& list = *typeAheadList_;
    const int rowHeight = std::max(list.sizeHintForRow(0), list.fontMetrics().height());
    const int height = PixelsAround(TypeAheadFormHeight(rowHeight * TwipsPerPixel, list.count()));
    // A list that is as high as its rows may lack a pixel for all of them.
    const bool scrolls = list.count() * rowHeight > height - 2 * EdgeWidth + rowHeight / 2;
    list.setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    const int scrollBarWidth = scrolls ? list.verticalScrollBar()->sizeHint().width() : 0;
    const int width = list.sizeHintForColumn(0) + scrollBarWidth + 2 * EdgeWidth;
    resize(std::clamp(width, LeastWidth, MostWidth), height);
}

void frmTypeAhead::PlaceAt(int top, int left) {
    const QScreen* const screenOfCaret = QGuiApplication::screenAt(QPoint(left, top - lineHeight_));
    const QRect area = (screenOfCaret == nullptr ? text_.screen() : screenOfCaret)->availableGeometry();
    const int mostLeft = std::max(area.x() + area.width() - width(), area.x());
    const int mostTop = std::max(area.y() + area.height() - height(), area.y());
    const int wantedTop = top <= mostTop ? top : top - lineHeight_ - height();
    move(std::clamp(left, area.x(), mostLeft), std::clamp(wantedTop, area.y(), mostTop));
}

bool frmTypeAhead::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate)
        close();
    return QWidget::event(event);
}

bool frmTypeAhead::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // No key is a command of the window while the list has the focus.
            event->accept();
            return true;
        case QEvent::KeyPress: return HandleKey(static_cast<const QKeyEvent&>(*event));
        case QEvent::FocusOut: close(); break;
        default: break;
    }
    return QWidget::eventFilter(watched, event);
}

bool frmTypeAhead::HandleKey(const QKeyEvent& event) {
    switch (TypeAheadListKeyOf(CharacterCodeOf(event))) {
        case TypeAheadListKey::Closes: close(); return true;
        case TypeAheadListKey::Chooses: ReturnTypeAheadChoice(); return true;
        case TypeAheadListKey::IsTheLists: break;
    }
    return false;
}

void frmTypeAhead::ReturnTypeAheadChoice() {
    const QListWidgetItem* const selected = typeAheadList_->currentItem();
    const Text choice = selected == nullptr ? Text() : ToText(selected->text());
    // What the choice brings about may fail; the list is closed by then.
    close();
    onChosen_(choice);
}

// Without a layout, which would hold to the least height that a list asks for.
void frmTypeAhead::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    typeAheadList_->setGeometry(rect());
}

void frmTypeAhead::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    text_.setFocus(Qt::PopupFocusReason);
}

}  // namespace tintora
