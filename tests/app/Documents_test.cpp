#include "WindowFixture.h"
#include "linking/TextFiles.h"
#include "shell/qt/NoticeBar.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace tintora {
namespace {

// Open style sheets that take turns, change on disk and go.

class DocumentsTest : public test::WindowTest {
  protected:
    QAction& Action(const char* key) { return *window->findChild<QAction*>(QString::fromLatin1(key)); }
    NoticeBar& Notice() { return *window->ActiveDocument()->findChild<NoticeBar*>(); }
    void Press(int button) { Notice().findChildren<QPushButton*>().at(button)->click(); }

    /// Opens a style sheet and changes it.
    ktStyleSheetWindow& OpenAndChange(const char* name) {
        window->OpenOneStyleSheet(MakeFile(name, "h1 {}"));
        ktStyleSheetWindow& document = window->ActiveDocument()->Window();
        document.InsertText(u"x", 0);
        return document;
    }
};

TEST_F(DocumentsTest, TheListOfOpenDocumentsIsInTheOrderOfTheirActivation) {
    window->OpenOneStyleSheet(MakeFile("a.css", ""));
    window->OpenOneStyleSheet(MakeFile("b.css", ""));
    window->OpenOneStyleSheet(MakeFile("c.css", ""));
    EXPECT_EQ(Captions(*window), QStringList({"c.css", "b.css", "a.css"}));
    window->findChild<QTabWidget*>()->setCurrentIndex(0);
    EXPECT_EQ(Captions(*window), QStringList({"a.css", "c.css", "b.css"}));
    Action("miFCloseWindow").trigger();
    EXPECT_EQ(Captions(*window).size(), 2);
    EXPECT_EQ(window->ActiveDocument(), window->OpenDocuments().front());
}

TEST_F(DocumentsTest, CommandsOnDocumentsAreEnabledWhileThereIsOne) {
    EXPECT_FALSE(Action("miEGotoLine").isEnabled());
    EXPECT_FALSE(Action("miFLinkSite").isEnabled());
    window->LoadNewDoc();
    EXPECT_TRUE(Action("miEGotoLine").isEnabled());
    EXPECT_TRUE(Action("miFLinkSite").isEnabled());
    EXPECT_FALSE(Action("miFSave").isEnabled());
    Action("miFCloseWindow").trigger();
    EXPECT_FALSE(Action("miEGotoLine").isEnabled());
    EXPECT_FALSE(Action("miFSave").isEnabled());
}

TEST_F(DocumentsTest, AfterACancelledCloseEveryDocumentIsAsDirtyAsBefore) {
    ktStyleSheetWindow& first = OpenAndChange("a.css");
    ktStyleSheetWindow& second = OpenAndChange("b.css");
    told.saveAnswers = {FileDialogs::SaveAnswer::No, FileDialogs::SaveAnswer::Cancel};
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(first.IsDirty());
    EXPECT_TRUE(second.IsDirty());
    EXPECT_EQ(Captions(*window), QStringList({"b.css", "a.css"}));
    EXPECT_TRUE(Action("miSDuplicate").isEnabled());
    told.saveAnswers = {FileDialogs::SaveAnswer::Yes, FileDialogs::SaveAnswer::No};
    EXPECT_TRUE(window->close());
    EXPECT_EQ(ReadFileBytes(ToText(folder.filePath("b.css"))), "xh1 {}");
    EXPECT_EQ(ReadFileBytes(ToText(folder.filePath("a.css"))), "h1 {}");
    EXPECT_TRUE(RecoveryFolder(folder.filePath("recovery").toStdString()).ReadLeftCopies().empty());
}

TEST_F(DocumentsTest, AFileThatHasChangedCanBeLoadedAgain) {
    window->show();
    const Text path = MakeFile("a.css", "h1 {}");
    window->OpenOneStyleSheet(path);
    window->ActiveDocument()->LookAfterFile();
    EXPECT_TRUE(Notice().isHidden());
    MakeFile("a.css", "theirs {}");
    window->ActiveDocument()->LookAfterFile();
    ASSERT_FALSE(Notice().isHidden());
    EXPECT_EQ(Notice().findChildren<QLabel*>().at(0)->text(), QStringLiteral("a.css has changed on disk."));
    Press(0);
    EXPECT_EQ(window->ActiveDocument()->GetText(), u"theirs {}");
    EXPECT_FALSE(window->ActiveDocument()->IsDirty());
    EXPECT_TRUE(Notice().isHidden());
    window->ActiveDocument()->LookAfterFile();
    EXPECT_TRUE(Notice().isHidden());
}

TEST_F(DocumentsTest, TheTextThatIsThereCanBeKept) {
    window->show();
    OpenAndChange("a.css");
    MakeFile("a.css", "theirs {}");
    window->ActiveDocument()->LookAfterFile();
    Press(1);
    EXPECT_EQ(window->ActiveDocument()->GetText(), u"xh1 {}");
    window->ActiveDocument()->LookAfterFile();
    EXPECT_TRUE(Notice().isHidden());
    told.changedFileAnswer = FileDialogs::ChangedFileAnswer::Overwrite;
    Action("miFSave").trigger();
    EXPECT_EQ(told.questions.size(), 1);
    EXPECT_EQ(ReadFileBytes(window->ActiveDocument()->File()), "xh1 {}");
}

TEST_F(DocumentsTest, SavingPutsTheNoticeAway) {
    window->show();
    OpenAndChange("a.css");
    MakeFile("a.css", "theirs {}");
    window->ActiveDocument()->LookAfterFile();
    told.changedFileAnswer = FileDialogs::ChangedFileAnswer::Overwrite;
    Action("miFSave").trigger();
    EXPECT_TRUE(Notice().isHidden());
}

TEST_F(DocumentsTest, APageCanBeLinkedAndTakeTheStyleSheetIn) {
    window->OpenOneStyleSheet(MakeFile("a.css", "h1 {}"));
    told.page = MakeFile("page.html", "<html><head></head></html>");
    Action("miFLinkPage").trigger();
    EXPECT_EQ(ReadFileBytes(*told.page),
              "<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"a.css\"  />  </head></html>");
    Action("miFEmbedStyleSheet").trigger();
    EXPECT_NE(ReadFileBytes(*told.page).find("<style type=\"text/css\" >h1 {}</style>"), std::string::npos);
    EXPECT_EQ(window->ActiveDocument()->Caption(), QStringLiteral("page.html"));
    Action("miFLinkSite").trigger();
    EXPECT_EQ(told.questions, QStringList({"Link Page...", "Embed In Page...",
                                           "Link to every HTML file in which folder and its subfolders?"}));
}

}  // namespace
}  // namespace tintora
