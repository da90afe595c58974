#include "editor/qt/FindBar.h"

#include "editor/MemorySourceView.h"
#include "editor/qt/ScintillaSourceView.h"
#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace tintora {
namespace {

/// Counts what the control tells.
class CountedEvents final : public SourceViewEvents {
  public:
    void Ready() override {}
    void SelectionChanged(int, int) override { ++selections; }
    void TextChanged() override { ++changes; }
    void ChangedOtherwise() override { ++otherChanges; }
    void KeyPressedDown(int, int) override { ++keys; }
    void CharacterTyped(char16_t) override {}
    void KeyReleased(int, int) override {}
    void MousePressed(MouseButton, int, PixelPosition) override {}
    void MouseReleased(MouseButton, int, PixelPosition) override {}

    int selections = 0;
    int changes = 0;
    int otherChanges = 0;
    int keys = 0;
};

class FindBarTest : public testing::Test {
  protected:
    FindBarTest() {
        view.SetEvents(&events);
        view.resize(800, 600);
        view.show();
        bar = view.findChild<FindBar*>();
    }
    ~FindBarTest() override { view.SetEvents(nullptr); }

    void Ask(const char* wanted, const char* replacement = "") {
        const QList<QLineEdit*> fields = bar->findChildren<QLineEdit*>();
        for (QLineEdit* const field : fields)
            field->setText(QString::fromUtf8(field->accessibleName() == "Find" ? wanted : replacement));
    }

    void SetOption(const char* name, bool isOn) {
        for (QToolButton* const option : bar->findChildren<QToolButton*>()) {
            if (option->accessibleName() == QString::fromUtf8(name))
                option->setChecked(isOn);
        }
    }

    [[nodiscard]] QString CountText() const { return bar->findChild<QLabel*>("FindCount")->text(); }

    [[nodiscard]] QString Selected() { return view.Control().selectedText(); }

    CountedEvents events;
    ScintillaSourceView view;
    FindBar* bar;
};

struct CountCase {
    const char* wanted;
    bool matchCase;
    bool wholeWord;
    bool regularExpression;
    int count;
};

const std::vector<CountCase> Counts = {
    {"color", false, false, false, 4}, {"color", true, false, false, 3}, {"color", false, true, false, 3},
    {"col.r", false, false, false, 0}, {"col.r", false, false, true, 4}, {"^ *[a-z]+", false, false, true, 4},
    {"(", false, false, true, 0},      {"", false, false, false, 0},     {"\xc3\xa9", false, false, false, 1},
    {"b*", true, false, true, -1},
};

TEST_F(FindBarTest, TheOptionsSayWhatIsAMatch) {
    view.SetText(u"color: red;\nColor: \u00e9;\nbackground-color: x;\ncolorful");
    bar->Open(FindBar::Mode::Find);
    for (const CountCase& row : Counts) {
        SCOPED_TRACE(row.wanted);
        SetOption("Match case", row.matchCase);
        SetOption("Whole words", row.wholeWord);
        SetOption("Regular expression", row.regularExpression);
        Ask(row.wanted);
        if (row.count >= 0)
            EXPECT_EQ(bar->CountMatches(), row.count);
        else
            EXPECT_GT(bar->CountMatches(), 1) << "what matches nothing at all still ends";
    }
}

TEST_F(FindBarTest, TheNextMatchIsSelectedAndTheSearchGoesRound) {
    view.SetText(u"a1 a2 a3");
    bar->Open(FindBar::Mode::Find);
    SetOption("Regular expression", true);
    Ask("a[0-9]");
    for (const char* const expected : {"a1", "a2", "a3", "a1"}) {
        EXPECT_TRUE(bar->FindNext());
        EXPECT_EQ(Selected(), QString::fromUtf8(expected));
    }
    EXPECT_TRUE(bar->FindPrevious());
    EXPECT_EQ(Selected(), QStringLiteral("a3"));
    SetOption("Go on from the other end", false);
    EXPECT_FALSE(bar->FindNext());
    EXPECT_EQ(Selected(), QStringLiteral("a3"));
    EXPECT_EQ(CountText(), QStringLiteral("3 matches"));
}

TEST_F(FindBarTest, NothingFoundLeavesTheSelection) {
    view.SetText(u"abc");
    view.SelectRange({1, 0, 2, 0});
    bar->Open(FindBar::Mode::Find);
    Ask("zzz");
    EXPECT_FALSE(bar->FindNext());
    EXPECT_EQ(Selected(), QStringLiteral("b"));
    EXPECT_EQ(CountText(), QStringLiteral("No matches"));
}

TEST_F(FindBarTest, TheSelectionIsTakenOverAndFindAgainGoesOnWithoutTheBar) {
    view.SetText(u"top left top");
    view.SelectRange({0, 0, 3, 0});
    view.FindDialog();
    EXPECT_EQ(bar->findChild<QLineEdit*>()->text(), QStringLiteral("top"));
    EXPECT_TRUE(bar->isVisible());
    bar->hide();
    view.FindNext();
    EXPECT_EQ(view.GetSelectionRange(), (SelectionRange{9, 0, 12, 0}));
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(FindBarTest, ReplacingOneGoesToTheNext) {
    view.SetText(u"red red red");
    view.ReplaceDialog();
    Ask("red", "blue");
    bar->FindNext();
    bar->ReplaceCurrent();
    EXPECT_EQ(view.GetText(), u"blue red red");
    EXPECT_EQ(view.GetSelectionRange(), (SelectionRange{5, 0, 8, 0}));
    EXPECT_EQ(events.otherChanges, 1) << "the document hears of a change that nobody typed";
}

TEST_F(FindBarTest, ReplacingAllIsOneStepToUndo) {
    const Text text = u"a: red;\nb: red;\nc: reddish;";
    view.SetText(text);
    view.Buffer().ClearUndoStack();
    view.ReplaceDialog();
    Ask("red", "bluered");
    events.changes = 0;
    EXPECT_EQ(bar->ReplaceAll(), 3);
    EXPECT_EQ(view.GetText(), u"a: bluered;\nb: bluered;\nc: bluereddish;");
    EXPECT_EQ(events.changes, 1);
    EXPECT_EQ(events.otherChanges, 1);
    EXPECT_EQ(CountText(), QStringLiteral("3 replaced"));
    view.Buffer().Undo();
    EXPECT_EQ(view.GetText(), text);
    EXPECT_FALSE(view.Buffer().CanUndo());
}

TEST_F(FindBarTest, AReplacementKnowsTheGroupsOfItsExpression) {
    view.SetText(u"margin-left: 1px; margin-top: 2px;");
    view.ReplaceDialog();
    SetOption("Regular expression", true);
    Ask("margin-([a-z]+)", "padding-\\1");
    EXPECT_EQ(bar->ReplaceAll(), 2);
    EXPECT_EQ(view.GetText(), u"padding-left: 1px; padding-top: 2px;");
}

TEST_F(FindBarTest, AnExpressionThatMatchesNothingAtAllEnds) {
    view.SetText(u"ab\ncd");
    view.ReplaceDialog();
    SetOption("Regular expression", true);
    Ask("^", "> ");
    EXPECT_GE(bar->ReplaceAll(), 1);
    EXPECT_EQ(view.GetText().substr(0, 4), u"> ab");
}

TEST_F(FindBarTest, KeysOfTheBarAreNoKeysOfTheText) {
    view.SetText(u"abc abc");
    view.FindDialog();
    auto* const field = bar->findChild<QLineEdit*>();
    QTest::keyClicks(field, "abc");
    EXPECT_EQ(events.keys, 0);
    EXPECT_EQ(events.changes, 1) << "that of loading the text";
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(Selected(), QStringLiteral("abc"));
    QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(bar->isVisible());
}

}  // namespace
}  // namespace tintora
