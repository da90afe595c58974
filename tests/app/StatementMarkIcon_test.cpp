#include "selectors/qt/StatementMarkIcon.h"

#include "SelectorPaletteFixture.h"

#include <gtest/gtest.h>
#include <QImage>
#include <algorithm>
#include <array>

namespace tintora::test {
namespace {

constexpr auto Marks =
    std::to_array<StatementMark>({StatementMark::None, StatementMark::Type, StatementMark::Class, StatementMark::ID,
                                  StatementMark::Group, StatementMark::Combination, StatementMark::PseudoClass,
                                  StatementMark::Attribute, StatementMark::AtRule, StatementMark::Comment});

struct GroundCase {
    QColor text;
    QColor ground;
    QColor selectedText;
    QColor selectedGround;
};

const std::vector<GroundCase> Grounds = {
    {QColor(0x11, 0x22, 0x33), Qt::white, QColor(0xff, 0xff, 0xfe), QColor(0x30, 0x8c, 0xc6)},
    {QColor(0xef, 0xf0, 0xf1), QColor(0x23, 0x26, 0x29), QColor(0x10, 0x10, 0x12), QColor(0x3d, 0xae, 0xe9)},
};

QImage Draw(StatementMark mark, QSize size, double ratio = 1, QIcon::Mode mode = QIcon::Normal) {
    return StatementMarkIcon(mark, Qt::red, Qt::blue).pixmap(size, ratio, mode).toImage();
}

/// Whether the image has a pixel of that very colour in the part of it.
bool HasColor(const QImage& image, const QRect& part, const QColor& color) {
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (image.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

class StatementMarkIconTest : public SelectorPaletteTest {};

TEST_F(StatementMarkIconTest, NoMarkLooksLikeAnother) {
    std::vector<QImage> drawn;
    for (const StatementMark mark : Marks) {
        const QImage image = Draw(mark, {16, 16});
        EXPECT_EQ(std::count(drawn.begin(), drawn.end(), image), 0) << static_cast<int>(mark);
        drawn.push_back(image);
    }
}

TEST_F(StatementMarkIconTest, AMarkIsDrawnAnewForEveryPixelRatio) {
    for (const StatementMark mark : Marks) {
        const QImage twice = Draw(mark, {16, 16}, 2);
        EXPECT_EQ(twice.size(), QSize(32, 32));
        EXPECT_NE(twice.convertToFormat(QImage::Format_ARGB32),
                  Draw(mark, {16, 16}).scaled(32, 32).convertToFormat(QImage::Format_ARGB32));
    }
}

TEST_F(StatementMarkIconTest, AMarkLeavesTheEdgeOfItsIconFree) {
    for (const StatementMark mark : Marks) {
        const QImage image = Draw(mark, {16, 16}, 2);
        for (int place = 0; place < 32; ++place) {
            for (const QPoint& edge : {QPoint(place, 0), QPoint(place, 31), QPoint(0, place), QPoint(31, place)})
                ASSERT_EQ(image.pixelColor(edge).alpha(), 0) << static_cast<int>(mark);
        }
    }
}

TEST_F(StatementMarkIconTest, ASelectedMarkHasAColorOfItsOwn) {
    const QRect whole(0, 0, 16, 16);
    EXPECT_TRUE(HasColor(Draw(StatementMark::Class, {16, 16}), whole, Qt::red));
    EXPECT_TRUE(HasColor(Draw(StatementMark::Class, {16, 16}, 1, QIcon::Selected), whole, Qt::blue));
    EXPECT_FALSE(HasColor(Draw(StatementMark::Class, {16, 16}, 1, QIcon::Selected), whole, Qt::red));
}

TEST_F(StatementMarkIconTest, MarksHaveTheColorOfTheTextOnAnyGround) {
    Fill(u".a {} .b {}");
    for (const GroundCase& row : Grounds) {
        QPalette colors = List().palette();
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
            colors.setColor(group, QPalette::Text, row.text);
            colors.setColor(group, QPalette::Base, row.ground);
            colors.setColor(group, QPalette::HighlightedText, row.selectedText);
            colors.setColor(group, QPalette::Highlight, row.selectedGround);
        }
        List().setPalette(colors);
        palette->SelectStatement(2);
        const QImage image = List().viewport()->grab().toImage();
        const auto markOf = [&](int number) {
            QRect place = List().visualItemRect(Row(number));
            place.setWidth(StatementMarkSize);
            return place;
        };
        EXPECT_TRUE(HasColor(image, markOf(1), row.text));
        EXPECT_TRUE(HasColor(image, markOf(2), row.selectedText));
        EXPECT_FALSE(HasColor(image, markOf(2), row.text));
    }
}

}  // namespace
}  // namespace tintora::test
