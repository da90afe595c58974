#include "shell/qt/ColorToolIcon.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <set>

namespace tintora {
namespace {

struct SizeCase {
    int side;
    double ratio;
};

const std::vector<SizeCase> Sizes = {
    {16, 1}, {16, 1.25}, {16, 1.5}, {16, 2}, {22, 1}, {22, 1.25}, {22, 1.5}, {22, 2}, {22, 3}, {32, 1},
};

const QColor Ink(0x11, 0x22, 0x33);
const QColor DisabledInk(0x99, 0x88, 0x77);
const QColor Swatch(0xaa, 0, 0xbb);

QPalette Colors() {
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::ButtonText, Ink);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, DisabledInk);
    return palette;
}

QImage Draw(ColorToolSign sign, const SizeCase& size, const std::optional<QColor>& color,
            QIcon::Mode mode = QIcon::Normal) {
    QImage image = ColorToolIcon(sign, Colors(), color).pixmap(QSize(size.side, size.side), size.ratio, mode).toImage();
    image.setDevicePixelRatio(1);
    return image;
}

/// The smallest rectangle that holds all pixels of exactly that colour.
QRect PlaceOf(const QImage& image, const QColor& color) {
    QRect place;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                place |= QRect(x, y, 1, 1);
        }
    }
    return place;
}

TEST(ColorToolIcon, TheSwatchHasSharpEdgesAtEveryPixelRatio) {
    for (const SizeCase& row : Sizes) {
        SCOPED_TRACE(testing::Message() << row.side << " at " << row.ratio);
        const QImage image = Draw(ColorToolSign::Letter, row, Swatch);
        const int side = qRound(row.side * row.ratio);
        EXPECT_EQ(image.size(), QSize(side, side));
        const QRect swatch = PlaceOf(image, Swatch);
        EXPECT_GE(swatch.height(), 2);
        EXPECT_GE(swatch.width(), side * 2 / 3);
        const QRect frame = swatch.adjusted(-1, -1, 1, 1);
        for (int y = frame.top(); y <= frame.bottom(); ++y) {
            for (int x = frame.left(); x <= frame.right(); ++x)
                EXPECT_EQ(image.pixelColor(x, y), swatch.contains(x, y) ? Swatch : Ink) << x << ", " << y;
        }
        EXPECT_EQ(swatch.center().x() * 2 + (swatch.width() % 2 == 0 ? 1 : 0), side - 1) << "it stands in the middle";
    }
}

TEST(ColorToolIcon, NothingTouchesTheEdge) {
    for (const SizeCase& row : Sizes) {
        for (const ColorToolSign sign : {ColorToolSign::Letter, ColorToolSign::Ground}) {
            const QImage image = Draw(sign, row, Swatch);
            const int last = image.width() - 1;
            for (int place = 0; place <= last; ++place) {
                for (const QPoint& edge :
                     {QPoint(place, 0), QPoint(place, last), QPoint(0, place), QPoint(last, place)})
                    ASSERT_EQ(image.pixelColor(edge).alpha(), 0) << row.side << " at " << row.ratio;
            }
        }
    }
}

TEST(ColorToolIcon, EveryStateLooksDifferent) {
    std::set<QByteArray> drawn;
    int count = 0;
    for (const ColorToolSign sign : {ColorToolSign::Letter, ColorToolSign::Ground}) {
        for (const std::optional<QColor>& color :
             {std::optional<QColor>(), std::optional(Swatch), std::optional(Ink)}) {
            for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
                const QImage image = Draw(sign, {22, 1}, color, mode).convertToFormat(QImage::Format_ARGB32);
                drawn.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
                ++count;
            }
        }
    }
    EXPECT_EQ(static_cast<int>(drawn.size()), count);
}

TEST(ColorToolIcon, TheSignHasTheColorOfButtons) {
    for (const ColorToolSign sign : {ColorToolSign::Letter, ColorToolSign::Ground}) {
        EXPECT_FALSE(PlaceOf(Draw(sign, {22, 2}, {}), Ink).isEmpty());
        EXPECT_TRUE(PlaceOf(Draw(sign, {22, 2}, {}), DisabledInk).isEmpty());
        EXPECT_TRUE(PlaceOf(Draw(sign, {22, 2}, {}, QIcon::Disabled), Ink).isEmpty());
        EXPECT_FALSE(PlaceOf(Draw(sign, {22, 2}, {}, QIcon::Disabled), DisabledInk).isEmpty());
    }
}

TEST(ColorToolIcon, APainterOfAnotherPixelRatioGetsTheSamePixels) {
    for (const double ratio : {1.0, 2.0}) {
        QPixmap ground(QSize(22, 22) * ratio);
        ground.setDevicePixelRatio(ratio);
        ground.fill(Qt::transparent);
        QPainter painter(&ground);
        ColorToolIcon(ColorToolSign::Ground, Colors(), Swatch).paint(&painter, QRect(0, 0, 22, 22));
        painter.end();
        QImage image = ground.toImage();
        image.setDevicePixelRatio(1);
        const QImage::Format format = QImage::Format_ARGB32;
        EXPECT_EQ(image.convertToFormat(format),
                  Draw(ColorToolSign::Ground, {22, ratio}, Swatch).convertToFormat(format));
    }
}

}  // namespace
}  // namespace tintora
