#include "DocumentFiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tintora::test {
namespace {

namespace fs = std::filesystem;
using FileOperationsTest = DocumentFilesTest;

TEST_F(FileOperationsTest, AnOpenedFileIsCleanAndHasItsNameForACaption) {
    const Text path = MakeFile("a.css", "h1 {}");
    window_.OpenStyleSheet(path);
    EXPECT_EQ(window_.GetText(), u"h1 {}");
    EXPECT_EQ(window_.GetFile(), path);
    EXPECT_EQ(window_.Caption(), u"a.css");
    EXPECT_FALSE(window_.IsDirty());
    EXPECT_FALSE(window_.CSSEditor().CanUndo());
    EXPECT_EQ(window_.StyleSheet().GetAllSelectorsAsText(), Texts{u"h1"});
}

TEST_F(FileOperationsTest, OpeningAndSavingGivesTheSameBytes) {
    for (const auto& entry : fs::recursive_directory_iterator(TINTORA_SAMPLES)) {
        if (entry.path().extension() != ".css")
            continue;
        SCOPED_TRACE(entry.path().string());
        const std::string bytes = ReadFileBytes(TextFromFileName(entry.path().native()));
        RecordedDocument document;
        document.window.OpenStyleSheet(MakeFile("copy.css", bytes));
        Change();
        document.window.SetDirty(true);
        document.window.Save();
        EXPECT_EQ(BytesOf("copy.css"), bytes);
        EXPECT_FALSE(document.window.IsDirty());
    }
}

TEST_F(FileOperationsTest, SavingKeepsTheEncodingOfTheFile) {
    Open(MakeFile("a.css", "/* \xe9 */"));
    Change();
    window_.Save();
    EXPECT_EQ(BytesOf("a.css"), "x/* \xe9 */");
}

TEST_F(FileOperationsTest, ATextThatTheEncodingCannotHoldIsToldAndStaysDirty) {
    Open(MakeFile("a.css", "/* \xe9 */"));
    window_.InsertText(u"\u4e2d", 0);
    document_.calls.clear();
    window_.Save();
    EXPECT_EQ(BytesOf("a.css"), "/* \xe9 */");
    EXPECT_TRUE(window_.IsDirty());
    EXPECT_EQ(document_.calls.size(), 1U);
}

TEST_F(FileOperationsTest, AnUnsavedDocumentAsksForANameAndProposesItsCaption) {
    window_.SetCaption(u"style_sheet_1.css");
    window_.SetText(u"a {}");
    Change();
    document_.calls.clear();
    window_.Save();
    EXPECT_EQ(document_.TakeCalls(), Calls{"AskSavePath Save: style_sheet_1.css"});
    EXPECT_TRUE(window_.IsDirty()) << "a cancelled question saves nothing";
    document_.files.savePath = PathOf("new.css");
    window_.Save();
    EXPECT_EQ(BytesOf("new.css"), "xa {}");
    EXPECT_EQ(window_.GetFile(), PathOf("new.css"));
    EXPECT_EQ(window_.Caption(), u"new.css");
    EXPECT_FALSE(window_.IsDirty());
}

TEST_F(FileOperationsTest, APageGetsTheTextIntoItsStyleElementAndStaysDirty) {
    Open(MakeFile("page.html", "<html><head><style>h1 {}</style></head></html>"));
    EXPECT_EQ(window_.GetText(), u"h1 {}");
    Change();
    window_.Save();
    EXPECT_EQ(BytesOf("page.html"), "<html><head><style type=\"text/css\" >xh1 {}</style></head></html>");
    EXPECT_TRUE(window_.IsDirty());
}

TEST_F(FileOperationsTest, APageWithNoPlaceForTheTextIsLeftAloneAndToldOf) {
    for (const char* const page : {"<html><body></body></html>", "<html><head></head><body><style></html>"}) {
        Open(MakeFile("good.html", "<html><head><style>h1 {}</style></head></html>"));
        MakeFile("good.html", page);
        document_.files.changedFileAnswer = FileDialogs::ChangedFileAnswer::Overwrite;
        document_.calls.clear();
        Change();
        window_.Save();
        EXPECT_EQ(BytesOf("good.html"), page);
        EXPECT_TRUE(window_.IsDirty());
        const Calls calls = document_.TakeCalls();
        EXPECT_NE(std::find(calls.begin(), calls.end(), "Message: The style sheet couldn't be put into good.html."),
                  calls.end());
    }
}

TEST_F(FileOperationsTest, SavingUnderAnotherNameOverwritesAPage) {
    Open(MakeFile("a.css", "h1 {}"));
    Change();
    document_.files.savePath = MakeFile("page.html", "<html></html>");
    window_.SaveAs();
    EXPECT_EQ(BytesOf("page.html"), "xh1 {}");
    EXPECT_EQ(BytesOf("a.css"), "h1 {}");
    EXPECT_EQ(window_.GetFile(), PathOf("page.html"));
    EXPECT_FALSE(window_.IsDirty());
}

TEST_F(FileOperationsTest, AReadOnlyFileIsToldAndOnlySavingLeavesTheDocumentDirty) {
    Open(MakeFile("a.css", "h1 {}"));
    Change();
    fs::permissions(Folder() / "a.css", fs::perms::owner_read);
    document_.calls.clear();
    window_.Save();
    EXPECT_EQ(document_.TakeCalls(), Calls{"[The file can't be saved because it is a read only file.]"});
    EXPECT_TRUE(window_.IsDirty());
    document_.files.savePath = PathOf("a.css");
    window_.SaveAs();
    EXPECT_EQ(document_.TakeCalls(), (Calls{"AskSavePath Save As: a.css",
                                            "[The file can't be saved because it is a read only file.]", "Clean"}));
    EXPECT_FALSE(window_.IsDirty());
    EXPECT_EQ(BytesOf("a.css"), "h1 {}");
}

TEST_F(FileOperationsTest, AFileThatAnotherProgramHasChangedIsAskedAbout) {
    const Text path = MakeFile("a.css", "h1 {}");
    Open(path);
    Change();
    MakeFile("a.css", "theirs {}");
    document_.calls.clear();
    window_.Save();
    EXPECT_EQ(document_.TakeCalls(), Calls{"AskAboutChangedFile"});
    EXPECT_EQ(BytesOf("a.css"), "theirs {}");
    EXPECT_TRUE(window_.IsDirty());
    document_.files.changedFileAnswer = FileDialogs::ChangedFileAnswer::Overwrite;
    window_.Save();
    EXPECT_EQ(BytesOf("a.css"), "xh1 {}");
    Change();
    MakeFile("a.css", "theirs {}");
    document_.files.changedFileAnswer = FileDialogs::ChangedFileAnswer::Reload;
    window_.Save();
    EXPECT_EQ(window_.GetText(), u"theirs {}");
    EXPECT_FALSE(window_.IsDirty());
}

TEST_F(FileOperationsTest, AFileThatWasWrittenHereIsNoChangedOne) {
    Open(MakeFile("a.css", "h1 {}"));
    for (int round = 0; round < 3; ++round) {
        Change();
        window_.Save();
        EXPECT_FALSE(window_.IsDirty());
    }
    EXPECT_EQ(BytesOf("a.css"), "xxxh1 {}");
}

TEST_F(FileOperationsTest, ClosingADirtyDocumentDoesWhatIsAnswered) {
    Open(MakeFile("a.css", "h1 {}"));
    EXPECT_TRUE(window_.DoHide()) << "a clean one asks nothing";
    Change();
    document_.calls.clear();
    EXPECT_FALSE(window_.DoHide());
    EXPECT_EQ(document_.TakeCalls(),
              Calls{"Save Style Sheet Before Closing? Save changes to the style sheet \"a.css\" before closing?"});
    document_.files.saveAnswer = FileDialogs::SaveAnswer::Yes;
    EXPECT_TRUE(window_.DoHide());
    EXPECT_EQ(BytesOf("a.css"), "xh1 {}");
    Change();
    document_.files.saveAnswer = FileDialogs::SaveAnswer::No;
    EXPECT_TRUE(window_.DoHide());
    EXPECT_EQ(BytesOf("a.css"), "xh1 {}");
}

TEST_F(FileOperationsTest, APageKeepsAskingAndKeepsItsWindow) {
    Open(MakeFile("page.html", "<html><head><style>h1 {}</style></head></html>"));
    Change();
    document_.files.saveAnswer = FileDialogs::SaveAnswer::Yes;
    EXPECT_FALSE(window_.DoHide());
    EXPECT_FALSE(window_.DoHide());
}

TEST_F(FileOperationsTest, ACopyOfATemplateIsDirtyAndHasNoFile) {
    window_.NewStyleSheetFromTemplate(MakeFile("two_column.css", "h1 {}"));
    EXPECT_EQ(window_.Caption(), u"two_column.css(copy of)");
    EXPECT_EQ(window_.GetFile(), u"");
    EXPECT_TRUE(window_.IsDirty());
    EXPECT_EQ(window_.GetText(), u"h1 {}");
}

TEST_F(FileOperationsTest, ALinkedStyleSheetIsOpenedByItsPage) {
    MakeFile("main.css", "h1 {}");
    window_.OpenLinkedStyleSheet(MakeFile("page.html", "<html><link rel=\"stylesheet\" href=\"main.css\"></html>"));
    EXPECT_EQ(window_.GetText(), u"h1 {}");
}

TEST_F(FileOperationsTest, AFileThatCannotBeReadFailsAndAMissingOneIsEmpty) {
    ASSERT_EQ(::mknod((Folder() / "socket").c_str(), S_IFSOCK | 0600, 0), 0);
    EXPECT_THROW(window_.OpenStyleSheet(PathOf("socket")), FileFailure);
    window_.OpenStyleSheet(PathOf("missing.css"));
    EXPECT_EQ(window_.GetText(), u"");
}

}  // namespace
}  // namespace tintora::test
