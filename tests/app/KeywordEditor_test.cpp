#include "properties/qt/KeywordEditor.h"

#include "ValueControlFixture.h"

#include <gtest/gtest.h>

namespace tintora::test {
namespace {

constexpr int FontWeight = 1002;
constexpr int FontFamily = 1011;

struct Act {
    const char* name;
    std::function<void(ValueControl&, ChoiceBox&)> act;
    /// What the control tells; it shows `font-weight: normal` before, without the focus.
    const char* told;
    const char* shown;
};

void Type(ChoiceBox& list, const char* text) {
    list.setFocus();
    list.lineEdit()->selectAll();
    QTest::keyClicks(&list, QString::fromUtf8(text));
}

class KeywordEditorTest : public ValueControlTest {
  protected:
    static std::vector<Act> Acts() {
        return {
            {"open", [](auto&, auto& list) { list.showPopup(); }, "list", "normal"},
            {"choose", [](auto&, auto& list) { ShowAndChoose(list, "bold"); }, "list | 1002 [bold]", "bold"},
            {"choose nothing", [](auto&, auto& list) { ShowAndChoose(list, ""); }, "list | 1002 []", ""},
            {"choose the same", [](auto&, auto& list) { ShowAndChoose(list, "normal"); }, "list | 1002 [normal]",
             "normal"},
            {"close the list",
             [](auto&, auto& list) {
                 list.showPopup();
                 QTest::keyClick(list.view(), Qt::Key_Down);
                 QTest::keyClick(list.view(), Qt::Key_Escape);
             },
             "list", "normal"},
            {"next",
             [](auto&, auto& list) {
                 list.setFocus();
                 QTest::keyClick(&list, Qt::Key_Down);
             },
             "focus 1002 | 1002 [bold]", "bold"},
            {"previous",
             [](auto&, auto& list) {
                 list.setFocus();
                 QTest::keyClick(&list, Qt::Key_Up);
             },
             "focus 1002 | 1002 [inherit]", "inherit"},
            {"wheel with the focus",
             [](auto&, auto& list) {
                 list.setFocus();
                 TurnWheel(*list.lineEdit());
             },
             "focus 1002 | 1002 [bold]", "bold"},
            {"wheel without it", [](auto&, auto& list) { EXPECT_FALSE(TurnWheel(*list.lineEdit())); }, "", "normal"},
            {"type", [](auto&, auto& list) { Type(list, "bo"); }, "focus 1002", "bo"},
            {"type and confirm",
             [](auto&, auto& list) {
                 Type(list, "bold");
                 QTest::keyClick(&list, Qt::Key_Return);
             },
             "focus 1002 | 1002 [bold]", "bold"},
            {"type with the keypad's Enter",
             [](auto&, auto& list) {
                 Type(list, "heavy");
                 QTest::keyClick(&list, Qt::Key_Enter);
             },
             "focus 1002 | 1002 [heavy]", "heavy"},
            {"type a word of the list and leave",
             [](auto&, auto& list) {
                 Type(list, "bold");
                 QTest::keyClick(&list, Qt::Key_Tab);
             },
             "focus 1002", "bold"},
            {"type and leave",
             [](auto&, auto& list) {
                 Type(list, "heavy");
                 QTest::keyClick(&list, Qt::Key_Tab, Qt::ShiftModifier);
             },
             "focus 1002", "heavy"},
            {"edit a property", [](auto& control, auto&) { control.EditProperty(FontWeight); }, "focus 1002", "normal"},
            {"cut", [](auto& control, auto&) { control.Cut(); }, "1002 []", ""},
            {"clear", [](auto& control, auto&) { control.ClearSelection(); }, "1002 []", ""},
            {"paste", [](auto& control, auto&) { control.Paste(); }, "1002 [bolder]", "bolder"},
            {"fill", [](auto& control, auto&) { control.SetValue(u"bold"); }, "", "bold"},
            {"empty", [](auto& control, auto&) { control.Clear(nullptr); }, "", ""},
        };
    }
};

TEST_F(KeywordEditorTest, TellsWhatTheUserDoes) {
    ValueControl& control = Make(FontWeight);
    ChoiceBox& list = List(control, "KeywordValue");
    for (const Act& row : Acts()) {
        SCOPED_TRACE(row.name);
        other.setFocus();
        control.Clear(&document);
        control.SetValue(u"normal");
        clipboard.text = u"bolder !important";
        Take();
        row.act(control, list);
        EXPECT_EQ(Take(), row.told);
        EXPECT_EQ(list.currentText().toStdString(), row.shown);
        list.hidePopup();
    }
}

TEST_F(KeywordEditorTest, ATypedTextIsTheValueOnlyWhenItIsConfirmed) {
    ValueControl& control = Make(FontWeight);
    ChoiceBox& list = List(control, "KeywordValue");
    Type(list, "heavy");
    EXPECT_EQ(control.GetValue(), u"");
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(control.GetValue(), u"heavy");
}

TEST_F(KeywordEditorTest, NothingIsAddedToWhatIsTyped) {
    ValueControl& control = Make(FontWeight);
    ChoiceBox& list = List(control, "KeywordValue");
    Type(list, "bo");
    EXPECT_EQ(list.currentText(), "bo");
    EXPECT_FALSE(list.lineEdit()->hasSelectedText());
}

TEST_F(KeywordEditorTest, ConfirmingKeepsTheCaret) {
    ValueControl& control = Make(FontWeight);
    ChoiceBox& list = List(control, "KeywordValue");
    Type(list, "heavy");
    list.lineEdit()->setCursorPosition(2);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(list.lineEdit()->cursorPosition(), 2);
}

TEST_F(KeywordEditorTest, ABadValueIsRedUntilAGoodOneTakesItsPlace) {
    ValueControl& control = Make(FontWeight);
    ChoiceBox& list = List(control, "KeywordValue");
    const QStringList words = EntriesOf(list);
    const QColor normal = list.lineEdit()->palette().color(QPalette::Text);
    EXPECT_EQ(words.first(), "");
    control.SetValue(u"heavy");
    EXPECT_EQ(EntriesOf(list), words + QStringList{"heavy"});
    EXPECT_EQ(list.lineEdit()->palette().color(QPalette::Text), QColor(255, 0, 0));
    EXPECT_EQ(list.lineEdit()->palette().color(QPalette::Base), list.palette().color(QPalette::Base));
    EXPECT_EQ(list.accessibleDescription(), "Not a valid value");
    EXPECT_TRUE(IsRedSeenIn(list));
    ShowAndChoose(list, "bold");
    EXPECT_EQ(EntriesOf(list), words);
    EXPECT_EQ(list.lineEdit()->palette().color(QPalette::Text), normal);
    EXPECT_EQ(list.accessibleDescription(), "");
    EXPECT_FALSE(IsRedSeenIn(list));
}

TEST_F(KeywordEditorTest, ClearingTakesTheMarkAndTheAddedWord) {
    ValueControl& control = Make(FontWeight);
    ChoiceBox& list = List(control, "KeywordValue");
    const QStringList words = EntriesOf(list);
    control.SetValue(u"heavy");
    control.Clear(&document);
    EXPECT_EQ(EntriesOf(list), words);
    EXPECT_EQ(list.currentIndex(), 0);
    EXPECT_FALSE(list.IsMarkedBad());
}

TEST_F(KeywordEditorTest, TheMarkShowsInDarkAndInMiddlingColors) {
    ValueControl& control = Make(FontWeight);
    ChoiceBox& list = List(control, "KeywordValue");
    control.SetValue(u"heavy");
    for (const QColor ground : {QColor(30, 30, 30), QColor(255, 255, 255), QColor(120, 60, 60)}) {
        QPalette palette;
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Text, Qt::gray);
        window.setPalette(palette);
        QApplication::processEvents();
        EXPECT_EQ(list.lineEdit()->palette().color(QPalette::Base), ground);
        EXPECT_EQ(list.lineEdit()->palette().color(QPalette::Text), QColor(255, 0, 0));
        EXPECT_TRUE(IsRedSeenIn(list)) << ground.name().toStdString();
    }
    // Where letters alone wouldn't be noticed there is a frame.
    EXPECT_EQ(list.grab().toImage().pixelColor(0, list.height() / 2), QColor(255, 0, 0));
    control.SetValue(u"bold");
    EXPECT_FALSE(IsRedSeenIn(list));
    EXPECT_EQ(list.lineEdit()->palette().color(QPalette::Text), QColor(Qt::gray));
}

TEST_F(KeywordEditorTest, AWordWithAPlusIsOfferedWithABlank) {
    ValueControl* const control = new KeywordEditor(1088, std::make_shared<KeywordChoice>(1088), surroundings, &window);
    Listen(*control);
    EXPECT_TRUE(EntriesOf(List(*control, "KeywordValue")).contains("crop cross"));
    ShowAndChoose(List(*control, "KeywordValue"), "crop cross");
    EXPECT_EQ(Take(), "list | 1088 [crop cross]");
}

TEST_F(KeywordEditorTest, TheFontsOfTheDocumentAreOffered) {
    document.fonts = {u"Georgia, serif"};
    ValueControl& control = Make(FontFamily);
    EXPECT_EQ(EntriesOf(List(control, "KeywordValue")).last(), "Georgia, serif");
    document.fonts = {};
    control.Clear(&document);
    EXPECT_NE(EntriesOf(List(control, "KeywordValue")).last(), "Georgia, serif");
}

TEST_F(KeywordEditorTest, AnOpenListStaysAsItIsUntilItCloses) {
    document.fonts = {u"Georgia"};
    ValueControl& control = Make(FontFamily);
    ChoiceBox& list = List(control, "KeywordValue");
    const QStringList entries = EntriesOf(list);
    list.showPopup();
    document.fonts = {u"Palatino", u"Georgia"};
    control.Clear(&document);
    EXPECT_EQ(EntriesOf(list), entries);
    Take();
    ChooseInOpenList(list, "Georgia");
    EXPECT_EQ(Take(), "1011 [Georgia]");
    EXPECT_EQ(EntriesOf(list).last(), "Georgia");
    EXPECT_TRUE(EntriesOf(list).contains("Palatino"));
    list.showPopup();
    document.fonts = {};
    control.Clear(&document);
    list.hidePopup();
    QApplication::processEvents();
    EXPECT_FALSE(EntriesOf(list).contains("Palatino"));
    EXPECT_EQ(list.currentText(), "");
}

TEST_F(KeywordEditorTest, AListThatTheDesktopClosesShowsWhatHasComeMeanwhile) {
    ValueControl& control = Make(FontWeight);
    ChoiceBox& list = List(control, "KeywordValue");
    list.showPopup();
    control.SetValue(u"heavy");
    EXPECT_EQ(list.currentText(), "");
    QApplication::activePopupWidget()->close();
    QApplication::processEvents();
    EXPECT_EQ(list.currentText(), "heavy");
    EXPECT_EQ(Take(), "list");
}

TEST_F(KeywordEditorTest, FillingPutsAsideWhatWasTypedAndLeft) {
    ValueControl& control = Make(FontWeight);
    ChoiceBox& list = List(control, "KeywordValue");
    Type(list, "heavy");
    control.Clear(&document);
    EXPECT_EQ(list.currentText(), "");
}

TEST_F(KeywordEditorTest, TheListIsDirtyUntilItLosesTheFocus) {
    ValueControl& control = Make(FontWeight);
    ChoiceBox& list = List(control, "KeywordValue");
    list.setFocus();
    EXPECT_FALSE(control.Dirty());
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_TRUE(control.Dirty());
    other.setFocus();
    EXPECT_FALSE(control.Dirty());
}

TEST_F(KeywordEditorTest, CopyingTakesTheValue) {
    ValueControl& control = Make(FontWeight);
    control.SetValue(u"bold !important");
    control.Copy();
    EXPECT_EQ(clipboard.text, u"bold");
    control.Cut();
    EXPECT_EQ(clipboard.text, u"bold");
    EXPECT_EQ(control.GetValue(), u"");
    control.Copy();
    EXPECT_EQ(clipboard.text, u"bold") << "there is nothing to copy";
    Take();
    clipboard.text.clear();
    control.Paste();
    EXPECT_EQ(Take(), "") << "there is nothing to paste";
}

TEST_F(KeywordEditorTest, TheEndlessTextOfAClipboardIsShownByItsBeginning) {
    ValueControl& control = Make(FontWeight);
    ChoiceBox& list = List(control, "KeywordValue");
    clipboard.text = Text(20'000, u'x') + u"\r\n;}";
    control.Paste();
    EXPECT_EQ(control.GetValue(), clipboard.text);
    EXPECT_TRUE(list.IsMarkedBad());
    list.showPopup();
    EXPECT_LE(list.itemText(list.count() - 1).size() - 20'004, 0);
    list.hidePopup();
    control.Clear(&document);
    EXPECT_EQ(list.currentText(), "");
}

TEST_F(KeywordEditorTest, NothingHappensInADisabledControl) {
    ValueControl& control = Make(FontWeight);
    control.Disable();
    control.EditProperty(FontWeight);
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(Take(), "");
    control.Enable();
    control.EditProperty(FontWeight);
    EXPECT_EQ(Take(), "focus 1002");
}

TEST_F(KeywordEditorTest, EscapeIsForThePalette) {
    ValueControl& control = Make(FontWeight);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&List(control, "KeywordValue"), &escape);
    EXPECT_FALSE(escape.isAccepted());
}

}  // namespace
}  // namespace tintora::test
