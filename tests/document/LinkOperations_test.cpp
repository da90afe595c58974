#include "DocumentFiles.h"

#include <unistd.h>

namespace tintora::test {
namespace {

namespace fs = std::filesystem;

constexpr auto Page = "<html><head></head><body></body></html>";
constexpr auto LinkedPage =
    "<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"main.css\"  />  </head><body></body></html>";

/// Pages that end a command quietly.
struct BadPage {
    const char* name;
    std::string bytes;
};

const std::vector<BadPage> BadPages = {
    {"without a head", "<html><body></body></html>"},
    {"with a link that doesn't end", "<html><head></head><link rel=\"stylesheet\""},
    {"with a head of 40,000 characters", "<html><head>" + std::string(40'000, ' ') + "</head></html>"},
    {"that is empty", ""},
    {"of bytes", std::string("\0\xff\xfe\x80<head\0", 10)},
};

class LinkOperationsTest : public DocumentFilesTest {
  protected:
    LinkOperationsTest() {
        Open(MakeFile("main.css", "h1 {}"));
        document_.pages.folder = files_.Path();
    }

    void LinkPageTo(std::string_view name) {
        document_.pages.page = PathOf(name);
        window_.LinkPage();
    }
};

TEST_F(LinkOperationsTest, APageIsLinkedToTheStyleSheet) {
    MakeFile("index.html", Page);
    LinkPageTo("index.html");
    EXPECT_EQ(BytesOf("index.html"), LinkedPage);
    EXPECT_EQ(document_.TakeCalls(), Calls{"AskPage Link Page..."});
    document_.pages.page.reset();
    MakeFile("index.html", Page);
    window_.LinkPage();
    EXPECT_EQ(BytesOf("index.html"), Page) << "a cancelled question does nothing";
}

TEST_F(LinkOperationsTest, APathMayHoldWhateverAFileNameMay) {
    for (const char* const name :
         {"a b.html", "it's \"q\".html", "100%.html", "a#b.html", "\xe4\xb8\xad\xd0\xb6.html"}) {
        MakeFile(name, Page);
        LinkPageTo(name);
        EXPECT_EQ(BytesOf(name), LinkedPage) << name;
    }
}

TEST_F(LinkOperationsTest, ABadPageStaysAsItIsAndNobodyIsTold) {
    for (const BadPage& bad : BadPages) {
        MakeFile("bad.html", bad.bytes);
        LinkPageTo("bad.html");
        EXPECT_EQ(BytesOf("bad.html"), bad.bytes) << bad.name;
    }
    fs::remove(Folder() / "bad.html");
    LinkPageTo("bad.html");
    EXPECT_FALSE(fs::exists(Folder() / "bad.html")) << "a missing page isn't made";
    MakeFile("read_only.html", Page);
    fs::permissions(Folder() / "read_only.html", fs::perms::owner_read);
    LinkPageTo("read_only.html");
    EXPECT_EQ(BytesOf("read_only.html"), Page);
    for (const std::string& call : document_.TakeCalls())
        EXPECT_EQ(call, "AskPage Link Page...");
}

TEST_F(LinkOperationsTest, APageThatCannotBeReadIsTold) {
    ASSERT_EQ(::mknod((Folder() / "socket.html").c_str(), S_IFSOCK | 0600, 0), 0);
    LinkPageTo("socket.html");
    EXPECT_EQ(document_.TakeCalls().back(), "Message: socket.html can't be read: No such device or address.");
}

TEST_F(LinkOperationsTest, AStyleSheetWithoutAFileIsSavedFirst) {
    RecordedDocument unsaved;
    MakeFile("index.html", Page);
    unsaved.pages.page = PathOf("index.html");
    unsaved.window.LinkPage();
    EXPECT_EQ(BytesOf("index.html"), Page) << "without a file there is nothing to link to";
    unsaved.files.savePath = PathOf("main.css");
    unsaved.window.LinkPage();
    EXPECT_EQ(BytesOf("index.html"), LinkedPage);
}

TEST_F(LinkOperationsTest, ASiteIsLinkedPageByPageAfterAQuestion) {
    MakeFile("index.html", Page);
    MakeFile("sub/a.HTM", Page);
    MakeFile("sub/deep/b.html", Page);
    MakeFile("sub/notes.txt", Page);
    MakeFile("bad.html", "<link rel=\"stylesheet\"");
    MakeFile("sub/long.html", BadPages[2].bytes);
    window_.LinkSite();
    EXPECT_EQ(document_.TakeCalls(),
              (Calls{"AskFolder Link to every HTML file in which folder and its subfolders?", "Busy", "NotBusy",
                     "Confirm Do you really want to link all  5 html documents in this site to the style sheet?"}));
    EXPECT_EQ(BytesOf("index.html"), LinkedPage);
    EXPECT_NE(BytesOf("sub/a.HTM").find("href=\"../main.css\""), std::string::npos);
    EXPECT_NE(BytesOf("sub/deep/b.html").find("href=\"../../main.css\""), std::string::npos);
    EXPECT_EQ(BytesOf("sub/notes.txt"), Page);
    EXPECT_EQ(BytesOf("sub/long.html"), BadPages[2].bytes);
}

TEST_F(LinkOperationsTest, TheQuestionIsAskedForNoPageTooAndCancellingEndsIt) {
    document_.pages.isConfirmed = false;
    window_.LinkSite();
    EXPECT_EQ(document_.TakeCalls().back(),
              "Confirm Do you really want to link all  0 html documents in this site to the style sheet?");
    MakeFile("index.html", Page);
    window_.LinkSite();
    EXPECT_EQ(BytesOf("index.html"), Page);
    document_.pages.folder.reset();
    document_.calls.clear();
    window_.LinkSite();
    EXPECT_EQ(document_.TakeCalls().size(), 1U);
}

TEST_F(LinkOperationsTest, FromTwoHundredAndOnePagesOnProgressIsShownAndCanBeCancelled) {
    for (int number = 0; number < 201; ++number)
        MakeFile(std::to_string(1000 + number) + ".html", Page);
    document_.pages.pagesUntilCancel = 150;
    window_.LinkSite();
    EXPECT_TRUE(Has(document_.calls, "ShowProgress 201"));
    EXPECT_EQ(BytesOf("1149.html"), LinkedPage);
    EXPECT_EQ(BytesOf("1150.html"), Page);
    fs::remove(Folder() / "1200.html");
    document_.calls.clear();
    window_.LinkSite();
    EXPECT_FALSE(Has(document_.calls, "ShowProgress 200"));
    EXPECT_EQ(BytesOf("1199.html"), LinkedPage);
}

TEST_F(LinkOperationsTest, EmbeddingMovesTheDocumentToThePage) {
    document_.pages.page = MakeFile("page.html", Page);
    Change();
    window_.EmbedInPage();
    EXPECT_EQ(BytesOf("page.html"),
              "<html><head><style type=\"text/css\" >xh1 {}</style>  </head><body></body></html>");
    EXPECT_EQ(window_.GetFile(), PathOf("page.html"));
    EXPECT_EQ(window_.Caption(), u"page.html");
    EXPECT_TRUE(Has(document_.calls, "AskPage Embed In Page..."));
    Change();
    window_.Save();
    EXPECT_NE(BytesOf("page.html").find("xxh1 {}"), std::string::npos) << "the page has become the document's file";
    EXPECT_FALSE(Has(document_.calls, "AskAboutChangedFile"));
    EXPECT_EQ(BytesOf("main.css"), "h1 {}");
}

TEST_F(LinkOperationsTest, EmbeddingIntoABadPageLeavesTheDocumentWhereItIs) {
    const std::string page = "<html><head><style>";
    document_.pages.page = MakeFile("page.html", page);
    window_.EmbedInPage();
    EXPECT_EQ(BytesOf("page.html"), page);
    EXPECT_EQ(window_.GetFile(), PathOf("main.css"));
}

TEST_F(LinkOperationsTest, LinkingByChoicesTakesThemAll) {
    document_.pages.options =
        PageOptions{u"alternate stylesheet", u"Large", u"print", {MakeFile("a.html", Page), MakeFile("b.html", Page)}};
    window_.LinkStyleSheet();
    EXPECT_EQ(BytesOf("a.html"),
              "<html><head><link rel=\"alternate stylesheet\" type=\"text/css\" href=\"main.css\" "
              "title=\"Large\" media=\"print\" />  </head><body></body></html>");
    EXPECT_EQ(BytesOf("b.html"), BytesOf("a.html"));
}

TEST_F(LinkOperationsTest, EmbeddingByChoicesLeavesTheDocumentWhereItIs) {
    document_.pages.options = PageOptions{u"", u"", u"print, screen", {MakeFile("a.html", Page)}};
    window_.Embed();
    EXPECT_EQ(
        BytesOf("a.html"),
        "<html><head><style type=\"text/css\" media=\"print, screen\">h1 {}</style>  </head><body></body></html>");
    EXPECT_EQ(window_.GetFile(), PathOf("main.css"));
}

TEST_F(LinkOperationsTest, CancelledChoicesAndEmptyCommandsChangeNothing) {
    MakeFile("a.html", Page);
    window_.LinkStyleSheet();
    window_.Embed();
    window_.LinkPageAdvanced();
    window_.LinkSiteAdvanced();
    window_.EmbedInPageAdvanced();
    EXPECT_EQ(BytesOf("a.html"), Page);
}

}  // namespace
}  // namespace tintora::test
