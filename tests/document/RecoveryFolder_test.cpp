#include "document/RecoveryFolder.h"

#include "linking/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace tintora {
namespace {

using Kind = RecoveryRecord::Kind;

RecoveryRecord Copy(std::string bytes, std::int64_t time = 0) {
    return {Kind::UnsavedText, u"/a.css", u"a.css", time, 0, std::move(bytes)};
}

class RecoveryFolderTest : public ::testing::Test {
  protected:
    /// What the next run of the program finds.
    [[nodiscard]] std::vector<LeftCopy> Left() const { return RecoveryFolder(path_).ReadLeftCopies(); }

    [[nodiscard]] std::vector<std::string> LeftBytes() const {
        std::vector<std::string> bytes;
        for (const LeftCopy& copy : Left())
            bytes.push_back(copy.record.bytes);
        return bytes;
    }

    TemporaryFolder files_;
    std::string path_ = files_.FilePath("state/recovery");
};

TEST_F(RecoveryFolderTest, WithoutACopyNothingIsMade) {
    { const RecoveryFolder folder(path_); }
    EXPECT_TRUE(Left().empty());
    EXPECT_FALSE(std::filesystem::exists(path_));
}

TEST_F(RecoveryFolderTest, ACopyIsThereForTheNextRunAndNotForThisOne) {
    RecoveryFolder folder(path_);
    folder.Keep(folder.MakeName(), Copy("a {}"));
    EXPECT_TRUE(folder.ReadLeftCopies().empty());
    ASSERT_EQ(Left().size(), 1U);
    EXPECT_EQ(Left()[0].record, Copy("a {}"));
}

TEST_F(RecoveryFolderTest, ACopyTakesThePlaceOfItsPredecessor) {
    RecoveryFolder folder(path_);
    const std::string name = folder.MakeName();
    folder.Keep(name, Copy("long text"));
    folder.Keep(name, Copy("a"));
    EXPECT_EQ(LeftBytes(), std::vector<std::string>{"a"});
    folder.Drop(name);
    EXPECT_TRUE(Left().empty());
    EXPECT_TRUE(std::filesystem::is_empty(path_));
}

TEST_F(RecoveryFolderTest, OfCopiesThatMayWaitTheLastIsKept) {
    std::string name;
    {
        RecoveryFolder folder(path_);
        name = folder.MakeName();
        for (int number = 0; number < 100; ++number)
            folder.KeepSoon(name, Copy(std::to_string(number)));
        folder.KeepSoon(folder.MakeName(), Copy("other"));
    }
    EXPECT_EQ(LeftBytes().size(), 2U);
    EXPECT_EQ(LeftBytes()[0] + LeftBytes()[1], Left()[0].name == name ? "99other" : "other99");
}

TEST_F(RecoveryFolderTest, WhatIsDroppedIsNotKeptLater) {
    for (int round = 0; round < 50; ++round) {
        RecoveryFolder folder(path_);
        const std::string name = folder.MakeName();
        folder.KeepSoon(name, Copy("a"));
        folder.Drop(name);
        EXPECT_TRUE(Left().empty());
    }
    EXPECT_TRUE(Left().empty());
}

TEST_F(RecoveryFolderTest, WhatIsKeptNowIsNotOverwrittenByWhatWaited) {
    for (int round = 0; round < 50; ++round) {
        RecoveryFolder folder(path_);
        const std::string name = folder.MakeName();
        folder.KeepSoon(name, Copy("old"));
        folder.Keep(name, Copy("new"));
        EXPECT_EQ(LeftBytes(), std::vector<std::string>{"new"});
        folder.Drop(name);
    }
}

TEST_F(RecoveryFolderTest, CopiesComeInTheOrderOfTheirTimes) {
    RecoveryFolder folder(path_);
    folder.Keep(folder.MakeName(), Copy("late", 3000));
    folder.Keep(folder.MakeName(), Copy("early", 1000));
    folder.Keep(folder.MakeName(), Copy("between", 2000));
    EXPECT_EQ(LeftBytes(), (std::vector<std::string>{"early", "between", "late"}));
}

TEST_F(RecoveryFolderTest, WhatIsNoCopyIsPassedOverAndStays) {
    const Text damaged = files_.Write("state/recovery/x.recovery", "Tintora recovery copy 1\nkind: un");
    const Text foreign = files_.Write("state/recovery/notes.txt", "notes");
    EXPECT_TRUE(Left().empty());
    EXPECT_TRUE(FileExists(damaged));
    EXPECT_TRUE(FileExists(foreign));
}

TEST_F(RecoveryFolderTest, TheFolderIsTheUsersAlone) {
    RecoveryFolder folder(path_);
    folder.Keep(folder.MakeName(), Copy("a"));
    struct stat status {};
    ASSERT_EQ(::stat(path_.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(RecoveryFolderTest, WhereNothingCanBeKeptNothingFails) {
    static_cast<void>(files_.Write("state", "a file in the place of the folder"));
    RecoveryFolder folder(path_);
    const std::string name = folder.MakeName();
    folder.Keep(name, Copy("a"));
    folder.KeepSoon(name, Copy("b"));
    folder.Drop(name);
    EXPECT_TRUE(Left().empty());
}

TEST_F(RecoveryFolderTest, TheJournalHoldsAWriteUntilItIsDone) {
    RecoveryFolder folder(path_);
    WriteObserver& journal = *folder.Journal();
    journal.BeforeWrite(u"/site/page.html", "<html>\xff");
    ASSERT_EQ(Left().size(), 1U);
    EXPECT_EQ(Left()[0].record.kind, Kind::InterruptedWrite);
    EXPECT_EQ(Left()[0].record.path, u"/site/page.html");
    EXPECT_EQ(Left()[0].record.caption, u"page.html");
    EXPECT_EQ(Left()[0].record.bytes, "<html>\xff");
    journal.AfterWrite(u"/site/page.html", "<html>\xff");
    EXPECT_TRUE(Left().empty());
    journal.BeforeWrite(u"/site/page.html", "b");
    journal.AfterFailedWrite(u"/site/page.html");
    EXPECT_TRUE(Left().empty());
}

}  // namespace
}  // namespace tintora
