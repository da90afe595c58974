#include "PageViewFixture.h"

#include <signal.h>

namespace tintora {
namespace {

using test::WaitFor;

// Pages whose scripts never end, and processes that do.

constexpr PagePatience ShortPatience{std::chrono::milliseconds(450), std::chrono::milliseconds(300)};

const char Endless[] = "<p>endless<script>while (true);</script>";
const char EndlessLater[] = "<p>later<script>setTimeout(() => {while (true);}, 400)</script>";

/// Pages that give the editor too much to do, or keep it waiting.
const char* const Floods[] = {
    "<p>flood<script>while (true) console.log('x'.repeat(1000));</script>",
    "<p>flood<script>while (true) alert(1);</script>",
    "<p>flood<script>setInterval(() => { for (let i = 0; i < 1000; ++i) history.replaceState(0, '', '#' + i) }, 0)"
    "</script>",
    "<p>flood<script>setInterval(() => { for (let i = 0; i < 100; ++i) location = 'x' + Math.random() }, 0)</script>",
    "<p>flood<script>setInterval(() => { for (let i = 0; i < 100; ++i) open('x') }, 0)</script>",
    "<p>flood<script>setInterval(() => { document.title = Math.random(); scrollBy(0, 1) }, 0)</script>",
    "<p>flood<iframe src=x.html></iframe><script>setInterval(() => frames[0].location.reload(), 0)</script>",
};

class PageViewHangsTest : public test::PageViewTest {
  protected:
    PageViewHangsTest() : test::PageViewTest(ShortPatience) {}

    [[nodiscard]] bool OffersToStop() const {
        const auto* const button = Notice()->findChild<QPushButton*>();
        return Notice()->isVisible() && Notice()->Words() == "The page doesn't answer." && button->isVisible() &&
               button->text() == "Stop";
    }

    [[nodiscard]] bool TellsOfTheEnd() const {
        return Notice()->isVisible() &&
               Notice()->Words() == "The page has ended. It comes back with the next preview." &&
               !Notice()->findChild<QPushButton*>()->isVisible();
    }

    void PressStop() { QTest::mouseClick(Notice()->findChild<QPushButton*>(), Qt::LeftButton); }

    static bool Runs(qint64 process) { return kill(static_cast<pid_t>(process), 0) == 0; }

    static void End(qint64 process) {
        ASSERT_GT(process, 0);
        ASSERT_EQ(kill(static_cast<pid_t>(process), SIGKILL), 0);
    }

    [[nodiscard]] qint64 Process() const { return view->SeenFace()->page()->renderProcessPid(); }
};

TEST_F(PageViewHangsTest, APageThatHangsAsItLoadsIsOfferedToBeStopped) {
    ASSERT_TRUE(Shows("a.html", "a"));
    QSignalSpy shown(view, &PageView::PageShown);
    view->ShowPage(Make("endless.html", Endless));
    ASSERT_TRUE(WaitFor([&] { return OffersToStop(); }));
    EXPECT_EQ(Words(), "a") << "the old page lives";
    QTest::keyClicks(&field, "text");
    EXPECT_EQ(field.text(), "text") << "so does the editor";
    EXPECT_TRUE(shown.empty());
    PressStop();
    ASSERT_TRUE(WaitFor([&] { return !shown.empty(); }));
    EXPECT_EQ(shown.first().first(), folder.filePath("endless.html"));
    EXPECT_TRUE(TellsOfTheEnd());
    EXPECT_EQ(Words(), "a");
    ASSERT_TRUE(Shows("b.html", "b"));
    EXPECT_EQ(Words(), "b");
    EXPECT_FALSE(Notice()->isVisible());
}

TEST_F(PageViewHangsTest, APageThatHangsAfterItWasShownIsOfferedToBeStopped) {
    ASSERT_TRUE(Shows("later.html", EndlessLater));
    ASSERT_TRUE(WaitFor([&] { return OffersToStop(); }));
    const qint64 process = Process();
    PressStop();
    ASSERT_TRUE(WaitFor([&] { return TellsOfTheEnd(); }));
    EXPECT_FALSE(Runs(process));
    ASSERT_TRUE(Shows("b.html", "b"));
    EXPECT_EQ(Words(), "b");
    EXPECT_FALSE(Notice()->isVisible());
}

TEST_F(PageViewHangsTest, APageThatHangsGivesWayToTheNext) {
    ASSERT_TRUE(Shows("later.html", EndlessLater));
    ASSERT_TRUE(WaitFor([&] { return view->SeenFace()->IsStuck(); }));
    const qint64 process = Process();
    ASSERT_TRUE(Shows("b.html", "b"));
    EXPECT_EQ(Words(), "b");
    EXPECT_FALSE(Notice()->isVisible());
    EXPECT_TRUE(WaitFor([&] { return !Runs(process); })) << "it doesn't go on unseen";
    ASSERT_TRUE(Shows("c.html", "c"));
    EXPECT_EQ(Words(), "c");
}

TEST_F(PageViewHangsTest, ALoadThatHangsGivesWayToTheNextBeforeAndAfterTheOffer) {
    ASSERT_TRUE(Shows("a.html", "a"));
    view->ShowPage(Make("endless.html", Endless));
    ASSERT_TRUE(WaitFor([&] { return OffersToStop(); }));
    ASSERT_TRUE(Shows("b.html", "b"));
    EXPECT_EQ(Words(), "b");
    view->ShowPage(folder.filePath("endless.html"));
    ASSERT_TRUE(WaitFor([&] { return view->findChildren<PageFace*>().size() == 2; }));
    ASSERT_TRUE(Shows("c.html", "c"));
    EXPECT_EQ(Words(), "c");
    EXPECT_FALSE(Notice()->isVisible());
}

TEST_F(PageViewHangsTest, APageThatDoesNotLetGoIsEnded) {
    ASSERT_TRUE(Shows("a.html", "a<script>onunload = onpagehide = () => {while (true);}</script>"));
    const qint64 process = Process();
    ASSERT_TRUE(Shows("b.html", "b"));
    ASSERT_TRUE(WaitFor([&] { return !Runs(process); }));
    EXPECT_FALSE(Notice()->isVisible());
    ASSERT_TRUE(Shows("c.html", "c"));
    EXPECT_EQ(Words(), "c");
}

TEST_F(PageViewHangsTest, APageThatIsOnlySlowTakesTheOfferBack) {
    ASSERT_TRUE(Shows("slow.html",
                      "slow<script>setTimeout(() => {"
                      "  for (const start = Date.now(); Date.now() - start < 1000;);"
                      "}, 400)</script>"));
    ASSERT_TRUE(WaitFor([&] { return OffersToStop(); }));
    ASSERT_TRUE(WaitFor([&] { return !Notice()->isVisible(); }));
    EXPECT_EQ(Words(), "slow");
}

TEST_F(PageViewHangsTest, AProcessThatIsKilledComesBackWithTheNextPage) {
    ASSERT_TRUE(Shows("a.html", "a"));
    End(Process());
    ASSERT_TRUE(WaitFor([&] { return TellsOfTheEnd(); }));
    ASSERT_TRUE(Shows("b.html", "b"));
    EXPECT_EQ(Words(), "b");
    EXPECT_FALSE(Notice()->isVisible());
    ASSERT_TRUE(Shows("c.html", "c")) << "in the view whose process has ended";
    EXPECT_EQ(Words(), "c");
}

TEST_F(PageViewHangsTest, AProcessThatIsKilledUnseenIsNotMissed) {
    ASSERT_TRUE(Shows("a.html", "a"));
    const qint64 process = Process();
    ASSERT_TRUE(Shows("b.html", "b"));
    End(process);
    ASSERT_TRUE(Shows("c.html", "c")) << "it may not even be known yet";
    EXPECT_EQ(Words(), "c");
    EXPECT_FALSE(Notice()->isVisible());
}

TEST_F(PageViewHangsTest, AProcessThatIsKilledAsItLoadsLeavesThePicture) {
    ASSERT_TRUE(Shows("a.html", "a"));
    QSignalSpy shown(view, &PageView::PageShown);
    view->ShowPage(Make("endless.html", Endless));
    ASSERT_TRUE(WaitFor([&] { return OffersToStop(); }));
    for (PageFace* const face : view->findChildren<PageFace*>()) {
        if (face != view->SeenFace())
            End(face->page()->renderProcessPid());
    }
    ASSERT_TRUE(WaitFor([&] { return !shown.empty(); }));
    EXPECT_TRUE(TellsOfTheEnd());
    EXPECT_EQ(Words(), "a");
}

TEST_F(PageViewHangsTest, TheEditorStaysUsableWhateverAPageFloodsItWith) {
    for (const char* const flood : Floods) {
        SCOPED_TRACE(flood);
        ASSERT_TRUE(Shows("a.html", "a"));
        view->ShowPage(Make("flood.html", flood));
        QElapsedTimer running;
        running.start();
        qint64 last = 0;
        qint64 longest = 0;
        ASSERT_TRUE(WaitFor([&] {
            longest = std::max(longest, running.elapsed() - last);
            last = running.elapsed();
            return last > 400;
        }));
        EXPECT_LT(longest, 500) << "milliseconds without a look at the keys";
    }
    ASSERT_TRUE(Shows("b.html", "b"));
    EXPECT_EQ(Words(), "b");
}

}  // namespace
}  // namespace tintora
