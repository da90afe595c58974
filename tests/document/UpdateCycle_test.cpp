#include "DocumentRecorders.h"

#include <gtest/gtest.h>

// What follows a key, a move of the caret or a change of the text, and when.

namespace tintora::test {
namespace {

constexpr int LetterA = 65;

class UpdateCycle : public DocumentTest {};

// The timers.

TEST_F(UpdateCycle, ANewWindowBringsThePalettesToItselfAfterHalfASecond) {
    EXPECT_EQ(window.RunningTimers(), Texts{u"SelectionChangedDelay"});
    Wait(499);
    EXPECT_FALSE(Has(calls, "SelectStatement 0"));
    Wait(1);
    EXPECT_TRUE(Has(calls, "SelectStatement 0"));
    EXPECT_EQ(window.RunningTimers(), Texts{});
}

TEST_F(UpdateCycle, TheTextIsReadAgain300MillisecondsAfterTheLastChange) {
    Load(u"h1 {|}");
    view.TypeCharacter(u'a');
    EXPECT_TRUE(window.IsDirty());
    Wait(299);
    view.TypeCharacter(u'b');
    Wait(299);
    EXPECT_FALSE(Has(calls, "CacheStatements"));
    EXPECT_EQ(window.StyleSheet().GetAllStatementsAsText(), Texts{u"h1 {}"});
    Wait(1);
    EXPECT_TRUE(Has(calls, "CacheStatements"));
    EXPECT_EQ(window.StyleSheet().GetAllStatementsAsText(), Texts{u"h1 {ab}"});
}

TEST_F(UpdateCycle, TheCaretInAnotherTokenReachesThePalettesAfter500Milliseconds) {
    Load(u"a| {}\nb {}\nc {}");
    view.MoveCaret(6);
    Wait(499);
    EXPECT_EQ(calls, Calls{});
    Wait(1);
    EXPECT_EQ(calls.front(), "SelectStatement 2");
}

TEST_F(UpdateCycle, AStaleFlagIsServedAfterASecond) {
    Load(u"h1 {color: red|}");
    window.SetNeedsUpdating(true);
    Wait(999);
    EXPECT_EQ(calls, Calls{});
    Wait(1);
    EXPECT_TRUE(PalettesWereUpdated());
    EXPECT_TRUE(WasPreviewed());
    EXPECT_FALSE(window.NeedsUpdating());
}

TEST_F(UpdateCycle, AChangeByAPaletteIsPreviewedAfterOneAndAHalfSeconds) {
    Load(u"h1 {color: red|}");
    window.ChangeCurrentProperty(u"color", u"blue");
    calls.clear();
    EXPECT_TRUE(window.NeedsPreviewing());
    Wait(1499);
    EXPECT_FALSE(WasPreviewed());
    Wait(1);
    EXPECT_TRUE(WasPreviewed());
    EXPECT_FALSE(window.NeedsPreviewing());
}

TEST_F(UpdateCycle, ASecondPaletteChangeBeginsTheWaitAnew) {
    Load(u"h1 {|}");
    window.LivePreview();
    Wait(1499);
    window.LivePreview();
    Wait(1499);
    EXPECT_FALSE(WasPreviewed());
    Wait(1);
    EXPECT_EQ(TakeCalls(), (Calls{"PreviewNow", "PreviewCurrentRule"}));
}

TEST_F(UpdateCycle, ThePreviewThatWaitsCanBeCancelled) {
    Load(u"h1 {|}");
    window.LivePreview();
    window.DisableNextPreview();
    Wait(5000);
    EXPECT_EQ(calls, Calls{});
}

// The setters.

TEST_F(UpdateCycle, AFlagSetTrueBeginsTheFullSecondAnew) {
    Load(u"h1 {|}");
    window.SetNeedsUpdating(true);
    Wait(999);
    window.SetSelectorsNeedUpdating(true);
    Wait(999);
    EXPECT_EQ(calls, Calls{});
    Wait(1);
    EXPECT_TRUE(PalettesWereUpdated());
    EXPECT_TRUE(StatementsWereUpdated());
}

TEST_F(UpdateCycle, OneFlagSetFalseStopsTheTimerOfBoth) {
    Load(u"h1 {|}");
    window.SetNeedsUpdating(true);
    window.SetSelectorsNeedUpdating(false);
    EXPECT_FALSE(IsRunning(u"IdleTimer"));
    EXPECT_TRUE(window.NeedsUpdating());
    window.SetSelectorsNeedUpdating(true);
    window.SetNeedsUpdating(false);
    EXPECT_FALSE(IsRunning(u"IdleTimer"));
    EXPECT_TRUE(window.SelectorsNeedUpdating());
    Wait(5000);
    EXPECT_EQ(calls, Calls{});
}

TEST_F(UpdateCycle, UpdatesCanBeHeldBackAndLetGo) {
    Load(u"h1 {|}");
    window.SetNeedsUpdating(true);
    Wait(900);
    window.DisableUpdates();
    Wait(5000);
    EXPECT_EQ(calls, Calls{});
    window.EnableUpdates();
    Wait(999);
    EXPECT_EQ(calls, Calls{});
    Wait(1);
    EXPECT_TRUE(PalettesWereUpdated());
}

// A key press.

TEST_F(UpdateCycle, ALetterInAValidValueUpdatesFromKeyDown) {
    Load(u"h1 {z-index: 1|; top: 0}");
    window.SetNeedsUpdating(true);
    KeyDown(u'2');
    EXPECT_TRUE(PalettesWereUpdated());
    EXPECT_TRUE(WasPreviewed());
    EXPECT_FALSE(window.NeedsUpdating());
    calls.clear();
    view.TypeCharacter(u'2');
    KeyUp(u'2');
    EXPECT_TRUE(window.NeedsUpdating());
    Wait(299);
    EXPECT_FALSE(Has(calls, "CacheStatements"));
    Wait(1);
    EXPECT_TRUE(Has(calls, "CacheStatements"));
    EXPECT_FALSE(WasPreviewed());
    Wait(699);
    EXPECT_FALSE(WasPreviewed());
    Wait(1);
    EXPECT_TRUE(WasPreviewed());
    EXPECT_TRUE(Has(calls, "SetProperties {z-index: 12; top: 0}"));
}

TEST_F(UpdateCycle, AHalfTypedValueReachesNobodyUntilItIsClosed) {
    Load(u"h1 {color: |; top: 0}");
    Type(u"re");
    EXPECT_FALSE(window.NeedsUpdating());
    EXPECT_FALSE(IsRunning(u"IdleTimer"));
    Wait(5000);
    EXPECT_FALSE(WasPreviewed());
    EXPECT_FALSE(StatementsWereUpdated());
    EXPECT_EQ(window.StyleSheet().GetAllStatementsAsText(), Texts{u"h1 {color: re; top: 0}"});
    calls.clear();
    Type(u";");
    EXPECT_TRUE(window.NeedsUpdating());
    Wait(999);
    EXPECT_FALSE(WasPreviewed());
    Wait(1);
    EXPECT_TRUE(WasPreviewed());
}

TEST_F(UpdateCycle, AValueThatHasBecomeValidIsShownASecondAfterTheKey) {
    Load(u"h1 {color: re|; top: 0}");
    Type(u"d");
    EXPECT_TRUE(window.NeedsUpdating());
    Wait(999);
    EXPECT_FALSE(WasPreviewed());
    Wait(1);
    EXPECT_TRUE(Has(calls, "SetProperties {color: red; top: 0}"));
    EXPECT_TRUE(WasPreviewed());
}

TEST_F(UpdateCycle, AKeyThatIsHeldDownKeepsTheIdleTimerStopped) {
    Load(u"h1 {color: red|; top: 0}");
    for (int repeat = 0; repeat < 40; ++repeat) {
        KeyDown(LetterA);
        view.TypeCharacter(u'a');
        EXPECT_FALSE(IsRunning(u"IdleTimer"));
        Wait(100);
    }
    EXPECT_FALSE(Has(calls, "CacheStatements"));
    EXPECT_FALSE(WasPreviewed());
}

TEST_F(UpdateCycle, EveryKeyDownStopsTheIdleTimer) {
    for (const int code : {LetterA, 8, 46, 32, 186, 221, 37}) {
        Load(u"h1 {color: re|; top: 0}");
        window.SetNeedsUpdating(true);
        window.KeyDown(code);
        EXPECT_FALSE(IsRunning(u"IdleTimer")) << code;
    }
}

TEST_F(UpdateCycle, TheKeysOfMarksSetTheFlagGoingDown) {
    for (const int code : {186, 221}) {
        Load(u"h1 {color: re|; top: 0}");
        window.KeyDown(code);
        EXPECT_TRUE(window.NeedsUpdating()) << code;
    }
    Load(u"h1 {color: re|; top: 0}");
    window.SetNeedsUpdating(true);
    window.KeyDown(LetterA);
    EXPECT_FALSE(window.NeedsUpdating());
}

TEST_F(UpdateCycle, ClosingBraceAndBackspaceSetTheFlagComingUp) {
    for (const int code : {221, 8}) {
        Load(u"h1 {color: re|; top: 0}");
        window.KeyUp(code);
        EXPECT_TRUE(window.NeedsUpdating()) << code;
        EXPECT_FALSE(window.SelectorsNeedUpdating());
    }
}

TEST_F(UpdateCycle, ASemicolonBehindAnInvalidValueSetsTheFlagComingUp) {
    Load(u"h1 {color: re;| top: 0}");
    window.KeyUp(186);
    EXPECT_TRUE(window.NeedsUpdating());
}

TEST_F(UpdateCycle, ASemicolonBehindAValidOrMissingValueChangesNothingComingUp) {
    for (const TextView drawn : {u"h1 {color: red;| top: 0}", u"h1 {color:;| top: 0}", u"h1 {color:| red}"}) {
        Load(drawn);
        window.KeyUp(186);
        EXPECT_FALSE(window.NeedsUpdating());
        window.SetNeedsUpdating(true);
        window.KeyUp(186);
        EXPECT_TRUE(window.NeedsUpdating());
    }
}

TEST_F(UpdateCycle, BackspaceInAValueIsShownASecondLater) {
    Load(u"h1 {color: redd|; top: 0}");
    Press(key_code::Backspace, u'\b');
    EXPECT_EQ(Drawn(), "h1 {color: red|; top: 0}");
    Wait(999);
    EXPECT_FALSE(WasPreviewed());
    Wait(1);
    EXPECT_TRUE(Has(calls, "SetProperties {color: red; top: 0}"));
}

TEST_F(UpdateCycle, TheDeleteKeyGivesAFreshSecond) {
    Load(u"h1 {color: re|; top: 0}");
    window.SetNeedsUpdating(true);
    Wait(900);
    window.DeleteKeyDown();
    EXPECT_TRUE(window.NeedsUpdating());
    Wait(999);
    EXPECT_EQ(calls, Calls{});
    Wait(1);
    EXPECT_TRUE(PalettesWereUpdated());
}

TEST_F(UpdateCycle, TheEditorTellsOfTheDeleteKeyBehindTheWindow) {
    Load(u"h1 {color: re|d; top: 0}");
    KeyDown(key_code::Delete);
    EXPECT_TRUE(window.NeedsUpdating());
    EXPECT_TRUE(IsRunning(u"IdleTimer"));
}

TEST_F(UpdateCycle, WithoutDeclarationsToShowEveryKeyMakesTheStatementsStale) {
    for (const TextView drawn :
         {u"/* te|xt */", u"@import url(a.|css);", u"@media pri|nt { a {} }", u"@page| {}", u"|"}) {
        Load(drawn);
        window.KeyDown(LetterA);
        EXPECT_TRUE(window.NeedsUpdating());
        EXPECT_FALSE(IsRunning(u"IdleTimer"));
        window.SetNeedsUpdating(false);
        window.KeyUp(LetterA);
        EXPECT_TRUE(window.SelectorsNeedUpdating());
        EXPECT_FALSE(window.NeedsUpdating());
        EXPECT_TRUE(IsRunning(u"IdleTimer"));
    }
}

TEST_F(UpdateCycle, InASelectorAKeyMakesEverythingStale) {
    Load(u"h|1 {color: red}");
    window.KeyUp(LetterA);
    EXPECT_TRUE(window.SelectorsNeedUpdating());
    EXPECT_TRUE(window.NeedsUpdating());
    EXPECT_TRUE(IsRunning(u"IdleTimer"));
}

TEST_F(UpdateCycle, ASelectionOfWholeStatementsMakesTheirPaletteAloneStale) {
    for (const TextView drawn : {u"a {b: c|; d: e} f {|g: h}", u"a {b: c|; d: e}| f {}", u"a {b: |/*| x */}",
                                 u"a {b: |x */ |}", u"a {b: |x @media| }"}) {
        Load(drawn);
        EXPECT_TRUE(window.WholeStatementSelected()) << Drawn();
        window.KeyUp(LetterA);
        EXPECT_TRUE(window.SelectorsNeedUpdating()) << Drawn();
        EXPECT_FALSE(window.NeedsUpdating()) << Drawn();
        Wait(1000);
        EXPECT_TRUE(StatementsWereUpdated());
        EXPECT_FALSE(WasPreviewed());
    }
}

TEST_F(UpdateCycle, ASelectionWithinADeclarationIsNoWholeStatement) {
    Load(u"a {|b: c; * / d|: e}");
    EXPECT_FALSE(window.WholeStatementSelected());
    Load(u"a {b: c|}");
    EXPECT_FALSE(window.WholeStatementSelected());
}

}  // namespace
}  // namespace tintora::test
