#include "preview/PreviewController.h"

#include "editor/StillClock.h"
#include "linking/FileUrls.h"
#include "preview/PreviewFixture.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

using std::chrono::milliseconds;
using test::Calls;
using test::Turned;

class PreviewControllerTest : public test::PreviewTest {
  protected:
    PreviewControllerTest() {
        previews_.Page().SetPane(&pane_);
        previews_.Rule().SetPane(&rulePane_);
        document_.file = files_.Write("site/main.css", "");
        previews_.Documents().SetPreviewFile(files_.Write("site/index.html", "<head></head>"));
    }

    ~PreviewControllerTest() override { previews_.Close(); }

    /// The pane tells that it shows what it was told to load last.
    void Loaded() { previews_.Page().PageLoaded(pane_.urls.back()); }
    void RuleLoaded() { previews_.Rule().PageLoaded(rulePane_.urls.back()); }

    /// A preview that is shown.
    void Show() {
        previews_.PreviewNow(document_);
        Loaded();
        static_cast<void>(pane_.TakeCalls());
    }

    [[nodiscard]] Text PagePath(const Text& url) const { return ResolveFileURL(u"/", url).value_or(u""); }
    [[nodiscard]] Text LastPage() { return previews_.Making().Last().GetLastPreviewHTMLFile(); }
    [[nodiscard]] Text LastSheetText() { return ReadTextFile(previews_.Making().Last().GetLastPreviewCSSFile()); }
    [[nodiscard]] std::size_t FileCount() const { return TemporaryFilesLeft().size(); }

    StillClock clock_;
    test::RecordingPane pane_;
    test::RecordingPane rulePane_;
    test::FixedDocument document_;
    PreviewController previews_{store_, clock_, Folders(), time_.Reader()};
};

TEST_F(PreviewControllerTest, APreviewStopsThePaneSilencesItAndNavigates) {
    previews_.PreviewNow(document_);
    EXPECT_EQ(pane_.TakeCalls(), Turned);
    EXPECT_EQ(pane_.urls, Texts{FileURLFromPath(LastPage())});
    EXPECT_EQ(FileCount(), 2U);
    EXPECT_TRUE(rulePane_.calls.empty());
}

TEST_F(PreviewControllerTest, APreviewOfTheRuleTurnsTheOtherPane) {
    previews_.PreviewCurrentRule(document_);
    EXPECT_EQ(rulePane_.TakeCalls(), Turned);
    EXPECT_EQ(PagePath(rulePane_.urls.back()), Stored(setting::LastCurrentRulePreviewFile));
    EXPECT_EQ(FileCount(), 1U);
    EXPECT_TRUE(pane_.calls.empty()) << "the document isn't previewed";
}

TEST_F(PreviewControllerTest, TheFilesOfThePageBeforeGoWhenANewerOneHasLoaded) {
    Show();
    const auto first = TemporaryFilesLeft();
    previews_.PreviewNow(document_);
    EXPECT_EQ(FileCount(), 4U) << "the first page may still be read";
    Loaded();
    EXPECT_EQ(FileCount(), 2U);
    EXPECT_NE(TemporaryFilesLeft(), first);
    EXPECT_EQ(Stored(setting::FilesToDelete), u"");
}

TEST_F(PreviewControllerTest, ThousandsOfPreviewsLeaveNoFileBehind) {
    for (int count = 0; count < 3600; ++count) {
        previews_.PreviewNow(document_);
        previews_.PreviewCurrentRule(document_);
        if (count % 7 != 0)
            Loaded();
        else
            clock_.Advance(PageTurns::Patience);
        RuleLoaded();
        pane_.isVisible = count % 100 < 90;
        ASSERT_LE(FileCount(), 12U);
    }
    previews_.Close();
    EXPECT_TRUE(TemporaryFilesLeft().empty());
    EXPECT_EQ(Stored(setting::FilesToDelete), u"");
}

TEST_F(PreviewControllerTest, PreviewsThatAreAskedForWhileAPageLoadsBecomeOne) {
    document_.text = u"one";
    previews_.PreviewNow(document_);
    for (const TextView text : {u"two", u"three", u"four"}) {
        document_.text = text;
        previews_.PreviewNow(document_);
    }
    EXPECT_EQ(pane_.TakeCalls(), Turned);
    EXPECT_EQ(FileCount(), 2U);
    EXPECT_EQ(LastSheetText(), u"one");
    Loaded();
    EXPECT_EQ(pane_.TakeCalls(), Turned);
    EXPECT_EQ(LastSheetText(), u"four") << "the newest text";
    Loaded();
    EXPECT_EQ(pane_.TakeCalls(), Calls());
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(PreviewControllerTest, PreviewsThatWaitAreOfTheDocumentThatAskedLast) {
    test::FixedDocument other;
    other.text = u"other";
    previews_.PreviewNow(document_);
    previews_.PreviewNow(document_);
    previews_.PreviewNow(other);
    Loaded();
    EXPECT_EQ(LastSheetText(), u"other");
}

TEST_F(PreviewControllerTest, PreviewsThatWaitAreForgottenWithTheirDocument) {
    {
        test::FixedDocument other;
        previews_.PreviewNow(document_);
        previews_.PreviewNow(other);
        previews_.PreviewCurrentRule(document_);
        previews_.PreviewCurrentRule(other);
        previews_.Forget(other);
    }
    static_cast<void>(pane_.TakeCalls());
    static_cast<void>(rulePane_.TakeCalls());
    Loaded();
    RuleLoaded();
    EXPECT_EQ(pane_.TakeCalls(), Calls());
    EXPECT_EQ(rulePane_.TakeCalls(), Calls());
}

TEST_F(PreviewControllerTest, PreviewsOfOtherDocumentsAreNotForgotten) {
    test::FixedDocument other;
    previews_.PreviewNow(document_);
    previews_.PreviewNow(document_);
    previews_.Forget(other);
    static_cast<void>(pane_.TakeCalls());
    Loaded();
    EXPECT_EQ(pane_.TakeCalls(), Turned);
}

TEST_F(PreviewControllerTest, APageThatTakesForEverIsGivenUpForTheNext) {
    previews_.PreviewNow(document_);
    previews_.PreviewNow(document_);
    static_cast<void>(pane_.TakeCalls());
    clock_.Advance(PageTurns::Patience - milliseconds(1));
    EXPECT_EQ(pane_.TakeCalls(), Calls());
    clock_.Advance(milliseconds(1));
    EXPECT_EQ(pane_.TakeCalls(), Turned);
    EXPECT_EQ(FileCount(), 4U);
    Loaded();
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(PreviewControllerTest, APageThatTakesForEverIsLeftAloneUntilThereIsANext) {
    previews_.PreviewNow(document_);
    static_cast<void>(pane_.TakeCalls());
    clock_.Advance(PageTurns::Patience * 10);
    EXPECT_EQ(pane_.TakeCalls(), Calls());
    EXPECT_EQ(FileCount(), 2U) << "it may still be read";
    previews_.PreviewNow(document_);
    EXPECT_EQ(pane_.TakeCalls(), Turned) << "which doesn't wait any more";
}

TEST_F(PreviewControllerTest, APageThatWasGivenUpIsNotTakenForTheNewest) {
    previews_.PreviewNow(document_);
    const Text first = pane_.urls.back();
    clock_.Advance(PageTurns::Patience);
    previews_.PreviewNow(document_);
    static_cast<void>(pane_.TakeCalls());
    previews_.Page().PageLoaded(first);
    previews_.Page().PageLoaded(u"");
    previews_.Page().PageLoaded(u"about:blank");
    EXPECT_TRUE(FileExists(PagePath(pane_.urls.back())));
    EXPECT_EQ(FileCount(), 4U);
    Loaded();
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(PreviewControllerTest, APaneTellsOfOnePageOnce) {
    Show();
    Loaded();
    EXPECT_EQ(pane_.TakeCalls(), Calls());
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(PreviewControllerTest, AHiddenPaneIsNotTurnedThoughTheFilesAreMade) {
    pane_.isVisible = false;
    for (int count = 0; count < 5; ++count) {
        previews_.PreviewNow(document_);
        EXPECT_TRUE(FileExists(LastPage()));
        EXPECT_EQ(FileCount(), 2U) << "and the older ones go at once";
    }
    EXPECT_EQ(pane_.TakeCalls(), Calls());
}

TEST_F(PreviewControllerTest, APaneThatComesIntoViewLoadsTheNewestPage) {
    pane_.isVisible = false;
    previews_.PreviewNow(document_);
    previews_.PreviewNow(document_);
    pane_.isVisible = true;
    previews_.Page().PaneShown();
    EXPECT_EQ(pane_.TakeCalls(), Turned);
    EXPECT_EQ(PagePath(pane_.urls.back()), LastPage());
    previews_.Page().PaneShown();
    EXPECT_EQ(pane_.TakeCalls(), Calls()) << "it is coming";
    Loaded();
    previews_.Page().PaneShown();
    EXPECT_EQ(pane_.TakeCalls(), Calls()) << "it is there";
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(PreviewControllerTest, APaneThatComesIntoViewWithoutAnyPageLoadsNone) {
    previews_.Page().PaneShown();
    previews_.Rule().PaneShown();
    EXPECT_EQ(pane_.TakeCalls(), Calls());
    EXPECT_EQ(rulePane_.TakeCalls(), Calls());
}

TEST_F(PreviewControllerTest, APaneThatComesIntoViewLoadsWhatABrowserWasGiven) {
    Show();
    pane_.isVisible = false;
    const Text page = previews_.Making().MakeBrowserPreview(document_, nullptr);
    previews_.Making().ToDelete().HoldForAMinute(page);
    pane_.isVisible = true;
    previews_.Page().PaneShown();
    EXPECT_EQ(pane_.TakeCalls(), Turned);
    EXPECT_EQ(PagePath(pane_.urls.back()), page);
    Loaded();
    previews_.PreviewNow(document_);
    Loaded();
    EXPECT_TRUE(FileExists(page)) << "the browser has its minute";
    time_.Advance(std::chrono::minutes(1));
    previews_.PreviewNow(document_);
    Loaded();
    EXPECT_FALSE(FileExists(page));
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(PreviewControllerTest, ABrowserDoesNotTakeThePageAwayThatThePaneIsLoading) {
    previews_.PreviewNow(document_);
    const auto loading = TemporaryFilesLeft();
    EXPECT_NE(previews_.Making().MakeBrowserPreview(document_, nullptr), u"");
    EXPECT_EQ(FileCount(), 4U);
    EXPECT_TRUE(FileExists(PagePath(pane_.urls.back())));
    Loaded();
    EXPECT_EQ(FileCount(), 2U);
    EXPECT_NE(TemporaryFilesLeft(), loading);
}

TEST_F(PreviewControllerTest, APaneThatIsHiddenWhileItLoadsGivesThatUpForTheNext) {
    previews_.PreviewNow(document_);
    pane_.isVisible = false;
    static_cast<void>(pane_.TakeCalls());
    previews_.PreviewNow(document_);
    EXPECT_EQ(pane_.TakeCalls(), Calls{"Stop"});
    EXPECT_EQ(FileCount(), 2U);
    pane_.isVisible = true;
    previews_.Page().PaneShown();
    EXPECT_EQ(pane_.TakeCalls(), Turned);
}

TEST_F(PreviewControllerTest, APaneThatIsHiddenForLongWhileItLoadsLoadsAgain) {
    previews_.PreviewNow(document_);
    pane_.isVisible = false;
    clock_.Advance(PageTurns::Patience);
    pane_.isVisible = true;
    static_cast<void>(pane_.TakeCalls());
    previews_.Page().PaneShown();
    EXPECT_EQ(pane_.TakeCalls(), Turned);
}

TEST_F(PreviewControllerTest, TheRulesPageIsHeldWhileItLoads) {
    previews_.PreviewCurrentRule(document_);
    clock_.Advance(PageTurns::Patience);
    previews_.PreviewCurrentRule(document_);
    EXPECT_EQ(FileCount(), 2U);
    RuleLoaded();
    EXPECT_EQ(FileCount(), 1U);
    previews_.PreviewCurrentRule(document_);
    EXPECT_EQ(FileCount(), 1U) << "what has loaded goes at once";
    RuleLoaded();
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(PreviewControllerTest, OnePanesPurgeLeavesWhatTheOtherIsLoading) {
    previews_.PreviewNow(document_);
    clock_.Advance(PageTurns::Patience);
    previews_.PreviewCurrentRule(document_);
    RuleLoaded();
    EXPECT_TRUE(FileExists(PagePath(pane_.urls.back())));
    EXPECT_EQ(FileCount(), 3U);
}

TEST_F(PreviewControllerTest, WithoutAPaneTheFilesAreMadeAllTheSame) {
    previews_.Page().SetPane(nullptr);
    previews_.Rule().SetPane(nullptr);
    previews_.PreviewNow(document_);
    previews_.PreviewNow(document_);
    previews_.PreviewCurrentRule(document_);
    EXPECT_EQ(FileCount(), 3U);
    previews_.Page().SetPane(&pane_);
    EXPECT_EQ(pane_.TakeCalls(), Turned) << "a pane loads the newest page when it is built";
}

TEST_F(PreviewControllerTest, APaneThatGoesWhileItLoadsLeavesNothingHeld) {
    previews_.PreviewNow(document_);
    previews_.PreviewNow(document_);
    static_cast<void>(pane_.TakeCalls());
    previews_.Page().SetPane(nullptr);
    clock_.Advance(PageTurns::Patience);
    EXPECT_EQ(pane_.TakeCalls(), Calls()) << "nothing is done with it, and nothing waits";
    EXPECT_EQ(FileCount(), 2U);
    previews_.PreviewNow(document_);
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(PreviewControllerTest, APreviewThatCannotBeMadeLeavesThePaneAlone) {
    Show();
    previews_.Documents().SetPreviewFile(files_.Write("late.html", std::string(40'000, ' ') + "</head>"));
    previews_.PreviewNow(document_);
    EXPECT_EQ(pane_.TakeCalls(), Calls());
    previews_.Documents().SetPreviewFile(files_.Write("good.html", "</head>"));
    previews_.PreviewNow(document_);
    EXPECT_EQ(pane_.TakeCalls(), Turned);
    Loaded();
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(PreviewControllerTest, ClosingDeletesEverything) {
    previews_.PreviewNow(document_);
    previews_.PreviewNow(document_);
    previews_.PreviewCurrentRule(document_);
    static_cast<void>(pane_.TakeCalls());
    previews_.Close();
    EXPECT_TRUE(TemporaryFilesLeft().empty());
    for (const SettingKey& key : {setting::LastPreviewCSSFile, setting::LastPreviewHTMLFile,
                                  setting::LastCurrentRulePreviewFile, setting::FilesToDelete})
        EXPECT_EQ(Stored(key), u"") << Utf8FromText(key.key);
    EXPECT_EQ(pane_.TakeCalls(), Calls()) << "the panes may have gone already";
}

TEST_F(PreviewControllerTest, AfterClosingNothingIsPreviewed) {
    previews_.Close();
    previews_.PreviewNow(document_);
    previews_.PreviewCurrentRule(document_);
    EXPECT_TRUE(TemporaryFilesLeft().empty()) << "a timer that was running when the window closed leaves no file";
    EXPECT_EQ(Stored(setting::LastPreviewHTMLFile), u"");
}

TEST_F(PreviewControllerTest, ClosingLeavesWhatIsLockedForTheNextTime) {
    previews_.PreviewNow(document_);
    {
        const test::LockedFolder locked(files_, "site");
        previews_.Close();
    }
    EXPECT_EQ(previews_.Making().ToDelete().Queued().size(), 2U);
    previews_.Close();
    EXPECT_TRUE(TemporaryFilesLeft().empty());
}

TEST_F(PreviewControllerTest, TheNextStartDeletesWhatACrashHasLeft) {
    previews_.PreviewNow(document_);
    clock_.Advance(PageTurns::Patience);
    previews_.PreviewNow(document_);
    previews_.PreviewCurrentRule(document_);
    EXPECT_EQ(FileCount(), 5U);
    PreviewController next(store_, clock_, Folders(), time_.Reader());
    next.Start();
    EXPECT_TRUE(TemporaryFilesLeft().empty());
    next.Page().SetPane(&pane_);
    EXPECT_EQ(pane_.urls.size(), 2U) << "an old page isn't shown";
}

}  // namespace
}  // namespace tintora
