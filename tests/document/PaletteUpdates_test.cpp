#include "DocumentRecorders.h"

#include <gtest/gtest.h>

// What the palettes, the toolbar and the preview are told, and in which order.

namespace tintora::test {
namespace {

class PaletteUpdates : public DocumentTest {};

// What the timers and the commands do.

const Calls FullUpdate = {
    "Enable",     "SetProperties {color: red}", "EnableToolbar", "SetUpToolbar {color: red}", "UpdateSelectors h1",
    "PreviewNow", "PreviewCurrentRule"};

TEST_F(PaletteUpdates, OnIdleEverythingStaleIsServedInItsOrder) {
    Load(u"h1 {color: red|}");
    window.SetNeedsUpdating(true);
    window.SetSelectorsNeedUpdating(true);
    window.UpdateOnIdle();
    Calls expected = FullUpdate;
    expected.emplace_back("UpdateSelectors h1");
    EXPECT_EQ(TakeCalls(), expected);
    EXPECT_FALSE(window.NeedsUpdating());
    EXPECT_FALSE(window.SelectorsNeedUpdating());
    EXPECT_FALSE(window.NeedsPreviewing());
    EXPECT_FALSE(IsRunning(u"IdleTimer"));
}

TEST_F(PaletteUpdates, OnIdleNothingStaleMeansNothingToDo) {
    Load(u"h1 {color: red|}");
    window.UpdateOnIdle();
    EXPECT_EQ(calls, Calls{});
}

TEST_F(PaletteUpdates, OnIdleAStalePreviewAloneIsPreviewed) {
    Load(u"h1 {color: blue|}");
    window.ChangeCurrentProperty(u"color", u"red");
    calls.clear();
    window.UpdateOnIdle();
    EXPECT_EQ(TakeCalls(), (Calls{"PreviewNow", "PreviewCurrentRule"}));
    EXPECT_FALSE(window.NeedsPreviewing());
}

TEST_F(PaletteUpdates, AnUpdateNowReadsTheTextAndLeavesTheStaleStatementsToTheirFlag) {
    Load(u"h1 {color: red|}");
    window.SetSelectorsNeedUpdating(true);
    window.SetNeedsUpdating(true);
    window.UpdateNow();
    Calls expected = FullUpdate;
    expected.insert(expected.begin(), "CacheStatements");
    EXPECT_EQ(TakeCalls(), expected);
    EXPECT_FALSE(window.NeedsUpdating());
    EXPECT_TRUE(window.SelectorsNeedUpdating());
    EXPECT_FALSE(IsRunning(u"IdleTimer"));
}

TEST_F(PaletteUpdates, AnUpdateNowOfNothingStaleOnlyReadsTheText) {
    Load(u"h1 {color: red|}");
    window.UpdateNow();
    EXPECT_EQ(TakeCalls(), Calls{"CacheStatements"});
}

TEST_F(PaletteUpdates, CutPasteAndClearUpdateAtOnceWhateverTheyHeld) {
    Load(u"h1 {color: red|}");
    window.HandleCutPasteClear(u"");
    Calls expected = FullUpdate;
    expected.insert(expected.begin(), "CacheStatements");
    EXPECT_EQ(TakeCalls(), expected);
    clipboard.SetText(u" p {}");
    window.SetSelection(15, 15);
    calls.clear();
    window.CSSEditor().Paste();
    EXPECT_EQ(statements.shown, (Texts{u"h1 {color: red}", u"p {}"}));
    EXPECT_TRUE(WasPreviewed());
    EXPECT_FALSE(window.NeedsUpdating());
}

TEST_F(PaletteUpdates, AnUndoReadsTheTextAtOnceAndPreviewsOnIdle) {
    Load(u"h1 {color: red|}");
    view.TypeCharacter(u'x');
    Settle();
    window.CSSEditor().Undo();
    EXPECT_TRUE(Has(calls, "CacheStatements"));
    EXPECT_TRUE(Has(calls, "SetProperties {color: red}"));
    EXPECT_FALSE(WasPreviewed());
    EXPECT_TRUE(window.NeedsUpdating());
    Wait(1000);
    EXPECT_TRUE(WasPreviewed());
}

TEST_F(PaletteUpdates, ARedoLeavesTheTextToItsTimer) {
    Load(u"h1 {color: red|}");
    view.TypeCharacter(u'x');
    window.CSSEditor().Undo();
    Settle();
    window.CSSEditor().Redo();
    EXPECT_EQ(calls, Calls{});
    EXPECT_TRUE(window.NeedsUpdating());
    Wait(300);
    EXPECT_EQ(calls, Calls{"CacheStatements"});
    Wait(700);
    EXPECT_TRUE(WasPreviewed());
}

TEST_F(PaletteUpdates, WithoutLivePreviewThePalettesAloneAreUpdated) {
    SetLivePreviewOn(false);
    Load(u"h1 {color: red|}\np {}");
    window.SetNeedsUpdating(true);
    window.LivePreview();
    Wait(5000);
    EXPECT_TRUE(PalettesWereUpdated());
    window.SetSelection(18, 18);
    Wait(500);
    EXPECT_TRUE(Has(calls, "SelectStatement 2"));
    EXPECT_FALSE(WasPreviewed());
    EXPECT_FALSE(Has(calls, "PreviewCurrentRule"));
    SetLivePreviewOn(true);
    window.DoLivePreview();
    EXPECT_TRUE(WasPreviewed());
}

// A new place of the caret.

TEST_F(PaletteUpdates, AnotherStatementBringsAllPalettesToIt) {
    Load(u"a {}\nb {top: 0}\nc| {}");
    window.SetSelection(9, 9);
    window.SelectionChangedEvent(9);
    EXPECT_EQ(TakeCalls(), (Calls{"SelectStatement 2", "EnableToolbar", "SetUpToolbar {top: 0}", "Enable",
                                  "SetProperties {top: 0}", "PreviewCurrentRule", "SelectProperty top"}));
    EXPECT_EQ(window.LastSelectedStatement(), 2);
}

TEST_F(PaletteUpdates, WithinOneStatementThePropertyAloneIsSelected) {
    Load(u"a {top: 0;\n left: |0}\nc {}");
    window.SetSelection(5, 5);
    const int updates = frame.menuUpdates;
    window.SelectionChangedEvent(5);
    EXPECT_EQ(TakeCalls(), (Calls{"SelectStatement 1", "SelectProperty top"}));
    EXPECT_EQ(frame.menuUpdates, updates + 1);
}

TEST_F(PaletteUpdates, TheLastStatementIsAlwaysRefreshed) {
    Load(u"a {}\nb {top: 0|}");
    window.SelectionChangedEvent(window.GetSelectionStart());
    EXPECT_TRUE(Has(calls, "SetProperties {top: 0}"));
    EXPECT_TRUE(Has(calls, "PreviewCurrentRule"));
}

// A change by the palette of properties.

TEST_F(PaletteUpdates, AChangeByThePaletteIsFollowedAtOnceByAllOthers) {
    Load(u"a {}\nb {top: 0|;\nleft: 0;}\nc {}");
    properties.isWriting = true;
    window.ChangeCurrentProperty(u"left", u"5px");
    properties.isWriting = false;
    EXPECT_EQ(TakeCalls(), (Calls{"Dirty", "CacheStatements", "EnableToolbar", "SetUpToolbar {top: 0;\nleft: 5px;}",
                                  "SetProperties {top: 0;\nleft: 5px;}", "SelectStatement 2"}));
    EXPECT_FALSE(IsRunning(u"SelectionChangedDelay"));
    Wait(1499);
    EXPECT_EQ(TakeCalls(), Calls{"CacheStatements"});
    Wait(1);
    EXPECT_EQ(TakeCalls(), (Calls{"PreviewNow", "PreviewCurrentRule"}));
}

TEST_F(PaletteUpdates, NothingRefillsThePaletteAfterItsOwnChanges) {
    for (const TextView drawn :
         {u"a {top: 0|;}", u"a {}\nb {|}", u"a {}\nb {|}\nc {}", u"a {} b {left: 0; top: 1px;|"}) {
        Load(drawn);
        SCOPED_TRACE(Drawn());
        for (int count = 0; count < 200; ++count) {
            properties.isWriting = true;
            window.ChangeCurrentProperty(u"top", Text(static_cast<std::size_t>(count % 7), u'1') + u"px");
            properties.isWriting = false;
            // While it writes it takes the body for its list alone.
            std::erase_if(calls, [](const std::string& call) { return call.starts_with("SetProperties"); });
            Wait(100);
        }
        EXPECT_FALSE(WasPreviewed());
        EXPECT_FALSE(Has(calls, "PreviewCurrentRule"));
        Wait(5000);
        EXPECT_TRUE(WasPreviewed());
        for (const std::string& call : TakeCalls()) {
            EXPECT_FALSE(call.starts_with("SetProperties") || call.starts_with("SelectProperty") || call == "Enable" ||
                         call == "Disable" || call.starts_with("SetLastProperty") || call.starts_with("SetUpWarnings"))
                << call;
        }
    }
}

TEST_F(PaletteUpdates, APaletteThatHasChangedARuleThatItDoesNotShowComesToIt) {
    Load(u"a {top: 0|}\nb {left: 0;}\nc {}");
    window.SetSelection(16, 16);
    Wait(400);
    properties.isWriting = true;
    window.ChangeCurrentProperty(u"left", u"5px");
    properties.isWriting = false;
    EXPECT_FALSE(Has(calls, "SetProperties {left: 5px;}"));
    EXPECT_EQ(window.LastSelectedStatement(), 1);
    Wait(499);
    EXPECT_FALSE(Has(calls, "SetProperties {left: 5px;}"));
    Wait(1);
    EXPECT_TRUE(Has(calls, "SetProperties {left: 5px;}"));
    EXPECT_EQ(window.LastSelectedStatement(), 2);
}

TEST_F(PaletteUpdates, AChangeByOthersIsFollowedInItsTime) {
    Load(u"a {}\nb {left: 0;|\ntop: 0;}");
    window.ChangeCurrentProperty(u"top", u"5px");
    EXPECT_EQ(TakeCalls(), (Calls{"Dirty", "CacheStatements", "EnableToolbar", "SetUpToolbar {left: 0;\ntop: 5px;}"}));
    EXPECT_TRUE(IsRunning(u"SelectionChangedDelay"));
    Wait(500);
    EXPECT_TRUE(Has(calls, "SetProperties {left: 0;\ntop: 5px;}"));
    EXPECT_TRUE(Has(calls, "SelectProperty top"));
}

TEST_F(PaletteUpdates, WhileThePaletteWritesItIsNotFilled) {
    Load(u"a {}\nb {left: 0|;}");
    properties.isWriting = true;
    window.UpdateEditors();
    EXPECT_EQ(TakeCalls(), (Calls{"UpdateSelectors b", "EnableToolbar", "SetUpToolbar {left: 0;}"}));
    frame.isInFront = false;
    window.ChangeCurrentProperty(u"left", u"5px");
    EXPECT_EQ(TakeCalls(), (Calls{"Dirty", "CacheStatements"}));
}

TEST_F(PaletteUpdates, InASelectorTheWarningsOfItsTypeAreShown) {
    Load(u"a {}\n.b| {top: 0}\nc {}");
    window.SelectionChangedEvent(6);
    EXPECT_EQ(TakeCalls(), (Calls{"SelectStatement 2", "SelectProperty ", "SetUpWarnings 7", "SetLastProperty 7"}));
}

TEST_F(PaletteUpdates, ClosedPalettesAreNotCalledButForTheStatementAtTheCaret) {
    Load(u"a {}\n.b| {top: 0}\nc {}");
    statements.isOpen = false;
    properties.isOpen = false;
    window.SelectionChangedEvent(6);
    EXPECT_EQ(TakeCalls(), (Calls{"SelectStatement 2", "SetUpWarnings 7"}));
    window.UpdateEditors();
    EXPECT_EQ(TakeCalls(), (Calls{"EnableToolbar", "SetUpToolbar {top: 0}"}));
}

TEST_F(PaletteUpdates, APropertiesPaletteIsDisabledWhereThereIsNoBody) {
    for (const TextView drawn :
         {u"/* a |*/", u"@import| 'a';", u"@page| {}", u"@media| print { a {} }", u"a| b", u"|"}) {
        Load(drawn);
        window.UpdatePropertiesEditor();
        window.UpdateCorePropertiesToolbar();
        EXPECT_EQ(TakeCalls(), (Calls{"Disable", "SetProperties ", "DisableToolbar"})) << Drawn();
    }
}

TEST_F(PaletteUpdates, APropertiesPaletteIsDisabledBehindTheStatement) {
    Load(u"a {}\n  b {}  |\n");
    window.UpdatePropertiesEditor();
    EXPECT_EQ(TakeCalls(), (Calls{"Disable", "SetProperties "}));
    window.SetSelection(11, 11);
    window.UpdatePropertiesEditor();
    EXPECT_EQ(TakeCalls(), (Calls{"Enable", "SetProperties {}"}));
}

TEST_F(PaletteUpdates, APropertiesPaletteShowsTheBodyAtTheCaret) {
    Load(u"a {}\nb {top: 0|; left: 0}\nc {}");
    window.UpdatePropertiesEditor();
    EXPECT_EQ(TakeCalls(), (Calls{"Enable", "SetProperties {top: 0; left: 0}"}));
}

TEST_F(PaletteUpdates, TheTwoWaysToUpdateDifferInTheirOrder) {
    Load(u"h1 {color: red|}");
    window.UpdateEditors();
    EXPECT_EQ(TakeCalls(), (Calls{"UpdateSelectors h1", "Enable", "SetProperties {color: red}", "EnableToolbar",
                                  "SetUpToolbar {color: red}"}));
    window.UpdateEditorsOnStyleSheetChange();
    EXPECT_EQ(TakeCalls(), Calls(FullUpdate.begin(), FullUpdate.begin() + 5));
}

TEST_F(PaletteUpdates, ThePaletteOfStatementsGetsTheSelectorWithoutWhitespaceInFront) {
    Load(u"\n\n h1| {}\n\np {}\n");
    window.UpdateSelectorsPalette();
    EXPECT_EQ(TakeCalls(), Calls{"UpdateSelectors h1"});
    EXPECT_EQ(statements.shown, (Texts{u"h1 {}", u"p {}"}));
    window.ClearSelectorsPalette();
    EXPECT_EQ(statements.shown, Texts{});
}

}  // namespace
}  // namespace tintora::test
