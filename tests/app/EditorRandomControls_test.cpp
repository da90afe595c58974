#include "PaletteFixture.h"
#include "properties/PropertyValueDump.h"
#include "properties/RandomRules.h"
#include "settings/Settings.h"

#include <QCheckBox>

// Random rules, each changed by a random control of the palette as its user does it.

namespace tintora::test {
namespace {

class EditorRandomControlsTest : public PropertiesPaletteTest {
  protected:
    /// A rule with the caret in it; where it begins is told in `ruleStart`.
    Text LoadRule(int editor, std::size_t& ruleStart) {
        const Text sheet = random.Sheet(editor, ruleStart);
        const std::size_t opening = sheet.find(u'{', ruleStart);
        const auto caret = static_cast<int>(opening + 1 + random.Below(sheet.find(u'}', opening) - opening));
        document.window.SetText(sheet);
        document.window.SetSelection(caret, caret);
        document.window.SelectionChangedEvent(caret);
        palette.ShowEditor(editor);
        edited.changes.clear();
        return sheet;
    }

    /// A part of the control that can have the focus has it.
    bool FocusSomewhereIn(ValueControl& control) {
        std::vector<QWidget*> parts;
        for (QWidget* const part : control.findChildren<QWidget*>()) {
            const bool takesFocus = (part->focusPolicy() & Qt::TabFocus) != 0 && part->focusProxy() == nullptr;
            if (takesFocus && part->isVisible() && part->isEnabled())
                parts.push_back(part);
        }
        if (parts.empty())
            return false;
        parts[random.Below(parts.size())]->setFocus();
        return true;
    }

    void ChangeSomething(int editor) {
        const auto rows = RowsOfEditor(editor);
        const ControlRow& row = rows[random.Below(rows.size())];
        Form().EditProperty(row.number);
        if (!FocusSomewhereIn(Control(row.number)))
            return;
        QWidget* const focus = QApplication::focusWidget();
        switch (random.Below(5)) {
            case 0:
                clipboard.SetText(Text(random.Of(ChosenValues)));
                palette.Paste();
                break;
            case 1: QTest::keyClick(focus, random.Below(2) == 0 ? Qt::Key_Down : Qt::Key_Up); break;
            case 2: QTest::keyClicks(focus, QStringLiteral("7")); break;
            case 3: palette.Cut(); break;
            default: QTest::keyClick(focus, Qt::Key_Space); break;
        }
        // A text is chosen with Enter.
        if (random.Below(4) == 0)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }

    RandomRule random{64};
};

TEST_F(EditorRandomControlsTest, AChangeTouchesItsDeclarationAndTheWhiteSpaceAroundItAlone) {
    // The editor would change with the caret.
    Settings(settings).SaveAutoSelectEditors(0);
    int changed = 0;
    for (int round = 0; round < 1000; ++round) {
        const int editor = GroupEditors()[random.Below(GroupEditors().size())].number;
        Settings(settings).SetUseShorthands(random.Below(4) == 0);
        std::size_t ruleStart = 0;
        const Text before = LoadRule(editor, ruleStart);
        SCOPED_TRACE(std::to_string(round) + " " + std::to_string(editor) + " " + document.Drawn());
        EXPECT_EQ(document.window.GetText(), before) << "filling writes nothing";
        ChangeSomething(editor);

        Text expected = before;
        for (const DeclarationChange& change : edited.changes)
            expected = Changed(expected, ruleStart, change).text;
        ASSERT_EQ(document.window.GetText(), expected) << Dump(edited.changes);
        ExpectFlagsAreDown();
        changed += expected != before ? 1 : 0;

        while (document.window.CSSEditor().CanUndo())
            document.window.CSSEditor().Undo();
        ASSERT_EQ(document.window.GetText(), before);
    }
    EXPECT_GT(changed, 200);
}

}  // namespace
}  // namespace tintora::test
