#include "properties/qt/LengthEditor.h"

#include "ValueControlFixture.h"
#include "settings/Settings.h"

#include <gtest/gtest.h>

namespace tintora::test {
namespace {

constexpr int FontSize = 1001;
constexpr int LineHeight = 1009;
constexpr int TextIndent = 1007;
constexpr int MarginTop = 1020;

struct LengthAct {
    const char* name;
    std::function<void(ValueControl&)> act;
    /// What the control tells; it shows `margin-top: -12px` before, without the focus.
    const char* told;
    const char* value;
};

struct KeyCase {
    const char* typed;
    const char* taken;
};

const std::vector<KeyCase> TypedKeys = {
    {"12.5", "12.5"}, {"-3", "3"}, {"+3", "3"}, {"4px", "4"}, {" 5 ", "5"}, {"1e5", "15"}, {"%", ""}, {"1,5", "15"},
};

struct PasteCase {
    const char16_t* clipboard;
    const char* number;
    const char* unit;
    /// "" for none.
    const char* told;
};

/// Into `margin-top: 1em`, of which nothing is selected.
const std::vector<PasteCase> Pastes = {
    {u"12px", "12", "px", "1020 [12px]"},
    {u"auto", "1", "auto", "1020 [auto]"},
    {u"3", "3", "em", "1020 [3em]"},
    {u"  3px\n", "3", "px", "1020 [3px]"},
    {u"\r\n7\r\n", "7", "em", "1020 [7em]"},
    {u"heavy", "1", "em", ""},
    {u"", "1", "em", ""},
    {u"\n", "1", "em", ""},
    {u"1 2", "1", "em", ""},
    {u"4;}", "1", "em", ""},
};

class LengthEditorTest : public ValueControlTest {
  protected:
    static QLineEdit& Value(const ValueControl& control) { return Field(control, "Value"); }
    static ChoiceBox& Unit(const ValueControl& control) { return List(control, "Unit"); }
    static ChoiceBox& Sign(const ValueControl& control) { return List(control, "Sign"); }

    static void TypeAll(const ValueControl& control, const char* text) {
        Value(control).setFocus();
        Value(control).selectAll();
        QTest::keyClicks(&Value(control), QString::fromUtf8(text));
    }

    static std::vector<LengthAct> Acts() {
        return {
            {"type", [](auto& control) { TypeAll(control, "34"); }, "focus 1020 | 1020 [-3px] | 1020 [-34px]", "-34px"},
            {"empty",
             [](auto& control) {
                 Value(control).setFocus();
                 Value(control).selectAll();
                 QTest::keyClick(&Value(control), Qt::Key_Delete);
             },
             "focus 1020 | 1020 []", ""},
            {"backspace",
             [](auto& control) {
                 Value(control).setFocus();
                 Value(control).end(false);
                 QTest::keyClick(&Value(control), Qt::Key_Backspace);
             },
             "focus 1020 | 1020 [-1px]", "-1px"},
            {"unit", [](auto& control) { ShowAndChoose(Unit(control), "em"); }, "list | 1020 [-12em]", "-12em"},
            {"word", [](auto& control) { ShowAndChoose(Unit(control), "auto"); }, "list | 1020 [auto]", "auto"},
            {"plus", [](auto& control) { ShowAndChoose(Sign(control), "+"); }, "1020 [+12px]", "+12px"},
            {"no sign", [](auto& control) { ShowAndChoose(Sign(control), ""); }, "1020 [12px]", "12px"},
            {"next sign",
             [](auto& control) {
                 Sign(control).setFocus();
                 QTest::keyClick(&Sign(control), Qt::Key_Up);
             },
             "focus 1020 | 1020 [+12px]", "+12px"},
            {"letter in the units",
             [](auto& control) {
                 Unit(control).setFocus();
                 QTest::keyClicks(&Unit(control), "m");
             },
             "focus 1020 | 1020 [-12mm]", "-12mm"},
            {"wheel over the units", [](auto& control) { EXPECT_FALSE(TurnWheel(Unit(control))); }, "", "-12px"},
            {"wheel in the units",
             [](auto& control) {
                 Unit(control).setFocus();
                 TurnWheel(Unit(control));
             },
             "focus 1020 | 1020 [-12pt]", "-12pt"},
            {"wheel over the field", [](auto& control) { EXPECT_FALSE(TurnWheel(Value(control))); }, "", "-12px"},
            {"edit the property", [](auto& control) { control.EditProperty(MarginTop); }, "focus 1020", "-12px"},
            {"paste", [](auto& control) { control.Paste(); }, "1020 [5%]", "5%"},
            {"cut nothing", [](auto& control) { control.Cut(); }, "", "-12px"},
            {"cut",
             [](auto& control) {
                 Value(control).setSelection(0, 1);
                 control.Cut();
             },
             "1020 [-2px]", "-2px"},
            {"clear",
             [](auto& control) {
                 Value(control).setSelection(1, 1);
                 control.ClearSelection();
             },
             "1020 [-1px]", "-1px"},
            {"undo is the style sheet's",
             [](auto& control) {
                 Value(control).setFocus();
                 Value(control).end(false);
                 QTest::keyClick(&Value(control), Qt::Key_3);
                 QTest::keyClick(&Value(control), Qt::Key_Z, Qt::ControlModifier);
             },
             "focus 1020 | 1020 [-123px]", "-123px"},
            {"fill", [](auto& control) { control.SetValue(u"1em"); }, "", "1em"},
            {"empty by the program", [](auto& control) { control.Clear(nullptr); }, "", ""},
        };
    }
};

TEST_F(LengthEditorTest, TellsWhatTheUserDoes) {
    ValueControl& control = Make(MarginTop);
    for (const LengthAct& row : Acts()) {
        SCOPED_TRACE(row.name);
        other.setFocus();
        control.Clear(&document);
        control.SetValue(u"-12px");
        clipboard.text = u"5%";
        Take();
        row.act(control);
        EXPECT_EQ(Take(), row.told);
        EXPECT_EQ(Utf8FromText(control.GetValue()), row.value);
    }
}

TEST_F(LengthEditorTest, TakesDigitsAndPointsAlone) {
    ValueControl& control = Make(MarginTop);
    for (const KeyCase& row : TypedKeys) {
        TypeAll(control, "");
        Value(control).clear();
        TypeAll(control, row.typed);
        EXPECT_EQ(Value(control).text().toStdString(), row.taken) << row.typed;
    }
}

TEST_F(LengthEditorTest, OtherLettersThanAsciiAreFilteredToo) {
    ValueControl& control = Make(MarginTop);
    Value(control).setFocus();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Eacute, Qt::NoModifier, QString(QChar(0xE9)));
    QApplication::sendEvent(&Value(control), &key);
    EXPECT_EQ(Value(control).text(), "");
    QInputMethodEvent event;
    event.setCommitString("1a,2");
    QApplication::sendEvent(&Value(control), &event);
    EXPECT_EQ(Value(control).text(), "12");
}

TEST_F(LengthEditorTest, KeysThatWriteNothingPass) {
    ValueControl& control = Make(MarginTop);
    control.SetValue(u"12px");
    QLineEdit& value = Value(control);
    value.setFocus();
    value.home(false);
    QTest::keyClick(&value, Qt::Key_Right);
    EXPECT_EQ(value.cursorPosition(), 1);
    QTest::keyClick(&value, Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(value.selectedText(), "2");
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F1}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&value, &event);
        EXPECT_FALSE(event.isAccepted()) << key;
    }
    QTest::keyClick(&value, Qt::Key_Tab);
    EXPECT_TRUE(Unit(control).hasFocus());
    QTest::keyClick(&Unit(control), Qt::Key_Tab, Qt::ShiftModifier);
    QTest::keyClick(&value, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(Sign(control).hasFocus());
}

TEST_F(LengthEditorTest, TheKeysOfTheClipboardWorkOnTheNumber) {
    ValueControl& control = Make(MarginTop);
    control.SetValue(u"12px");
    QLineEdit& value = Value(control);
    value.setFocus();
    QTest::keyClick(&value, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(value.selectedText(), "12");
    QTest::keyClick(&value, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard.text, u"12");
    Take();
    QTest::keyClick(&value, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Take(), "1020 []");
    clipboard.text = u"7em";
    QTest::keyClick(&value, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Take(), "1020 [7em]");
    clipboard.text = u"8em";
    QTest::keyClick(&value, Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(Take(), "1020 [8em]");
    clipboard.text = u"kept";
    value.deselect();
    QTest::keyClick(&value, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard.text, u"kept") << "nothing was selected";
}

TEST_F(LengthEditorTest, TheKeysOfTheClipboardReachTheNumberFromTheLists) {
    ValueControl& control = Make(MarginTop);
    control.SetValue(u"12px");
    for (ChoiceBox* const list : {&Sign(control), &Unit(control)}) {
        list->setFocus();
        QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(std::exchange(clipboard.text, Text()), u"12");
    }
    clipboard.text = u"7em";
    Take();
    QTest::keyClick(&Unit(control), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Take(), "1020 [7em]");
}

TEST_F(LengthEditorTest, PastesAValueOrANumberAndNothingElse) {
    ValueControl& control = Make(MarginTop);
    for (const PasteCase& row : Pastes) {
        SCOPED_TRACE(Utf8FromText(row.clipboard));
        control.Clear(&document);
        control.SetValue(u"1em");
        clipboard.text = row.clipboard;
        control.Paste();
        EXPECT_EQ(Take(), row.told);
        EXPECT_EQ(Value(control).text().toStdString(), row.number);
        EXPECT_EQ(Unit(control).currentText().toStdString(), row.unit);
    }
}

TEST_F(LengthEditorTest, TheEndlessTextOfAClipboardIsRefusedAtOnce) {
    ValueControl& control = Make(MarginTop);
    for (const Text& text : {Text(4'000'000, u'x'), Text(4'000'000, u' '), Text(4'000'000, u'-') + u"px\n"}) {
        clipboard.text = text;
        control.Paste();
        EXPECT_EQ(Take(), "");
    }
    EXPECT_EQ(Value(control).text(), "");
}

TEST_F(LengthEditorTest, TypingKeepsTheCaretThroughTheReport) {
    ValueControl& control = Make(MarginTop);
    control.SetValue(u"125px");
    QLineEdit& value = Value(control);
    value.setFocus();
    value.setCursorPosition(1);
    // The palette isn't refilled while the text is changed; a refill with the same value would keep the caret too.
    onReport = [&] { control.SetValue(control.GetValue()); };
    QTest::keyClick(&value, Qt::Key_9);
    EXPECT_EQ(value.text(), "1925");
    EXPECT_EQ(value.cursorPosition(), 2);
}

TEST_F(LengthEditorTest, AWordDisablesSignAndNumber) {
    ValueControl& control = Make(MarginTop);
    control.SetValue(u"auto");
    EXPECT_EQ(Unit(control).currentText(), "auto");
    EXPECT_FALSE(Sign(control).isEnabled());
    EXPECT_FALSE(Value(control).isEnabled());
    ShowAndChoose(Unit(control), "px");
    EXPECT_TRUE(Sign(control).isEnabled());
    EXPECT_TRUE(Value(control).isEnabled());
    control.Disable();
    EXPECT_FALSE(Value(control).isEnabled());
    control.Enable();
    EXPECT_TRUE(Value(control).isEnabled());
}

TEST_F(LengthEditorTest, ASignIsThereOnlyWhereItMayBe) {
    ValueControl& size = Make(FontSize);
    EXPECT_EQ(size.findChild<ChoiceBox*>("Sign"), nullptr);
    size.SetValue(u"-12px");
    EXPECT_EQ(size.GetValue(), u"12px");
    EXPECT_EQ(EntriesOf(Sign(Make(MarginTop))), (QStringList{"", "+", "-"}));
}

TEST_F(LengthEditorTest, ShowsTheNumberOfAnImportantValue) {
    ValueControl& control = Make(FontSize);
    control.SetValue(u"12px !important");
    EXPECT_EQ(Value(control).text(), "12");
    EXPECT_EQ(Unit(control).currentText(), "px");
    EXPECT_EQ(control.GetValue(), u"12px");
}

TEST_F(LengthEditorTest, ABareNumberLeavesThePreferredUnit) {
    ValueControl& control = Make(LineHeight);
    control.SetValue(u"1.5");
    EXPECT_EQ(Value(control).text(), "1.5");
    EXPECT_EQ(Unit(control).currentText(), "em");
}

TEST_F(LengthEditorTest, ClearingChoosesThePreferredUnitBehindTheFirst) {
    EXPECT_EQ(Unit(Make(FontSize)).currentText(), "em");
    EXPECT_EQ(Unit(Make(TextIndent)).currentText(), "px");
    Settings(store).SetPreferredUnits(u"pt");
    EXPECT_EQ(Unit(Make(TextIndent)).currentText(), "pt");
}

TEST_F(LengthEditorTest, ABadValueIsRedInTheListOfUnits) {
    ValueControl& control = Make(MarginTop);
    const QStringList units = EntriesOf(Unit(control));
    control.SetValue(u"heavy");
    EXPECT_EQ(EntriesOf(Unit(control)), units + QStringList{"heavy"});
    EXPECT_EQ(Unit(control).currentText(), "heavy");
    EXPECT_TRUE(IsRedSeenIn(Unit(control)));
    EXPECT_TRUE(Unit(control).IsMarkedBad());
    ShowAndChoose(Unit(control), "auto");
    EXPECT_EQ(EntriesOf(Unit(control)), units);
    EXPECT_FALSE(IsRedSeenIn(Unit(control)));
}

TEST_F(LengthEditorTest, DirtyFallsWhereTheFocusComesAndGoes) {
    ValueControl& control = Make(MarginTop);
    TypeAll(control, "1");
    EXPECT_TRUE(control.Dirty());
    other.setFocus();
    EXPECT_TRUE(control.Dirty()) << "leaving the field changes nothing";
    Value(control).setFocus();
    EXPECT_FALSE(control.Dirty());
    Unit(control).setFocus();
    QTest::keyClick(&Unit(control), Qt::Key_Down);
    EXPECT_TRUE(control.Dirty());
    other.setFocus();
    EXPECT_FALSE(control.Dirty());
}

TEST_F(LengthEditorTest, TheMenuFollowsTheSelectionOfTheNumber) {
    ValueControl& control = Make(MarginTop);
    control.SetValue(u"12px");
    Value(control).setFocus();
    Value(control).selectAll();
    menus.calls.clear();
    QTest::mouseRelease(&Value(control), Qt::LeftButton);
    EXPECT_EQ(menus.Take(), "+miECut | +miECopy | +miEClear | +miECommentOut | +miEUndo | +miERedo");
    clipboard.text = u"1";
    QTest::keyClick(&Value(control), Qt::Key_5);
    EXPECT_EQ(menus.Take(), "-miECut | -miECopy | -miEClear | -miECommentOut | +miEPaste | +miEUndo | +miERedo");
    menus.isEditorInFront = false;
    QTest::keyClick(&Value(control), Qt::Key_5);
    EXPECT_EQ(menus.Take(), "");
}

TEST_F(LengthEditorTest, FillingLeavesTheMenuAlone) {
    ValueControl& control = Make(MarginTop);
    menus.calls.clear();
    {
        const FlagScope settingUp(flags.SettingUp);
        control.Clear(&document);
        control.SetValue(u"12px");
    }
    EXPECT_EQ(menus.Take(), "");
}

TEST_F(LengthEditorTest, ChoosesAUnitByTheBeginningOfAText) {
    ValueControl& control = Make(MarginTop);
    control.SetValue(u"12em");
    auto& length = dynamic_cast<LengthEditor&>(control);
    length.SelectUnit(u"PXY");
    EXPECT_EQ(control.GetValue(), u"12px");
    length.SelectUnit(u"xpx");
    EXPECT_EQ(control.GetValue(), u"12px");
    length.SelectUnit(u"inherit");
    EXPECT_EQ(control.GetValue(), u"12in") << "the first entry is never looked at";
    EXPECT_EQ(Take(), "");
}

TEST_F(LengthEditorTest, TheMenuOfTheFieldPastesAsTheKeysDo) {
    ValueControl& control = Make(MarginTop);
    clipboard.text = u"9em";
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(2, 2), Value(control).mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&Value(control), &event);
    const QList<QAction*> actions = QApplication::activePopupWidget()->actions();
    for (QAction* const action : actions) {
        if (action->text() == "&Paste")
            action->trigger();
    }
    QApplication::activePopupWidget()->close();
    EXPECT_EQ(Take(), "1020 [9em]");
}

TEST_F(LengthEditorTest, FitsIntoANarrowPalette) {
    ValueControl& control = Make(MarginTop);
    EXPECT_LE(control.minimumSizeHint().width(), 170);
    EXPECT_LE(control.sizeHint().width(), 240);
}

}  // namespace
}  // namespace tintora::test
