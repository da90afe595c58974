#include "selectors/qt/SelectorList.h"

#include "SelectorPaletteFixture.h"

#include <gtest/gtest.h>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <initializer_list>
#include <tuple>

namespace tintora::test {
namespace {

struct KeyPressCase {
    int from;
    Qt::Key key;
    int to;
};

const std::vector<KeyPressCase> KeyPresses = {
    {1, Qt::Key_Down, 2},     {2, Qt::Key_Up, 1},     {2, Qt::Key_Down, 3},  {3, Qt::Key_Down, 4},
    {5, Qt::Key_Down, 6},     {2, Qt::Key_Home, 1},   {2, Qt::Key_End, 6},   {2, Qt::Key_U, 6},
    {1, Qt::Key_PageDown, 6}, {2, Qt::Key_Return, 2}, {4, Qt::Key_Enter, 4},
};

struct ToolTipCase {
    TextView css;
    /// The tool tip of the first row; "" for none.
    const char* toolTip;
};

const std::vector<ToolTipCase> ToolTips = {
    {u"h1 {}", ""},
    {u"#navigation ul li a.current, #navigation ul li a.external {}",
     "<qt>#navigation ul li a.current, #navigation ul li a.external</qt>"},
    {u"ul.navigation > li.current > a.external,\n   ol > li.current {}",
     "<qt>ul.navigation &gt; li.current &gt; a.external, ol &gt; li.current</qt>"},
    {u"/* <b>of a certain length</b> and not to be taken for markup */",
     "<qt>/* &lt;b&gt;of a certain length&lt;/b&gt; and not to be taken for markup */</qt>"},
};

class SelectorListTest : public SelectorPaletteTest {
  protected:
    QString ToolTipOver(int number) {
        QToolTip::hideText();
        const QPoint place = PlaceOf(number);
        QHelpEvent help(QEvent::ToolTip, place, List().viewport()->mapToGlobal(place));
        QApplication::sendEvent(List().viewport(), &help);
        return QToolTip::text();
    }
};

// What the user does.

TEST_F(SelectorListTest, SelectingByTheProgramTellsNobody) {
    Fill(Sheet);
    for (const int number : {3, 5, 1, 6, 2, 2}) {
        palette->SelectStatement(number);
        EXPECT_EQ(List().SelectedNumber(), number);
    }
    EXPECT_EQ(palette->CurrentSelector(), u"p");
    for (const int number : {-1, 0, 7, 32767})
        palette->SelectStatement(number);
    EXPECT_EQ(palette->CurrentSelector(), u"p");
    Update(Sheet, u"p.x");
    Update(u"h1 {}", u"h1");
    palette->ClearSelectorList();
    EXPECT_EQ(Rows(), QString());
    palette->SelectStatement(1);
    EXPECT_EQ(palette->CurrentSelector(), u"");
    EXPECT_EQ(document.calls, Calls{});
}

TEST_F(SelectorListTest, ComingIntoTheListByTabTellsNobody) {
    Fill(Sheet);
    List().clearFocus();
    List().setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(List().hasFocus());
    EXPECT_EQ(document.calls, Calls{});
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(document.TakeCalls(), Calls{"StatementSelected 1"});
    EXPECT_EQ(palette->CurrentSelector(), u"h1");
}

TEST_F(SelectorListTest, AClickSelectsTheStatementInTheText) {
    Fill(Sheet);
    for (const int number : {2, 5, 3, 3, 1}) {
        Click(number);
        EXPECT_EQ(document.TakeCalls(), Calls{"StatementSelected " + std::to_string(number)});
        EXPECT_EQ(List().SelectedNumber(), number);
    }
    palette->SelectStatement(6);
    Click(6);
    EXPECT_EQ(document.TakeCalls(), Calls{"StatementSelected 6"}) << "also where the program had selected it";
    Click(6, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(document.TakeCalls(), Calls{"StatementSelected 6"});
    EXPECT_EQ(List().SelectedNumber(), 6) << "no click leaves nothing selected";
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, QPoint(50, List().viewport()->height() - 5));
    EXPECT_EQ(List().SelectedNumber(), 6);
    EXPECT_EQ(document.calls, Calls{});
}

TEST_F(SelectorListTest, APressThatMovesOnStaysAtItsStatement) {
    Fill(Sheet);
    QTest::mousePress(List().viewport(), Qt::LeftButton, {}, PlaceOf(2));
    for (const int number : {3, 5}) {
        QMouseEvent move(QEvent::MouseMove, PlaceOf(number), List().viewport()->mapToGlobal(PlaceOf(number)),
                         Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(List().viewport(), &move);
    }
    QTest::mouseRelease(List().viewport(), Qt::LeftButton, {}, PlaceOf(5));
    EXPECT_EQ(List().SelectedNumber(), 2);
    EXPECT_EQ(document.TakeCalls(), Calls{"StatementSelected 2"});
}

TEST_F(SelectorListTest, FoldingABlockByTheMouseChoosesNothing) {
    Fill(Sheet);
    palette->SelectStatement(2);
    const QRect row = List().visualItemRect(Row(3));
    const QPoint arrow(row.left() - List().indentation() / 2, row.center().y());
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, arrow);
    EXPECT_FALSE(Row(3)->isExpanded());
    EXPECT_EQ(List().SelectedNumber(), 2);
    EXPECT_EQ(document.calls, Calls{});
}

TEST_F(SelectorListTest, OtherButtonsOfTheMouseDoNothing) {
    Fill(Sheet);
    palette->SelectStatement(1);
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        Click(2, button);
        QTest::mouseDClick(List().viewport(), button, {}, PlaceOf(2));
    }
    EXPECT_EQ(List().SelectedNumber(), 1);
    EXPECT_EQ(document.calls, Calls{});
}

TEST_F(SelectorListTest, KeysMoveTheSelectionAndTheTextFollows) {
    Fill(Sheet);
    List().setFocus();
    for (const KeyPressCase& row : KeyPresses) {
        SCOPED_TRACE(std::to_string(row.from) + " and key " + std::to_string(row.key));
        palette->SelectStatement(row.from);
        QTest::keyClick(&List(), row.key);
        EXPECT_EQ(document.TakeCalls(), Calls{"StatementSelected " + std::to_string(row.to)});
        EXPECT_EQ(List().SelectedNumber(), row.to);
        EXPECT_TRUE(List().hasFocus());
    }
}

TEST_F(SelectorListTest, AKeyThatMovesNothingTellsNobody) {
    Fill(Sheet);
    palette->SelectStatement(1);
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Home, Qt::Key_Escape, Qt::Key_F2, Qt::Key_Delete})
        QTest::keyClick(&List(), key);
    Fill(u"");
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_End})
        QTest::keyClick(&List(), key);
    EXPECT_EQ(document.calls, Calls{});
}

TEST_F(SelectorListTest, ADoubleClickEditsTheStatement) {
    Fill(Sheet);
    DoubleClick(2);
    EXPECT_EQ(document.TakeCalls(), (Calls{"StatementSelected 2", "EditStatement"}));
    DoubleClick(3);
    EXPECT_EQ(document.TakeCalls(), (Calls{"StatementSelected 3", "EditStatement"}));
    EXPECT_TRUE(Row(3)->isExpanded()) << "a double click doesn't fold";
}

/// A document that hands its statements over at once, in the middle of what the palette asks of it.
class HastyStyleSheet final : public RecordingStyleSheet {
  public:
    void StatementSelected(int number) override {
        RecordingStyleSheet::StatementSelected(number);
        Refill();
    }
    void EditStatement() override {
        RecordingStyleSheet::EditStatement();
        Refill();
    }
    void DeleteStatement() override { Refill(); }

    ktSelectorPalette* palette = nullptr;

  private:
    void Refill() { palette->SetSelectors(StatementsOf(ManyRules(++count_))); }

    int count_ = 3;
};

TEST_F(SelectorListTest, ADocumentMayFillTheListInTheMiddleOfAClick) {
    HastyStyleSheet hasty;
    hasty.palette = palette.get();
    palette->SetFrontStyleSheet(&hasty);
    Fill(Sheet);
    DoubleClick(2);
    Click(1);
    QTest::keyClick(&List(), Qt::Key_Down);
    QTest::keyClick(&List(), Qt::Key_Return);
    Item("miSRemove")->trigger();
    EXPECT_EQ(hasty.calls.front(), "StatementSelected 2");
    EXPECT_GE(List().topLevelItemCount(), 6);
    palette->SetFrontStyleSheet(nullptr);
}

// How the rows look.

TEST_F(SelectorListTest, RowsHaveOneHeightAndOneLine) {
    Fill(u"h1 {} a,\n\n  b\t,\tc {} /* one\ntwo\nthree */ @media print { x\n y {} } ul {}");
    for (int number = 2; number <= 6; ++number)
        EXPECT_EQ(List().visualItemRect(Row(number)).height(), List().visualItemRect(Row(1)).height()) << number;
    EXPECT_EQ(Rows(),
              "1Statement h1, 2Statement a, b , c, 3Statement /* one two three */, "
              "4Statement @media print (5statement x y), 6Statement ul");
    palette->SelectStatement(5);
    EXPECT_EQ(palette->CurrentSelector(), u"x\n y");
}

TEST_F(SelectorListTest, ALongTextIsCutForItsRowAlone) {
    const QString clef = QString::fromUtf8("\xf0\x9d\x84\x9e");
    for (const auto& [selector, most, line] : std::initializer_list<std::tuple<QString, int, QString>>{
             {"a  b", 4, "a b"}, {"a b c", 4, "a b…"}, {clef + clef, 3, clef + "…"}, {"", 0, ""}})
        EXPECT_EQ(OneLine(selector, most), line);
    const Text comment = u"/* " + Text(20000, u'x') + u" */";
    Fill(comment);
    palette->SelectStatement(1);
    EXPECT_EQ(palette->CurrentSelector(), comment);
    EXPECT_LT(Row(1)->text(0).size(), 400);
    EXPECT_LT(ToolTipOver(1).size(), 1100);
}

TEST_F(SelectorListTest, WhatHasNoRoomIsToldWholeInATip) {
    for (const ToolTipCase& row : ToolTips) {
        Fill(row.css);
        EXPECT_EQ(ToolTipOver(1), QString::fromUtf8(row.toolTip));
    }
}

}  // namespace
}  // namespace tintora::test
