#include "properties/qt/ColorEditor.h"

#include "ValueControlFixture.h"
#include "properties/qt/ColorSwatch.h"
#include "properties/qt/Eyedropper.h"
#include "properties/qt/SystemColors.h"

#include <gtest/gtest.h>
#include <QMouseEvent>
#include <stdexcept>

namespace tintora::test {
namespace {

constexpr int Color = 1004;

struct ShownCase {
    const char16_t* value;
    const char* mode;
    const char* part;
    const char* text;
    bool isBad;
    const char* swatch;
};

/// After `Clear`, in which the swatch is like a button.
const std::vector<ShownCase> ShownValues = {
    {u"rgb(255, 0, 0)", "rgb", "RGBEditText", "255, 0, 0", false, "#ff0000"},
    {u"RGB(1,2,3)", "rgb", "RGBEditText", "1,2,3", false, "#010203"},
    {u"rgbx", "rgb", "RGBEditText", "", false, ""},
    {u"rgb(red)", "rgb", "RGBEditText", "red", true, ""},
    {u"#f00", "#", "HexEditText", "f00", false, "#ff0000"},
    {u"#FF0000", "#", "HexEditText", "FF0000", false, "#ff0000"},
    {u"#ff00", "#", "HexEditText", "ff00", true, ""},
    {u"red", "Keywords", "ColorSelector", "red", false, "#ff0000"},
    {u"gray", "Keywords", "ColorSelector", "gray", false, "#999999"},
    {u"red !important", "Keywords", "ColorSelector", "red", false, "#ff0000"},
    {u"menutext", "UI Keywords", "ColorSelector", "menutext", false, ""},
    {u"Red", "Current", "ColorSelector", "Red", true, ""},
    {u"reddish", "Current", "ColorSelector", "reddish", true, ""},
};

struct TypedColor {
    const char16_t* before;
    const char* part;
    const char* typed;
    const char* text;
    const char* told;
    bool isBad;
};

const std::vector<TypedColor> TypedColors = {
    {u"#000000", "HexEditText", "f0Xg!", "f0", "1004 [#f] | 1004 [#f0]", true},
    {u"#000000", "HexEditText", "F0a", "F0a", "1004 [#F] | 1004 [#F0] | 1004 [#F0a]", false},
    {u"rgb(0,0,0)", "RGBEditText", "1a,(2", "1,2", "1004 [rgb(1)] | 1004 [rgb(1,)] | 1004 [rgb(1,2)]", false},
    {u"rgb(0,0,0)", "RGBEditText", "1.% ", "1.% ",
     "1004 [rgb(1)] | 1004 [rgb(1.)] | 1004 [rgb(1.%)] | 1004 [rgb(1.% )]", false},
};

class ColorEditorTest : public ValueControlTest {
  protected:
    static ChoiceBox& Mode(const ValueControl& control) { return List(control, "ColorMode"); }
    static ChoiceBox& Selector(const ValueControl& control) { return List(control, "ColorSelector"); }
    static QLineEdit& Hex(const ValueControl& control) { return Field(control, "HexEditText"); }
    static QLineEdit& RGB(const ValueControl& control) { return Field(control, "RGBEditText"); }
    static ColorSwatch& Swatch(const ValueControl& control) { return PartOf<ColorSwatch>(control, "ColorPreview"); }
    static Eyedropper& Picker(const ValueControl& control) { return PartOf<Eyedropper>(control, "ColorPicker"); }

    static std::string VisibleParts(const ValueControl& control) {
        std::string names;
        for (const char* const name : {"ColorSelector", "RGBEditText", "HexEditText"}) {
            if (PartOf<QWidget>(control, name).isVisible())
                names += name;
        }
        return names;
    }

    static std::string TextOf(const ValueControl& control, const QString& part) {
        if (part == "ColorSelector")
            return Selector(control).currentText().toStdString();
        return (part == "RGBEditText" ? RGB(control) : Hex(control)).text().toStdString();
    }

    static QColor MarkOf(const ValueControl& control, const QString& part) {
        return PartOf<QWidget>(control, part.toUtf8().constData()).palette().color(QPalette::Text);
    }

    std::string SwatchName(const ValueControl& control) {
        const QColor face = window.palette().color(QPalette::Button);
        const QColor shown = Swatch(control).Color();
        return shown == face ? "button" : shown.name().toStdString();
    }

    static void Drag(Eyedropper& picker, const QPoint& place) {
        QMouseEvent move(QEvent::MouseMove, picker.mapFromGlobal(place), place, Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&picker, &move);
    }
};

TEST_F(ColorEditorTest, ShowsEachFormInItsPlace) {
    ValueControl& control = Make(Color);
    for (const ShownCase& row : ShownValues) {
        SCOPED_TRACE(Utf8FromText(row.value));
        control.Clear(&document);
        const std::string before = SwatchName(control);
        EXPECT_EQ(before, "button");
        control.SetValue(row.value);
        EXPECT_EQ(Mode(control).currentText().toStdString(), row.mode);
        EXPECT_EQ(VisibleParts(control), row.part);
        EXPECT_EQ(TextOf(control, row.part), row.text);
        EXPECT_TRUE(*row.swatch == '\0' || SwatchName(control) == row.swatch) << SwatchName(control);
        EXPECT_EQ(IsRedSeenIn(PartOf<QWidget>(control, row.part)), row.isBad);
    }
    EXPECT_EQ(Take(), "");
}

TEST_F(ColorEditorTest, TypingReportsEachChangeAndMarksWhatIsNoColor) {
    ValueControl& control = Make(Color);
    for (const TypedColor& row : TypedColors) {
        SCOPED_TRACE(row.typed);
        control.SetValue(row.before);
        QLineEdit& field = Field(control, row.part);
        field.setFocus();
        field.selectAll();
        Take();
        QTest::keyClicks(&field, QString::fromUtf8(row.typed));
        EXPECT_EQ(Take(), row.told);
        EXPECT_EQ(field.text().toStdString(), row.text);
        EXPECT_EQ(MarkOf(control, row.part) == QColor(255, 0, 0), row.isBad);
        EXPECT_TRUE(control.Dirty());
    }
}

TEST_F(ColorEditorTest, TypingKeepsCaretAndSelection) {
    ValueControl& control = Make(Color);
    control.SetValue(u"#aabbcc");
    Hex(control).setFocus();
    Hex(control).setCursorPosition(2);
    onReport = [&] { control.SetValue(control.GetValue()); };
    QTest::keyClick(&Hex(control), Qt::Key_1);
    EXPECT_EQ(Hex(control).text(), "aa1bbcc");
    EXPECT_EQ(Hex(control).cursorPosition(), 3);
    Hex(control).setSelection(1, 3);
    control.SetValue(control.GetValue());
    EXPECT_EQ(Hex(control).selectedText(), "a1b");
}

TEST_F(ColorEditorTest, AnEmptyFieldRemovesTheDeclaration) {
    ValueControl& control = Make(Color);
    control.SetValue(u"#f00");
    Hex(control).setFocus();
    Hex(control).selectAll();
    Take();
    QTest::keyClick(&Hex(control), Qt::Key_Backspace);
    EXPECT_EQ(Take(), "1004 []");
    EXPECT_EQ(MarkOf(control, "HexEditText"), other.palette().color(QPalette::Text));
}

TEST_F(ColorEditorTest, OffersTheWordsOfTheMode) {
    document.colors = {u" #123 ", u"red"};
    ValueControl& control = Make(Color);
    ShowAndChoose(Mode(control), "Current");
    EXPECT_EQ(EntriesOf(Selector(control)), (QStringList{"#123", "red"}));
    ShowAndChoose(Mode(control), "Keywords");
    EXPECT_EQ(EntriesOf(Selector(control)).first(), "inherit");
    ShowAndChoose(Mode(control), "UI Keywords");
    EXPECT_EQ(EntriesOf(Selector(control)).first(), "activeborder");
    EXPECT_EQ(Take(), "") << "an empty value isn't reported";
    ShowAndChoose(Selector(control), "menutext");
    EXPECT_EQ(Take(), "1004 [menutext]");
    EXPECT_FALSE(control.Dirty());
}

TEST_F(ColorEditorTest, AModeIsReportedIfItHasAValue) {
    ValueControl& control = Make(Color);
    control.SetValue(u"#f00");
    control.SetValue(u"red");
    ShowAndChoose(Mode(control), "rgb");
    EXPECT_EQ(Take(), "");
    EXPECT_EQ(VisibleParts(control), "RGBEditText");
    ShowAndChoose(Mode(control), "#");
    EXPECT_EQ(Take(), "1004 [#f00]");
    Mode(control).setFocus();
    Take();
    other.setFocus();
    EXPECT_FALSE(TurnWheel(Mode(control)));
}

TEST_F(ColorEditorTest, ClearingKeepsTheMode) {
    ValueControl& control = Make(Color);
    EXPECT_EQ(Mode(control).currentText(), "#");
    control.SetValue(u"rgb(1, 2, 3)");
    control.Clear(&document);
    EXPECT_EQ(Mode(control).currentText(), "rgb");
    EXPECT_EQ(RGB(control).text(), "");
    EXPECT_EQ(SwatchName(control), "button");
}

TEST_F(ColorEditorTest, TheFocusOfListsAndFieldsIsReported) {
    ValueControl& control = Make(Color);
    control.EditProperty(Color);
    EXPECT_TRUE(Hex(control).hasFocus());
    EXPECT_EQ(Take(), "focus 1004");
    Mode(control).setFocus();
    EXPECT_EQ(Take(), "focus 1004");
    control.SetValue(u"rgb(1, 2, 3)");
    control.EditProperty(Color);
    EXPECT_TRUE(RGB(control).hasFocus());
    control.SetValue(u"red");
    EXPECT_TRUE(Selector(control).hasFocus()) << "the focus follows the value to its other part";
    control.EditProperty(Color);
    EXPECT_TRUE(Selector(control).hasFocus());
    other.setFocus();
    control.Disable();
    control.EditProperty(Color);
    EXPECT_TRUE(other.hasFocus());
}

TEST_F(ColorEditorTest, TheClipboardIsForTheVisibleField) {
    ValueControl& control = Make(Color);
    control.SetValue(u"#aabbcc");
    Hex(control).setSelection(2, 2);
    control.Copy();
    EXPECT_EQ(clipboard.text, u"bb");
    control.Cut();
    EXPECT_EQ(Take(), "1004 [#aacc]");
    clipboard.text = u"01";
    control.Paste();
    EXPECT_EQ(Take(), "1004 [#aa01cc]");
    Hex(control).selectAll();
    control.ClearSelection();
    EXPECT_EQ(Take(), "1004 []");
    control.SetValue(u"rgb(1, 2, 3)");
    RGB(control).selectAll();
    clipboard.text = u"4,5,6";
    control.Paste();
    EXPECT_EQ(Take(), "1004 [rgb(4,5,6)]");
    control.SetValue(u"red");
    control.Paste();
    control.Cut();
    control.Copy();
    EXPECT_EQ(Take(), "");
    EXPECT_EQ(clipboard.text, u"4,5,6");
}

TEST_F(ColorEditorTest, AnEndlessClipboardEndsAtTheLengthOfAField) {
    ValueControl& control = Make(Color);
    clipboard.text = Text(3'000'000, u'f');
    control.Paste();
    EXPECT_LT(control.GetValue().size(), 40'000U);
    EXPECT_EQ(MarkOf(control, "HexEditText"), QColor(255, 0, 0));
}

TEST_F(ColorEditorTest, ThePickerFollowsThePointerAndReportsOnce) {
    ValueControl& control = Make(Color);
    control.SetValue(u"red");
    Eyedropper& picker = Picker(control);
    QTest::mousePress(&picker, Qt::LeftButton);
    EXPECT_TRUE(picker.Sampling());
    EXPECT_EQ(QWidget::mouseGrabber(), &picker);
    Drag(picker, {10, 10});
    EXPECT_EQ(SwatchName(control), "#0102ff");
    screen.color = QColor(0, 0, 16);
    Drag(picker, {-4000, 9000});
    EXPECT_EQ(SwatchName(control), "#000010") << "also beyond the window";
    Drag(picker, {-6000, 9000});
    EXPECT_EQ(SwatchName(control), "#000010") << "there is no screen";
    EXPECT_EQ(Take(), "");
    QTest::mouseRelease(&picker, Qt::LeftButton);
    EXPECT_EQ(Take(), "1004 [#000010]");
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    EXPECT_EQ(Hex(control).text(), "000010");
    EXPECT_TRUE(control.Dirty());
}

TEST_F(ColorEditorTest, APickedColorStaysInRGB) {
    ValueControl& control = Make(Color);
    control.SetValue(u"rgb(1, 1, 1)");
    QTest::mousePress(&Picker(control), Qt::LeftButton);
    Drag(Picker(control), {10, 10});
    QTest::mouseRelease(&Picker(control), Qt::LeftButton);
    EXPECT_EQ(Take(), "1004 [rgb(1, 2, 255)]");
}

TEST_F(ColorEditorTest, EscapeEndsThePickingWithoutAChange) {
    ValueControl& control = Make(Color);
    control.SetValue(u"red");
    Eyedropper& picker = Picker(control);
    QTest::mousePress(&picker, Qt::LeftButton);
    Drag(picker, {10, 10});
    QTest::keyClick(&picker, Qt::Key_Escape);
    EXPECT_FALSE(picker.Sampling());
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    EXPECT_EQ(QWidget::keyboardGrabber(), nullptr);
    EXPECT_EQ(SwatchName(control), "#ff0000");
    QTest::mouseRelease(&picker, Qt::LeftButton);
    EXPECT_EQ(Take(), "");
    EXPECT_EQ(control.GetValue(), u"red");
}

TEST_F(ColorEditorTest, AClickOnThePickerThatIsNotDraggedChangesNothing) {
    ValueControl& control = Make(Color);
    control.SetValue(u"red");
    QTest::mouseClick(&Picker(control), Qt::LeftButton);
    QTest::mouseClick(&Picker(control), Qt::RightButton);
    EXPECT_EQ(Take(), "");
    EXPECT_EQ(control.GetValue(), u"red");
}

TEST_F(ColorEditorTest, APickerThatGoesLetsThePointerGo) {
    ValueControl& control = Make(Color);
    QTest::mousePress(&Picker(control), Qt::LeftButton);
    control.Disable();
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    control.Enable();
    QTest::mousePress(&Picker(control), Qt::LeftButton);
    control.hide();
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    EXPECT_EQ(Take(), "");
}

TEST_F(ColorEditorTest, APickedColorIsForTheRuleItWasLookedForAlone) {
    ValueControl& control = Make(Color);
    QTest::mousePress(&Picker(control), Qt::LeftButton);
    Drag(Picker(control), {10, 10});
    document.selector = u"h1";
    QTest::mouseRelease(&Picker(control), Qt::LeftButton);
    EXPECT_EQ(Take(), "");
    EXPECT_EQ(control.GetValue(), u"");
    EXPECT_EQ(SwatchName(control), "button");
}

TEST_F(ColorEditorTest, WherePixelsCannotBeReadTheDesktopIsAsked) {
    screen.way = ScreenColor::Way::ByQuestion;
    ValueControl& control = Make(Color);
    EXPECT_EQ(Picker(control).toolTip(), "Click to pick a color from the screen");
    QTest::mouseClick(&Picker(control), Qt::LeftButton);
    EXPECT_FALSE(Picker(control).Sampling());
    EXPECT_EQ(Take(), "");
    screen.answer(QColor(1, 2, 3));
    EXPECT_EQ(Take(), "1004 [#010203]");
    QTest::keyClick(&Picker(control), Qt::Key_Space);
    document.selector = u"h1";
    screen.answer(QColor(4, 5, 6));
    EXPECT_EQ(Take(), "");
    QTest::mouseClick(&Picker(control), Qt::LeftButton);
    screen.way = ScreenColor::Way::NotAtAll;
    screen.answer(std::nullopt);
    EXPECT_EQ(Take(), "");
    EXPECT_FALSE(Picker(control).isEnabled());
    EXPECT_EQ(Picker(control).toolTip(), "It is dark.");
}

TEST_F(ColorEditorTest, ThePickerIsDisabledWhereThereIsNoWay) {
    screen.way = ScreenColor::Way::NotAtAll;
    ValueControl& control = Make(Color);
    control.Enable();
    EXPECT_FALSE(Picker(control).isEnabled());
    EXPECT_EQ(Picker(control).toolTip(), "It is dark.");
}

TEST_F(ColorEditorTest, TheChooserStartsAtTheColorAndItsAnswerIsReportedOnce) {
    ValueControl& control = Make(Color);
    control.SetValue(u"gray");
    color = QColor(16, 0, 255);
    whileAsked = [&] { EXPECT_TRUE(flags.IsDialogOpen()); };
    QTest::mouseClick(&Swatch(control), Qt::LeftButton);
    EXPECT_EQ(Joined(questions), "color Choose a Color #999999");
    EXPECT_EQ(Take(), "1004 [#1000ff]");
    EXPECT_FALSE(flags.IsDialogOpen());
    EXPECT_FALSE(control.Dirty());
    control.SetValue(u"rgb(1, 2, 3)");
    Swatch(control).setFocus();
    QTest::keyClick(&Swatch(control), Qt::Key_Space);
    EXPECT_EQ(Take(), "1004 [rgb(16, 0, 255)]");
}

TEST_F(ColorEditorTest, ACancelledChooserChangesNothing) {
    ValueControl& control = Make(Color);
    control.SetValue(u"red");
    QTest::mouseClick(&Swatch(control), Qt::LeftButton);
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_EQ(Take(), "");
    EXPECT_EQ(control.GetValue(), u"red");
}

TEST_F(ColorEditorTest, AChooserThatFailsIsOneThatIsCancelled) {
    ValueControl& control = Make(Color);
    control.SetValue(u"red");
    color = QColor(1, 2, 3);
    whileAsked = [] { throw std::runtime_error("no dialogue"); };
    EXPECT_NO_THROW(dynamic_cast<ColorEditor&>(control).EditColorWithDialogGM());
    EXPECT_EQ(Take(), "");
    EXPECT_EQ(control.GetValue(), u"red");
    EXPECT_FALSE(flags.IsDialogOpen());
}

TEST_F(ColorEditorTest, TheAnswerOfAChooserIsDroppedWhenItComesTooLate) {
    ValueControl* control = &Make(Color);
    color = QColor(1, 2, 3);
    UsedDocument another;
    const std::vector<std::function<void()>> acts = {
        [&] { document.selector = u"h2"; },
        [&] { document.selectorType = 14; },
        [&] { documents.document = &another; },
        [&] { documents.document = nullptr; },
    };
    for (const auto& act : acts) {
        documents.document = &document;
        whileAsked = act;
        QTest::mouseClick(&Swatch(*control), Qt::LeftButton);
        EXPECT_EQ(Take(), "");
        EXPECT_EQ(control->GetValue(), u"");
    }
    documents.document = &document;
    whileAsked = [&] { delete control; };
    dynamic_cast<ColorEditor&>(*control).EditColorWithDialogGM();
    EXPECT_EQ(Take(), "");
    EXPECT_FALSE(flags.IsDialogOpen());
}

TEST_F(ColorEditorTest, TheSwatchHasTheColorsOfTheDesktop) {
    ValueControl& control = Make(Color);
    QPalette palette;
    palette.setColor(QPalette::Highlight, QColor(7, 8, 9));
    palette.setColor(QPalette::Button, QColor(4, 5, 6));
    window.setPalette(palette);
    EXPECT_EQ(Swatch(control).Color(), QColor(4, 5, 6)) << "it follows another palette";
    control.SetValue(u"highlight");
    EXPECT_EQ(Swatch(control).Color(), QColor(7, 8, 9));
    control.SetValue(u"window");
    EXPECT_EQ(Swatch(control).Color(), palette.color(QPalette::Base));
    EXPECT_EQ(DisplayColor(SystemColorBase + 200, palette), palette.color(QPalette::Button));
    EXPECT_EQ(Swatch(control).grab().toImage().pixelColor(Swatch(control).rect().center()),
              palette.color(QPalette::Base));
}

TEST_F(ColorEditorTest, ThePixelsOfTheScreenAreRead) {
    QWidget patch;
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(10, 200, 30));
    patch.setPalette(palette);
    patch.setGeometry(300, 300, 50, 50);
    patch.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&patch));
    QApplication::processEvents();
    EXPECT_EQ(DesktopColor().PresentWay(), ScreenColor::Way::Directly);
    EXPECT_EQ(DesktopColor().ColorAt(patch.mapToGlobal(QPoint(25, 25))), QColor(10, 200, 30));
    EXPECT_EQ(DesktopColor().ColorAt({-100'000, 0}), std::nullopt);
}

}  // namespace
}  // namespace tintora::test
