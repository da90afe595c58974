#include "CorePropertiesBarFixture.h"
#include "document/DocumentRecorders.h"
#include "language/Vocabulary.h"

#include <gtest/gtest.h>

// The toolbar of core properties over a real document: whole texts before and after, with the caret drawn as "|".

namespace tintora::test {
namespace {

struct ClickCase {
    Text before;
    TextView key;
    const char* after;
    const char* checked;
};

const std::vector<ClickCase> ClickCases = {
    {u"p {|color: red;}", u"miFoBold", "p {color: red;\nfont-weight: bold;|}", "miFoBold"},
    {u"p {|font-weight: bold;}", u"miFoBold", "p {|}", ""},
    {u"p {|font-weight: bolder;}", u"miFoBold", "p {|}", ""},
    {u"p {|font-weight: bold}", u"miFoBold", "p {|}", ""},
    {u"p {|text-align: left;}", u"miFoLeft", "p {|}", ""},
    {u"p {|text-align: left;}", u"miFoRight", "p {text-align: right|;}", "miFoRight"},
    // Not shown, thus not taken for checked.
    {u"p {|text-align: left}", u"miFoLeft", "p {text-align: left|}", ""},
    {u"p {|text-decoration: overline;}", u"miFoUnderline", "p {text-decoration: overline underline|;}",
     "miFoUnderline"},
    {u"a {} p {|text-decoration: line-through;}", u"miFoUnderline",
     "a {} p {text-decoration: line-through underline|;}", "miFoUnderline miFoStrikeThrough"},
};

class CorePropertiesDocumentTest : public CorePropertiesBarTest {
  protected:
    CorePropertiesDocumentTest() {
        host.active = &document.window;
        document.Load(u"p {|}");
        host.onChange = [this](TextView value, int number) {
            document.window.ChangeCurrentProperty(PropertyNameFromNumber(number), value);
            if (number == PropertyNumberFromName(u"font-family"))
                document.window.UpdatePropertiesEditor();
            else
                document.window.UpdateEditorsOnStyleSheetChange();
            Forward();
        };
    }

    /// What the document has told the main window goes to the toolbar.
    void Forward() {
        const QString setUp = "SetUpToolbar ";
        for (const std::string& recorded : document.TakeCalls()) {
            const QString call = QString::fromStdString(recorded);
            if (call == "EnableToolbar" || call == "DisableToolbar")
                bar.EnableCorePropertiesToolbar(call == "EnableToolbar");
            else if (call.startsWith(setUp))
                bar.SetUpCorePropertiesToolbar(ToText(call.mid(setUp.size())));
        }
        host.declarations = document.window.GetCurrentStatementProperties();
    }

    void Load(TextView drawn) {
        document.Load(drawn);
        document.window.UpdateCorePropertiesToolbar();
        Forward();
    }

    /// Lets all timers of the document run down.
    void Wait() {
        document.Wait(5000);
        Forward();
    }

    RecordedDocument document;
};

TEST_F(CorePropertiesDocumentTest, AClickChangesTheRuleAndTheMarksFollow) {
    for (const ClickCase& row : ClickCases) {
        SCOPED_TRACE(Utf8FromText(row.before));
        Load(row.before);
        Click(row.key);
        EXPECT_EQ(document.Drawn(), row.after);
        EXPECT_EQ(Checked(), row.checked);
        Wait();
        EXPECT_EQ(document.Drawn(), row.after);
        EXPECT_EQ(Checked(), row.checked);
    }
}

TEST_F(CorePropertiesDocumentTest, EachLetterIsOneStepToUndo) {
    Load(u"p {|color: red;}");
    Size().setFocus();
    QTest::keyClicks(&Size(), "9pt");
    EXPECT_EQ(document.Drawn(), "p {color: red;\nfont-size: 9pt|;}");
    EXPECT_EQ(Size().currentText(), "9pt");
    for (const char* const text :
         {"p {color: red;\nfont-size: 9p;}", "p {color: red;\nfont-size: 9;}", "p {color: red;}"}) {
        document.window.CSSEditor().Undo();
        EXPECT_EQ(Utf8FromText(document.window.GetText()), text);
    }
}

TEST_F(CorePropertiesDocumentTest, TypingOnKeepsTheLettersWhateverTheTimersDo) {
    Load(u"p {|}");
    Family().setFocus();
    for (const char letter : {'B', ' ', 'C', ',', ' ', 'd'}) {
        QTest::keyClick(&Family(), letter);
        Wait();
    }
    EXPECT_EQ(Family().currentText(), "B C, d");
    EXPECT_TRUE(Family().hasFocus());
    EXPECT_EQ(Utf8FromText(document.window.GetText()), "p {\nfont-family: B C, d;}");
    text.setFocus();
    Wait();
    EXPECT_EQ(Family().currentText(), "B C, d");
}

TEST_F(CorePropertiesDocumentTest, SizesAreOfferedInTheUnitThatTheRuleHasNow) {
    Load(u"p {|font-size: 12pt;}");
    EXPECT_EQ(Size().itemText(0), "8pt");
    Size().setFocus();
    QTest::keyClick(&Size(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&Size(), "1em");
    EXPECT_EQ(Size().itemText(0), "8pt") << "while it is typed the list stays";
    text.setFocus();
    document.window.UpdateCorePropertiesToolbar();
    Forward();
    EXPECT_EQ(Size().itemText(0), ".6em");
}

TEST_F(CorePropertiesDocumentTest, OutsideOfARuleNothingIsEnabled) {
    Load(u"/* x| */ p {font-weight: bold;}");
    EXPECT_FALSE(bar.Action(u"miFoBold")->isEnabled());
    EXPECT_EQ(Checked(), QString());
    Load(u"/* x */ p {font-weight: bold;|}");
    EXPECT_TRUE(bar.Action(u"miFoBold")->isEnabled());
    EXPECT_EQ(Checked(), "miFoBold");
}

TEST_F(CorePropertiesDocumentTest, AChosenColorShowsInTheIcon) {
    Load(u"p {|color: red;} a {background-color: #00f;}");
    answer = QColor(0x01, 0x02, 0x03);
    Click(u"miColor");
    EXPECT_EQ(document.Drawn(), "p {color: #010203|;} a {background-color: #00f;}");
    EXPECT_EQ(asked.present, QColor(Qt::red));
    EXPECT_EQ(asked.customColors, (QList<QColor>{Qt::red, Qt::blue}));
    EXPECT_EQ(bar.Action(u"miColor")->icon().pixmap(22, 22).toImage(),
              ColorToolIcon(ColorToolSign::Letter, bar.palette(), answer).pixmap(22, 22).toImage());
}

}  // namespace
}  // namespace tintora::test
