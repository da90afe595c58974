#include "ModelControls.h"
#include "PaletteRecorders.h"
#include "PropertyValueDump.h"
#include "RandomRules.h"
#include "WindowDocument.h"
#include "properties/GroupEditor.h"

#include <gtest/gtest.h>

// Random rules, each changed by a random control over a real document.

namespace tintora::test {
namespace {

class RandomRules : public testing::Test {
  protected:
    RandomRules() { documents.document = &document; }

    /// Sets a random control of the editor to a random value, as a user does.
    void ChangeSomething(int number, RandomRule& random) {
        document.changes.clear();
        ModelControls controls(number);
        controls.front = &document;
        GroupEditor editor(number, {flags, controls, documents, recorded.settings});
        editor.SetProperties(document.Declarations());
        const auto rows = RowsOfEditor(number);
        const int control = rows[random.Below(rows.size())].number;
        ControlModel& model = controls.models.at(control);
        const TextView value = random.Of(ChosenValues);
        if (value.empty())
            ClearModel(model, nullptr, u"em");
        else
            SetModelValue(model, value);
        editor.PropertyHasChanged(controls.GetValue(control), control);
    }

    RecordedDocument recorded;
    WindowDocument document{recorded.window};
    OneDocument documents;
    PaletteFlags flags;
};

TEST_F(RandomRules, AChangeTouchesItsDeclarationAndTheWhiteSpaceAroundItAlone) {
    RandomRule random(63);
    int changed = 0;
    int removed = 0;
    int together = 0;
    for (int round = 0; round < 2000; ++round) {
        const int number = GroupEditors()[random.Below(GroupEditors().size())].number;
        Settings(recorded.settings).SetUseShorthands(random.Below(4) == 0);
        std::size_t ruleStart = 0;
        const Text before = random.Sheet(number, ruleStart);
        const std::size_t opening = before.find(u'{', ruleStart);
        const auto caret = static_cast<int>(opening + 1 + random.Below(before.find(u'}', opening) - opening));
        recorded.window.SetText(before);
        recorded.window.SetSelection(caret, caret);
        recorded.window.SelectionChangedEvent(caret);
        SCOPED_TRACE(std::to_string(round) + " " + std::to_string(number) + " " + recorded.Drawn());
        ChangeSomething(number, random);

        Text expected = before;
        for (const DeclarationChange& change : document.changes) {
            const Text unchanged = expected;
            const Expected next = Changed(unchanged, ruleStart, change);
            ASSERT_TRUE(next.text.starts_with(unchanged.substr(0, next.touchedStart)));
            ASSERT_TRUE(next.text.ends_with(unchanged.substr(next.touchedEnd)));
            expected = next.text;
            removed += change.value.empty() && expected != unchanged ? 1 : 0;
        }
        ASSERT_EQ(recorded.window.GetText(), expected) << Dump(document.changes);
        ASSERT_FALSE(flags.SettingUp || flags.ChangingProperty);
        changed += expected != before ? 1 : 0;
        together += document.changes.size() > 1 ? 1 : 0;

        if (recorded.window.CSSEditor().CanUndo())
            recorded.window.CSSEditor().Undo();
        ASSERT_EQ(recorded.window.GetText(), before);
        ASSERT_FALSE(recorded.window.CSSEditor().CanUndo());
    }
    EXPECT_GT(changed, 1400);
    EXPECT_GT(removed, 80);
    EXPECT_GT(together, 60);
}

}  // namespace
}  // namespace tintora::test
