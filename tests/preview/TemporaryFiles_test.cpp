#include "preview/TemporaryFiles.h"

#include "linking/Paths.h"
#include "linking/TextWriting.h"
#include "preview/PreviewFixture.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <array>
#include <set>

namespace tintora {
namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;

struct NameCase {
    TextView path;
    bool isTemporary;
};

constexpr auto NameCases = std::to_array<NameCase>({
    {u"/site/ktTemp 61234.56.html", true},
    {u"/ktTemp", true},
    {u"ktTemp.css", true},
    {u"/ktTemp/ktTempA", true},
    {u"", false},
    {u"/", false},
    {u"/site/index.html", false},
    {u"/site/kttemp 1.html", false},
    {u"/site/ ktTemp 1.html", false},
    {u"/site/my ktTemp 1.html", false},
    {u"/ktTemp 1/index.html", false},
    {u"/ktTemp 1.html/", false},
    {u"/site/main\\ktTemp 1.html", false},
    {u"/site/main^^^ktTemp 1.html", false},
});

TEST(TemporaryFiles, AreKnownByTheStartOfTheirName) {
    for (const NameCase& row : NameCases)
        EXPECT_EQ(IsTemporaryFile(row.path), row.isTemporary) << Utf8FromText(row.path);
}

class TemporaryFilesTest : public test::PreviewTest {
  protected:
    /// Writes down each path that is told, and whether the file was there already.
    [[nodiscard]] TemporaryFiles::Announce Announcer() {
        return [this](TextView path) {
            announced_.emplace_back(path);
            EXPECT_FALSE(FileExists(path)) << Utf8FromText(path);
        };
    }

    TemporaryFiles temporary_{Folders(), time_.Reader()};
    Texts announced_;
};

TEST_F(TemporaryFilesTest, HaveTheTimeOfTheDayInTheirNames) {
    EXPECT_EQ(temporary_.MakeTempFileName(), u"ktTemp 61234.5.html");
    time_.Advance(std::chrono::milliseconds(60));
    EXPECT_EQ(temporary_.MakeTempFileName(), u"ktTemp 61234.56.html");
    EXPECT_EQ(temporary_.MakeTempFileName(), u"ktTemp 61234.560001.html") << "though the time stands still";
    time_.Advance(std::chrono::hours(24));
    EXPECT_EQ(temporary_.MakeTempFileName(), u"ktTemp 61234.56.html") << "the names of another day";
}

TEST_F(TemporaryFilesTest, HaveNamesThatNoOtherHas) {
    std::set<Text> names;
    for (int count = 0; count < 1000; ++count) {
        EXPECT_TRUE(names.insert(temporary_.MakeTempFileName()).second);
        // The clock may be set back.
        time_.Advance(std::chrono::milliseconds(count % 3 == 0 ? -1 : 0));
    }
    for (const Text& name : names)
        EXPECT_TRUE(name.starts_with(u"ktTemp ") && name.ends_with(u".html"));
}

TEST_F(TemporaryFilesTest, PassOverNamesThatAreTaken) {
    static_cast<void>(files_.Write("site/ktTemp 61234.5.css", "of a crash"));
    fs::create_symlink("nowhere", files_.FilePath("site/ktTemp 61234.500001.css"));
    const Text document = files_.Write("site/main.css", "");
    EXPECT_EQ(temporary_.MakeTempCSSName(document), PathOf("site/ktTemp 61234.500002.css"));
}

TEST_F(TemporaryFilesTest, OfStyleSheetsLieBesideTheDocumentOrTheDefaultPage) {
    const Text document = files_.Write("a b #1/main.css", "");
    EXPECT_EQ(temporary_.MakeTempCSSName(document), PathOf("a b #1/ktTemp 61234.5.css"));
    for (const Text& unsaved : {Text(), PathOf("a b #1/missing.css"), PathOf("a b #1"), PathOf("missing/main.css")}) {
        const Text path = temporary_.MakeTempCSSName(unsaved);
        EXPECT_EQ(GetFolderPath(path), PathOf("program/Help_Files/Preview")) << Utf8FromText(unsaved);
        EXPECT_TRUE(IsTemporaryFile(path) && path.ends_with(u".css"));
    }
}

TEST_F(TemporaryFilesTest, OfRulesLieInTheFolderOfTheDocumentOrInTheSystemsOne) {
    fs::create_directory(files_.FilePath("site"));
    EXPECT_EQ(temporary_.MakeTempFileInFolder(PathOf("site/missing.css")), PathOf("site/ktTemp 61234.5.html"));
    for (const Text& unsaved : {Text(), Text(u"main.css"), PathOf("missing/main.css")}) {
        const Text path = temporary_.MakeTempFileInFolder(unsaved);
        EXPECT_EQ(GetFolderPath(path), PathOf("tmp")) << Utf8FromText(unsaved);
        EXPECT_TRUE(IsTemporaryFile(path) && path.ends_with(u".html"));
    }
    EXPECT_TRUE(temporary_.MakeTempFileInFolder(u"/main.css").starts_with(u"/ktTemp ")) << "in the root folder";
}

TEST_F(TemporaryFilesTest, TakeABackslashForALetterOfAName) {
    const Text document = files_.Write("site/sub\\main.css", "");
    EXPECT_EQ(GetFolderPath(temporary_.MakeTempCSSName(document)), PathOf("site"));
}

TEST_F(TemporaryFilesTest, CopyAPageBesideItByteForByte) {
    const std::string bytes = "<html>\0\xFF\xFE\r\n"s.append(300'000, 'x');
    const Text page = files_.Write("50% \"site\"/index.htm", bytes);
    const Text copy = temporary_.MakeTempCopyOfFile(page);
    EXPECT_EQ(copy, PathOf("50% \"site\"/ktTemp 61234.5.html"));
    EXPECT_EQ(ReadFileBytes(copy), bytes);
    EXPECT_EQ(ReadFileBytes(page), bytes);
}

TEST_F(TemporaryFilesTest, BelongToTheUserAlone) {
    const Text copy = temporary_.MakeTempCopyOfFile(files_.Write("index.html", "x"));
    EXPECT_EQ(fs::status(FileNameFromText(copy)).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(TemporaryFilesTest, CanBeMadeOfAPageThatIsReadOnly) {
    const Text page = files_.Write("index.html", "x");
    fs::permissions(FileNameFromText(page), fs::perms::owner_read);
    const Text copy = temporary_.MakeTempCopyOfFile(page);
    EXPECT_EQ(ReadFileBytes(copy), "x");
    EXPECT_EQ(fs::status(FileNameFromText(copy)).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(TemporaryFilesTest, AreNotMadeOfWhatIsNoPage) {
    ASSERT_EQ(::mkfifo(files_.FilePath("pipe.html").c_str(), 0600), 0);
    fs::create_directory(files_.FilePath("folder.html"));
    for (const Text& path : {Text(), PathOf("missing.html"), PathOf("pipe.html"), PathOf("folder.html"),
                             PathOf("a.html") + Text(1, u'\0')})
        EXPECT_EQ(temporary_.MakeTempCopyOfFile(path), u"") << Utf8FromText(path);
    EXPECT_TRUE(TemporaryFilesLeft().empty());
}

TEST_F(TemporaryFilesTest, AreNotMadeBesideAPageWhereNothingCanBe) {
    const Text page = MakeFullFolder("full") + u"a.html";
    WriteTextFileOrThrow(page, u"x");
    EXPECT_EQ(temporary_.MakeTempCopyOfFile(page), u"");
    EXPECT_TRUE(TemporaryFilesLeft().empty());
}

TEST_F(TemporaryFilesTest, AreToldBeforeTheyAreMade) {
    const Text document = files_.Write("site/main.css", "");
    const Text sheet = temporary_.WriteSheet(document, "h1 {}", Announcer());
    EXPECT_EQ(announced_, Texts{sheet});
    EXPECT_EQ(sheet, PathOf("site/ktTemp 61234.5.css"));
    EXPECT_EQ(ReadFileBytes(sheet), "h1 {}");

    const Text page = temporary_.WriteRulePage(document, "", Announcer());
    EXPECT_EQ(announced_, (Texts{sheet, page}));
    EXPECT_EQ(page, PathOf("site/ktTemp 61234.500001.html"));
    EXPECT_EQ(ReadFileBytes(page), "");
}

TEST_F(TemporaryFilesTest, OfADocumentInAFolderThatTakesNoneLieElsewhere) {
    const Text document = MakeFullFolder("full") + u"a.css";
    WriteTextFileOrThrow(document, u"x");
    const Text sheet = temporary_.WriteSheet(document, "h1 {}", Announcer());
    EXPECT_EQ(GetFolderPath(sheet), PathOf("program/Help_Files/Preview"));
    EXPECT_EQ(announced_.size(), 2U);
    EXPECT_EQ(announced_.back(), sheet);
    EXPECT_EQ(ReadFileBytes(sheet), "h1 {}");
    EXPECT_EQ(GetFolderPath(temporary_.WriteRulePage(document, "", Announcer())), PathOf("tmp"));
}

TEST_F(TemporaryFilesTest, OfAProgramWhoseFolderTakesNoneLieInTheSystemsOne) {
    constexpr std::string_view Below = "Help_Files/Preview/";
    const Text folder = MakeFullFolder("full", Below);
    const Text page = folder + u"default.html";
    WriteTextFileOrThrow(page, u"x");
    TemporaryFiles temporary({folder.substr(0, folder.size() - Below.size() - 1), PathOf("tmp")}, time_.Reader());
    EXPECT_EQ(GetFolderPath(temporary.WriteSheet({}, "h1 {}", Announcer())), PathOf("tmp"));
    EXPECT_EQ(GetFolderPath(temporary.WritePageBeside(page, "y", Announcer())), PathOf("tmp"));
}

TEST_F(TemporaryFilesTest, ThatCanBeMadeNowhereFailAndLeaveNothing) {
    TemporaryFiles temporary({PathOf("no program"), PathOf("no tmp")}, time_.Reader());
    EXPECT_THROW(static_cast<void>(temporary.WriteSheet({}, "x", Announcer())), FileCreationFailure);
    EXPECT_EQ(announced_.back(), u"");
    EXPECT_THROW(static_cast<void>(temporary.WriteRulePage({}, "x", Announcer())), FileCreationFailure);
    EXPECT_EQ(announced_.back(), u"");
    EXPECT_THROW(static_cast<void>(temporary.WritePageBeside(PathOf("no site/a.html"), "x", Announcer())),
                 FileCreationFailure);
    EXPECT_EQ(announced_.back(), u"");
    EXPECT_TRUE(TemporaryFilesLeft().empty());
}

TEST_F(TemporaryFilesTest, ThatAreTooLargeFailAndLeaveNothing) {
    rlimit old{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
    const rlimit small{1000, old.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_THROW(static_cast<void>(temporary_.WriteSheet({}, std::string(1001, 'x'), Announcer())), FileFailure);
    EXPECT_EQ(ReadFileBytes(temporary_.WriteSheet({}, std::string(1000, 'x'), Announcer())).size(), 1000U);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &old), 0);
    EXPECT_EQ(TemporaryFilesLeft().size(), 1U);
}

struct DeleteCase {
    std::string_view name;
    bool isDeleted;
};

constexpr auto DeleteCases = std::to_array<DeleteCase>({
    {"site/ktTemp 1.html", true},
    {"site/ktTemp \xFF.css", true},
    {"site/index.html", false},
    {"site/main\\ktTemp 1.html", false},
});

TEST_F(TemporaryFilesTest, AreDeletedAndNothingElseIs) {
    for (const DeleteCase& row : DeleteCases) {
        SCOPED_TRACE(row.name);
        const Text path = files_.Write(row.name, "x");
        EXPECT_TRUE(DeleteTemporaryFile(path));
        EXPECT_NE(FileExists(path), row.isDeleted);
        EXPECT_TRUE(DeleteTemporaryFile(path)) << "again";
    }
}

TEST_F(TemporaryFilesTest, AreDeletedAsLinksWithoutTheFilesThatTheyLeadTo) {
    const Text page = files_.Write("index.html", "x");
    fs::create_symlink(FileNameFromText(page), files_.FilePath("ktTemp 1.html"));
    EXPECT_TRUE(DeleteTemporaryFile(PathOf("ktTemp 1.html")));
    EXPECT_TRUE(TemporaryFilesLeft().empty());
    EXPECT_TRUE(FileExists(page));
}

TEST_F(TemporaryFilesTest, CountAsDeletedWhereThereIsNothingToDelete) {
    fs::create_directory(files_.FilePath("ktTemp folder"));
    static_cast<void>(files_.Write("file", ""));
    for (const Text& path :
         {Text(), PathOf("ktTemp missing"), PathOf("missing/ktTemp"), PathOf("file/ktTemp"), PathOf("ktTemp folder"),
          PathOf("ktTemp") + Text(1, u'\0'), Text(10'000, u'x'), u"/ktTemp" + Text(300, u'x')})
        EXPECT_TRUE(DeleteTemporaryFile(path)) << Utf8FromText(path.substr(0, 100));
    EXPECT_TRUE(fs::exists(files_.FilePath("ktTemp folder")));
}

TEST_F(TemporaryFilesTest, ThatCannotBeDeletedAreTold) {
    const Text path = files_.Write("site/ktTemp 1.html", "x");
    {
        const test::LockedFolder locked(files_, "site");
        EXPECT_FALSE(DeleteTemporaryFile(path));
    }
    EXPECT_TRUE(FileExists(path));
    EXPECT_TRUE(DeleteTemporaryFile(path));
}

}  // namespace
}  // namespace tintora
