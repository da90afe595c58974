#include "properties/qt/BadValueMark.h"

#include "editor/qt/ReadableColors.h"

#include <QPainter>
#include <QWidget>

namespace tintora {

namespace {

constexpr QColor BadColor(255, 0, 0);

/// That of signs, which are looked for, and not of texts, which are read.
constexpr double LeastContrast = 3;

}  // namespace

QPalette WithBadText(QPalette palette) {
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
        palette.setColor(role, BadColor);
    return palette;
}

bool NeedsBadFrame(const QColor& ground) { return ContrastOf(BadColor, ground) < LeastContrast; }

void DrawBadFrame(QWidget& widget) {
    QPainter painter(&widget);
    painter.setPen(BadColor);
    painter.drawRect(widget.rect().adjusted(0, 0, -1, -1));
}

QString BadValueDescription(bool isBad) { return isBad ? QStringLiteral("Not a valid value") : QString(); }

}  // namespace tintora
