#include "preview/PreviewBytes.h"

#include "linking/TemporaryFolder.h"
#include "preview/PageBytes.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct DecodeCase {
    std::string_view bytes;
    TextView text;
    PageEncoding encoding;
};

constexpr auto DecodeCases = std::to_array<DecodeCase>({
    {"", u"", PageEncoding::Utf8},
    {"<p>\xC3\xA9", u"<p>\u00e9", PageEncoding::Utf8},
    {"\xEF\xBB\xBF<p>", u"\ufeff<p>", PageEncoding::Utf8},
    {"<p>\xE9", u"<p>\u00e9", PageEncoding::Windows1252},
    {"\xFF\xFE<\0p\0"sv, u"\ufeff<p", PageEncoding::Utf16LittleEndian},
    {"\xFE\xFF\0<\0p"sv, u"\ufeff<p", PageEncoding::Utf16BigEndian},
    {"\xFF\xFE\x2D\x4E\x3D\xD8\x00\xDE"sv, u"\ufeff\u4e2d\U0001f600", PageEncoding::Utf16LittleEndian},
    {"\xFE\xFF\xD8\x00"sv, u"\ufeff\xd800", PageEncoding::Utf16BigEndian},
    {"\xFF\xFE<\0p"sv, u"\ufeff<", PageEncoding::Utf16LittleEndian},
    {"\xFF\xFE", u"\ufeff", PageEncoding::Utf16LittleEndian},
    {"\xFF", u"\u00ff", PageEncoding::Windows1252},
    {"<\0p\0"sv, TextView(u"<\0p\0", 4), PageEncoding::Utf8},
});

TEST(PageBytes, AreTextAndComeBackAsTheyWere) {
    for (const DecodeCase& row : DecodeCases) {
        SCOPED_TRACE(testing::PrintToString(row.bytes));
        const PageText page = DecodePage(row.bytes);
        EXPECT_EQ(page.text, row.text);
        EXPECT_EQ(page.encoding, row.encoding);
        EXPECT_EQ(EncodePage(page), row.bytes);
    }
}

TEST(PageBytes, OfAnyKindComeBackAsTheyWere) {
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes = std::array{"", "\xFF\xFE", "\xFE\xFF", "\xEF\xBB\xBF"}[random() % 4];
        for (auto length = random() % 20; length > 0; --length)
            bytes.push_back(static_cast<char>(random() % 256));
        EXPECT_EQ(EncodePage(DecodePage(bytes)), bytes);
    }
}

TEST(PageBytes, ThatTheirEncodingDoesNotHaveAreNone) {
    EXPECT_EQ(EncodePage({u"\u4e2d", PageEncoding::Windows1252, {}}), std::nullopt);
    EXPECT_EQ(EncodePage({u"\xd800", PageEncoding::Utf8, {}}), std::nullopt);
    EXPECT_EQ(EncodePage({u"\xd800", PageEncoding::Utf16LittleEndian, {}}), "\x00\xD8"sv);
}

struct SheetCase {
    TextView text;
    Encoding encoding;
    std::string_view bytes;
};

constexpr auto SheetCases = std::to_array<SheetCase>({
    {u"", Encoding::Utf8, ""},
    {u"a{}\r\n", Encoding::Utf8, "a{}\r\n"},
    {u"\u00e9\u4e2d", Encoding::Utf8, "\xC3\xA9\xE4\xB8\xAD"},
    {u"\ufeff\u00e9", Encoding::Utf8, "\xEF\xBB\xBF\xC3\xA9"},
    {u"\u00e9\u20ac", Encoding::Windows1252, "\xE9\x80"},
    {u"@charset \"latin1\";\u4e2d", Encoding::Windows1252, "\xEF\xBB\xBF@charset \"latin1\";\xE4\xB8\xAD"},
    {u"\ufeff\u4e2d", Encoding::Windows1252, "\xEF\xBB\xBF\xE4\xB8\xAD"},
    {u"a\xd800", Encoding::Utf8,
     "\xEF\xBB\xBF"
     "a\xEF\xBF\xBD"},
});

TEST(PreviewBytes, ASheetIsMarkedOnDemand) {
    EXPECT_EQ(SheetBytes(u"a{}", Encoding::Utf8, true),
              "\xEF\xBB\xBF"
              "a{}");
    EXPECT_EQ(SheetBytes(u"\ufeff"
                         u"a{}",
                         Encoding::Utf8, true),
              "\xEF\xBB\xBF"
              "a{}")
        << "once";
    EXPECT_EQ(SheetBytes(u"\u00e9", Encoding::Windows1252, true), "\xEF\xBB\xBF\xC3\xA9");
}

TEST(PreviewBytes, OfASheetAreInTheEncodingOfTheDocument) {
    for (const SheetCase& row : SheetCases)
        EXPECT_EQ(SheetBytes(row.text, row.encoding), row.bytes) << Utf8FromText(row.text);
}

constexpr std::string_view Link = "<link rel=\"stylesheet\" type=\"text/css\" href=\"file:///s/ktTemp%201.css\"  />";

struct PageCase {
    std::string_view page;
    /// With "[L]" for the link to the previewed sheet.
    std::string_view result;
};

/// The page is `/site/pages/a.html`, the document `/site/css/main.css`.
constexpr auto PageCases = std::to_array<PageCase>({
    // Without a link of its own.
    {"<head>\n</head>", "<head>\n[L]  </head>"},
    {"</HEAD></head>", "[L]  </HEAD></head>"},
    {"", ""},
    {"<p>no head", "<p>no head"},
    {"<link rel=\"stylesheet\" href=\"other.css\"></head>", "<link rel=\"stylesheet\" href=\"other.css\">[L]  </head>"},
    {"<link rel=\"stylesheet\" href=\"other.css\">", "<link rel=\"stylesheet\" href=\"other.css\">"},
    {"<link rel=\"stylesheet\" </head>", "<link rel=\"stylesheet\" [L]  </head>"},
    {"<link rel=\"stylesheet\"></head>", "<link rel=\"stylesheet\">[L]  </head>"},

    // With one.
    {"<link rel=\"stylesheet\" href=\"../css/main.css\"></head>", "[L]</head>"},
    {"<LINK HREF='../css/./main.css?v=1' media=print REL='stylesheet'></head>", "[L]</head>"},
    {"<link rel=stylesheet href=/site/css/main.css></head>", "[L]</head>"},
    {"<link rel=stylesheet href='file:///site/css/main.css'></head>", "[L]</head>"},
    {"<link rel=stylesheet href=a.css>\n<link rel=stylesheet href=../css/main.css>\n"
     "<link rel=stylesheet href=b.css></head>",
     "<link rel=stylesheet href=a.css>\n[L]\n<link rel=stylesheet href=b.css></head>"},
    {"<link rel=stylesheet href=../css/main.css><p><link href=../css/main.css rel=stylesheet>", "[L]<p>[L]"},
    {"<p>no head<link rel=stylesheet href=../css/main.css>", "<p>no head[L]"},

    // With one that only looks so.
    {"<!--<link rel=stylesheet href=../css/main.css>--></head>",
     "<!--<link rel=stylesheet href=../css/main.css>-->[L]  </head>"},
    {"<link rel=stylesheet href=http://example.com/site/css/main.css></head>",
     "<link rel=stylesheet href=http://example.com/site/css/main.css>[L]  </head>"},
    {"<link rel=stylesheet href=../css/MAIN.css></head>", "<link rel=stylesheet href=../css/MAIN.css>[L]  </head>"},
    {"<link rel=icon href=../css/main.css></head>", "<link rel=icon href=../css/main.css>[L]  </head>"},

    // With a base.
    {"<base href=../css/><link rel=stylesheet href=main.css></head>", "<base href=../css/>[L]</head>"},
    {"<base href='/site/css/x.html'><link rel=stylesheet href=main.css></head>",
     "<base href='/site/css/x.html'>[L]</head>"},
    {"<base href=../css/><link rel=stylesheet href=../css/main.css></head>", "<base href=../css/>[L]</head>"},
    {"<base href=../../><link rel=stylesheet href=../css/main.css></head>",
     "<base href=../../><link rel=stylesheet href=../css/main.css>[L]  </head>"},
    {"<base href=http://example.com/><link rel=stylesheet href=/site/css/main.css></head>",
     "<base href=http://example.com/><link rel=stylesheet href=/site/css/main.css>[L]  </head>"},

    // In whatever bytes.
    {"\xEF\xBB\xBF</head>\xC3\xA9", "\xEF\xBB\xBF[L]  </head>\xC3\xA9"},
    {"</head>\xE9\x81", "[L]  </head>\xE9\x81"},
    {"\0</head>\r\n"sv, "\0[L]  </head>\r\n"sv},
    {"^0^1</head>^2", "^0^1[L]  </head>^2"},
});

std::string WithLink(std::string_view result) {
    std::string text(result);
    for (std::size_t mark = text.find("[L]"); mark != std::string::npos; mark = text.find("[L]"))
        text.replace(mark, 3, Link);
    return text;
}

TEST(PreviewBytes, OfAPageHaveTheSheetInThePlaceOfTheDocumentsOwnLinkOrInTheHead) {
    for (const PageCase& row : PageCases) {
        EXPECT_EQ(LinkedPageBytes(row.page, u"/site/pages/a.html", u"/site/css/main.css", u"/s/ktTemp 1.css"),
                  WithLink(row.result))
            << row.page;
    }
}

TEST(PreviewBytes, OfAPageHaveTheSheetInTheHeadWhereTheDocumentHasNoFile) {
    const std::string page = "<link rel=stylesheet href=''><link rel=stylesheet href=a.html></head>";
    EXPECT_EQ(LinkedPageBytes(page, u"/site/a.html", u"", u"/s/ktTemp 1.css"),
              page.substr(0, page.size() - 7) + std::string(Link) + "  </head>");
}

TEST(PreviewBytes, OfAPageHaveAnAddressWithoutAnySpecialLetter) {
    EXPECT_EQ(LinkedPageBytes("</head>", u"/a.html", u"", u"/50% \"a\" #1?/\u00e9\xdcff^1/ktTemp 1.css"),
              "<link rel=\"stylesheet\" type=\"text/css\" "
              "href=\"file:///50%25%20%22a%22%20%231%3F/%C3%A9%FF%5E1/ktTemp%201.css\"  />  </head>");
}

TEST(PreviewBytes, OfAPageInUtf16StayInUtf16) {
    for (const std::string_view mark : {"\xFF\xFE"sv, "\xFE\xFF"sv}) {
        const PageText page{DecodePage(mark).text + u"<head></head>\u4e2d", DecodePage(mark).encoding, "x"};
        const std::string linked = LinkedPageBytes(EncodePage(page).value(), u"/a.html", u"/a.css", u"/s/ktTemp 1.css");
        EXPECT_TRUE(linked.starts_with(mark));
        EXPECT_EQ(Utf8FromText(DecodePage(linked).text), "\xEF\xBB\xBF<head>" + std::string(Link) + "  </head>\u4e2d");
        EXPECT_EQ(DecodePage(linked).rest, "x");
    }
}

TEST(PreviewBytes, OfAPageFollowLinksOfTheDisk) {
    const TemporaryFolder folder;
    const Text document = folder.Write("css/main.css", "");
    std::filesystem::create_directory_symlink(folder.FilePath("css"), folder.FilePath("styles"));
    EXPECT_EQ(LinkedPageBytes("<link rel=stylesheet href=styles/main.css>", folder.Path() + u"/a.html", document,
                              u"/s/ktTemp 1.css"),
              Link);
}

TEST(PreviewBytes, OfAPageFailWhereItsHeadEndsBeyondTheLimitOfPositions) {
    const std::string own = "<link rel=stylesheet href=main.css>";
    const std::string long32767 = std::string(32767, ' ') + "</head>";
    const auto link = [](const std::string& page) {
        return LinkedPageBytes(page, u"/a.html", u"/main.css", u"/s/ktTemp 1.css");
    };
    EXPECT_EQ(link(long32767), std::string(32767, ' ') + std::string(Link) + "  </head>");
    EXPECT_THROW(static_cast<void>(link(" " + long32767)), OverflowFailure);
    EXPECT_EQ(link(std::string(70'000, ' ') + own + "</head>"),
              std::string(70'000, ' ') + std::string(Link) + "</head>")
        << "a link that is replaced may lie anywhere";
}

struct RuleCase {
    Texts declarations;
    std::string_view style;
};

const std::vector<RuleCase> RuleCases = {
    {{}, ""},
    {{u"color: red;"}, "color: red;"},
    {{u"color: red;", u"/* why */", u"margin: 0"}, "color: red; /* why */ margin: 0"},
    {{u"content: \"^0 ^1 ^2\";"}, "content: \"^0 ^1 ^2\";"},
    {{u"content: '</style><script>';"}, "content: '<\\/style><script>';"},
    {{u"content: '</", u"style>'"}, "content: '<\\/ style>'"},
    {{u"background: url(a<b>&amp;.png);"}, "background: url(a<b>&amp;.png);"},
    {{u"content: '\u00e9\u4e2d\U0001f600';"}, "content: '\\e9 \\4e2d \\1f600 ';"},
    {{u"content: '\u00e9 a';"}, "content: '\\e9  a';"},
    {{u"content: '\\\u00e9';"}, "content: '\\e9 ';"},
    {{u"content: '\\\\\u00e9';"}, "content: '\\\\\\e9 ';"},
    {{u"content: '\\\u4e2d\\\\\\\u4e2d\u00e9';"}, "content: '\\4e2d \\\\\\4e2d \\e9 ';"},
    {{u"content: '\xd83d\xd83d\xde00\xde00';"}, "content: '\\fffd \\1f600 \\fffd ';"},
    {{u"content: '" + Text(1, u'\0') + u"';"}, "content: '\\fffd ';"},
    {{u"color: r\\65 d;\t"}, "color: r\\65 d;\t"},
};

TEST(PreviewBytes, OfARuleHoldItsDeclarationsAndNothingThatEndsTheSheet) {
    for (const RuleCase& row : RuleCases) {
        const std::string page = RulePageBytes(row.declarations);
        EXPECT_EQ(page, "<html><head><style>p{" + std::string(row.style) +
                            "}</style></head><body><p>A basic preview of the properties of the current rule. "
                            "Properties are not inherited in this preview.</p></body></html>");
    }
}

}  // namespace
}  // namespace tintora
