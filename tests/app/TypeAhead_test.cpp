#include "WindowFixture.h"
#include "editor/qt/frmTypeAhead.h"
#include "settings/Settings.h"
#include "text/Encoding.h"

#include <QApplication>
#include <QListWidget>
#include <QTest>

// Type-ahead in the program, from a key to the text that it writes.

namespace tintora {
namespace {

class TypeAheadProgramTest : public test::WindowTest {
  protected:
    /// Opens a style sheet, with the caret where "|" stands in it.
    void Open(const char* drawn) {
        QByteArray bytes(drawn);
        const auto caret = static_cast<int>(bytes.indexOf('|'));
        window->OpenOneStyleSheet(MakeFile("a.css", bytes.remove(caret, 1)));
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        Pane().Window().SetSelection(caret, caret);
        Pane().setFocus();
        ASSERT_TRUE(Control().hasFocus());
    }

    StyleSheetPane& Pane() { return *window->ActiveDocument(); }
    QsciScintilla& Control() { return Pane().View().Control(); }
    frmTypeAhead* Form() { return qobject_cast<frmTypeAhead*>(QApplication::activePopupWidget()); }
    QListWidget& List() { return *Form()->findChild<QListWidget*>(); }
    void AskForList() { QTest::keyClick(&Control(), Qt::Key_Space, Qt::ControlModifier); }

    QStringList Rows() {
        QStringList rows;
        for (int row = 0; Form() != nullptr && row < List().count(); ++row)
            rows.append(List().item(row)->text());
        return rows;
    }
};

TEST_F(TypeAheadProgramTest, AListComesUpASecondAfterATypedLetter) {
    Open("a {\n\t|\n}\n");
    QTest::keyClicks(&Control(), "co");
    EXPECT_EQ(Form(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Form() != nullptr; }, 4000));
    EXPECT_EQ(Rows(), QStringList({"color", "content", "counter-increment", "counter-reset"}));
    QTest::keyClick(&List(), Qt::Key_Down);
    QTest::keyClick(&List(), Qt::Key_Tab);
    EXPECT_EQ(Utf8FromText(Pane().GetText()), "a {\ncontent:}\n");
    EXPECT_EQ(Pane().CSSEditor().GetSelectionStart(), 12);
    EXPECT_TRUE(Control().hasFocus());
}

TEST_F(TypeAheadProgramTest, ControlWithSpaceBringsTheListAtOnceAndTypesNothing) {
    Settings(store).SetTypeAhead(false);
    Open("a {color: #abc}\nb {color: |}\n");
    AskForList();
    ASSERT_NE(Form(), nullptr);
    EXPECT_EQ(Rows().first(), QStringLiteral("inherit"));
    EXPECT_EQ(Rows().last(), QStringLiteral("#abc"));
    QTest::keyClick(&List(), Qt::Key_End);
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(Utf8FromText(Pane().GetText()), "a {color: #abc}\nb {color: #abc;\n}\n");
    EXPECT_EQ(Pane().CSSEditor().GetSelectionStart(), 32);
    Pane().CSSEditor().Undo();
    EXPECT_EQ(Utf8FromText(Pane().GetText()), "a {color: #abc}\nb {color: }\n") << "in one step";
    EXPECT_FALSE(Pane().CSSEditor().CanUndo());
}

TEST_F(TypeAheadProgramTest, TheListStandsAtTheCaret) {
    Open("a {\ncolor: |}\n");
    AskForList();
    ASSERT_NE(Form(), nullptr);
    ScintillaSourceView& view = Pane().View();
    const PixelPosition caret = view.ClientToScreen(view.PositionToPixels(view.CaretColumn(), view.CaretRow()));
    EXPECT_EQ(Form()->y(), caret.y + view.LineHeight());
    EXPECT_EQ(Form()->x(), caret.x + 3 * view.CharWidth());
}

TEST_F(TypeAheadProgramTest, WhereNothingIsOfferedNoListComesUp) {
    for (const char* const drawn : {"|a {}", "a, |b {}", "a {} |", "a {color: red|}", "a {Col|}", "a {nonsense: |}"}) {
        SCOPED_TRACE(drawn);
        MakeWindow();
        Open(drawn);
        const Text before = Pane().GetText();
        AskForList();
        EXPECT_EQ(Form(), nullptr);
        EXPECT_EQ(Pane().GetText(), before);
    }
}

TEST_F(TypeAheadProgramTest, ClosingTheListLeavesTheTextAsItWas) {
    Open("a {|}\n");
    AskForList();
    ASSERT_NE(Form(), nullptr);
    QTest::keyClick(&List(), Qt::Key_Escape);
    EXPECT_EQ(Form(), nullptr);
    EXPECT_EQ(Pane().GetText(), u"a {}\n");
    EXPECT_TRUE(Control().hasFocus());
    QTest::keyClicks(&Control(), "x");
    EXPECT_EQ(Pane().GetText(), u"a {x}\n") << "typing goes on where it was";
}

TEST_F(TypeAheadProgramTest, AListThatWasWaitingDoesNotComeUpOverAnotherPane) {
    Open("a {|}\n");
    StyleSheetPane& first = Pane();
    window->OpenOneStyleSheet(MakeFile("b.css", "b {}"));
    first.CSSEditor().TypeAhead();
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(TypeAheadProgramTest, AChosenBraceClosesTheRule) {
    Open("a {color: red;| \n");
    AskForList();
    ASSERT_NE(Form(), nullptr);
    EXPECT_EQ(Rows().first(), QStringLiteral("}"));
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(Pane().GetText(), u"a {color: red;} \n");
}

}  // namespace
}  // namespace tintora
