#include "properties/qt/ColorSwatch.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace tintora {

namespace {

/// Between the edge of the button and its colour.
constexpr int Rim = 4;

}  // namespace

ColorSwatch::ColorSwatch(const QString& name, QWidget* parent) : QToolButton(parent) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
}

void ColorSwatch::SetColor(const QColor& color) {
    if (color_ == color)
        return;
    color_ = color;
    setAccessibleDescription(color.name());
    update();
}

// As high as the fields beside it.
QSize ColorSwatch::sizeHint() const {
    const int side = QToolButton::sizeHint().height();
    return {side, side};
}

void ColorSwatch::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    const QRect inside = rect().adjusted(Rim, Rim, -Rim, -Rim);
    QColor edge = palette().color(QPalette::ButtonText);
    edge.setAlphaF(0.6F);
    painter.fillRect(inside, isEnabled() ? color_ : palette().color(QPalette::Button));
    if (!isEnabled()) {
        painter.setOpacity(0.5);
        painter.fillRect(inside, color_);
    }
    painter.setPen(edge);
    painter.drawRect(inside.adjusted(0, 0, -1, -1));
}

}  // namespace tintora
