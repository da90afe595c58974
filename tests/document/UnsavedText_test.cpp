#include "DocumentFiles.h"
#include "document/KnownFile.h"
#include "text/Narrowing.h"

namespace tintora::test {
namespace {

namespace fs = std::filesystem;

// What of a document outlives a crash, and how long.

class UnsavedTextTest : public DocumentFilesTest {
  protected:
    UnsavedTextTest() { Open(MakeFile("a.css", "h1 {}")); }

    [[nodiscard]] bool IsKept() { return !document_.Copies().empty(); }
    [[nodiscard]] const RecoveryRecord& Copy() { return document_.Copies().begin()->second; }

    void ChangeAndWait() {
        Change();
        document_.Wait(1000);
    }
};

TEST_F(UnsavedTextTest, ADirtyTextIsKeptWithinASecond) {
    EXPECT_FALSE(IsKept());
    Change();
    EXPECT_FALSE(IsKept()) << "not on the road of the key";
    document_.Wait(1000);
    ASSERT_TRUE(IsKept());
    EXPECT_EQ(Copy().kind, RecoveryRecord::Kind::UnsavedText);
    EXPECT_EQ(Copy().path, PathOf("a.css"));
    EXPECT_EQ(Copy().caption, u"a.css");
    EXPECT_EQ(Copy().bytes, "xh1 {}");
    EXPECT_EQ(Copy().knownFile, Fingerprint(u"h1 {}"));
}

TEST_F(UnsavedTextTest, WhileTheUserTypesTheCopyIsNeverOlderThanASecond) {
    for (int second = 1; second <= 5; ++second) {
        for (int key = 0; key < 10; ++key) {
            Change();
            document_.Wait(100);
        }
        ASSERT_TRUE(IsKept());
        const std::string typed = Utf8FromText(window_.GetText());
        EXPECT_GE(Copy().bytes.size() + 10, typed.size()) << second;
    }
}

TEST_F(UnsavedTextTest, SavingAndReloadingDropIt) {
    ChangeAndWait();
    window_.Save();
    EXPECT_FALSE(IsKept());
    document_.Wait(5000);
    EXPECT_FALSE(IsKept());
    ChangeAndWait();
    window_.Reload();
    EXPECT_FALSE(IsKept());
    EXPECT_EQ(window_.GetText(), u"xh1 {}");
    Change();
    window_.Save();
    document_.Wait(5000);
    EXPECT_FALSE(IsKept()) << "saving within the second keeps none";
}

TEST_F(UnsavedTextTest, ASaveThatFailsKeepsIt) {
    ChangeAndWait();
    fs::permissions(Folder() / "a.css", fs::perms::owner_read);
    window_.Save();
    EXPECT_TRUE(window_.IsDirty());
    EXPECT_TRUE(IsKept());
}

TEST_F(UnsavedTextTest, ATextThatSaveAsCouldNotWriteIsKeptEvenWhenItsWindowHasGone) {
    Change();
    fs::permissions(Folder() / "a.css", fs::perms::owner_read);
    document_.files.savePath = PathOf("a.css");
    window_.SaveAs();
    EXPECT_FALSE(window_.IsDirty());
    ASSERT_TRUE(IsKept());
    EXPECT_EQ(Copy().bytes, "xh1 {}");
    EXPECT_TRUE(window_.DoHide());
    window_.Unload();
    EXPECT_TRUE(IsKept());
}

TEST_F(UnsavedTextTest, ASaveThatSucceedsAfterThatDropsIt) {
    Change();
    fs::permissions(Folder() / "a.css", fs::perms::owner_read);
    document_.files.savePath = PathOf("a.css");
    window_.SaveAs();
    document_.files.savePath = PathOf("b.css");
    window_.SaveAs();
    EXPECT_FALSE(IsKept());
}

TEST_F(UnsavedTextTest, ATextThatIsGivenUpGoesWithItsWindow) {
    ChangeAndWait();
    document_.files.saveAnswer = FileDialogs::SaveAnswer::No;
    EXPECT_TRUE(window_.DoHide());
    EXPECT_TRUE(IsKept()) << "the window is still there";
    window_.Unload();
    EXPECT_FALSE(IsKept());
}

TEST_F(UnsavedTextTest, AWindowThatStaysAfterAllIsAsDirtyAsBefore) {
    Change();
    document_.files.saveAnswer = FileDialogs::SaveAnswer::No;
    EXPECT_TRUE(window_.DoHide());
    EXPECT_FALSE(window_.IsDirty());
    window_.StayAfterAll();
    EXPECT_TRUE(window_.IsDirty());
    EXPECT_TRUE(IsKept());
    document_.files.saveAnswer = FileDialogs::SaveAnswer::Yes;
    EXPECT_TRUE(window_.DoHide());
    window_.StayAfterAll();
    EXPECT_FALSE(window_.IsDirty()) << "what was saved stays saved";
}

TEST_F(UnsavedTextTest, ATextThatAPageHoldsIsKeptNoLonger) {
    Open(MakeFile("page.html", "<html><head><style>h1 {}</style></head></html>"));
    ChangeAndWait();
    EXPECT_EQ(Copy().bytes, "xh1 {}");
    window_.Save();
    EXPECT_TRUE(window_.IsDirty());
    EXPECT_FALSE(IsKept());
    ChangeAndWait();
    EXPECT_TRUE(IsKept());
}

TEST_F(UnsavedTextTest, ACopyOfATemplateIsKeptFromTheStart) {
    window_.NewStyleSheetFromTemplate(PathOf("a.css"));
    document_.Wait(1000);
    ASSERT_TRUE(IsKept());
    EXPECT_EQ(Copy().path, u"");
    EXPECT_EQ(Copy().knownFile, 0U);
}

TEST_F(UnsavedTextTest, AllThatIsUnsavedCanBeKeptAtOnce) {
    window_.KeepRecoveryCopy();
    EXPECT_FALSE(IsKept());
    Change();
    window_.KeepRecoveryCopy();
    EXPECT_TRUE(IsKept());
}

TEST_F(UnsavedTextTest, ATextBeyondTheLimitIsKeptToo) {
    const Text text(40'000, u'a');
    EXPECT_THROW(window_.SetText(text), OverflowFailure);
    window_.SetDirty(true);
    document_.Wait(1000);
    EXPECT_EQ(Copy().bytes.size(), text.size());
}

TEST_F(UnsavedTextTest, ARecoveredTextIsDirtyAndBelongsToItsFile) {
    ChangeAndWait();
    const RecoveryRecord copy = Copy();
    RecordedDocument next;
    next.window.Recover("left", copy);
    EXPECT_EQ(next.window.GetText(), u"xh1 {}");
    EXPECT_EQ(next.window.GetFile(), PathOf("a.css"));
    EXPECT_EQ(next.window.Caption(), u"a.css");
    EXPECT_TRUE(next.window.IsDirty());
    EXPECT_EQ(next.window.StyleSheet().GetAllSelectorsAsText(), Texts{u"xh1"});
    next.Copies()["left"] = copy;
    next.Wait(1000);
    EXPECT_EQ(next.Copies().size(), 1U) << "the copy is taken over";
    next.calls.clear();
    next.window.Save();
    EXPECT_EQ(BytesOf("a.css"), "xh1 {}");
    EXPECT_FALSE(Has(next.calls, "AskAboutChangedFile"));
    EXPECT_TRUE(next.Copies().empty());
}

TEST_F(UnsavedTextTest, ARecoveredTextGoesOverAnotherFileOnlyAfterAQuestion) {
    ChangeAndWait();
    MakeFile("a.css", "theirs {}");
    RecordedDocument next;
    next.window.Recover("left", Copy());
    next.window.Save();
    EXPECT_TRUE(Has(next.calls, "AskAboutChangedFile"));
    EXPECT_EQ(BytesOf("a.css"), "theirs {}");
    EXPECT_TRUE(next.window.IsDirty());
}

TEST_F(UnsavedTextTest, ATextWithoutAFileIsRecoveredWithoutOne) {
    RecordedDocument next;
    next.window.Recover("left", {RecoveryRecord::Kind::UnsavedText, u"", u"style_sheet_3.css", 0, 0, "a {}"});
    EXPECT_EQ(next.window.GetFile(), u"");
    EXPECT_EQ(next.window.Caption(), u"style_sheet_3.css");
    next.window.Recover("left", {RecoveryRecord::Kind::UnsavedText, PathOf("gone.css"), u"gone.css", 0, 5, "a {}"});
    EXPECT_EQ(next.window.GetFile(), PathOf("gone.css"));
    next.window.Save();
    EXPECT_EQ(BytesOf("gone.css"), "a {}");
}

TEST_F(UnsavedTextTest, AFileThatHasChangedIsNoticedByItsTextInTheEnd) {
    EXPECT_FALSE(window_.HasFileChanged());
    fs::last_write_time(Folder() / "a.css", fs::file_time_type::clock::now() + std::chrono::hours(1));
    EXPECT_FALSE(window_.HasFileChanged()) << "a file that was only touched";
    MakeFile("a.css", "theirs {}");
    EXPECT_TRUE(window_.HasFileChanged());
    window_.IgnoreFileChange();
    EXPECT_FALSE(window_.HasFileChanged());
    MakeFile("a.css", "theirs {} again");
    EXPECT_TRUE(window_.HasFileChanged());
    window_.SetSelection(3, 3);
    window_.Reload();
    EXPECT_FALSE(window_.HasFileChanged());
    EXPECT_EQ(window_.GetText(), u"theirs {} again");
    EXPECT_EQ(window_.GetSelectionStart(), 3);
    fs::remove(Folder() / "a.css");
    EXPECT_FALSE(window_.HasFileChanged());
}

TEST_F(UnsavedTextTest, AnIgnoredChangeIsAskedAboutOnSaving) {
    MakeFile("a.css", "theirs {}");
    window_.IgnoreFileChange();
    Change();
    window_.Save();
    EXPECT_TRUE(Has(document_.calls, "AskAboutChangedFile"));
}

}  // namespace
}  // namespace tintora::test
