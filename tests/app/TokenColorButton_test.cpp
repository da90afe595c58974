#include "shell/qt/options/TokenColorButton.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QColorDialog>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <vector>

namespace tintora {
namespace {

struct ColorCase {
    std::int32_t color;
    const char* text;
};

const std::vector<ColorCase> ColorCases = {
    {-1, "Default"},       {0, "#000000"},        {0xFF, "#ff0000"}, {0xFF00, "#00ff00"},     {0xFF0000, "#0000ff"},
    {0xFFFFFF, "#ffffff"}, {0x030201, "#010203"}, {-2, "#feffff"},   {0x7F000001, "#010000"},
};

class TokenColorButtonTest : public testing::Test {
  protected:
    TokenColorButtonTest() { button.show(); }

    [[nodiscard]] QColorDialog* Dialogue() const { return button.findChild<QColorDialog*>(); }

    TokenColorButton button{QStringLiteral("Text Color"), QPalette::Text};
    QSignalSpy chosen{&button, &TokenColorButton::ColorChosen};
};

TEST_F(TokenColorButtonTest, AColorIsShownByItsSwatchAndItsValue) {
    const int width = button.sizeHint().width();
    for (const ColorCase& row : ColorCases) {
        button.SetColor(row.color);
        EXPECT_EQ(button.Color(), row.color);
        EXPECT_EQ(button.text(), QString::fromUtf8(row.text));
        EXPECT_EQ(button.accessibleDescription(), button.text());
        const QSize size = button.iconSize();
        const QColor center = button.icon().pixmap(size).toImage().pixelColor(size.width() / 2, size.height() / 2);
        const QColor expected = row.color == -1 ? button.palette().color(QPalette::Text) : QColor(row.text);
        EXPECT_EQ(center.name(), expected.name());
        EXPECT_EQ(button.sizeHint().width(), width) << "nothing moves when the colour changes";
    }
    EXPECT_EQ(chosen.size(), 0) << "what the program shows nobody has chosen";
}

TEST_F(TokenColorButtonTest, AChosenColorHasRedInItsLowestByte) {
    button.SetColor(0xA85B80);
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(10, button.height() / 2));
    ASSERT_NE(Dialogue(), nullptr);
    EXPECT_EQ(Dialogue()->windowTitle(), QStringLiteral("Text Color"));
    EXPECT_EQ(Dialogue()->currentColor(), QColor(0x80, 0x5B, 0xA8)) << "it begins with the present colour";
    Dialogue()->setCurrentColor(QColor(1, 2, 3));
    Dialogue()->accept();
    EXPECT_EQ(button.Color(), 0x030201);
    EXPECT_EQ(button.text(), QStringLiteral("#010203"));
    EXPECT_EQ(chosen, (QList<QList<QVariant>>{{0x030201}}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Dialogue() == nullptr; }, 2000));
}

TEST_F(TokenColorButtonTest, ACancelledDialogueChangesNothing) {
    button.SetColor(5);
    button.click();
    ASSERT_NE(Dialogue(), nullptr);
    Dialogue()->setCurrentColor(Qt::red);
    Dialogue()->reject();
    EXPECT_EQ(button.Color(), 5);
    EXPECT_EQ(chosen.size(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Dialogue() == nullptr; }, 2000));
}

TEST_F(TokenColorButtonTest, TheKeyboardReachesTheDefault) {
    button.SetColor(5);
    QTimer::singleShot(0, &button, [] {
        if (QWidget* const popup = QApplication::activePopupWidget())
            QTest::keyClick(popup, Qt::Key_D);
    });
    QTest::keyClick(&button, Qt::Key_Down);
    EXPECT_EQ(button.Color(), -1);
    EXPECT_EQ(button.text(), QStringLiteral("Default"));
    EXPECT_EQ(chosen, (QList<QList<QVariant>>{{-1}}));
}

TEST_F(TokenColorButtonTest, TheKeyboardReachesTheDialogue) {
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_NE(Dialogue(), nullptr);
}

TEST_F(TokenColorButtonTest, TheSwatchOfTheDefaultFollowsThePalette) {
    QPalette palette;
    palette.setColor(QPalette::Text, QColor(1, 100, 200));
    button.setPalette(palette);
    const QSize size = button.iconSize();
    EXPECT_EQ(button.icon().pixmap(size).toImage().pixelColor(size.width() / 2, size.height() / 2),
              QColor(1, 100, 200));
}

}  // namespace
}  // namespace tintora
