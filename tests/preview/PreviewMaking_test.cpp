#include "preview/PreviewMaking.h"

#include "linking/FileUrls.h"
#include "linking/Paths.h"
#include "preview/PreviewFixture.h"
#include "settings/PathLists.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace tintora {
namespace {

class RecordedMessages final : public WriteMessages {
  public:
    void ShowWriteFailure(TextView message) override { shown.emplace_back(message); }
    Texts shown;
};

std::string LinkTo(TextView sheet) {
    return "<link rel=\"stylesheet\" type=\"text/css\" href=\"" + Utf8FromText(FileURLFromPath(sheet)) + "\"  />";
}

class PreviewMakingTest : public test::PreviewTest {
  protected:
    /// Makes a file and takes it for the preview document.
    Text UsePage(std::string_view name, std::string_view bytes) {
        Text path = files_.Write(name, bytes);
        making_.Documents().SetPreviewFile(path);
        return path;
    }

    [[nodiscard]] Text LastSheet() { return making_.Last().GetLastPreviewCSSFile(); }
    [[nodiscard]] Text LastPage() { return making_.Last().GetLastPreviewHTMLFile(); }

    /// A preview that can't be made leaves nothing.
    void ExpectNoPreview() {
        EXPECT_EQ(making_.MakePreview(document_), u"");
        EXPECT_TRUE(TemporaryFilesLeft().empty());
        EXPECT_EQ(LastSheet(), u"");
        EXPECT_EQ(LastPage(), u"");
        EXPECT_EQ(Stored(setting::FilesToDelete), u"");
    }

    PreviewMaking making_{store_, Folders(), time_.Reader()};
    test::FixedDocument document_;
};

TEST_F(PreviewMakingTest, PutsTheSheetBesideTheDocumentAndTheCopyBesideThePage) {
    document_.file = files_.Write("css/main.css", "old");
    const Text original = UsePage("pages/index.html", "<head></head>");
    const Text page = making_.MakePreview(document_);
    EXPECT_EQ(TemporaryFilesLeft(),
              (std::vector<std::string>{"css/ktTemp 61234.5.css", "pages/ktTemp 61234.500001.html"}));
    EXPECT_EQ(page, PathOf("pages/ktTemp 61234.500001.html"));
    EXPECT_EQ(LastPage(), page);
    EXPECT_EQ(LastSheet(), PathOf("css/ktTemp 61234.5.css"));
    EXPECT_EQ(ReadFileBytes(LastSheet()), "h1 { color: red }");
    EXPECT_EQ(ReadFileBytes(page), "<head>" + LinkTo(LastSheet()) + "  </head>");
    EXPECT_EQ(ReadFileBytes(document_.file), "old") << "the user's files are only read";
    EXPECT_EQ(ReadFileBytes(original), "<head></head>");
}

TEST_F(PreviewMakingTest, PutsTheSheetOfAnUnsavedDocumentBesideTheDefaultPage) {
    static_cast<void>(UsePage("pages/index.html", "<head></head>"));
    const Text page = making_.MakePreview(document_);
    EXPECT_EQ(GetFolderPath(page), PathOf("pages"));
    EXPECT_EQ(GetFolderPath(LastSheet()), PathOf("program/Help_Files/Preview"));
    EXPECT_EQ(ReadFileBytes(page), "<head>" + LinkTo(LastSheet()) + "  </head>");
}

TEST_F(PreviewMakingTest, TakesTheDefaultPageWhereNoOtherIs) {
    making_.Documents().SetPreviewFile(PathOf("missing.html"));
    const Text page = making_.MakePreview(document_);
    EXPECT_EQ(GetFolderPath(page), PathOf("program/Help_Files/Preview"));
    EXPECT_EQ(ReadFileBytes(page), "<head>\n" + LinkTo(LastSheet()) + "  </head>default");
}

TEST_F(PreviewMakingTest, ReplacesThePagesLinkToTheDocument) {
    document_.file = files_.Write("a b/css #1/main^1.css", "");
    static_cast<void>(UsePage("a b/index.html",
                              "<link rel=stylesheet href=reset.css><link rel=stylesheet href='css%20%231/main^1.css'>"
                              "</head>"));
    const Text page = making_.MakePreview(document_);
    EXPECT_EQ(ReadFileBytes(page), "<link rel=stylesheet href=reset.css>" + LinkTo(LastSheet()) + "</head>");
}

TEST_F(PreviewMakingTest, KeepsEncodings) {
    document_.file = files_.Write("main.css", "");
    document_.text = u"/* \u00e9 */";
    document_.encoding = Encoding::Windows1252;
    static_cast<void>(UsePage("index.html", "</head>\xE9"));
    const Text page = making_.MakePreview(document_);
    EXPECT_EQ(ReadFileBytes(page), LinkTo(LastSheet()) + "  </head>\xE9");
    EXPECT_EQ(ReadFileBytes(LastSheet()), "/* \xE9 */");
}

TEST_F(PreviewMakingTest, WorksWithOddPaths) {
    for (const std::string name : {"with blank", "50%", "#1?", "it's \"quoted\"", "\xD0\xB6\xE4\xB8\xAD", "\xFF\xFE",
                                   "a^^^b", "<b>&amp;", "line\nend", "back\\slash"}) {
        SCOPED_TRACE(name);
        document_.file = files_.Write(name + "/css/main.css", "");
        static_cast<void>(UsePage(name + "/index.html", "<link rel=stylesheet href=css/main.css>"));
        const Text page = making_.MakePreview(document_);
        EXPECT_EQ(ReadFileBytes(page), LinkTo(LastSheet()));
        EXPECT_EQ(ResolveFileURL(u"/", FileURLFromPath(LastSheet())), LastSheet());
        making_.Last().DeleteAll();
        EXPECT_TRUE(TemporaryFilesLeft().empty());
    }
}

TEST_F(PreviewMakingTest, ForAPaneQueuesTheFilesOfThePreviewBefore) {
    const Text first = making_.MakePreview(document_);
    const Text firstSheet = LastSheet();
    EXPECT_EQ(Stored(setting::FilesToDelete), u"");
    const Text second = making_.MakePreview(document_);
    EXPECT_NE(first, second);
    EXPECT_EQ(making_.ToDelete().Queued(), (Texts{firstSheet, first}));
    EXPECT_TRUE(FileExists(first) && FileExists(firstSheet)) << "the pane may still read them";
    making_.ToDelete().PurgeFilesToDelete();
    EXPECT_FALSE(FileExists(first) || FileExists(firstSheet));
    EXPECT_TRUE(FileExists(second) && FileExists(LastSheet()));
}

TEST_F(PreviewMakingTest, ForABrowserDeletesTheFilesOfThePreviewBefore) {
    const Text first = making_.MakePreview(document_);
    const Text firstSheet = LastSheet();
    const Text second = making_.MakeBrowserPreview(document_, nullptr);
    EXPECT_FALSE(FileExists(first) || FileExists(firstSheet));
    EXPECT_TRUE(FileExists(second) && FileExists(LastSheet()));
    EXPECT_EQ(Stored(setting::FilesToDelete), u"");

    making_.ToDelete().HoldForAMinute(second);
    const Text secondSheet = LastSheet();
    EXPECT_NE(making_.MakeBrowserPreview(document_, nullptr), u"");
    EXPECT_FALSE(FileExists(secondSheet));
    EXPECT_TRUE(FileExists(second));
    EXPECT_EQ(making_.ToDelete().Queued(), Texts{second}) << "it is held";
}

TEST_F(PreviewMakingTest, OfARuleDeletesThePageBefore) {
    document_.file = files_.Write("site/main.css", "");
    document_.declarations = {u"color: red;", u"margin: 0;"};
    const Text first = making_.MakeRulePreview(document_);
    EXPECT_EQ(first, PathOf("site/ktTemp 61234.5.html"));
    EXPECT_EQ(making_.Last().GetLastCurrentRulePreviewFile(), first);
    EXPECT_NE(ReadFileBytes(first).find("p{color: red; margin: 0;}"), std::string::npos);
    const Text second = making_.MakeRulePreview(document_);
    EXPECT_EQ(TemporaryFilesLeft(), (std::vector<std::string>{"site/ktTemp 61234.500001.html"}));
    making_.ToDelete().Hold(second);
    const Text third = making_.MakeRulePreview(document_);
    EXPECT_TRUE(FileExists(second) && FileExists(third));
    EXPECT_EQ(making_.ToDelete().Queued(), Texts{second});
    document_.file.clear();
    EXPECT_EQ(GetFolderPath(making_.MakeRulePreview(document_)), PathOf("tmp"));
}

TEST_F(PreviewMakingTest, EndsQuietlyWithoutADefaultPage) {
    std::filesystem::remove(files_.FilePath("program/Help_Files/Preview/default.html"));
    ExpectNoPreview();
}

TEST_F(PreviewMakingTest, EndsQuietlyWhereTheHeadEndsTooLate) {
    static_cast<void>(UsePage("index.html", std::string(40'000, ' ') + "</head>"));
    ExpectNoPreview();
}

TEST_F(PreviewMakingTest, EndsQuietlyWhereThePagesFolderTakesNoFile) {
    const Text page = MakeFullFolder("full") + u"a.html";
    WriteTextFileOrThrow(page, u"<head></head>");
    making_.Documents().SetPreviewFile(page);
    ExpectNoPreview();
}

TEST_F(PreviewMakingTest, EndsQuietlyInFoldersThatMayOnlyBeRead) {
    static_cast<void>(UsePage("site/index.html", "<head></head>"));
    const test::LockedFolder locked(files_, "site");
    EXPECT_EQ(making_.MakePreview(document_), u"");
    EXPECT_EQ(LastPage(), u"");
}

TEST_F(PreviewMakingTest, EndsQuietlyForAPageThatCannotBeRead) {
    ASSERT_EQ(::mkfifo(files_.FilePath("pipe.html").c_str(), 0600), 0);
    making_.Documents().SetPreviewFile(PathOf("pipe.html"));
    ExpectNoPreview();
    std::filesystem::permissions(FileNameFromText(UsePage("secret/index.html", "x")), std::filesystem::perms::none);
    const test::LockedFolder locked(files_, "secret");
    EXPECT_EQ(making_.MakePreview(document_), u"");
}

TEST_F(PreviewMakingTest, EndsQuietlyWhereNoSheetCanBeMade) {
    PreviewMaking making(store_, {PathOf("missing"), PathOf("missing")}, time_.Reader());
    RecordedMessages messages;
    EXPECT_EQ(making.MakePreview(document_), u"");
    EXPECT_EQ(making.MakeBrowserPreview(document_, &messages), u"");
    EXPECT_EQ(making.MakeRulePreview(document_), u"");
    EXPECT_TRUE(messages.shown.empty()) << "a file that can't be made goes without a word";
    EXPECT_TRUE(TemporaryFilesLeft().empty());
}

TEST_F(PreviewMakingTest, TellsWhenTheSheetForABrowserCannotBeWritten) {
    rlimit old{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
    const rlimit small{10, old.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    RecordedMessages messages;
    EXPECT_EQ(making_.MakeBrowserPreview(document_, &messages), u"");
    EXPECT_EQ(messages.shown, Texts{u"ktTemp 61234.5.css can't be saved: File too large."});
    EXPECT_EQ(making_.MakeBrowserPreview(document_, nullptr), u"");
    ExpectNoPreview();
    EXPECT_EQ(messages.shown.size(), 1U);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &old), 0);
}

TEST_F(PreviewMakingTest, LeavesNothingOfAPreviewThatFailsAfterOthers) {
    const Text first = making_.MakePreview(document_);
    static_cast<void>(UsePage("index.html", std::string(40'000, ' ') + "</head>"));
    EXPECT_EQ(making_.MakePreview(document_), u"");
    EXPECT_EQ(making_.MakePreview(document_), u"");
    EXPECT_EQ(TemporaryFilesLeft().size(), 2U) << "the pane still shows the first";
    EXPECT_TRUE(FileExists(first));
    making_.Last().DeleteAll();
    EXPECT_TRUE(TemporaryFilesLeft().empty());
}

TEST_F(PreviewMakingTest, NamesEachFileInTheSettingsWhileItIsMade) {
    // A store that looks what is there whenever something is stored.
    class WatchingStore final : public SettingsStore {
      public:
        explicit WatchingStore(SettingsStore& store) : store_(store) {}
        [[nodiscard]] Text GetSetting(TextView application, TextView section, TextView key,
                                      TextView defaultValue) const override {
            return store_.GetSetting(application, section, key, defaultValue);
        }
        void SaveSetting(TextView application, TextView section, TextView key, TextView value) override {
            const bool isNamed = IsTemporaryFile(value) && key != setting::FilesToDelete.key;
            EXPECT_FALSE(isNamed && FileExists(value)) << "it is named first";
            store_.SaveSetting(application, section, key, value);
        }

      private:
        SettingsStore& store_;
    };
    WatchingStore watching(store_);
    PreviewMaking making(watching, Folders(), time_.Reader());
    for (int round = 0; round < 3; ++round) {
        EXPECT_NE(making.MakePreview(document_), u"");
        EXPECT_NE(making.MakeRulePreview(document_), u"");
        EXPECT_NE(making.MakeBrowserPreview(document_, nullptr), u"");
        Texts named = making.ToDelete().Queued();
        for (const SettingKey& key :
             {setting::LastPreviewCSSFile, setting::LastPreviewHTMLFile, setting::LastCurrentRulePreviewFile})
            named.push_back(Stored(key));
        EXPECT_EQ(TemporaryFilesLeft().size(), named.size());
        EXPECT_TRUE(std::ranges::all_of(named, [](const Text& path) { return FileExists(path); }));
    }
}

TEST_F(PreviewMakingTest, CopiesALargePage) {
    const std::string rest(10'000'000, 'x');
    static_cast<void>(UsePage("index.html", "<head></head>" + rest));
    const Text page = making_.MakePreview(document_);
    EXPECT_EQ(ReadFileBytes(page), "<head>" + LinkTo(LastSheet()) + "  </head>" + rest);
}

}  // namespace
}  // namespace tintora
