#include "selectors/qt/StatementMarkIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <initializer_list>

namespace tintora {

namespace {

/// A mark on a ground of 16 by 16: lines of one width, and dots.
struct Drawing {
    QPainterPath lines;
    QPainterPath dots;
};

void AddLine(QPainterPath& path, std::initializer_list<QPointF> points) {
    path.moveTo(*points.begin());
    for (const QPointF& point : points)
        path.lineTo(point);
}

Drawing DrawType() {
    Drawing drawing;
    AddLine(drawing.lines, {{6, 4.5}, {2.5, 8}, {6, 11.5}});
    AddLine(drawing.lines, {{10, 4.5}, {13.5, 8}, {10, 11.5}});
    return drawing;
}

Drawing DrawClass() {
    Drawing drawing;
    drawing.dots.addEllipse(QPointF(8, 8), 2.25, 2.25);
    return drawing;
}

Drawing DrawID() {
    Drawing drawing;
    AddLine(drawing.lines, {{6.5, 3.5}, {6.5, 12.5}});
    AddLine(drawing.lines, {{9.5, 3.5}, {9.5, 12.5}});
    AddLine(drawing.lines, {{3.5, 6.5}, {12.5, 6.5}});
    AddLine(drawing.lines, {{3.5, 9.5}, {12.5, 9.5}});
    return drawing;
}

Drawing DrawGroup() {
    Drawing drawing;
    AddLine(drawing.lines, {{5.5, 5.5}, {13.5, 5.5}, {13.5, 13.5}, {5.5, 13.5}, {5.5, 5.5}});
    AddLine(drawing.lines, {{2.5, 10.5}, {2.5, 2.5}, {10.5, 2.5}});
    return drawing;
}

Drawing DrawCombination() {
    Drawing drawing;
    AddLine(drawing.lines, {{6, 4}, {10, 8}, {6, 12}});
    return drawing;
}

Drawing DrawPseudoClass() {
    Drawing drawing;
    drawing.dots.addEllipse(QPointF(8, 5), 1.5, 1.5);
    drawing.dots.addEllipse(QPointF(8, 11), 1.5, 1.5);
    return drawing;
}

Drawing DrawAttribute() {
    Drawing drawing;
    AddLine(drawing.lines, {{6.5, 3.5}, {3.5, 3.5}, {3.5, 12.5}, {6.5, 12.5}});
    AddLine(drawing.lines, {{9.5, 3.5}, {12.5, 3.5}, {12.5, 12.5}, {9.5, 12.5}});
    return drawing;
}

Drawing DrawAtRule() {
    Drawing drawing;
    const QRectF ring(2.5, 2.5, 11, 11);
    drawing.lines.addEllipse(QPointF(8, 8), 2.25, 2.25);
    drawing.lines.moveTo(10.25, 5.75);
    drawing.lines.lineTo(10.25, 8.5);
    drawing.lines.cubicTo({10.25, 10.75}, {13.5, 10.75}, {13.5, 8});
    drawing.lines.arcTo(ring, 0, 300);
    return drawing;
}

Drawing DrawComment() {
    Drawing drawing;
    AddLine(drawing.lines,
            {{5.5, 10.5}, {2.5, 10.5}, {2.5, 3.5}, {13.5, 3.5}, {13.5, 10.5}, {8.5, 10.5}, {5.5, 13.5}, {5.5, 10.5}});
    return drawing;
}

Drawing DrawNone() {
    Drawing drawing;
    drawing.lines.addEllipse(QPointF(8, 8), 2, 2);
    return drawing;
}

Drawing DrawingOf(StatementMark mark) {
    switch (mark) {
        case StatementMark::Type: return DrawType();
        case StatementMark::Class: return DrawClass();
        case StatementMark::ID: return DrawID();
        case StatementMark::Group: return DrawGroup();
        case StatementMark::Combination: return DrawCombination();
        case StatementMark::PseudoClass: return DrawPseudoClass();
        case StatementMark::Attribute: return DrawAttribute();
        case StatementMark::AtRule: return DrawAtRule();
        case StatementMark::Comment: return DrawComment();
        case StatementMark::None: break;
    }
    return DrawNone();
}

class MarkEngine final : public QIconEngine {
  public:
    MarkEngine(StatementMark mark, const QColor& color, const QColor& selectedColor)
        : mark_(mark), color_(color), selectedColor_(selectedColor) {}

    void paint(QPainter* painter, const QRect& rectangle, QIcon::Mode mode, QIcon::State) override {
        const QColor color = mode == QIcon::Selected ? selectedColor_ : color_;
        const Drawing drawing = DrawingOf(mark_);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rectangle.topLeft());
        painter->scale(rectangle.width() / qreal(StatementMarkSize), rectangle.height() / qreal(StatementMarkSize));
        painter->setPen(QPen(color, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(drawing.lines);
        painter->fillPath(drawing.dots, color);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect({0, 0}, size), mode, state);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new MarkEngine(*this); }

  private:
    StatementMark mark_;
    QColor color_;
    QColor selectedColor_;
};

}  // namespace

QIcon StatementMarkIcon(StatementMark mark, const QColor& color, const QColor& selectedColor) {
    return QIcon(new MarkEngine(mark, color, selectedColor));
}

}  // namespace tintora
