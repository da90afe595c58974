#include "shell/qt/ColorToolIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <algorithm>

namespace tintora {

namespace {

/// The places in an icon, in its own pixels.
struct Places {
    explicit Places(const QSize& size) {
        const int side = std::min(size.width(), size.height());
        line = std::max(1, side / 16);
        const QPoint corner((size.width() - side) / 2, (size.height() - side) / 2);
        const QRect whole = QRect(corner, QSize(side, side)).adjusted(line, line, -line, -line);
        swatch = whole;
        swatch.setTop(whole.bottom() + 1 - (side + 3) / 4);
        sign = whole;
        sign.setBottom(swatch.top() - line - 1);
    }

    /// The width of edges, and of the gap between the sign and the swatch.
    int line = 1;
    QRect sign;
    QRect swatch;
};

/// A letter "A" from the top of `place` to its bottom.
void DrawLetter(QPainter& painter, const QRectF& place, const QColor& color) {
    const double width = place.height() * 0.14;
    const double half = place.height() * 0.44;
    const double middle = place.center().x();
    const double foot = width / 2;
    const double bar = place.top() + place.height() * 0.68;
    const double barHalf = half * 0.68;
    QPainterPath letter;
    // The legs go on below the place, where they are cut off level.
    const double beyond = half * foot / place.height();
    letter.moveTo(middle - half - beyond, place.bottom() + foot);
    letter.lineTo(middle, place.top() + width);
    letter.lineTo(middle + half + beyond, place.bottom() + foot);
    letter.moveTo(middle - barHalf, bar);
    letter.lineTo(middle + barHalf, bar);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(place);
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawPath(letter);
    painter.restore();
}

void DrawSign(QPainter& painter, ColorToolSign sign, const Places& places, const QColor& ink) {
    constexpr int GroundAlpha = 70;
    QRect letter = places.sign;
    if (sign == ColorToolSign::Ground) {
        QColor ground = ink;
        ground.setAlpha(ground.alpha() * GroundAlpha / 255);
        painter.fillRect(places.sign, ground);
        letter.adjust(places.line, places.line, -places.line, -places.line);
    }
    DrawLetter(painter, letter, ink);
}

void DrawSwatch(QPainter& painter, const Places& places, const QColor& ink, const std::optional<QColor>& color) {
    const QRect& swatch = places.swatch;
    const int line = places.line;
    if (!color) {
        painter.fillRect(swatch.left(), swatch.top() + (swatch.height() - line) / 2, swatch.width(), line, ink);
        return;
    }
    // Framed, so that it shows on a ground of its own colour.
    painter.fillRect(swatch, ink);
    painter.fillRect(swatch.adjusted(line, line, -line, -line), *color);
}

class ColorToolEngine final : public QIconEngine {
  public:
    ColorToolEngine(ColorToolSign sign, const QPalette& palette, const std::optional<QColor>& color)
        : sign_(sign),
          ink_(palette.color(QPalette::Active, QPalette::ButtonText)),
          disabledInk_(palette.color(QPalette::Disabled, QPalette::ButtonText)),
          color_(color) {}

    void paint(QPainter* painter, const QRect& rectangle, QIcon::Mode mode, QIcon::State state) override {
        const double ratio = painter->device()->devicePixelRatioF();
        QPixmap drawn = pixmap((QSizeF(rectangle.size()) * ratio).toSize(), mode, state);
        drawn.setDevicePixelRatio(ratio);
        painter->drawPixmap(rectangle.topLeft(), drawn);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        const QColor& ink = mode == QIcon::Disabled ? disabledInk_ : ink_;
        const Places places(size);
        DrawSign(painter, sign_, places, ink);
        DrawSwatch(painter, places, ink, color_);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new ColorToolEngine(*this); }

  private:
    ColorToolSign sign_;
    QColor ink_;
    QColor disabledInk_;
    std::optional<QColor> color_;
};

}  // namespace

QIcon ColorToolIcon(ColorToolSign sign, const QPalette& palette, const std::optional<QColor>& color) {
    return QIcon(new ColorToolEngine(sign, palette, color));
}

}  // namespace tintora
