#include "CorePropertiesBarFixture.h"
#include "language/Vocabulary.h"

#include <gtest/gtest.h>
#include <QImage>

// The two colour tools of the toolbar of core properties.

namespace tintora::test {
namespace {

constexpr QRgb Red = qRgb(255, 0, 0);
constexpr QRgb Blue = qRgb(0, 0, 255);

struct SwatchCase {
    Text body;
    std::optional<QColor> color;
    std::optional<QColor> background;
};

const std::vector<SwatchCase> SwatchCases = {
    {u"{}", {}, {}},
    {u"{color: red;}", QColor(Red), {}},
    {u"{color: red}", {}, {}},
    {u"{background-color: #00f;}", {}, QColor(Blue)},
    {u"{background: blue;}", {}, {}},
    {u"{color: rgb(0, 0, 255) !important; background-color: Red;}", QColor(Blue), QColor(Red)},
    {u"{color: inherit; background-color: transparent;}", {}, {}},
};

struct QuestionCase {
    Texts declarations;
    std::optional<QColor> color;
    std::optional<QColor> background;
};

const std::vector<QuestionCase> QuestionCases = {
    {{}, {}, {}},
    {{u"color: red;", u"background-color: blue"}, QColor(Red), QColor(Blue)},
    {{u"color: var(--x);"}, {}, {}},
};

class CorePropertiesColorsTest : public CorePropertiesBarTest {
  protected:
    QImage Icon(TextView key) { return bar.Action(key)->icon().pixmap(QSize(22, 22), 1).toImage(); }

    static QImage Drawn(ColorToolSign sign, const std::optional<QColor>& color, const QPalette& palette) {
        return ColorToolIcon(sign, palette, color).pixmap(QSize(22, 22), 1).toImage();
    }
};

TEST_F(CorePropertiesColorsTest, TheIconsShowTheColorsOfTheRule) {
    for (const SwatchCase& row : SwatchCases) {
        SCOPED_TRACE(Utf8FromText(row.body));
        Refill(row.body);
        EXPECT_EQ(Icon(u"miColor"), Drawn(ColorToolSign::Letter, row.color, bar.palette()));
        EXPECT_EQ(Icon(u"miBackgroundColor"), Drawn(ColorToolSign::Ground, row.background, bar.palette()));
        bar.ClearToolBar();
        EXPECT_EQ(Icon(u"miColor"), Drawn(ColorToolSign::Letter, {}, bar.palette()));
        EXPECT_EQ(Icon(u"miBackgroundColor"), Drawn(ColorToolSign::Ground, {}, bar.palette()));
    }
}

TEST_F(CorePropertiesColorsTest, TheIconsFollowThePalette) {
    Refill(u"{color: red;}");
    QPalette dark = bar.palette();
    dark.setColor(QPalette::Active, QPalette::ButtonText, QColor(0xef, 0xf0, 0xf1));
    const QImage before = Icon(u"miColor");
    bar.setPalette(dark);
    EXPECT_NE(Icon(u"miColor"), before);
    EXPECT_EQ(Icon(u"miColor"), Drawn(ColorToolSign::Letter, QColor(Red), dark));
}

TEST_F(CorePropertiesColorsTest, TheQuestionStartsAtTheColorOfTheRule) {
    for (const QuestionCase& row : QuestionCases) {
        host.declarations = row.declarations;
        bar.EditColorGM();
        EXPECT_EQ(asked.title, "Edit Text Color");
        EXPECT_EQ(asked.present, row.color);
        bar.EditBackgroundColorGM();
        EXPECT_EQ(asked.title, "Edit Background Color");
        EXPECT_EQ(asked.present, row.background);
    }
}

TEST_F(CorePropertiesColorsTest, TheColorsOfTheStyleSheetAreOffered) {
    host.sheet.colors = {u"red", u"inherit", u"#0000ff !important", u"#ff0000", u"1px solid red"};
    bar.EditColorGM();
    EXPECT_EQ(asked.customColors, (QList<QColor>{QColor(Red), QColor(Blue)}));
}

TEST_F(CorePropertiesColorsTest, TheAnswerIsWrittenInSixDigits) {
    answer = QColor(1, 0xab, 0);
    Click(u"miColor");
    EXPECT_EQ(host.TakeChanges(), "1004: [#01ab00]");
    answer = QColor(0xff, 0xff, 0xff, 10);
    Click(u"miBackgroundColor");
    const int number = PropertyNumberFromName(u"background-color");
    EXPECT_EQ(host.TakeChanges(), QString("%1: [#ffffff]").arg(number));
    answer.reset();
    Click(u"miColor");
    Click(u"miBackgroundColor");
    EXPECT_EQ(host.TakeChanges(), QString());
    EXPECT_EQ(askedCount, 4);
}

TEST_F(CorePropertiesColorsTest, WithoutAStyleSheetNothingIsAsked) {
    host.active = nullptr;
    bar.EditColorGM();
    bar.EditBackgroundColorGM();
    EXPECT_EQ(askedCount, 0);
}

TEST_F(CorePropertiesColorsTest, AnAnswerForAnotherStyleSheetIsPutAside) {
    answer = QColor(Red);
    FakeFrontDocument other;
    whileAsked = [&] { host.active = &other; };
    bar.EditColorGM();
    EXPECT_EQ(host.TakeChanges(), QString());
    whileAsked = [&] { bar.EnableCorePropertiesToolbar(false); };
    bar.EditColorGM();
    EXPECT_EQ(host.TakeChanges(), QString()) << "nor is there a rule any more";
    EXPECT_EQ(askedCount, 2);
}

}  // namespace
}  // namespace tintora::test
