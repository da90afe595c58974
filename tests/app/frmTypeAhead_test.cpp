#include "editor/qt/frmTypeAhead.h"

#include "editor/qt/QtTypeAheadPopup.h"
#include "editor/qt/ScintillaSourceView.h"
#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

// The list of type-ahead in its window.

namespace tintora {
namespace {

/// A key, with the text that keyboards give for it.
struct ListKeyCase {
    const char* name;
    Qt::Key key;
    const char* text;
    bool closes;
    bool chooses;
};

const std::vector<ListKeyCase> ListKeyCases = {
    {"Esc", Qt::Key_Escape, "\x1B", true, false},
    {"Backspace", Qt::Key_Backspace, "\b", true, false},
    {"point", Qt::Key_Period, ".", true, false},
    {"form feed", Qt::Key_L, "\f", true, false},
    {"Tab", Qt::Key_Tab, "\t", true, true},
    {"Enter", Qt::Key_Return, "\r", true, true},
    {"keypad Enter", Qt::Key_Enter, "\r", true, true},
    {"Esc alone", Qt::Key_Escape, "", true, false},
    {"Delete", Qt::Key_Delete, "\x7F", false, false},
    {"letter", Qt::Key_X, "x", false, false},
    {"comma", Qt::Key_Comma, ",", false, false},
    {"Down", Qt::Key_Down, "", false, false},
    {"Shift", Qt::Key_Shift, "", false, false},
};

struct HeightCase {
    int count;
    /// In rows, the edge of two pixels aside.
    int rows;
    bool scrolls;
};

/// A row that is hidden can be scrolled to.
const std::vector<HeightCase> HeightCases = {
    {1, 1, false}, {2, 1, true}, {3, 3, false}, {10, 10, false}, {15, 15, false}, {16, 10, true}, {103, 10, true},
};

class TypeAheadWindowTest : public testing::Test {
  protected:
    TypeAheadWindowTest() {
        view.resize(600, 300);
        view.show();
        view.activateWindow();
        view.Control().setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    void Open(const Texts& items, TextView partial = u"", QPoint place = {100, 100}) {
        form = new frmTypeAhead(view.Control(), LineHeight, [this](TextView choice) {
            EXPECT_FALSE(form != nullptr && form->isVisible()) << "the list is closed by then";
            chosen.append(ToQString(choice));
        });
        form->GetTypeAheadValue(items, partial, place.y(), place.x());
    }

    QListWidget& List() { return *form->findChild<QListWidget*>("TypeAheadList"); }

    QStringList Rows() {
        QStringList rows;
        for (int row = 0; row < List().count(); ++row)
            rows.append(List().item(row)->text());
        return rows;
    }

    void Press(Qt::Key key, const QString& text) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &press);
    }

    /// Whether the list is closed and has been deleted.
    [[nodiscard]] bool IsGone() const {
        if (form != nullptr && form->isVisible())
            return false;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return form == nullptr;
    }

    static Texts ManyRows(int count) {
        Texts rows;
        for (int row = 0; row < count; ++row)
            rows.push_back(u"row " + ToText(QString::number(row)));
        return rows;
    }

    static constexpr int LineHeight = 20;
    ScintillaSourceView view;
    QPointer<frmTypeAhead> form;
    QStringList chosen;
};

TEST_F(TypeAheadWindowTest, AnOpenListHasTheFocusAndItsFirstRowSelected) {
    Open({u"}", u"color", u"content"});
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &List());
    EXPECT_EQ(Rows(), QStringList({"}", "color", "content"}));
    EXPECT_EQ(List().currentRow(), 0);
    EXPECT_TRUE(List().item(0)->isSelected());
    EXPECT_EQ(List().font().pointSize(), 8);
    EXPECT_FALSE(List().accessibleName().isEmpty());
    EXPECT_FALSE(form->isModal());
}

TEST_F(TypeAheadWindowTest, EachKeyDoesWhatTheCasesSayAndTheTextHasTheFocusAgain) {
    for (const ListKeyCase& row : ListKeyCases) {
        SCOPED_TRACE(row.name);
        Open({u"alpha", u"beta"});
        Press(row.key, QString::fromUtf8(row.text));
        EXPECT_EQ(chosen.size(), row.chooses ? 1 : 0);
        EXPECT_EQ(IsGone(), row.closes);
        EXPECT_EQ(view.Control().hasFocus(), row.closes);
        chosen.clear();
        if (form != nullptr)
            form->close();
        EXPECT_TRUE(IsGone());
    }
    EXPECT_EQ(view.GetText(), u"") << "no key has reached the text";
}

TEST_F(TypeAheadWindowTest, TheSelectedRowIsTheChoice) {
    Open({u"alpha", u"beta", u"gamma"});
    QTest::keyClick(&List(), Qt::Key_Down);
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(chosen, QStringList({"beta"}));
    Open({u"alpha", u"beta", u"gamma"});
    QTest::keyClick(&List(), Qt::Key_End);
    QTest::keyClick(&List(), Qt::Key_Tab);
    EXPECT_EQ(chosen, QStringList({"beta", "gamma"}));
}

TEST_F(TypeAheadWindowTest, ALetterSelectsARowAndNarrowsNothing) {
    Open({u"alpha", u"beta", u"gamma"});
    QTest::keyClick(&List(), Qt::Key_G);
    EXPECT_EQ(List().currentRow(), 2);
    EXPECT_EQ(List().count(), 3);
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(chosen, QStringList({"gamma"}));
}

TEST_F(TypeAheadWindowTest, AClickOnARowChoosesIt) {
    Open({u"alpha", u"beta", u"gamma"});
    const QRect place = List().visualItemRect(List().item(1));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place.center());
    EXPECT_EQ(chosen, QStringList({"beta"}));
    EXPECT_TRUE(IsGone());
    EXPECT_TRUE(view.Control().hasFocus());
}

TEST_F(TypeAheadWindowTest, AClickBesideTheListClosesIt) {
    Open({u"alpha", u"beta"});
    QTest::mouseClick(form, Qt::LeftButton, {}, QPoint(-20, -20));
    EXPECT_TRUE(IsGone());
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(TypeAheadWindowTest, RowsThatDoNotGoOnFromWhatIsTypedAreLeftOut) {
    Open({u"}", u"color", u"content", u"top"}, u"\t CO");
    EXPECT_EQ(Rows(), QStringList({"color", "content"}));
    EXPECT_EQ(List().currentRow(), 0);
}

TEST_F(TypeAheadWindowTest, AListWithoutRowsIsOpenAndGivesAnEmptyChoice) {
    Open({u"url(A.gif)"}, u"url(A");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Rows(), QStringList());
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(chosen, QStringList({""}));
    EXPECT_TRUE(IsGone());
}

TEST_F(TypeAheadWindowTest, TheListIsAsHighAsTheCasesSayAndItsRowsFillIt) {
    for (const HeightCase& row : HeightCases) {
        SCOPED_TRACE(row.count);
        Open(ManyRows(row.count));
        const int rowHeight = List().sizeHintForRow(0);
        EXPECT_NEAR(form->height(), row.rows * rowHeight + 2, 1);
        EXPECT_EQ(List().size(), form->size());
        EXPECT_EQ(List().verticalScrollBar()->isVisible(), row.scrolls);
        form->resize(300, 200);
        EXPECT_EQ(List().size(), form->size()) << "the list follows its form";
        form->close();
    }
}

TEST_F(TypeAheadWindowTest, TheListStandsBelowTheLineAndStaysOnTheScreen) {
    const QRect screen = view.screen()->availableGeometry();
    Open(ManyRows(5), u"", {100, 200});
    EXPECT_EQ(form->pos(), QPoint(100, 200));
    form->close();
    // Without room below the line it stands above that.
    const int bottom = screen.y() + screen.height() - 10;
    Open(ManyRows(5), u"", {100, bottom});
    EXPECT_EQ(form->pos().y() + form->height(), bottom - LineHeight);
    form->close();
    Open(ManyRows(5), u"", {screen.x() + screen.width() - 5, 200});
    EXPECT_EQ(form->x() + form->width(), screen.x() + screen.width());
    form->close();
    Open(ManyRows(5), u"", {-500, -500});
    EXPECT_TRUE(screen.contains(form->geometry()));
    form->close();
    Open(ManyRows(5), u"", {20'000, 20'000});
    EXPECT_TRUE(screen.contains(form->geometry()));
}

TEST_F(TypeAheadWindowTest, LosingTheFocusClosesTheListAndNothingIsChosen) {
    Open({u"alpha"});
    view.Control().setFocus();
    EXPECT_TRUE(IsGone());
    Open({u"alpha"});
    QEvent deactivate(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(form, &deactivate);
    EXPECT_TRUE(IsGone());
    Open({u"alpha"});
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_TRUE(IsGone());
    EXPECT_TRUE(chosen.isEmpty());
    EXPECT_TRUE(view.Control().hasFocus());
}

TEST_F(TypeAheadWindowTest, ShortcutsOfTheWindowDoNotWorkInTheList) {
    int triggered = 0;
    QAction action(&view);
    action.setShortcut(QKeySequence::Undo);
    QObject::connect(&action, &QAction::triggered, &view, [&] { ++triggered; });
    view.addAction(&action);
    QTest::keyClick(&view.Control(), Qt::Key_Z, Qt::ControlModifier);
    ASSERT_EQ(triggered, 1);
    Open({u"alpha", u"zeta"});
    QTest::keyClick(&List(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(triggered, 1);
}

TEST_F(TypeAheadWindowTest, AFailureOfTheChoiceLeavesNoListBehind) {
    form = new frmTypeAhead(view.Control(), LineHeight, [](TextView) { throw std::runtime_error("refused"); });
    form->GetTypeAheadValue({u"alpha"}, {}, 100, 100);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    EXPECT_THROW(static_cast<QObject&>(*form).eventFilter(&List(), &press), std::runtime_error);
    EXPECT_TRUE(IsGone());
}

TEST(TypeAheadWindow, AnOpenListGoesWithItsText) {
    auto view = std::make_unique<ScintillaSourceView>();
    view->show();
    view->activateWindow();
    view->Control().setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    int chosen = 0;
    QtTypeAheadPopup popup(*view, [&](TextView) { ++chosen; });
    ASSERT_TRUE(popup.CanOpen());
    popup.GetTypeAheadValue({u"alpha"}, {}, 100, 100);
    const QPointer<frmTypeAhead> form = view->findChild<frmTypeAhead*>();
    ASSERT_NE(form, nullptr);
    EXPECT_FALSE(popup.CanOpen()) << "while a list is open there is no second one";
    view.reset();
    EXPECT_EQ(form, nullptr);
    EXPECT_EQ(chosen, 0);
}

}  // namespace
}  // namespace tintora
