#include "selectors/qt/SelectorToolBar.h"

#include "SelectorPaletteFixture.h"
#include "selectors/SelectorCommands.h"

#include <gtest/gtest.h>
#include <QMenu>
#include <QToolButton>
#include <algorithm>

namespace tintora::test {
namespace {

struct AvailabilityCase {
    std::vector<TextView> available;
    QString buttons;
    QString entries;
    /// Whether a click on the button for new statements itself makes one.
    bool newAsks;
};

const std::vector<AvailabilityCase> Availabilities = {
    {{}, "", "", false},
    {{u"miSDuplicate", u"miSRemove"}, "miSDuplicate miSRemove", "", false},
    {{u"miSNew"}, "miSNew", "", true},
    {{u"mitbSAllTableSelectors", u"mitbSAllFormSelectors"}, "miSNew", "All Table, All Form", false},
    {{u"miSNewComment", u"mitbSAllTableSelectors", u"miSEdit"}, "miSNew miSEdit", "Comment, |, All Table", false},
    {{u"miSNew", u"miSNewStatement", u"mitbSNewIDSelector"}, "miSNew", "New Statement…, |, ID", true},
};

class SelectorToolBarTest : public SelectorPaletteTest {};

TEST_F(SelectorToolBarTest, EveryItemRunsItsCommand) {
    for (const SelectorItem& item : SelectorItems()) {
        RecordingStyleSheet expected;
        RunSelectorItem(item.key, &expected);
        QAction* const action = Item(Utf8FromText(item.key).c_str());
        ASSERT_NE(action, nullptr) << Utf8FromText(item.key);
        action->trigger();
        EXPECT_EQ(document.TakeCalls(), expected.calls);
        EXPECT_TRUE(action->shortcut().isEmpty()) << "the main window has them";
    }
}

TEST_F(SelectorToolBarTest, WhatIsNotAvailableHasNoEntry) {
    for (const AvailabilityCase& row : Availabilities) {
        MakePalette([&](TextView key) {
            return std::find(row.available.begin(), row.available.end(), key) != row.available.end();
        });
        QStringList buttons;
        for (const QAction* const action : ToolBar().actions())
            buttons.append(action->objectName());
        EXPECT_EQ(buttons.join(" "), row.buttons);
        QStringList entries;
        if (const auto* const menu = palette->findChild<QMenu*>()) {
            for (const QAction* const entry : menu->actions())
                entries.append(entry->isSeparator() ? "|" : entry->text());
        }
        entries.removeAll(QString());
        // A separator with nothing in front of it isn't shown.
        if (entries.startsWith("|"))
            entries.removeFirst();
        EXPECT_EQ(entries.join(", "), row.entries);
        if (QAction* const item = Item("miSNew"))
            item->trigger();
        EXPECT_EQ(document.TakeCalls(), row.newAsks ? Calls{"NewStatement []"} : Calls{});
    }
}

TEST_F(SelectorToolBarTest, TheMainWindowSwitchesItems) {
    const auto enabled = [&] {
        QStringList keys;
        for (const QAction* const action : ToolBar().actions()) {
            if (action->isEnabled())
                keys.append(action->objectName());
        }
        return keys.join(" ");
    };
    EXPECT_EQ(enabled(), "miSNew miSEdit miSDuplicate miSRemove");
    palette->UpdateMenuItemInSelectorTB(u"miSEdit", false);
    palette->UpdateMenuItemInSelectorTB(u"miSRemove", false);
    palette->UpdateMenuItemInSelectorTB(u"miECut", false);
    EXPECT_EQ(enabled(), "miSNew miSDuplicate");
    palette->UpdateMenuItemInSelectorTB(u"miSNewStatement", false);
    palette->UpdateMenuItemInSelectorTB(u"miSRemove", true);
    EXPECT_EQ(enabled(), "miSDuplicate miSRemove");
    EXPECT_FALSE(Item("miSNewStatement")->isEnabled());
    palette->SetFrontStyleSheet(nullptr);
    EXPECT_EQ(enabled(), QString());
    palette->UpdateMenuItemInSelectorTB(u"miSNewStatement", true);
    EXPECT_EQ(enabled(), QString());
    palette->SetFrontStyleSheet(&document);
    EXPECT_EQ(enabled(), "miSNew miSDuplicate miSRemove");
}

TEST_F(SelectorToolBarTest, ToolTipsNameTheShortcutsOfTheMainWindow) {
    EXPECT_EQ(Item("miSDuplicate")->toolTip(), "Duplicate Statement");
    palette->NameShortcut(u"miSDuplicate", QKeySequence(Qt::CTRL | Qt::Key_D));
    palette->NameShortcut(u"miNothing", QKeySequence(Qt::CTRL | Qt::Key_D));
    EXPECT_EQ(Item("miSDuplicate")->toolTip(), "Duplicate Statement (Ctrl+D)");
    palette->NameShortcut(u"miSDuplicate", {});
    EXPECT_EQ(Item("miSDuplicate")->toolTip(), "Duplicate Statement");
}

TEST_F(SelectorToolBarTest, TheKeyboardReachesEveryButtonAndThenTheList) {
    Fill(Sheet);
    // Where there are no icons, the buttons have their texts.
    palette->resize(800, 300);
    QApplication::processEvents();
    ToolBar().widgetForAction(ToolBar().actions().constFirst())->setFocus(Qt::TabFocusReason);
    QStringList order;
    for (int step = 0; step < 5; ++step) {
        const auto* const button = qobject_cast<QToolButton*>(QApplication::focusWidget());
        order.append(button == nullptr ? QApplication::focusWidget()->objectName()
                                       : button->defaultAction()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order.join(" "), "miSNew miSEdit miSDuplicate miSRemove SelectorList");
}

}  // namespace
}  // namespace tintora::test
