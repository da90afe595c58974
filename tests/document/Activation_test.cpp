#include "DocumentFiles.h"

namespace tintora::test {
namespace {

// Many documents, of which one is in front.

class ActivationTest : public DocumentFilesTest {
  protected:
    ActivationTest() {
        document_.Load(u"h1 {color: red;}\nh2 {|}");
        document_.SetLivePreviewOn(false);
    }

    void GoBehind() { document_.frame.isInFront = false; }
    void ComeToFront() { document_.frame.isInFront = true; }
};

TEST_F(ActivationTest, ActivatingBringsPalettesMenusAndPreviewToTheWindowInAFixedOrder) {
    window_.Activate();
    EXPECT_EQ(document_.TakeCalls(),
              (Calls{"UpdateSelectors h2", "Enable", "SetProperties {}", "EnableToolbar", "SetUpToolbar {}",
                     "StyleSheetWindowActivated", "PreviewCurrentRule", "PreviewNow"}));
    EXPECT_TRUE(document_.frame.areCommandsEnabled);
}

TEST_F(ActivationTest, ActivatingRestartsTheTimerThatFollowsTheCaret) {
    ASSERT_FALSE(document_.IsRunning(u"SelectionChangedDelay"));
    window_.Activate();
    EXPECT_TRUE(document_.IsRunning(u"SelectionChangedDelay"));
    document_.calls.clear();
    document_.Wait(500);
    EXPECT_TRUE(Has(document_.calls, "SelectStatement 2"));
}

TEST_F(ActivationTest, AMoveOfTheCaretCanBeFollowedAtOnce) {
    window_.FollowCaretNow();
    EXPECT_TRUE(document_.calls.empty()) << "nothing waits";
    window_.SetSelection(0, 0);
    ASSERT_TRUE(document_.IsRunning(u"SelectionChangedDelay"));
    window_.FollowCaretNow();
    EXPECT_TRUE(Has(document_.calls, "SelectStatement 1"));
    EXPECT_EQ(window_.LastSelectedStatement(), 1);
    EXPECT_FALSE(document_.IsRunning(u"SelectionChangedDelay"));
}

TEST_F(ActivationTest, AWindowBehindReadsItsStatementsAndCallsNobody) {
    GoBehind();
    document_.SetLivePreviewOn(true);
    window_.InsertText(u"p {}\n", 0);
    window_.SetNeedsUpdating(true);
    window_.SetSelectorsNeedUpdating(true);
    window_.SelectionChanged();
    window_.LivePreview();
    window_.FormatStyleSheetText();
    document_.Wait(5000);
    EXPECT_EQ(document_.TakeCalls(), (Calls{"Dirty", "CacheStatements", "CacheStatements"}));
    EXPECT_EQ(window_.StyleSheet().GetAllSelectorsAsText(), (Texts{u"p", u"h1", u"h2"}));
}

TEST_F(ActivationTest, WhatWaitedBehindComesUpWithActivating) {
    GoBehind();
    window_.ReplaceText(u"h6", 0, 2);
    document_.Wait(5000);
    ComeToFront();
    document_.calls.clear();
    window_.SetSelection(0, 0);
    window_.Activate();
    EXPECT_EQ(document_.TakeCalls().front(), "UpdateSelectors h6");
}

TEST_F(ActivationTest, TheMenusOfAWindowBehindAreNobodysBusiness) {
    GoBehind();
    document_.frame.isEnabled.clear();
    document_.frame.areCommandsEnabled = false;
    window_.UpdateMenus();
    window_.EnableMenus();
    EXPECT_TRUE(document_.frame.isEnabled.empty());
    EXPECT_FALSE(document_.frame.areCommandsEnabled);
}

TEST_F(ActivationTest, HidingTheFrontWindowDisablesPalettesToolbarAndMenus) {
    document_.frame.areCommandsEnabled = true;
    EXPECT_TRUE(window_.DoHide());
    EXPECT_EQ(document_.TakeCalls(), (Calls{"Disable", "SetProperties ", "DisableToolbar"}));
    EXPECT_FALSE(document_.frame.areCommandsEnabled);
}

TEST_F(ActivationTest, HidingAWindowBehindLeavesThemToTheFrontOne) {
    GoBehind();
    document_.frame.areCommandsEnabled = true;
    EXPECT_TRUE(window_.DoHide());
    window_.Unload();
    EXPECT_EQ(document_.TakeCalls(), Calls{"StyleSheetWindowClosed"});
    EXPECT_TRUE(document_.frame.areCommandsEnabled);
}

TEST_F(ActivationTest, UnloadingTheFrontWindowClearsItsPalettes) {
    window_.Unload();
    EXPECT_EQ(document_.TakeCalls(),
              (Calls{"StyleSheetWindowClosed", "UpdateSelectors ", "Disable", "SetProperties "}));
    EXPECT_TRUE(document_.statements.shown.empty());
}

TEST_F(ActivationTest, SavingIsOfferedWhileThereIsSomethingToSaveAndAnImportWithAFile) {
    Open(MakeFile("a.css", "h1 {}"));
    window_.UpdateMenus();
    EXPECT_FALSE(document_.frame.isEnabled[u"miFSave"]);
    EXPECT_TRUE(document_.frame.isEnabled[u"miSNewAtImport"]);
    Change();
    window_.UpdateMenus();
    EXPECT_TRUE(document_.frame.isEnabled[u"miFSave"]);
    std::filesystem::remove(Folder() / "a.css");
    window_.UpdateMenus();
    EXPECT_FALSE(document_.frame.isEnabled[u"miSNewAtImport"]);
}

}  // namespace
}  // namespace tintora::test
