#include "WindowFixture.h"
#include "properties/qt/GroupEditorForm.h"
#include "properties/qt/PropertySelector.h"
#include "properties/qt/ValueControl.h"
#include "properties/qt/ktPropertiesEditor.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <QTest>
#include <QTimer>

namespace tintora {
namespace {

constexpr int Color = 1004;
constexpr int FontWeight = 1002;
constexpr int MarginTop = 1020;

constexpr auto Sheet = "h1 {color: red;}\np {margin-top: 3px; color: blue;}\n";
constexpr int InHeading = 6;
constexpr int InMargin = 22;
constexpr int InColor = 40;

/// The palette of properties in the main window, with a style sheet of two rules.
class PropertiesTest : public test::WindowTest {
  protected:
    PropertiesTest() {
        window->resize(1200, 900);
        window->show();
        window->activateWindow();
        window->OpenOneStyleSheet(MakeFile("a.css", Sheet));
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    ktPropertiesEditor& Palette() { return *window->findChild<ktPropertiesEditor*>(); }
    GroupEditorForm& Form() { return *Palette().findChild<GroupEditorForm*>(); }
    std::string Caption() {
        return Palette().findChild<QLabel*>(QStringLiteral("CurrentEditorName"))->text().toStdString();
    }
    std::string Shown(int number) {
        const ValueControl* const control = Form().FindControl(number);
        return control == nullptr ? "no control" : Utf8FromText(control->GetValue());
    }
    QLineEdit& Field(int number) { return *Form().FindControl(number)->findChild<QLineEdit*>(); }
    QAction& Action(const char* key) { return *window->findChild<QAction*>(QString::fromUtf8(key)); }
    ktStyleSheetWindow& Document() { return window->ActiveDocument()->Window(); }
    std::string SheetText() { return Utf8FromText(window->ActiveDocument()->GetText()); }

    /// The caret stands there, and everything has followed it.
    void PutCaret(int offset) {
        window->ActiveDocument()->setFocus();
        Document().SetSelection(offset, offset);
        Document().SelectionChanged();
        Document().FollowCaretNow();
    }
};

TEST_F(PropertiesTest, ThePaletteFollowsTheCaret) {
    PutCaret(InHeading);
    EXPECT_EQ(Caption(), "Text Style Editor");
    EXPECT_EQ(Shown(Color), "red");
    PutCaret(InMargin);
    EXPECT_EQ(Caption(), "Margin and Padding Editor");
    EXPECT_EQ(Shown(MarginTop), "3px");
    PutCaret(InColor);
    EXPECT_EQ(Shown(Color), "blue");
}

TEST_F(PropertiesTest, AChangeInThePaletteReachesTheTextAndIsOneStepToUndo) {
    PutCaret(InMargin);
    QLineEdit& field = Field(MarginTop);
    field.setFocus();
    EXPECT_EQ(window->CurrentForm(), u"Editor");
    field.selectAll();
    QTest::keyClicks(&field, QStringLiteral("7"));
    EXPECT_EQ(SheetText(), "h1 {color: red;}\np {margin-top: 7px; color: blue;}\n");
    EXPECT_TRUE(field.hasFocus());
    EXPECT_TRUE(window->ActiveDocument()->IsDirty());
    Action("miEUndo").trigger();
    EXPECT_EQ(SheetText(), Sheet);
}

TEST_F(PropertiesTest, UndoByTheKeyboardIsThatOfTheTextWhereverTheFocusIs) {
    PutCaret(InMargin);
    QLineEdit& field = Field(MarginTop);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, QStringLiteral("7"));
    QTest::keyClick(&field, Qt::Key_Up);
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(SheetText(), Sheet);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shown(MarginTop) == "3px"; }, 3000)) << Shown(MarginTop);
    QTest::keySequence(&field, Action("miERedo").shortcut());
    EXPECT_EQ(SheetText(), "h1 {color: red;}\np {margin-top: 7px; color: blue;}\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shown(MarginTop) == "7px"; }, 3000)) << Shown(MarginTop);
}

TEST_F(PropertiesTest, OnlyWhatIsStillBeingTypedIsUndoneInItsField) {
    PutCaret(InHeading);
    auto& weight = *Form().FindControl(FontWeight)->findChild<QComboBox*>();
    weight.setFocus();
    QTest::keyClick(&weight, Qt::Key_Down);
    const std::string changed = SheetText();
    ASSERT_NE(changed, Sheet);
    weight.lineEdit()->selectAll();
    QTest::keyClicks(&weight, QStringLiteral("bo"));
    EXPECT_EQ(SheetText(), changed) << "typed words wait for Enter";
    QTest::keyClick(&weight, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(SheetText(), changed);
    EXPECT_FALSE(weight.currentText().startsWith(QStringLiteral("bo")));
    weight.lineEdit()->selectAll();
    QTest::keyClicks(&weight, QStringLiteral("bold"));
    QTest::keyClick(&weight, Qt::Key_Return);
    EXPECT_NE(SheetText().find("bold"), std::string::npos);
    QTest::keyClick(&weight, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(SheetText(), changed);
    QTest::keyClick(&weight, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(SheetText(), Sheet);
}

TEST_F(PropertiesTest, ThePaletteShowsTheDocumentInFrontOrNone) {
    PutCaret(InMargin);
    EXPECT_EQ(Palette().GetFrontStyleSheet(), &window->ActiveDocument()->Edited());
    window->OpenOneStyleSheet(MakeFile("b.css", "em {margin-top: 9px;}"));
    EXPECT_EQ(Palette().GetFrontStyleSheet(), &window->ActiveDocument()->Edited());
    PutCaret(6);
    EXPECT_EQ(Shown(MarginTop), "9px");
    Action("miWNextDocument").trigger();
    EXPECT_EQ(Shown(MarginTop), "3px");
    Action("miFCloseWindow").trigger();
    Action("miFCloseWindow").trigger();
    ASSERT_EQ(window->ActiveDocument(), nullptr);
    EXPECT_EQ(Palette().GetFrontStyleSheet(), nullptr);
    EXPECT_EQ(Shown(MarginTop), "");
    EXPECT_FALSE(Palette().findChild<PropertySelector*>()->isEnabled());
    Action("miFNew").trigger();
    EXPECT_TRUE(Palette().findChild<PropertySelector*>()->isEnabled());
    EXPECT_FALSE(Field(MarginTop).isEnabled()) << "outside of a rule";
}

TEST_F(PropertiesTest, TheMenuOpensEachEditorAndThePane) {
    struct MenuCase {
        const char* key;
        const char* caption;
    };
    constexpr MenuCase Cases[] = {{"miPropsText", "Text Editor"},
                                  {"miPropsTextStyle", "Text Style Editor"},
                                  {"miPropsBackground", "Background Editor"},
                                  {"miPropsBorder", "Border Editor"},
                                  {"miPropsMargin", "Margin and Padding Editor"},
                                  {"miPropsPadding", "Margin and Padding Editor"},
                                  {"miPropsDisplayType", "Display Type Editor"},
                                  {"miPropsPageLayout", "Page Layout Editor"},
                                  {"miPropsUI", "User Interface Editor"},
                                  {"miPropsAdvancedLayout", "Advanced Layout Editor"},
                                  {"miPropsAdvancedText", "Advanced Text Editor"},
                                  {"miPropsPageBreak", "Page Break Editor"},
                                  {"miPropsQuotes", "Quotes Editor"},
                                  {"miPropsContent", "Content Editor"}};
    PutCaret(InHeading);
    for (const MenuCase& row : Cases) {
        Action("miWHideAllPalettes").trigger();
        ASSERT_FALSE(Palette().isVisible());
        Action(row.key).trigger();
        EXPECT_TRUE(Palette().isVisible()) << row.key;
        EXPECT_EQ(Caption(), row.caption);
    }
}

TEST_F(PropertiesTest, ThePropertyAtTheCaretIsEditedByAKey) {
    PutCaret(InMargin);
    Action("miWHideAllPalettes").trigger();
    Action("miFoProperty").trigger();
    EXPECT_TRUE(Palette().isVisible());
    EXPECT_TRUE(Form().FindControl(MarginTop)->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(window->ActiveDocument()->isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(window->CurrentForm(), u"Document");
}

TEST_F(PropertiesTest, TheClipboardCommandsServeTheFieldWithTheFocus) {
    PutCaret(InMargin);
    QLineEdit& field = Field(MarginTop);
    field.setFocus();
    field.selectAll();
    Action("miECopy").trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("3"));
    QApplication::clipboard()->setText(QStringLiteral("12pt"));
    Action("miEPaste").trigger();
    EXPECT_EQ(SheetText(), "h1 {color: red;}\np {margin-top: 12pt; color: blue;}\n");
    field.setSelection(0, 1);
    QTest::mouseRelease(&field, Qt::LeftButton);
    Action("miEClear").trigger();
    EXPECT_EQ(SheetText(), "h1 {color: red;}\np {margin-top: 2pt; color: blue;}\n");
    field.selectAll();
    QTest::mouseRelease(&field, Qt::LeftButton);
    Action("miECut").trigger();
    EXPECT_EQ(field.text(), QString());
    PutCaret(0);
    EXPECT_EQ(window->CurrentForm(), u"Document");
    Document().SetSelection(0, 2);
    Action("miECut").trigger();
    EXPECT_TRUE(SheetText().starts_with(" {color"));
}

TEST_F(PropertiesTest, FontsAreComposedForTheToolbarToo) {
    Document().SetText(u"@import url(a.css);\nh1 {font-family: Georgia;}");
    PutCaret(26);
    PutCaret(3);
    EXPECT_FALSE(Action("miFoFont").isEnabled()) << "outside of a rule";
    PutCaret(26);
    ASSERT_TRUE(Action("miFoFont").isEnabled());
    QTimer::singleShot(0, qApp, [] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        auto* const fonts = dialog->findChild<QLineEdit*>(QStringLiteral("CurrentFontText"));
        EXPECT_TRUE(fonts == nullptr || fonts->text() == QStringLiteral("Georgia"));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    Action("miFoFont").trigger();
    EXPECT_EQ(SheetText(), "@import url(a.css);\nh1 {font-family: Georgia;}");
}

TEST_F(PropertiesTest, AColourIsAskedForOverTheWindowAndWritten) {
    PutCaret(InHeading);
    told.color = QColor(1, 2, 3);
    Form().FindControl(Color)->findChild<QAbstractButton*>(QStringLiteral("ColorPreview"))->click();
    EXPECT_EQ(told.questions.size(), 1);
    EXPECT_NE(SheetText().find("010203"), std::string::npos) << SheetText();
}

TEST_F(PropertiesTest, ACloseOfTheWindowWithTheFocusInThePaletteIsQuiet) {
    PutCaret(InMargin);
    Field(MarginTop).setFocus();
    window->close();
    window.reset();
}

TEST_F(PropertiesTest, ADocumentThatIsClosedUnderItLeavesThePaletteEmpty) {
    PutCaret(InMargin);
    Field(MarginTop).setFocus();
    Action("miFCloseWindow").trigger();
    EXPECT_EQ(window->ActiveDocument(), nullptr);
    EXPECT_EQ(Shown(MarginTop), "");
}

}  // namespace
}  // namespace tintora
