#include "shell/qt/options/FormattingTab.h"

#include "OptionsFixture.h"
#include "settings/Separators.h"
#include "text/Whitespace.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMimeData>
#include <random>

namespace tintora {
namespace {

/// The sample with white space in front of the "{", behind the first ";" and behind the "}".
Text Sample(TextView selector, TextView property, TextView statement) {
    return Text(u"body") + Text(selector) + u"{font-weight: bold;" + Text(property) + u"text-decoration: underline;}" +
           Text(statement);
}

const Text DefaultSample = Sample(u" ", u"\r", u"\r\r");

struct PressCase {
    const char* what;
    int column;
    int row;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    Text after = DefaultSample;
};

const auto NoModifier = Qt::NoModifier;
const auto Shift = Qt::ShiftModifier;
const auto Control = Qt::ControlModifier;

const std::vector<PressCase> PressCases = {
    {"a blank in front of a blank", 4, 0, Qt::Key_Space, NoModifier, Sample(u"  ", u"\r", u"\r\r")},
    {"a tab behind a blank", 5, 0, Qt::Key_Tab, NoModifier, Sample(u" \t", u"\r", u"\r\r")},
    {"a line in front of a blank", 4, 0, Qt::Key_Return, NoModifier, Sample(u"\r ", u"\r", u"\r\r")},
    {"a line by the other key", 4, 0, Qt::Key_Enter, NoModifier, Sample(u"\r ", u"\r", u"\r\r")},
    {"a line with Shift", 4, 0, Qt::Key_Return, Shift, Sample(u"\r ", u"\r", u"\r\r")},
    {"a tab at the start of a line", 0, 1, Qt::Key_Tab, NoModifier, Sample(u" ", u"\r\t", u"\r\r")},
    {"a line at the end of a line", 28, 1, Qt::Key_Return, NoModifier, Sample(u" ", u"\r", u"\r\r\r")},
    {"Delete in front of a blank", 4, 0, Qt::Key_Delete, NoModifier, Sample(u"", u"\r", u"\r\r")},
    {"Delete at the end of a line", 24, 0, Qt::Key_Delete, NoModifier, Sample(u" ", u"", u"\r\r")},
    {"Backspace behind a blank", 5, 0, Qt::Key_Backspace, NoModifier, Sample(u"", u"\r", u"\r\r")},
    {"Backspace at the start of a line", 0, 1, Qt::Key_Backspace, NoModifier, Sample(u" ", u"", u"\r\r")},
    {"Backspace in the last line", 0, 3, Qt::Key_Backspace, NoModifier, Sample(u" ", u"\r", u"\r")},

    {"a blank inside of a word", 2, 0, Qt::Key_Space, NoModifier},
    {"a blank behind the {", 6, 0, Qt::Key_Space, NoModifier},
    {"a line inside of a word", 2, 0, Qt::Key_Return, NoModifier},
    {"Delete in front of a letter", 5, 0, Qt::Key_Delete, NoModifier},
    {"Delete at the very end", 0, 3, Qt::Key_Delete, NoModifier},
    {"Backspace behind a letter", 4, 0, Qt::Key_Backspace, NoModifier},
    {"Backspace at the very start", 0, 0, Qt::Key_Backspace, NoModifier},
    {"the word behind", 5, 0, Qt::Key_Backspace, Control},
    {"the word in front", 4, 0, Qt::Key_Delete, Control},
    {"the line behind", 5, 0, Qt::Key_Backspace, Control | Shift},
    {"a letter", 5, 0, Qt::Key_X, NoModifier},
    {"a mark whose number is an arrow's", 5, 0, Qt::Key_Percent, Shift},
    {"a brace", 5, 0, Qt::Key_BraceRight, Shift},
    {"the line of the caret", 5, 0, Qt::Key_L, Control},
    {"Home and its like", 5, 0, Qt::Key_Home, NoModifier},
    {"undo", 5, 0, Qt::Key_Z, Control},
    {"the clipboard", 5, 0, Qt::Key_V, Control},
    {"the clipboard by another key", 5, 0, Qt::Key_Insert, Shift},
};

/// The keys that the random presses choose from.
constexpr Qt::Key AnyKeys[] = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab,   Qt::Key_Delete, Qt::Key_Backspace,
                               Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,    Qt::Key_Down,   Qt::Key_X,
                               Qt::Key_Home,  Qt::Key_End,    Qt::Key_V,     Qt::Key_Z,      Qt::Key_Y,
                               Qt::Key_Space, Qt::Key_Return, Qt::Key_Right, Qt::Key_Down,   Qt::Key_Insert};

class FormattingTabTest : public test::OptionsTest {
  protected:
    FormattingTabTest() { OpenTab(); }

    void OpenTab() {
        Open(2);
        sample = &Find<ScintillaSourceView>("Formatting");
        sample->Control().setFocus();
    }

    void Place(int column, int row) { sample->SelectRange({column, row, column, row}); }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&sample->Control(), key, modifiers);
    }

    [[nodiscard]] Text WithoutWhitespace() const {
        Text text = sample->GetText();
        std::erase_if(text, IsWhitespaceUnit);
        return text;
    }

    ScintillaSourceView* sample = nullptr;
};

TEST_F(FormattingTabTest, TheExplanationAndTheButtonAreThere) {
    const auto labels = Tabs().currentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(labels.first()->text(), QStringLiteral("Format the statement below as you'd like Tintora to format \n"
                                                     "statements. You may add spaces, tabs and returns\n\n"
                                                     "* before and after the {\n"
                                                     "* between properties\n"
                                                     "* before the }\n"
                                                     "* after the } - this will be the space between statements\n"));
    EXPECT_EQ(Find<QPushButton>("FormatNow").text().remove(QLatin1Char('&')),
              QStringLiteral("Format Open Style Sheets"));
}

TEST_F(FormattingTabTest, TheSampleShowsTheStoredSeparators) {
    EXPECT_EQ(sample->GetText(), DefaultSample);
    SetSelectorDeclarationSeparator(store, u"\r");
    SetFirstPropertySeparator(store, u"\r\t");
    SetPropertySeparator(store, u"\r\t");
    SetLastPropertySeparator(store, u"\r");
    SetStatementSeparator(store, u"\r\r\r");
    OpenTab();
    EXPECT_EQ(sample->GetText(), u"body\r{\r\tfont-weight: bold;\r\ttext-decoration: underline;\r}\r\r\r");
}

TEST_F(FormattingTabTest, KeysChangeWhatTheCasesSay) {
    QGuiApplication::clipboard()->setText(QStringLiteral("pasted"));
    for (const PressCase& row : PressCases) {
        SCOPED_TRACE(row.what);
        OpenTab();
        Place(row.column, row.row);
        Press(row.key, row.modifiers);
        EXPECT_EQ(sample->GetText(), row.after);
        EXPECT_TRUE(options->isVisible()) << "a key of the sample is none of the form";
        EXPECT_TRUE(sample->Control().hasFocus());
    }
}

TEST_F(FormattingTabTest, ArrowKeysMoveTheCaret) {
    Place(4, 0);
    Press(Qt::Key_Right);
    EXPECT_EQ(sample->CaretColumn(), 5);
    Press(Qt::Key_Down);
    EXPECT_EQ(sample->CaretRow(), 1);
    Press(Qt::Key_Left);
    EXPECT_EQ(sample->CaretColumn(), 4);
    Press(Qt::Key_Up);
    EXPECT_EQ(sample->CaretRow(), 0);
    EXPECT_EQ(sample->GetText(), DefaultSample);
}

TEST_F(FormattingTabTest, ATabBehindBlanksLeavesThemAsTheyAre) {
    Place(0, 1);
    Press(Qt::Key_Space);
    Press(Qt::Key_Tab);
    EXPECT_EQ(sample->GetText(), Sample(u" ", u"\r \t", u"\r\r"));
}

TEST_F(FormattingTabTest, WhileSomethingIsSelectedNoKeyActs) {
    for (const SelectionRange& selected : {SelectionRange{4, 0, 5, 0}, SelectionRange{5, 0, 4, 0},
                                           SelectionRange{0, 2, 0, 3}, SelectionRange{4, 1, 4, 0}}) {
        sample->SelectRange(selected);
        for (const Qt::Key key : AnyKeys)
            Press(key);
        EXPECT_EQ(sample->GetSelectionRange(), selected);
    }
    EXPECT_EQ(sample->GetText(), DefaultSample);
}

TEST_F(FormattingTabTest, ASelectionEndsWhenTheFocusLeaves) {
    Place(4, 0);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(sample->GetSelectionRange(), (SelectionRange{4, 0, 5, 0}));
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_FALSE(sample->Control().hasFocus());
    sample->Control().setFocus();
    EXPECT_EQ(sample->GetSelectionRange(), (SelectionRange{5, 0, 5, 0}));
    Press(Qt::Key_Space);
    EXPECT_EQ(sample->GetText(), Sample(u"  ", u"\r", u"\r\r"));
}

TEST_F(FormattingTabTest, ControlWithTabGoesToTheNextTab) {
    Press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(Tabs().currentIndex(), 0);
    EXPECT_EQ(sample->GetText(), DefaultSample);
}

TEST_F(FormattingTabTest, NoOtherRoadChangesTheSample) {
    Place(5, 0);
    QInputMethodEvent input;
    input.setCommitString(QStringLiteral("typed"));
    QCoreApplication::sendEvent(&sample->Control(), &input);
    QMimeData dropped;
    dropped.setText(QStringLiteral("dropped"));
    QDropEvent drop(QPointF(20, 5), Qt::CopyAction, &dropped, Qt::LeftButton, {});
    QCoreApplication::sendEvent(sample->Control().viewport(), &drop);
    QGuiApplication::clipboard()->setText(QStringLiteral("pasted"));
    sample->PasteClipboard();
    EXPECT_EQ(sample->GetText(), DefaultSample);
}

TEST_F(FormattingTabTest, WhateverIsPressedNothingButWhiteSpaceChanges) {
    const Text marks = WithoutWhitespace();
    std::mt19937 random(12345);  // NOLINT(cert-msc51-cpp): the same presses each time
    bool hasChanged = false;
    for (int press = 0; press < 2000; ++press) {
        const Qt::Key key = AnyKeys[random() % std::size(AnyKeys)];
        const auto modifiers = random() % 8 == 0 ? Qt::ShiftModifier : Qt::NoModifier;
        if (key == Qt::Key_Tab && modifiers != Qt::NoModifier)
            continue;
        Press(key, modifiers);
        if (random() % 8 == 0)
            Place(sample->CaretColumn(), sample->CaretRow());
        hasChanged |= sample->GetText() != DefaultSample;
        ASSERT_EQ(WithoutWhitespace(), marks) << "after press " << press;
    }
    EXPECT_TRUE(hasChanged);
}

TEST_F(FormattingTabTest, ApplyingStoresWhatTheSampleShows) {
    Place(6, 0);
    Press(Qt::Key_Left);
    Press(Qt::Key_Return);
    Place(0, 2);
    Press(Qt::Key_Tab);
    EXPECT_EQ(store.Size(), 0U);
    Apply();
    EXPECT_EQ(Stored(setting::SelectorDeclarationSeparator), u" \r");
    EXPECT_EQ(Stored(setting::PropertySeparator), u"\r\t");
    EXPECT_EQ(Stored(setting::FirstPropertySeparator), u"");
    EXPECT_EQ(Stored(setting::LastPropertySeparator), u"");
    EXPECT_EQ(Stored(setting::StatementSeparator), u"\r\r");
}

TEST_F(FormattingTabTest, ANewLineIsACarriageReturnAlsoWhereTheSampleHadNone) {
    SetPropertySeparator(store, u" ");
    SetStatementSeparator(store, u" ");
    OpenTab();
    EXPECT_EQ(sample->GetText(), Sample(u" ", u" ", u" "));
    Place(4, 0);
    Press(Qt::Key_Return);
    EXPECT_EQ(sample->GetText(), Sample(u"\r ", u" ", u" "));
    Apply();
    EXPECT_EQ(Stored(setting::SelectorDeclarationSeparator), u"\r ");
}

TEST_F(FormattingTabTest, FormattingNowTakesWhatIsStored) {
    Place(4, 0);
    Press(Qt::Key_Space);
    Find<QPushButton>("FormatNow").click();
    EXPECT_EQ(host.formattings, 1);
    EXPECT_EQ(store.Size(), 0U);
}

}  // namespace
}  // namespace tintora
