#include "shell/qt/CorePropertyBox.h"

#include "CorePropertiesBarFixture.h"

#include <gtest/gtest.h>
#include <QAbstractItemView>
#include <QWheelEvent>

// What the user does in the two boxes of the toolbar, and what the document does meanwhile.

namespace tintora::test {
namespace {

struct KeptCase {
    const char* typed;
    /// What the document makes of it.
    const char* value;
};

/// Texts that the document holds in another form than they were typed.
const std::vector<KeptCase> KeptCases = {
    {"12pt", "12pt"}, {"12pt ", "12pt"}, {" 12pt", "12pt"}, {"12pt !important", "12pt"}, {"1;2", "1"}, {"/*", ""},
};

class CorePropertyBoxTest : public CorePropertiesBarTest {
  protected:
    CorePropertyBoxTest() {
        Refill(u"{font-family: Georgia; font-size: 12pt;}");
        host.sheet.fonts = {u"Georgia", u"Palatino"};
        bar.ClearToolBar();
        Refill(u"{font-family: Georgia; font-size: 12pt;}");
    }

    /// A rule with that size.
    static Text RuleWithSize(const char* size) { return u"{font-size: " + ToText(QString::fromUtf8(size)) + u";}"; }

    void Focus(CorePropertyBox& box) {
        box.setFocus();
        box.lineEdit()->selectAll();
    }

    /// Turns the wheel over a box by one step towards the user.
    static void TurnWheel(CorePropertyBox& box) {
        QWidget* const field = box.lineEdit();
        const QPoint place = field->rect().center();
        QWheelEvent event(place, field->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        // As the system sends it: it may give the focus, and what the field ignores goes on to the box.
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(field, &event);
    }

    static void ChooseInOpenList(CorePropertyBox& box, int row) {
        QAbstractItemView& list = *box.view();
        const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
        QTest::mouseMove(list.viewport(), place);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    }
};

TEST_F(CorePropertyBoxTest, EachLetterChangesTheRuleAndTheFocusStays) {
    Focus(Size());
    QTest::keyClicks(&Size(), "8px");
    EXPECT_EQ(host.TakeChanges(), "1001: [8], 1001: [8p], 1001: [8px]");
    EXPECT_TRUE(Size().hasFocus());
    Focus(Family());
    QTest::keyClicks(&Family(), "Ge");
    EXPECT_EQ(host.TakeChanges(), "1011: [G], 1011: [Ge]");
    EXPECT_EQ(Family().currentText(), "Ge") << "nothing is added to what is typed";
    EXPECT_TRUE(Family().hasFocus());
}

TEST_F(CorePropertyBoxTest, WhiteSpaceAroundATextIsNotReported) {
    Focus(Family());
    QTest::keyClicks(&Family(), " a b ");
    EXPECT_EQ(host.TakeChanges(), "1011: [], 1011: [a], 1011: [a b]");
    EXPECT_EQ(Family().currentText(), " a b ");
}

TEST_F(CorePropertyBoxTest, AnEmptiedBoxRemovesTheDeclaration) {
    Focus(Size());
    QTest::keyClick(&Size(), Qt::Key_Delete);
    EXPECT_EQ(host.TakeChanges(), "1001: []");
}

TEST_F(CorePropertyBoxTest, UndoIsLeftToTheStyleSheet) {
    Focus(Size());
    QTest::keyClick(&Size(), Qt::Key_Delete);
    QTest::keyClick(&Size(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(host.TakeChanges(), "1001: []");
    EXPECT_EQ(Size().currentText(), QString());
}

TEST_F(CorePropertyBoxTest, AChoiceChangesTheRuleOnce) {
    Size().setFocus();
    QTest::keyClick(&Size(), Qt::Key_Down);
    EXPECT_EQ(host.TakeChanges(), "1001: [13pt]");
    Size().showPopup();
    ChooseInOpenList(Size(), 0);
    EXPECT_EQ(host.TakeChanges(), "1001: [8pt]");
    EXPECT_EQ(Size().currentText(), "8pt");
    // What is there already is no change.
    Size().showPopup();
    ChooseInOpenList(Size(), 0);
    EXPECT_EQ(host.TakeChanges(), QString());
    Family().setFocus();
    EXPECT_EQ(host.TakeChanges(), QString());
}

TEST_F(CorePropertyBoxTest, WhatTheProgramShowsIsNobodysAct) {
    for (CorePropertyBox* const box : {&Family(), &Size()}) {
        box->setFocus();
        Refill(u"{font-family: a; font-size: 1em;}");
        Refill(u"{font-size: large;}");
        Refill(u"{}");
        bar.ClearToolBar();
        bar.EnableCorePropertiesToolbar(false);
        bar.EnableCorePropertiesToolbar(true);
        text.setFocus();
    }
    EXPECT_EQ(host.TakeChanges(), QString());
}

TEST_F(CorePropertyBoxTest, ABoxThatReportsKeepsItsTextAndItsList) {
    host.onChange = [&](TextView, int) {
        host.sheet.fonts.push_back(u"New");
        Refill(u"{font-family: other; font-size: 3em; font-weight: bold;}");
    };
    const QStringList families = ListOf(Family());
    const QStringList sizes = ListOf(Size());
    Focus(Size());
    QTest::keyClicks(&Size(), "9");
    EXPECT_EQ(Size().currentText(), "9");
    EXPECT_EQ(ListOf(Size()), sizes);
    EXPECT_EQ(Checked(), "miFoBold") << "the rest follows";
    EXPECT_EQ(Family().currentText(), "other");
    EXPECT_EQ(ListOf(Family()), families + QStringList{"New"});
    const QStringList before = ListOf(Family());
    Focus(Family());
    QTest::keyClicks(&Family(), "x");
    EXPECT_EQ(Family().currentText(), "x");
    EXPECT_EQ(ListOf(Family()), before);
    EXPECT_EQ(Size().currentText(), "3em");
    EXPECT_EQ(Size().itemText(0), ".6em");
    EXPECT_EQ(host.TakeChanges(), "1001: [9], 1011: [x]");
}

TEST_F(CorePropertyBoxTest, AFailureFreesTheGuard) {
    Focus(Size());
    EXPECT_EQ(FailureOf([&] { QTest::keyClicks(&Size(), "1"); }), MaximumTextLength + 1);
    EXPECT_FALSE(Size().IsGuarded());
    QTest::keyClicks(&Size(), "2");
    EXPECT_EQ(host.TakeChanges(), "1001: [1], 1001: [12]");
}

TEST_F(CorePropertyBoxTest, ARefillBehindTheLettersKeepsThemAndTheCaret) {
    for (const KeptCase& row : KeptCases) {
        SCOPED_TRACE(row.typed);
        const Text rule = RuleWithSize(row.value);
        host.onChange = [&](TextView, int) { Refill(rule); };
        Focus(Size());
        QTest::keyClicks(&Size(), row.typed);
        QTest::keyClick(&Size(), Qt::Key_Left);
        QTest::keyClick(&Size(), Qt::Key_Left, Qt::ShiftModifier);
        const int caret = Size().lineEdit()->cursorPosition();
        const QString selected = Size().lineEdit()->selectedText();
        Refill(rule);
        Refill(rule);
        EXPECT_EQ(Size().currentText(), row.typed);
        EXPECT_EQ(Size().lineEdit()->cursorPosition(), caret);
        EXPECT_EQ(Size().lineEdit()->selectedText(), selected);
        // Without the focus it is the document's text again.
        text.setFocus();
        Refill(rule);
        EXPECT_EQ(Size().currentText(), row.value);
    }
}

TEST_F(CorePropertyBoxTest, AnotherValueTakesThePlaceOfTheLetters) {
    host.onChange = [&](TextView, int) { Refill(RuleWithSize("9pt")); };
    Focus(Size());
    QTest::keyClicks(&Size(), "9pt");
    Refill(RuleWithSize("8pt"));
    EXPECT_EQ(Size().currentText(), "8pt");
    Refill(u"{}");
    EXPECT_EQ(Size().currentText(), QString());
}

TEST_F(CorePropertyBoxTest, TheFocusComesBackFromAChange) {
    host.onChange = [&](TextView, int) { text.setFocus(); };
    Focus(Size());
    QTest::keyClicks(&Size(), "9");
    EXPECT_TRUE(Size().hasFocus());
    QTest::keyClicks(&Size(), "p");
    EXPECT_EQ(Size().currentText(), "9p") << "and selects nothing";
}

TEST_F(CorePropertyBoxTest, AChangeThatEndsTheRuleGivesTheFocusToTheText) {
    host.onChange = [&](TextView, int) { bar.EnableCorePropertiesToolbar(false); };
    Focus(Size());
    QTest::keyClicks(&Size(), "}");
    EXPECT_EQ(host.TakeChanges(), "1001: [}]");
    EXPECT_TRUE(text.hasFocus());
    EXPECT_FALSE(Size().isEnabled());
    EXPECT_EQ(Size().currentText(), QString());
}

TEST_F(CorePropertyBoxTest, EnterAndEscGiveTheFocusToTheText) {
    for (CorePropertyBox* const box : {&Family(), &Size()}) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
            box->setFocus();
            QTest::keyClick(box, key);
            EXPECT_TRUE(text.hasFocus()) << key;
        }
    }
    EXPECT_EQ(host.focusCount, 6);
    EXPECT_EQ(host.TakeChanges(), QString());
}

TEST_F(CorePropertyBoxTest, EnterInTheOpenListChoosesAndStaysInTheBox) {
    Size().setFocus();
    Size().showPopup();
    QTest::keyClick(Size().view(), Qt::Key_Down);
    QTest::keyClick(Size().view(), Qt::Key_Return);
    EXPECT_EQ(host.TakeChanges(), "1001: [13pt]");
    EXPECT_EQ(host.focusCount, 0);
    Size().showPopup();
    QTest::keyClick(Size().view(), Qt::Key_Down);
    QTest::keyClick(Size().view(), Qt::Key_Escape);
    EXPECT_FALSE(Size().view()->isVisible());
    EXPECT_EQ(host.TakeChanges(), QString());
    EXPECT_EQ(host.focusCount, 0);
}

TEST_F(CorePropertyBoxTest, TheWheelChangesABoxWithTheFocusAlone) {
    TurnWheel(Size());
    EXPECT_EQ(Size().currentText(), "12pt");
    EXPECT_TRUE(text.hasFocus());
    EXPECT_EQ(host.TakeChanges(), QString());
    Size().setFocus();
    TurnWheel(Size());
    EXPECT_EQ(host.TakeChanges(), "1001: [13pt]");
    TurnWheel(Family());
    EXPECT_EQ(host.TakeChanges(), QString());
}

TEST_F(CorePropertyBoxTest, AnOpenListStaysAsItIs) {
    const QStringList families = ListOf(Family());
    Family().showPopup();
    host.sheet.fonts.push_back(u"New");
    Refill(u"{font-family: Georgia;}");
    EXPECT_TRUE(Family().view()->isVisible());
    EXPECT_EQ(ListOf(Family()), families);
    Family().hidePopup();
    Refill(u"{font-family: Georgia;}");
    EXPECT_EQ(ListOf(Family()), families + QStringList{"New"});
}

TEST_F(CorePropertyBoxTest, AnOpenListIsAsWideAsItsEntries) {
    host.sheet.fonts = {u"Verdana, Geneva, \"Bitstream Vera Sans\", Arial, Helvetica, sans-serif"};
    bar.ClearToolBar();
    Family().showPopup();
    EXPECT_GE(Family().view()->viewport()->width(), Family().view()->sizeHintForColumn(0));
    EXPECT_GT(Family().view()->width(), Family().width());
    Family().hidePopup();
}

TEST_F(CorePropertyBoxTest, ALongTextShowsItsBeginning) {
    const QString family = "Verdana, Geneva, \"Bitstream Vera Sans\", Arial, Helvetica, sans-serif";
    host.sheet.fonts = {ToText(family)};
    Refill(u"{font-family: " + ToText(family) + u";}");
    EXPECT_EQ(Family().lineEdit()->cursorPosition(), 0);
    Family().setFocus();
    QTest::keyClick(&Family(), Qt::Key_End);
    text.setFocus();
    EXPECT_EQ(Family().lineEdit()->cursorPosition(), 0);
    Refill(u"{}");
    Family().setFocus();
    QTest::keyClick(&Family(), Qt::Key_Up);
    Family().showPopup();
    ChooseInOpenList(Family(), Family().count() - 1);
    EXPECT_EQ(Family().currentText(), family);
    EXPECT_EQ(Family().lineEdit()->cursorPosition(), 0);
}

}  // namespace
}  // namespace tintora::test
