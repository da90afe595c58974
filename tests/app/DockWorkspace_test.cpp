#include "shell/qt/DockWorkspace.h"

#include "WorkspaceFixture.h"
#include "shell/Layouts.h"
#include "text/Encoding.h"

#include <QAction>
#include <QMouseEvent>
#include <QTest>

namespace tintora {
namespace {

using test::DesignedPanes;
using test::WindowWithPanes;

const std::string AllToolbars = "Standard, Basic Properties, Text Editing, Special, Palettes";

struct SizeCase {
    Text pane;
    Qt::Orientation direction;
    int pixels;
};

struct LayoutCase {
    Text name;
    std::string shown;
    std::string toolbars;
    std::vector<SizeCase> sizes;
    QStringList calls;
};

const std::vector<LayoutCase> Layouts = {
    {u"Standard",
     "SelectorsEditor l+, PropertiesEditor r, BrowserSupport r+, Compatibility r, Info r, Preview b+, PreviewRule b",
     AllToolbars,
     {{u"dwSelectorsEditor", Qt::Horizontal, 200},
      {u"dwBrowserSupport", Qt::Horizontal, 385},
      {u"dwPreview", Qt::Vertical, 260}},
     {"refresh", "update"}},
    {u"Edit",
     "SelectorsEditor r+, PropertiesEditor r+",
     "Standard, Text Editing, Special, Palettes",
     {{u"dwPropertiesEditor", Qt::Horizontal, 385},
      {u"dwSelectorsEditor", Qt::Horizontal, 385},
      {u"dwSelectorsEditor", Qt::Vertical, 217}},
     {"update"}},
    {u"Designer",
     "SelectorsEditor l+, PropertiesEditor r+, BrowserSupport r+, Preview b+",
     AllToolbars,
     {{u"dwPropertiesEditor", Qt::Horizontal, 385},
      {u"dwSelectorsEditor", Qt::Horizontal, 200},
      {u"dwBrowserSupport", Qt::Vertical, 217},
      {u"dwPreview", Qt::Vertical, 100}},
     {"update"}},
};

void ExpectLayout(const WindowWithPanes& panes, const LayoutCase& row) {
    EXPECT_EQ(panes.Shown(), row.shown);
    EXPECT_EQ(panes.ShownToolbars(), row.toolbars);
    for (const SizeCase& size : row.sizes) {
        const int pixels = size.direction == Qt::Horizontal ? panes.Width(size.pane) : panes.Height(size.pane);
        EXPECT_EQ(pixels, size.pixels) << Utf8FromText(size.pane) << ", direction " << size.direction;
    }
}

void Expose(WindowWithPanes& panes) {
    panes.window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panes.window));
}

/// All that is waiting is done: layouts, tabs.
void LetEventsPass() { QCoreApplication::processEvents(); }

TEST(DockWorkspace, AFirstStartHasTheDesignedArrangement) {
    WindowWithPanes panes;
    Expose(panes);
    EXPECT_EQ(panes.Shown(), DesignedPanes);
    EXPECT_EQ(panes.ShownToolbars(), AllToolbars);
    EXPECT_EQ(panes.window.size(), QSize(1280, 800));
    for (const Pane& pane : Panes) {
        if (pane.behind.empty()) {
            EXPECT_EQ(pane.side == DockSide::Bottom ? panes.Height(pane.key) : panes.Width(pane.key), pane.pixels);
        }
    }
    EXPECT_GE(panes.window.centralWidget()->height(), 350);
    EXPECT_GE(panes.window.centralWidget()->width(), 650);
}

TEST(DockWorkspace, SidePanesReachDownToTheStatusBar) {
    WindowWithPanes panes;
    Expose(panes);
    const QRect preview = panes.PaneOf(u"dwPreview").geometry();
    for (const TextView side : {u"dwSelectorsEditor", u"dwPropertiesEditor"}) {
        const QRect pane = panes.PaneOf(side).geometry();
        EXPECT_EQ(pane.bottom(), preview.bottom());
        EXPECT_FALSE(pane.intersects(preview));
    }
}

TEST(DockWorkspace, AShownWindowTakesALayoutAtOnce) {
    for (const LayoutCase& row : Layouts) {
        SCOPED_TRACE(Utf8FromText(row.name));
        WindowWithPanes panes;
        Expose(panes);
        UseLayout(panes.workspace, row.name);
        LetEventsPass();
        ExpectLayout(panes, row);
        EXPECT_EQ(panes.calls, row.calls);
    }
}

TEST(DockWorkspace, AWindowThatIsNotShownYetTakesALayoutWhenItIs) {
    for (const LayoutCase& row : Layouts) {
        SCOPED_TRACE(Utf8FromText(row.name));
        WindowWithPanes panes;
        UseLayout(panes.workspace, row.name);
        Expose(panes);
        ExpectLayout(panes, row);
    }
}

TEST(DockWorkspace, AHiddenWindowTakesALayoutWhenItIsShownAgain) {
    for (const LayoutCase& row : Layouts) {
        SCOPED_TRACE(Utf8FromText(row.name));
        WindowWithPanes panes;
        Expose(panes);
        panes.window.hide();
        UseLayout(panes.workspace, row.name);
        Expose(panes);
        ExpectLayout(panes, row);
    }
}

TEST(DockWorkspace, AFirstStartThatIsMaximizedHasTheDesignedSizes) {
    WindowWithPanes panes(QSize(100, 100));
    panes.window.setWindowState(Qt::WindowMaximized);
    Expose(panes);
    const auto isArranged = [&] {
        return panes.Width(u"dwSelectorsEditor") == 200 && panes.Width(u"dwPropertiesEditor") == 385 &&
               panes.Height(u"dwPreview") == 260;
    };
    EXPECT_TRUE(QTest::qWaitFor(isArranged, 2000));
    EXPECT_EQ(panes.Shown(), DesignedPanes);
}

TEST(DockWorkspace, AWindowThatGrowsWhenItIsShownTakesALayoutInItsFullSize) {
    for (const LayoutCase& row : Layouts) {
        SCOPED_TRACE(Utf8FromText(row.name));
        // A window manager may maximize it a moment later; the panes don't fit into it before.
        WindowWithPanes panes(QSize(400, 300));
        UseLayout(panes.workspace, row.name);
        panes.window.show();
        panes.window.resize(1280, 800);
        LetEventsPass();
        ExpectLayout(panes, row);
    }
}

TEST(DockWorkspace, LayoutsFollowOnEachOther) {
    WindowWithPanes panes;
    Expose(panes);
    for (const std::size_t index : {1U, 2U, 1U}) {
        SCOPED_TRACE(Utf8FromText(Layouts[index].name));
        UseLayout(panes.workspace, Layouts[index].name);
        LetEventsPass();
        ExpectLayout(panes, Layouts[index]);
    }
    // A pane that another layout has taken out of its tab stays there, as the user's own change would.
    UseLayout(panes.workspace, u"Standard");
    LetEventsPass();
    EXPECT_EQ(panes.Width(u"dwSelectorsEditor"), 200);
    EXPECT_TRUE(panes.IsSeen(u"dwSelectorsEditor"));
    EXPECT_EQ(panes.ShownToolbars(), AllToolbars);
}

TEST(DockWorkspace, TheDesignedArrangementComesBackAfterAnyOther) {
    for (const LayoutCase& row : Layouts) {
        SCOPED_TRACE(Utf8FromText(row.name));
        WindowWithPanes panes;
        Expose(panes);
        UseLayout(panes.workspace, row.name);
        panes.PaneOf(u"dwInfo").setFloating(true);
        panes.workspace.ArrangeAsDesigned();
        LetEventsPass();
        EXPECT_EQ(panes.Shown(), DesignedPanes);
        EXPECT_EQ(panes.ShownToolbars(), AllToolbars);
        EXPECT_EQ(panes.Width(u"dwSelectorsEditor"), 200);
        EXPECT_EQ(panes.Width(u"dwPropertiesEditor"), 385);
        EXPECT_EQ(panes.Height(u"dwPreview"), 260);
    }
}

TEST(DockWorkspace, TheDesignedArrangementIsKeptByItself) {
    WindowWithPanes panes;
    Expose(panes);
    for (int times = 0; times < 3; ++times) {
        panes.workspace.ArrangeAsDesigned();
        LetEventsPass();
        EXPECT_EQ(panes.Shown(), DesignedPanes);
    }
}

TEST(DockWorkspace, SizesThatTheUserHasSetSinceAreLeftAlone) {
    WindowWithPanes panes(QSize(450, 300));
    Expose(panes);
    ASSERT_LT(panes.Height(u"dwPreview"), 260) << "it waits for more room";
    QTest::mouseClick(&panes.window, Qt::LeftButton);
    const int width = panes.Width(u"dwPropertiesEditor");
    const int height = panes.Height(u"dwPreview");
    panes.window.resize(1280, 800);
    LetEventsPass();
    EXPECT_EQ(panes.Width(u"dwPropertiesEditor"), width);
    EXPECT_EQ(panes.Height(u"dwPreview"), height);
}

TEST(DockWorkspace, ThePanesBesideShareWhatAHeightLeaves) {
    WindowWithPanes panes;
    Expose(panes);
    HidePalettes(panes.workspace);
    const std::vector<TextView> column = {u"dwSelectorsEditor", u"dwInfo", u"dwCompatibility"};
    for (const TextView key : column) {
        panes.workspace.DockPane(key, DockSide::Left);
        panes.workspace.ShowPane(key);
    }
    LetEventsPass();
    const int all = panes.Height(column[0]) + panes.Height(column[1]) + panes.Height(column[2]);
    panes.workspace.SetPaneHeight(column[0], 300);
    panes.workspace.SetPaneHeight(column[1], 150);
    LetEventsPass();
    EXPECT_EQ(panes.Height(column[1]), 150);
    EXPECT_EQ(panes.Height(column[0]) + panes.Height(column[1]) + panes.Height(column[2]), all);
}

TEST(DockWorkspace, APaneComesForwardWithoutTheFocus) {
    WindowWithPanes panes;
    Expose(panes);
    panes.window.activateWindow();
    panes.window.centralWidget()->setFocus();
    for (const TextView key : {u"dwInfo", u"dwPreviewRule", u"dwPropertiesEditor", u"dwInfo", u"dwCompatibility",
                               u"dwCompatibility", u"dwPreview", u"dwSelectorsEditor"}) {
        panes.workspace.BringPaneForward(key);
        LetEventsPass();
        EXPECT_TRUE(panes.IsSeen(key)) << Utf8FromText(key);
        EXPECT_EQ(panes.window.focusWidget(), panes.window.centralWidget());
    }
    EXPECT_FALSE(panes.IsSeen(u"dwInfo"));
}

TEST(DockWorkspace, APaneThatIsShownAgainCoversNoOther) {
    WindowWithPanes panes;
    Expose(panes);
    panes.workspace.HidePane(u"dwBrowserSupport");
    LetEventsPass();
    panes.workspace.ShowPane(u"dwBrowserSupport");
    LetEventsPass();
    EXPECT_EQ(panes.Shown(), DesignedPanes);
}

TEST(DockWorkspace, AFloatingPaneIsShownWhereItFloatsAndDockedOnCommand) {
    WindowWithPanes panes;
    Expose(panes);
    panes.PaneOf(u"dwInfo").setFloating(true);
    panes.workspace.HidePane(u"dwInfo");
    EXPECT_FALSE(panes.PaneOf(u"dwInfo").isVisible());
    panes.workspace.ShowPane(u"dwInfo");
    EXPECT_TRUE(panes.PaneOf(u"dwInfo").isVisible());
    EXPECT_TRUE(panes.PaneOf(u"dwInfo").isFloating());
    panes.workspace.DockPane(u"dwInfo", DockSide::Left);
    EXPECT_FALSE(panes.PaneOf(u"dwInfo").isFloating());
    EXPECT_EQ(panes.window.dockWidgetArea(&panes.PaneOf(u"dwInfo")), Qt::LeftDockWidgetArea);
    panes.workspace.HidePane(u"dwInfo");
    panes.workspace.DockPane(u"dwInfo", DockSide::Right);
    EXPECT_TRUE(panes.PaneOf(u"dwInfo").isHidden()) << "docking doesn't show";
}

TEST(DockWorkspace, WhatTheWindowLacksIsPassedOver) {
    QMainWindow window;
    window.setCentralWidget(new QTextEdit);
    DockWorkspace workspace(window, {}, {});
    workspace.AddPane(u"dwPreview", QStringLiteral("Preview"));
    EXPECT_EQ(workspace.AddPane(u"dwNothing", QStringLiteral("Nothing")), nullptr);
    EXPECT_EQ(workspace.AddPane(u"", QStringLiteral("Nothing")), nullptr);
    window.show();
    for (const TextView name : {u"Standard", u"Edit", u"Designer"})
        UseLayout(workspace, name);
    workspace.ArrangeAsDesigned();
    workspace.BringPaneForward({});
    workspace.SetForm(u"dwInfo", nullptr);
    workspace.ChangeBandCaption(u"dwInfo", QStringLiteral("Info"));
    EXPECT_EQ(workspace.GetFloatingWindow(u"dwInfo"), nullptr);
    EXPECT_EQ(window.findChildren<QDockWidget*>().size(), 1);
    EXPECT_FALSE(window.findChild<QDockWidget*>()->isHidden());
}

TEST(DockWorkspace, APaneHoldsItsFormAndHasItsTitle) {
    WindowWithPanes panes;
    auto* const form = new QLabel(QStringLiteral("page"));
    panes.workspace.HidePane(u"dwInfo");
    panes.workspace.SetForm(u"dwInfo", form);
    EXPECT_EQ(panes.workspace.GetFloatingWindow(u"dwInfo"), form);
    EXPECT_TRUE(panes.PaneOf(u"dwInfo").isHidden());
    panes.workspace.ChangeBandCaption(u"dwInfo", QStringLiteral("Info: color"));
    EXPECT_EQ(panes.PaneOf(u"dwInfo").windowTitle(), QStringLiteral("Info: color"));
    // The same pane once more, which isn't another.
    EXPECT_EQ(panes.workspace.AddPane(u"dwInfo", QStringLiteral("Info")), &panes.PaneOf(u"dwInfo"));
    EXPECT_EQ(panes.workspace.GetFloatingWindow(u"dwInfo"), form);
    delete form;
    EXPECT_EQ(panes.workspace.GetFloatingWindow(u"dwInfo"), nullptr);
}

TEST(DockWorkspace, TheFocusOfAPaneIsItsForms) {
    WindowWithPanes panes;
    Expose(panes);
    panes.window.activateWindow();
    QWidget* const form = panes.workspace.GetFloatingWindow(u"dwPreview");
    panes.PaneOf(u"dwPreview").widget()->setFocus();
    EXPECT_EQ(panes.window.focusWidget(), form);
    auto* const withoutFocus = new QLabel;
    panes.workspace.SetForm(u"dwPreview", withoutFocus);
    EXPECT_EQ(panes.PaneOf(u"dwPreview").widget()->focusProxy(), nullptr);
    EXPECT_EQ(panes.PaneOf(u"dwPreview").widget()->focusPolicy(), Qt::NoFocus);
}

TEST(DockWorkspace, ALargeFormIsScrolledAndDoesNotEnlargeTheWindow) {
    WindowWithPanes panes;
    for (const Pane& pane : Panes) {
        auto* const form = new QWidget;
        form->setMinimumSize(1500, 1200);
        panes.workspace.SetForm(pane.key, form);
    }
    Expose(panes);
    EXPECT_EQ(panes.window.size(), QSize(1280, 800));
    EXPECT_EQ(panes.Width(u"dwPropertiesEditor"), 385);
    EXPECT_LE(panes.window.minimumSizeHint().width(), 640);
    EXPECT_LE(panes.window.minimumSizeHint().height(), 480);
}

TEST(DockWorkspace, AMenuItemIsCheckedWhileItsPaneIsShown) {
    WindowWithPanes panes;
    Expose(panes);
    QAction action;
    panes.workspace.CheckWhileShown(action, u"dwInfo");
    QObject::connect(&action, &QAction::triggered, &panes.window,
                     [&] { ShowFloatingWindow(panes.workspace, u"dwInfo"); });
    EXPECT_TRUE(action.isChecked());
    panes.workspace.HidePane(u"dwInfo");
    EXPECT_FALSE(action.isChecked());
    for (int times = 0; times < 2; ++times) {
        action.trigger();
        LetEventsPass();
        EXPECT_TRUE(action.isChecked());
        EXPECT_TRUE(panes.IsSeen(u"dwInfo"));
    }
    panes.PaneOf(u"dwInfo").close();
    EXPECT_FALSE(action.isChecked());
}

}  // namespace
}  // namespace tintora
