#include "preview/DocumentPreviews.h"

#include "document/DocumentRecorders.h"
#include "linking/Paths.h"
#include "preview/PreviewFixture.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

using test::Calls;
using test::Turned;

/// A document window whose previews are real, but for the panes.
class DocumentPreviewsTest : public test::PreviewTest {
  protected:
    DocumentPreviewsTest() {
        documentPreviews_.SetWindow(&window_);
        controller_.Page().SetPane(&pane_);
        controller_.Rule().SetPane(&rulePane_);
    }

    ~DocumentPreviewsTest() override { controller_.Close(); }

    void Wait(int milliseconds) { clock_.Advance(std::chrono::milliseconds(milliseconds)); }

    /// Opens a style sheet of the user, with everything shown.
    void Open(std::string_view bytes) {
        window_.OpenStyleSheet(files_.Write("site/main.css", bytes));
        Wait(5000);
        ShowAll();
    }

    /// The panes show what they were told to load.
    void ShowAll() {
        if (!pane_.urls.empty())
            controller_.Page().PageLoaded(pane_.urls.back());
        if (!rulePane_.urls.empty())
            controller_.Rule().PageLoaded(rulePane_.urls.back());
        pane_.calls.clear();
        rulePane_.calls.clear();
    }

    [[nodiscard]] std::string SheetBytes() { return ReadFileBytes(Stored(setting::LastPreviewCSSFile)); }
    [[nodiscard]] std::string RuleBytes() { return ReadFileBytes(Stored(setting::LastCurrentRulePreviewFile)); }

    Calls calls_;
    test::RecordingFrame frame_{calls_};
    test::RecordingStatements statements_{calls_};
    test::RecordingProperties properties_{calls_};
    test::RecordingPreview warnings_{calls_};
    test::ScriptedDialogs dialogs_{calls_};
    test::ScriptedFiles fileDialogs_{calls_};
    test::ScriptedPages pageDialogs_{calls_};
    test::MemoryRecovery recovery_;
    test::RecordingPopup popup_{calls_};
    test::TextClipboard clipboard_;
    StillClock clock_;
    MemorySourceView view_{clipboard_};
    PreviewController controller_{store_, clock_, Folders(), time_.Reader()};
    DocumentPreviews documentPreviews_{controller_};
    ktStyleSheetWindow window_{{view_, frame_, statements_, properties_, documentPreviews_, warnings_, dialogs_,
                                fileDialogs_, pageDialogs_, recovery_, dialogs_, clipboard_, store_, clock_, popup_}};
    test::RecordingPane pane_;
    test::RecordingPane rulePane_;
};

TEST_F(DocumentPreviewsTest, AnOpenedSheetIsPreviewed) {
    window_.OpenStyleSheet(files_.Write("site/main.css", "h1 { color: red }"));
    EXPECT_EQ(pane_.TakeCalls(), Calls()) << "not at once";
    Wait(1500);
    EXPECT_EQ(pane_.TakeCalls(), Turned);
    EXPECT_EQ(rulePane_.TakeCalls(), Turned);
    EXPECT_EQ(SheetBytes(), "h1 { color: red }");
    EXPECT_NE(RuleBytes().find("<style>p{color: red}</style>"), std::string::npos);
}

TEST_F(DocumentPreviewsTest, TheTextOfTheEditorIsPreviewedAndNotTheFile) {
    Open("h1 { color: red }");
    window_.InsertText(u"p {}\n", 0);
    window_.PreviewNow();
    EXPECT_EQ(SheetBytes(), "p {}\nh1 { color: red }");
    EXPECT_EQ(ReadFileBytes(window_.GetFile()), "h1 { color: red }");
}

TEST_F(DocumentPreviewsTest, WithLivePreviewOffOnlyACommandPreviews) {
    Open("h1 { color: red }");
    Settings(store_).SetLivePreviewOn(false);
    window_.ChangeCurrentProperty(u"color", u"blue");
    Wait(5000);
    EXPECT_EQ(pane_.TakeCalls(), Calls());
    EXPECT_EQ(rulePane_.TakeCalls(), Calls());
    window_.PreviewNow();
    EXPECT_EQ(pane_.TakeCalls(), Turned);
    EXPECT_EQ(SheetBytes(), "h1 { color: blue }");
}

TEST_F(DocumentPreviewsTest, AMoveToAnotherStatementPreviewsTheRuleAlone) {
    Open("h1 { color: red; }\np { margin: 0; padding: 1px; }\nli {}");
    window_.SetSelection(30, 30);
    window_.SelectionChanged();
    Wait(5000);
    EXPECT_EQ(pane_.TakeCalls(), Calls());
    EXPECT_EQ(rulePane_.TakeCalls(), Turned);
    EXPECT_NE(RuleBytes().find("p{margin: 0; padding: 1px;}"), std::string::npos);
}

TEST_F(DocumentPreviewsTest, ActivationPreviewsWithLivePreviewOffToo) {
    Open("h1 { color: red }");
    Settings(store_).SetLivePreviewOn(false);
    window_.Activate();
    EXPECT_EQ(pane_.TakeCalls(), Turned);
    EXPECT_EQ(rulePane_.TakeCalls(), Turned);
}

TEST_F(DocumentPreviewsTest, ASheetKeepsTheEncodingOfItsFile) {
    Open("/* caf\xE9 */");
    EXPECT_EQ(SheetBytes(), "/* caf\xE9 */");
}

TEST_F(DocumentPreviewsTest, AWindowThatGoesTakesItsWaitingPreviewsWithIt) {
    Open("h1 { color: red }");
    window_.PreviewNow();
    window_.PreviewNow();
    window_.PreviewCurrentRule();
    window_.PreviewCurrentRule();
    documentPreviews_.SetWindow(nullptr);
    ShowAll();
    EXPECT_EQ(pane_.TakeCalls(), Calls());
    documentPreviews_.PreviewNow();
    documentPreviews_.PreviewCurrentRule();
    EXPECT_EQ(pane_.TakeCalls(), Calls());
    EXPECT_EQ(rulePane_.TakeCalls(), Calls());
}

TEST_F(DocumentPreviewsTest, FilesLieBesideTheDocument) {
    Open("h1 { color: red }");
    EXPECT_EQ(GetFolderPath(Stored(setting::LastPreviewCSSFile)), PathOf("site"));
    EXPECT_EQ(GetFolderPath(Stored(setting::LastCurrentRulePreviewFile)), PathOf("site"));
    EXPECT_EQ(GetFolderPath(Stored(setting::LastPreviewHTMLFile)), PathOf("program/Help_Files/Preview"));
    EXPECT_EQ(documentPreviews_.Document().GetFile(), PathOf("site/main.css"));
    controller_.Close();
    EXPECT_TRUE(TemporaryFilesLeft().empty());
}

}  // namespace
}  // namespace tintora
