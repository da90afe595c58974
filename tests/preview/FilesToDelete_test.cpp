#include "preview/FilesToDelete.h"

#include "preview/LastPreviewFiles.h"
#include "preview/PreviewFixture.h"
#include "settings/PathLists.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

using std::chrono::seconds;

class FilesToDeleteTest : public test::PreviewTest {
  protected:
    [[nodiscard]] Text Make(std::string_view name) const { return files_.Write(name, "x"); }

    FilesToDelete toDelete_{store_, time_.Reader()};
};

TEST_F(FilesToDeleteTest, AreDeletedAtOnceWhereTheyCanBe) {
    const Text path = Make("site/ktTemp 1.html");
    toDelete_.DeleteOrQueueFile(path);
    EXPECT_FALSE(FileExists(path));
    EXPECT_EQ(store_.Size(), 0U) << "and nothing is stored";
}

struct QueueCase {
    Text stored;
    Texts queued;
    Text result;
};

const std::vector<QueueCase> QueueCases = {
    {u"", {}, u""},
    {u"", {u"/ktTemp 1.css"}, u"/ktTemp 1.css"},
    {u"/ktTemp 1.css", {u"/ktTemp 2.css", u"/ktTemp 3.css"}, u"/ktTemp 1.css^^^/ktTemp 2.css^^^/ktTemp 3.css"},
    {u"/ktTemp 1.css^^^/ktTemp 2.css", {u"/ktTemp 1.css"}, u"/ktTemp 1.css^^^/ktTemp 2.css"},
    {u"", {u"/ktTemp 1.css", u"/ktTemp 1.css"}, u"/ktTemp 1.css"},
    {u"/ktTemp 1.css", {u""}, u"/ktTemp 1.css"},
    {u"", {u"/site/index.html", u"/ktTemp/a.css", u""}, u""},
    {u"", {u"/x^^^y/ktTemp 1.css"}, u"/x^-^-^-y/ktTemp 1.css"},
};

TEST_F(FilesToDeleteTest, AreQueuedOnceEachAndOnlyThePreviewsOwn) {
    for (const QueueCase& row : QueueCases) {
        SCOPED_TRACE(Utf8FromText(row.result));
        Settings(store_).Save(setting::FilesToDelete, row.stored);
        toDelete_.QueueFilesToDelete(row.queued);
        EXPECT_EQ(Stored(setting::FilesToDelete), row.result);
        Settings(store_).Save(setting::FilesToDelete, row.stored);
        for (const Text& path : row.queued)
            toDelete_.QueueFileToDelete(path);
        EXPECT_EQ(Stored(setting::FilesToDelete), row.result) << "one by one";
    }
}

TEST_F(FilesToDeleteTest, ThatAreLockedStayQueuedUntilAPurgeCanDeleteThem) {
    const Text locked = Make("locked/ktTemp 1.html");
    const Text other = Make("site/ktTemp 2^.html");
    {
        const test::LockedFolder folder(files_, "locked");
        EXPECT_FALSE(toDelete_.DeleteFileIfExists(locked));
        EXPECT_EQ(toDelete_.Queued(), Texts()) << "asking alone queues nothing";
        toDelete_.DeleteOrQueueFile(locked);
        toDelete_.QueueFileToDelete(other);
        toDelete_.PurgeFilesToDelete();
        EXPECT_EQ(toDelete_.Queued(), (Texts{locked, other})) << "nobody may delete anything now";
    }
    toDelete_.PurgeFilesToDelete();
    EXPECT_EQ(toDelete_.Queued(), Texts());
    EXPECT_TRUE(TemporaryFilesLeft().empty());
}

TEST_F(FilesToDeleteTest, LeaveTheQueueWhereNothingIsToBeDeleted) {
    const Text page = Make("site/index.html");
    const Text left = Make("ktTemp 9.html");
    Settings(store_).Save(
        setting::FilesToDelete,
        JoinPaths({PathOf("ktTemp missing"), page, PathOf("missing/ktTemp 1.css"), left}) + u"^^^^^^");
    toDelete_.PurgeFilesToDelete();
    EXPECT_EQ(Stored(setting::FilesToDelete), u"");
    EXPECT_TRUE(FileExists(page)) << "a file of the user isn't deleted, whatever the settings say";
    EXPECT_FALSE(FileExists(left));
}

TEST_F(FilesToDeleteTest, AreHeldForAMinuteByABrowser) {
    const Text path = Make("ktTemp 1.html");
    toDelete_.HoldForAMinute(path);
    EXPECT_FALSE(toDelete_.DeleteFileIfExists(path));
    toDelete_.DeleteOrQueueFile(path);
    time_.Advance(seconds(59));
    toDelete_.PurgeFilesToDelete();
    EXPECT_EQ(toDelete_.Queued(), Texts{path});
    EXPECT_TRUE(FileExists(path));
    time_.Advance(seconds(1));
    toDelete_.PurgeFilesToDelete();
    EXPECT_EQ(toDelete_.Queued(), Texts());
    EXPECT_FALSE(FileExists(path));
}

TEST_F(FilesToDeleteTest, AreHeldForAMinuteFromTheLastTime) {
    const Text path = Make("ktTemp 1.html");
    toDelete_.HoldForAMinute(path);
    time_.Advance(seconds(40));
    toDelete_.HoldForAMinute(path);
    time_.Advance(seconds(40));
    EXPECT_FALSE(toDelete_.DeleteFileIfExists(path));
    time_.Advance(seconds(20));
    EXPECT_TRUE(toDelete_.DeleteFileIfExists(path));
}

TEST_F(FilesToDeleteTest, AreHeldUntilTheyAreReleased) {
    const Text path = Make("ktTemp 1.html");
    toDelete_.Hold(path);
    toDelete_.Hold(path);
    time_.Advance(std::chrono::hours(100));
    EXPECT_FALSE(toDelete_.DeleteFileIfExists(path));
    toDelete_.Release(path);
    EXPECT_TRUE(toDelete_.DeleteFileIfExists(path));
    toDelete_.Release(path);
}

TEST_F(FilesToDeleteTest, ThatAPaneReleasesMayStillBeHeldByABrowser) {
    const Text path = Make("ktTemp 1.html");
    toDelete_.HoldForAMinute(path);
    toDelete_.Hold(path);
    toDelete_.Release(path);
    EXPECT_FALSE(toDelete_.DeleteFileIfExists(path));
    time_.Advance(seconds(60));
    EXPECT_TRUE(toDelete_.DeleteFileIfExists(path));
}

class LastPreviewFilesTest : public FilesToDeleteTest {
  protected:
    LastPreviewFiles last_{store_, toDelete_};
};

TEST_F(LastPreviewFilesTest, LieUnderTheirKeys) {
    EXPECT_EQ(last_.GetLastPreviewHTMLFile(), u"");
    EXPECT_EQ(last_.GetLastPreviewCSSFile(), u"");
    EXPECT_EQ(last_.GetLastCurrentRulePreviewFile(), u"");
    last_.SetLastPreviewHTMLFile(u"/ktTemp 1.html");
    last_.SetLastPreviewCSSFile(u"/x^y/ktTemp 2.css");
    last_.SetLastCurrentRulePreviewFile(u"/ktTemp 3.html");
    EXPECT_EQ(Stored(setting::LastPreviewHTMLFile), u"/ktTemp 1.html");
    EXPECT_EQ(Stored(setting::LastPreviewCSSFile), u"/x^y/ktTemp 2.css");
    EXPECT_EQ(Stored(setting::LastCurrentRulePreviewFile), u"/ktTemp 3.html");
    EXPECT_EQ(last_.GetLastPreviewHTMLFile(), u"/ktTemp 1.html");
    EXPECT_EQ(last_.GetLastPreviewCSSFile(), u"/x^y/ktTemp 2.css");
    EXPECT_EQ(last_.GetLastCurrentRulePreviewFile(), u"/ktTemp 3.html");
    EXPECT_EQ(store_.Size(), 3U);
}

TEST_F(LastPreviewFilesTest, AreDeletedOneByOneAndTheirKeysCleared) {
    last_.SetLastPreviewHTMLFile(Make("ktTemp 1.html"));
    last_.SetLastPreviewCSSFile(Make("ktTemp 2.css"));
    last_.SetLastCurrentRulePreviewFile(Make("ktTemp 3.html"));
    last_.DeleteLastPreviewCSSFile();
    EXPECT_EQ(last_.GetLastPreviewCSSFile(), u"");
    EXPECT_EQ(TemporaryFilesLeft(), (std::vector<std::string>{"ktTemp 1.html", "ktTemp 3.html"}));
    last_.DeleteLastPreviewHTMLFile();
    EXPECT_EQ(last_.GetLastPreviewHTMLFile(), u"");
    EXPECT_EQ(TemporaryFilesLeft(), (std::vector<std::string>{"ktTemp 3.html"}));
    last_.DeleteLastCurrentRulePreviewFile();
    EXPECT_EQ(last_.GetLastCurrentRulePreviewFile(), u"");
    EXPECT_TRUE(TemporaryFilesLeft().empty());
}

TEST_F(LastPreviewFilesTest, GoOnClosingWithAllThatIsQueued) {
    last_.SetLastPreviewHTMLFile(Make("ktTemp 1.html"));
    last_.SetLastPreviewCSSFile(Make("ktTemp 2.css"));
    last_.SetLastCurrentRulePreviewFile(Make("ktTemp 3.html"));
    toDelete_.QueueFilesToDelete({Make("ktTemp 4.css"), Make("ktTemp 5.html")});
    last_.DeleteAll();
    EXPECT_TRUE(TemporaryFilesLeft().empty());
    EXPECT_EQ(Stored(setting::FilesToDelete), u"");
}

TEST_F(LastPreviewFilesTest, ThatAreHeldOnClosingAreLeftForTheNextStart) {
    const Text page = Make("ktTemp 1.html");
    last_.SetLastPreviewHTMLFile(page);
    last_.SetLastPreviewCSSFile(Make("ktTemp 2.css"));
    toDelete_.HoldForAMinute(page);
    last_.DeleteAll();
    EXPECT_EQ(last_.GetLastPreviewHTMLFile(), u"");
    EXPECT_EQ(Stored(setting::FilesToDelete), page);

    FilesToDelete next(store_, time_.Reader());
    LastPreviewFiles(store_, next).DeleteAll();
    EXPECT_TRUE(TemporaryFilesLeft().empty());
    EXPECT_EQ(Stored(setting::FilesToDelete), u"");
}

TEST_F(LastPreviewFilesTest, ThatAreNoFilesOfThePreviewAreOnlyForgotten) {
    const Text page = Make("index.html");
    last_.SetLastPreviewHTMLFile(page);
    last_.SetLastPreviewCSSFile(page);
    last_.SetLastCurrentRulePreviewFile(page);
    last_.DeleteAll();
    EXPECT_TRUE(FileExists(page));
    EXPECT_EQ(last_.GetLastPreviewHTMLFile(), u"");
    EXPECT_EQ(Stored(setting::FilesToDelete), u"");
}

}  // namespace
}  // namespace tintora
