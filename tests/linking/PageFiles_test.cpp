#include "linking/HtmlRewriting.h"

#include "linking/HtmlStyle.h"
#include "linking/TemporaryFolder.h"
#include "linking/TextFiles.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <filesystem>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct LinkCase {
    std::string_view page;
    std::string_view sheet;
    std::string_view href;
};

// Both are seen from the folder of the test.
constexpr auto LinkCases = std::to_array<LinkCase>({
    {"a.html", "main.css", "main.css"},
    {"a.html", "css/main.css", "css/main.css"},
    {"pages/a.html", "main.css", "../main.css"},
    {"pages/deep/a.html", "css/main.css", "../../css/main.css"},
    {"ab/a.html", "ab2/main.css", "../ab2/main.css"},
    {"a b/c d.html", "e f/g h.css", "../e f/g h.css"},
    {"a.html", "it's \"quoted\" & <odd>.css", "it's \"quoted\" & <odd>.css"},
    {"50% #1/a.html", "50% #2/main.css", "../50% #2/main.css"},
    {"\xC3\xA9t\xC3\xA9/\xE4\xB8\xAD.html", "\xD0\xB6/\xF0\x9F\x98\x80.css", "../\xD0\xB6/\xF0\x9F\x98\x80.css"},
    {"a.htm", "no extension", "no extension"},
});

struct BytesCase {
    std::string_view name;
    std::string_view bytes;
    std::string_view result;
};

constexpr auto EmbedCases = std::to_array<BytesCase>({
    {"plain.html", "<head>\n</head>\n", "<head>\n<style type=\"text/css\" >a{}</style>  </head>\n"},
    {"crlf.html", "<head>\r\n</head>\r\n", "<head>\r\n<style type=\"text/css\" >a{}</style>  </head>\r\n"},
    {"mark.html", "\xEF\xBB\xBF</head>", "\xEF\xBB\xBF<style type=\"text/css\" >a{}</style>  </head>"},
    {"nul.html", "\0</head>\0"sv, "\0<style type=\"text/css\" >a{}</style>  </head>\0"sv},
    {"legacy.html", "</head>caf\xE9 \x80\x81", "<style type=\"text/css\" >a{}</style>  </head>caf\xE9 \x80\x81"},
    {"utf8.html", "</head>\xC3\xA9", "<style type=\"text/css\" >a{}</style>  </head>\xC3\xA9"},
    {"no head.html", "<html>\xFF</html>", "<html>\xFF</html>"},
    {"empty.html", "", ""},
});

struct LinkedCase {
    std::string_view href;
    /// Seen from the folder of the test; the page is `site/sub/a.html` in it.
    std::string_view path;
};

constexpr auto LinkedCases = std::to_array<LinkedCase>({
    {"../css/main.css", "/site/css/main.css"},
    {"../main.css", "/site/sub/../main.css"},
    {"../../main.css", "/site/../main.css"},
    {"main.css", "/site/sub//main.css"},
    {"css/main.css", "/site/sub/css/main.css"},
    {"", "/site/sub//"},
    {"/css/main.css", "/site/sub//css/main.css"},
});

void Link(TextView page, TextView sheet) { LinkStyleSheetInHTMLFile(page, sheet, u"stylesheet", u""); }

TEST(PageFiles, AreLinkedByARelativeURL) {
    for (const LinkCase& row : LinkCases) {
        SCOPED_TRACE(row.page);
        const TemporaryFolder folder;
        const Text page = folder.Write(row.page, "<head>\n</head>");
        Link(page, TextFromFileName(folder.FilePath(row.sheet)));
        EXPECT_EQ(ReadFileBytes(page), "<head>\n<link rel=\"stylesheet\" type=\"text/css\" href=\"" +
                                           std::string(row.href) + "\"  />  </head>");
    }
}

TEST(PageFiles, LinkedTwiceAreAsLinkedOnce) {
    const TemporaryFolder folder;
    const Text page = folder.Write("a.html", "<head>\n<link rel=\"stylesheet\" href=\"old.css\">\n</head>");
    Link(page, folder.Path() + u"/main.css");
    const std::string once = ReadFileBytes(page);
    Link(page, folder.Path() + u"/main.css");
    EXPECT_EQ(ReadFileBytes(page), once);
    EXPECT_EQ(GetLinkElements(ReadTextFile(page)).size(), 1U);
}

TEST(PageFiles, AreLinkedByAnAbsoluteURLOfThePathAsItWasGiven) {
    const TemporaryFolder folder;
    const Text page = folder.Write("a.html", "</head>");
    LinkStyleSheetAbsoluteInHTMLFile(page, u"C:\\a b\\x.css", u"stylesheet", u"");
    EXPECT_EQ(ReadFileBytes(page),
              "<link rel=\"stylesheet\" type=\"text/css\" href=\"file:///C:\\a b\\x.css\"  />  </head>");
    LinkStyleSheetAbsoluteInHTMLFile(page, u"/tmp/x.css", u"", u"media=\"tv\"");
    EXPECT_EQ(ReadFileBytes(page),
              "<link rel=\"\" type=\"text/css\" href=\"file:////tmp/x.css\" media=\"tv\" />  </head>");
}

TEST(PageFiles, KeepTheirEncodingAndAllOtherBytesWhenASheetIsEmbedded) {
    const TemporaryFolder folder;
    for (const BytesCase& row : EmbedCases) {
        SCOPED_TRACE(row.name);
        const Text page = folder.Write(row.name, row.bytes);
        EmbedStyleSheetInHTMLFile(page, u"a{}", u"");
        EXPECT_EQ(ReadFileBytes(page), row.result);
    }
}

TEST(PageFiles, OfAnyBytesKeepThem) {
    const TemporaryFolder folder;
    std::string bytes(5'000'000, ' ');
    for (std::size_t index = 0; index < bytes.size(); ++index)
        bytes[index] = static_cast<char>(static_cast<unsigned char>(index * index % 251 + index % 5));
    const Text page = folder.Write("binary.html", "</HEAD>" + bytes);
    EmbedStyleSheetInHTMLFile(page, u"a{}", u"");
    EXPECT_TRUE(ReadFileBytes(page) == "<style type=\"text/css\" >a{}</style>  </HEAD>" + bytes);
}

TEST(PageFiles, HoldTheMediaOfAnEmbeddedSheet) {
    const TemporaryFolder folder;
    const Text page = folder.Write("a.html", "</head>");
    EmbedStyleSheetInHTMLFile(page, u"a{}", u"print, screen");
    EXPECT_EQ(ReadFileBytes(page), "<style type=\"text/css\" media=\"print, screen\">a{}</style>  </head>");
}

TEST(PageFiles, ThatCannotHoldTheSheetStayAsTheyAre) {
    const TemporaryFolder folder;
    const Text page = folder.Write("legacy.html", "</head>caf\xE9");
    EmbedStyleSheetInHTMLFile(page, u"a{content:'\x4E2D'}", u"");
    EXPECT_EQ(ReadFileBytes(page), "</head>caf\xE9");
}

TEST(PageFiles, ThatDoNotExistAreNotMade) {
    const TemporaryFolder folder;
    for (const std::string_view name : {"missing.html"sv, "missing/a.html"sv}) {
        const Text page = TextFromFileName(folder.FilePath(name));
        Link(page, folder.Path() + u"/main.css");
        LinkStyleSheetAbsoluteInHTMLFile(page, u"x.css", u"stylesheet", u"");
        EmbedStyleSheetInHTMLFile(page, u"a{}", u"");
        EXPECT_FALSE(FileExists(page));
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.FilePath("")));
    Link(folder.Path(), folder.Path() + u"/main.css");
}

TEST(PageFiles, ThatAreReadOnlyStayAsTheyAre) {
    const TemporaryFolder folder;
    const Text page = folder.Write("a.html", "</head>");
    ASSERT_EQ(::chmod(FileNameFromText(page).c_str(), 0444), 0);
    Link(page, folder.Path() + u"/main.css");
    EmbedStyleSheetInHTMLFile(page, u"a{}", u"");
    EXPECT_EQ(ReadFileBytes(page), "</head>");
}

TEST(PageFiles, StayAsTheyAreWhereAnOperationFails) {
    const TemporaryFolder folder;
    const std::string late = std::string(40000, ' ') + "</head>";
    const Text page = folder.Write("late.html", late);
    EXPECT_THROW(Link(page, folder.Path() + u"/main.css"), OverflowFailure);
    EXPECT_THROW(EmbedStyleSheetInHTMLFile(page, u"a{}", u""), OverflowFailure);
    EXPECT_EQ(ReadFileBytes(page), late);

    const std::string unclosed = "<head></head><link rel=\"stylesheet\" <style";
    const Text other = folder.Write("unclosed.html", unclosed);
    EXPECT_THROW(Link(other, folder.Path() + u"/main.css"), UnclosedElementFailure);
    EXPECT_THROW(EmbedStyleSheetInHTMLFile(other, u"a{}", u""), UnclosedElementFailure);
    EXPECT_THROW(static_cast<void>(GetLinkedStyleSheetPath(other)), UnclosedElementFailure);
    EXPECT_EQ(ReadFileBytes(other), unclosed);
}

TEST(PageFiles, ThatCannotBeReadFail) {
    const TemporaryFolder folder;
    const Text page = folder.Path() + u"/socket.html";
    ASSERT_EQ(::mknod(FileNameFromText(page).c_str(), S_IFSOCK | S_IRUSR | S_IWUSR, 0), 0);
    EXPECT_THROW(Link(page, folder.Path() + u"/main.css"), FileFailure);
    EXPECT_THROW(EmbedStyleSheetInHTMLFile(page, u"a{}", u""), FileFailure);
    EXPECT_THROW(static_cast<void>(GetLinkedStyleSheetPath(page)), FileFailure);
}

TEST(PageFiles, AreWrittenByTheWriterThatIsGiven) {
    const TemporaryFolder folder;
    const Text page = folder.Write("a.html", "</head>");
    Texts written;
    const FileWriter writer = [&](TextView path, TextView text) {
        written.emplace_back(path);
        written.emplace_back(text);
    };
    EmbedStyleSheetInHTMLFile(page, u"a{}", u"", writer);
    EXPECT_EQ(written, (Texts{page, u"<style type=\"text/css\" >a{}</style>  </head>"}));
    LinkStyleSheetInHTMLFile(folder.Write("b.html", "no head"), u"/x.css", u"stylesheet", u"", writer);
    EXPECT_EQ(written.size(), 2U);
    EXPECT_EQ(ReadFileBytes(page), "</head>");
}

TEST(PageFiles, TellTheSheetThatTheyLinkTo) {
    for (const LinkedCase& row : LinkedCases) {
        SCOPED_TRACE(row.href);
        const TemporaryFolder folder;
        const Text page =
            folder.Write("site/sub/a.html", "<link rel=\"stylesheet\" href=\"" + std::string(row.href) + "\">");
        EXPECT_EQ(GetLinkedStyleSheetPath(page), folder.Path() + TextFromFileName(row.path));
    }
}

TEST(PageFiles, WithoutALinkTellTheirFolder) {
    const TemporaryFolder folder;
    EXPECT_EQ(GetLinkedStyleSheetPath(folder.Write("a.html", "<html></html>")), folder.Path() + u"//");
    EXPECT_EQ(GetLinkedStyleSheetPath(folder.Path() + u"/missing.html"), folder.Path() + u"//");
    EXPECT_EQ(GetLinkedStyleSheetPath(u"C:\\missing\\a.html"), u"C:\\missing\\\\");
}

TEST(PageFiles, OfTheSamplesAreLinkedAsTheyTell) {
    const TemporaryFolder folder;
    std::filesystem::copy(TINTORA_SAMPLES "/site", folder.FilePath("site"));
    const Text page = folder.Path() + u"/site/index.html";
    Link(page, folder.Path() + u"/css/other.css");
    EXPECT_EQ(LinkedStyleSheetURL(ReadTextFile(page)), u"../css/other.css");
    EXPECT_EQ(GetLinkedStyleSheetPath(page), folder.Path() + u"/css/other.css");
}

}  // namespace
}  // namespace tintora
