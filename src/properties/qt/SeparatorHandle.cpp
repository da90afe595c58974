#include "properties/qt/SeparatorHandle.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace tintora {

namespace {

constexpr int KeyStep = 12;

}  // namespace

SeparatorHandle::SeparatorHandle(QSplitter* parent) : QSplitterHandle(Qt::Vertical, parent) {
    setAccessibleName(QStringLiteral("Boundary between properties and editor"));
    setFocusPolicy(Qt::TabFocus);
}

void SeparatorHandle::Drag(int offset) { moveSplitter(y() + offset); }

void SeparatorHandle::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Up: Drag(-KeyStep); break;
        case Qt::Key_Down: Drag(KeyStep); break;
        default: QSplitterHandle::keyPressEvent(event);
    }
}

void SeparatorHandle::paintEvent(QPaintEvent* event) {
    QSplitterHandle::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Window);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void SeparatorHandle::focusInEvent(QFocusEvent*) { update(); }

void SeparatorHandle::focusOutEvent(QFocusEvent*) { update(); }

SeparatorSplitter::SeparatorSplitter(QWidget* parent) : QSplitter(Qt::Vertical, parent) {
    setChildrenCollapsible(false);
}

}  // namespace tintora
