#include "preview/BrowserPreviews.h"

#include "linking/FileUrls.h"
#include "linking/Paths.h"
#include "preview/BrowserFixture.h"
#include "preview/BrowserMenu.h"

#include <gtest/gtest.h>

#include <array>

namespace tintora {
namespace {

/// Asks nobody, and gives a prepared answer.
class ScriptedQuestion final : public FileQuestion {
  public:
    [[nodiscard]] Text LocateFile(TextView filter) override {
        filters.emplace_back(filter);
        return answer;
    }
    Text answer;
    Texts filters;
};

/// Starts nothing, and looks at what it was to start on.
class RecordingStarter final : public ProcessStarter {
  public:
    [[nodiscard]] bool Start(const Texts& command) override {
        commands.push_back(command);
        EXPECT_EQ(command.size(), 2U);
        EXPECT_TRUE(FileExists(command.back())) << "the page is there when the browser starts";
        return canStart;
    }
    std::vector<Texts> commands;
    bool canStart = true;
};

class SilentMessages final : public WriteMessages {
  public:
    void ShowWriteFailure(TextView message) override { shown.emplace_back(message); }
    Texts shown;
};

class BrowserPreviewsTest : public test::BrowserTest {
  protected:
    BrowserPreviewsTest() { document_.file = files_.Write("site/main.css", ""); }

    [[nodiscard]] Text LastPage() { return making_.Last().GetLastPreviewHTMLFile(); }
    [[nodiscard]] Text LastSheet() { return making_.Last().GetLastPreviewCSSFile(); }

    /// The programs that were started since this was last asked.
    [[nodiscard]] Texts Started() {
        Texts programs;
        for (const Texts& command : std::exchange(processes_.commands, {}))
            programs.push_back(command.front());
        return programs;
    }

    PreviewMaking making_{store_, Folders(), time_.Reader()};
    BrowserLocations locations_ = Locations();
    ScriptedQuestion question_;
    RecordingStarter processes_;
    SilentMessages messages_;
    BrowserPreviews previews_{{making_, locations_, question_, processes_, messages_}};
    test::FixedDocument document_;
};

TEST_F(BrowserPreviewsTest, StartTheBrowserOnALinkedCopyOfThePage) {
    const Text browser = MakeProgram("bin/xdg-open");
    previews_.PreviewInIE(document_);
    EXPECT_EQ(processes_.commands, (std::vector<Texts>{{browser, LastPage()}}));
    EXPECT_EQ(ReadFileBytes(LastSheet()), "h1 { color: red }");
    EXPECT_NE(ReadTextFile(LastPage()).find(FileURLFromPath(LastSheet())), Text::npos);
    EXPECT_TRUE(question_.filters.empty());
}

struct NamedCase {
    void (BrowserPreviews::*preview)(const PreviewedDocument&);
    NamedBrowser browser;
};

constexpr auto NamedCases = std::to_array<NamedCase>({
    {&BrowserPreviews::PreviewInIE, NamedBrowser::IE},
    {&BrowserPreviews::PreviewInNS, NamedBrowser::Netscape},
    {&BrowserPreviews::PreviewInOpera, NamedBrowser::Opera},
    {&BrowserPreviews::PreviewInMozilla, NamedBrowser::Mozilla},
});

TEST_F(BrowserPreviewsTest, AskOnceForABrowserThatIsNotThere) {
    for (const NamedCase& row : NamedCases) {
        question_.filters.clear();
        question_.answer = MakeProgram("opt/my browser " + std::to_string(static_cast<int>(row.browser)));
        locations_.Save(row.browser, u"/missing/browser");
        (previews_.*row.preview)(document_);
        EXPECT_EQ(question_.filters, Texts{u"executable files"});
        EXPECT_EQ(locations_.Get(row.browser), question_.answer);
        EXPECT_EQ(Started(), Texts{question_.answer});
        (previews_.*row.preview)(document_);
        EXPECT_EQ(question_.filters.size(), 1U) << "the answer is stored";
        EXPECT_EQ(Started(), Texts{question_.answer});
    }
}

TEST_F(BrowserPreviewsTest, DoNotCheckTheAnswer) {
    question_.answer = u"/missing/too";
    previews_.PreviewInOpera(document_);
    EXPECT_EQ(locations_.Get(NamedBrowser::Opera), u"/missing/too");
    EXPECT_EQ(Started(), Texts{u"/missing/too"});
}

TEST_F(BrowserPreviewsTest, StartNothingWhereTheQuestionIsCancelled) {
    locations_.Save(NamedBrowser::Mozilla, u"/missing/browser");
    previews_.PreviewInMozilla(document_);
    EXPECT_EQ(Started(), Texts());
    EXPECT_EQ(Stored(setting::MozillaLocation), u"");
    EXPECT_TRUE(TemporaryFilesLeft().empty());
    previews_.PreviewInMozilla(document_);
    EXPECT_EQ(question_.filters.size(), 2U) << "it is asked again";
}

TEST_F(BrowserPreviewsTest, InFurtherBrowsersGoByTheFileName) {
    locations_.SaveAllPreviewBrowsers({u"/a/web", u"/b/other", u"/c/web", u"/d/Web"});
    previews_.PreviewInOther(u"web", document_);
    EXPECT_EQ(Started(), (Texts{u"/a/web", u"/c/web"})) << "all that are called so";
    previews_.PreviewInOther(u"/b/other", document_);
    EXPECT_EQ(Started(), Texts()) << "a key is no path";
    previews_.PreviewInKey(u"other", document_);
    EXPECT_EQ(Started(), Texts{u"/b/other"});
    previews_.PreviewIn1(document_);
    EXPECT_EQ(Started(), Texts{u"/a/web"}) << "the first";
    locations_.SaveAllPreviewBrowsers({});
    previews_.PreviewIn1(document_);
    EXPECT_EQ(Started(), Texts());
}

TEST_F(BrowserPreviewsTest, GoByTheKeysOfTheMenu) {
    for (const NamedBrowser browser : NamedBrowsers)
        locations_.Save(browser, MakeProgram("opt/" + std::to_string(static_cast<int>(browser))));
    for (const BrowserMenuEntry& entry : BrowserMenu(locations_, Browsers())) {
        previews_.PreviewInKey(entry.key, document_);
        EXPECT_EQ(Started(), Texts{locations_.Get(*BrowserForKey(entry.key))});
    }
}

TEST_F(BrowserPreviewsTest, HandOverWhateverAPathHolds) {
    for (const std::string name :
         {"a b", "50% #1?", "it's \"quoted\" $HOME `x` \\", "--option", "\xD0\xB6", "\xFF", "a^^^b", "n\nl"}) {
        SCOPED_TRACE(name);
        making_.Documents().SetPreviewFile(files_.Write(name + "/index.html", "<head></head>"));
        const Text browser = MakeProgram("opt/" + name + "/web");
        locations_.SaveAllPreviewBrowsers({browser});
        previews_.PreviewIn1(document_);
        ASSERT_EQ(processes_.commands, (std::vector<Texts>{{browser, LastPage()}}));
        EXPECT_EQ(GetFolderPath(LastPage()), GetFolderPath(making_.Documents().GetPreviewFile()));
        processes_.commands.clear();
    }
}

TEST_F(BrowserPreviewsTest, InASecondBrowserLeaveTheFirstItsFilesForAMinute) {
    previews_.PreviewIn(u"/a/web", document_);
    const Texts first = {LastSheet(), LastPage()};
    previews_.PreviewIn(u"/b/web", document_);
    EXPECT_EQ(making_.ToDelete().Queued(), first);
    EXPECT_TRUE(FileExists(first[0]) && FileExists(first[1]));
    time_.Advance(std::chrono::minutes(1));
    making_.ToDelete().PurgeFilesToDelete();
    EXPECT_FALSE(FileExists(first[0]) || FileExists(first[1]));
    EXPECT_TRUE(FileExists(LastPage()));
    const Texts second = {LastSheet(), LastPage()};
    previews_.PreviewIn(u"/c/web", document_);
    EXPECT_FALSE(FileExists(second[0]) || FileExists(second[1])) << "they aren't held any more";
    EXPECT_EQ(Stored(setting::FilesToDelete), u"");
}

TEST_F(BrowserPreviewsTest, InABrowserThatCannotBeStartedHoldNothing) {
    processes_.canStart = false;
    previews_.PreviewIn(u"/missing", document_);
    making_.Last().DeleteAll();
    EXPECT_TRUE(TemporaryFilesLeft().empty());
    EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(BrowserPreviewsTest, ThatCannotBeMadeStartNothing) {
    std::filesystem::remove(files_.FilePath("program/Help_Files/Preview/default.html"));
    previews_.PreviewIn(u"/a/web", document_);
    EXPECT_EQ(Started(), Texts());
    EXPECT_TRUE(TemporaryFilesLeft().empty());
    previews_.LaunchBrowser(u"", u"/page.html");
    previews_.LaunchBrowser(u"/a/web", u"");
    EXPECT_EQ(Started(), Texts());
}

}  // namespace
}  // namespace tintora
