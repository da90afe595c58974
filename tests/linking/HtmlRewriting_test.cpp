#include "linking/HtmlRewriting.h"

#include "linking/HtmlStyle.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

#include <array>

namespace tintora {
namespace {

struct LinkElementCase {
    TextView rel;
    TextView href;
    TextView extras;
    TextView element;
};

constexpr auto LinkElementCases = std::to_array<LinkElementCase>({
    {u"stylesheet", u"main.css", u"", u"<link rel=\"stylesheet\" type=\"text/css\" href=\"main.css\"  />"},
    {u"", u"main.css", u"", u"<link rel=\"\" type=\"text/css\" href=\"main.css\"  />"},
    {u"alternate stylesheet", u"../a b.css", u"title=\"Large\" media=\"print\"",
     u"<link rel=\"alternate stylesheet\" type=\"text/css\" href=\"../a b.css\" title=\"Large\" media=\"print\" />"},
    {u"stylesheet", u"", u"title=\"Large\" ",
     u"<link rel=\"stylesheet\" type=\"text/css\" href=\"\" title=\"Large\"  />"},
    // What is special in a URL or in HTML is kept.
    {u"stylesheet", u"a \"b\"#%20&<>\x00E9\x4E2D.css", u"",
     u"<link rel=\"stylesheet\" type=\"text/css\" href=\"a \"b\"#%20&<>\x00E9\x4E2D.css\"  />"},
    // A mark in a value is replaced, if its turn is still to come.
    {u"^0^1^2", u"^0^1^2", u"^0^1^2",
     u"<link rel=\"^0^0^1^0^1^2^0^1^2\" type=\"text/css\" href=\"^0^1^0^1^2\" ^0^1^2 />"},
    {u"stylesheet", u"a^3.css", u"^3", u"<link rel=\"stylesheet\" type=\"text/css\" href=\"a.css\"  />"},
});

struct StyleElementCase {
    TextView css;
    TextView media;
    TextView element;
};

constexpr auto StyleElementCases = std::to_array<StyleElementCase>({
    {u"a{}", u"", u"<style type=\"text/css\" >a{}</style>"},
    {u"", u"", u"<style type=\"text/css\" ></style>"},
    {u"a{}", u"print, screen", u"<style type=\"text/css\" media=\"print, screen\">a{}</style>"},
    {u"a{}", u"\"print\"", u"<style type=\"text/css\" media=\"\"print\"\">a{}</style>"},
    {u"\r\na {\r\n}\r\n", u"", u"<style type=\"text/css\" >\r\na {\r\n}\r\n</style>"},
    {u"<!-- a{} -->", u"", u"<style type=\"text/css\" ><!-- a{} --></style>"},
    {u"/* ^0 ^1 ^2 ^3 ^4 */", u"tv", u"<style type=\"text/css\" media=\"tv\">/* ^0 media=\"tv\"   ^4 */</style>"},
    {u"a[b^=\"c\"]{}", u"", u"<style type=\"text/css\" >a[b^=\"c\"]{}</style>"},
});

struct ExtrasCase {
    TextView title;
    TextView media;
    TextView extras;
};

constexpr auto ExtrasCases = std::to_array<ExtrasCase>({
    {u"", u"", u""},
    {u"Large", u"", u"title=\"Large\" "},
    {u"", u"print", u"media=\"print\""},
    {u"Large", u"print, tv", u"title=\"Large\" media=\"print, tv\""},
    {u"\"Large\"", u"\"print\"", u"title=\"Large\" media=\"print\""},
    {u" ", u" ", u"title=\" \" media=\" \""},
    {u"a\"b", u"", u"title=\"a\"b\" "},
});

/// A page, and what becomes of it; `nullptr` for a page that is left alone.
struct PageCase {
    TextView page;
    const char16_t* result;
};

// The element is "[E]".
constexpr auto LinkCases = std::to_array<PageCase>({
    // The element goes before the end of the head, on the same line.
    {u"<head></head>", u"<head>[E]  </head>"},
    {u"<head>\n<title>x</title>\n</head>\n", u"<head>\n<title>x</title>\n[E]  </head>\n"},
    {u"<HEAD>\r\n</HEAD>\r\n", u"<HEAD>\r\n[E]  </HEAD>\r\n"},
    {u"</head>", u"[E]  </head>"},
    {u"<head></head><head></head>", u"<head>[E]  </head><head></head>"},
    {u"<!-- </head> --><head></head>", u"<!-- [E]  </head> --><head></head>"},
    {u"\xFEFF<head></head>\x1A\x4E2D\xD83D\xDE00", u"\xFEFF<head>[E]  </head>\x1A\x4E2D\xD83D\xDE00"},

    // There is no end of a head.
    {u"", nullptr},
    {u"<html><body></body></html>", nullptr},
    {u"<head></head >", nullptr},
    {u"<head>< /head>", nullptr},
    {u"a { color: red }", nullptr},

    // A link is replaced, whole, and nothing else happens.
    {u"<link rel=\"stylesheet\" href=\"a.css\">", u"[E]"},
    {u"<head><link rel=\"stylesheet\" href=\"a.css\" /></head>", u"<head>[E]</head>"},
    {u"<LINK REL=\"StyleSheet\" HREF=\"a.css\"></HEAD>", u"[E]</HEAD>"},
    {u"x<link rel=\"stylesheet\"\r\n  href=\"a.css\"\r\n>y", u"x[E]y"},
    {u"<link rel=\"stylesheet\">", u"[E]"},
    {u"<link rel=\"stylesheet\"href=a></head>", u"[E]</head>"},
    {u"<!-- <link rel=\"stylesheet\" href=\"a.css\"> --></head>", u"<!-- [E] --></head>"},
    {u"<link rel=\"stylesheet\" title=\"a>b\">", u"[E]b\">"},

    // All that read exactly like the first one go with it.
    {u"<link rel=\"stylesheet\" a>1<link rel=\"stylesheet\" a>2", u"[E]1[E]2"},
    {u"<link rel=\"stylesheet\" a>1<link rel=\"stylesheet\" b>2", u"[E]1<link rel=\"stylesheet\" b>2"},
    {u"<link rel=\"stylesheet\" a>1<LINK rel=\"stylesheet\" a>2", u"[E]1<LINK rel=\"stylesheet\" a>2"},
    {u"<link rel=\"stylesheet\" a>1<link rel=\"stylesheet\" a/>2", u"[E]1<link rel=\"stylesheet\" a/>2"},

    // Links that aren't written just so aren't seen.
    {u"<link rel='stylesheet' href=\"a.css\"></head>", u"<link rel='stylesheet' href=\"a.css\">[E]  </head>"},
    {u"<link rel=stylesheet></head>", u"<link rel=stylesheet>[E]  </head>"},
    {u"<link  rel=\"stylesheet\"></head>", u"<link  rel=\"stylesheet\">[E]  </head>"},
    {u"<link\nrel=\"stylesheet\"></head>", u"<link\nrel=\"stylesheet\">[E]  </head>"},
    {u"<link rel= \"stylesheet\"></head>", u"<link rel= \"stylesheet\">[E]  </head>"},
    {u"<link href=\"a.css\" rel=\"stylesheet\"></head>", u"<link href=\"a.css\" rel=\"stylesheet\">[E]  </head>"},
    {u"<link rel=\"alternate stylesheet\"></head>", u"<link rel=\"alternate stylesheet\">[E]  </head>"},
    {u"<link rel=\"stylesheet alternate\"></head>", u"<link rel=\"stylesheet alternate\">[E]  </head>"},
    {u"<link rel=\"\" href=\"a.css\"></head>", u"<link rel=\"\" href=\"a.css\">[E]  </head>"},
    {u"<link rel='stylesheet'>", nullptr},
});

constexpr auto StyleCases = std::to_array<PageCase>({
    {u"<head></head>", u"<head>[E]  </head>"},
    {u"<HEAD>\r\n</HEAD>\r\n", u"<HEAD>\r\n[E]  </HEAD>\r\n"},
    {u"", nullptr},
    {u"<html><body></body></html>", nullptr},

    {u"<style>a{}</style>", u"[E]"},
    {u"<head><style media=\"print\">a{}</style></head>", u"<head>[E]</head>"},
    {u"<STYLE TYPE='text/css'>\nA{}\n</Style></head>", u"[E]</head>"},
    {u"<style>a{}</style><style>b{}</style>", u"[E]<style>b{}</style>"},
    {u"<style>a{}</style><style>a{}</style>", u"[E][E]"},
    {u"<style>a{}</style><Style>a{}</style>", u"[E]<Style>a{}</style>"},
    {u"<script>'<style>'</script></head><style>a{}</style>", u"<script>'[E]"},
    {u"<!-- <style>a{}</style> --><style>b{}</style>", u"<!-- [E] --><style>b{}</style>"},
    {u"<stylesheet>a{}</stylesheet></style></head>", u"[E]</head>"},
    {u"<link rel=\"stylesheet\" href=\"a.css\"></head>", u"<link rel=\"stylesheet\" href=\"a.css\">[E]  </head>"},

    // An element without an end, at the very start of the page, ends before the seventh character.
    {u"<style></head>", u"[E]></head>"},
    {u"123<style>a<sty", u"123[E]yle>a[E]y"},
    {u"12345<style>a", u"12345[E]style>a"},
    {u"123456<style></head>", u"123456<style></head>"},
});

constexpr auto UnclosedLinks = std::to_array<TextView>({
    u"<link rel=\"stylesheet\" href=\"a.css\"",
    u"<html><head></head><link rel=\"stylesheet\" href=\"a.css\"",
    u"> <LINK REL=\"stylesheet\"",
});

constexpr auto UnclosedStyles = std::to_array<TextView>({
    u"1234567<style>a{}</head>",
    u"<html><head></head><style>a{}</styl>",
    u"/style> <style>",
});

struct UrlCase {
    TextView page;
    TextView url;
};

constexpr auto UrlCases = std::to_array<UrlCase>({
    {u"", u""},
    {u"<html><head></head></html>", u""},
    {u"<link rel=\"stylesheet\" href=\"a.css\">", u"a.css"},
    {u"x<LINK REL=\"StyleSheet\" TYPE=\"text/css\" HREF=\"../CSS/Main.CSS\" />", u"../CSS/Main.CSS"},
    {u"<link rel=\"stylesheet alternate\" href=\"a.css\">", u"a.css"},
    {u"<link rel=\"stylesheets\" href=\"a.css\">", u"a.css"},
    {u"<link rel=\"stylesheet\" href = \n \"a.css\">", u"a.css"},
    {u"<link rel=\"stylesheet\" href=\"\">", u""},
    {u"<link rel=\"stylesheet\" href=\"a b#%20\x4E2D'.css\">", u"a b#%20\x4E2D'.css"},
    {u"<link rel=\"icon\" href=\"i\"><link rel=\"stylesheet\" href=\"a\"><link rel=\"stylesheet\" href=\"b\">", u"a"},
    {u"<link rel=\"alternate stylesheet\" href=\"a.css\">", u""},
    {u"<link href=\"a.css\" rel=\"stylesheet\">", u""},
    {u"<link rel=\"stylesheet\"> href=\"a.css\"", u""},
    {u"<link rel=\"stylesheet\" title=\"a\">", u""},
    {u"<link rel=\"stylesheet\" href='a.css'>", u""},
    {u"<link rel=\"stylesheet\" href=a.css>", u""},
    {u"<link rel=\"stylesheet\" href=\"a.css>", u""},
    {u"<link rel=\"stylesheet\" href=\"a>b.css\">", u""},
    {u"<link rel=\"stylesheet\" href='a.css' title=\"b\">", u"b"},
    {u"<link rel=\"stylesheet\" hreflang=\"de\" href=\"a.css\">", u"de"},
});

struct CountCase {
    TextView text;
    std::size_t count;
};

constexpr auto LinkCounts = std::to_array<CountCase>({
    {u"", 0},
    {u"<link rel", 0},
    {u"<link rel=", 1},
    {u"<link rel=<LINK REL=\"x\"> <link  rel= <link rel='y'>", 3},
});

constexpr TextView Element = u"[E]";

Text PageOf(TextView head, std::size_t headEnd) { return Text(headEnd, u' ') + Text(head); }

TEST(HtmlRewriting, TheLinkElementFollowsItsTemplate) {
    for (const LinkElementCase& row : LinkElementCases)
        EXPECT_EQ(LinkElement(row.rel, row.href, row.extras), row.element);
}

TEST(HtmlRewriting, TheStyleElementFollowsItsTemplate) {
    for (const StyleElementCase& row : StyleElementCases)
        EXPECT_EQ(StyleElement(row.css, row.media), row.element);
}

TEST(HtmlRewriting, TitleAndMediaAreTheExtraAttributes) {
    for (const ExtrasCase& row : ExtrasCases)
        EXPECT_EQ(ExtraLinkAttributes(row.title, row.media), row.extras) << Utf8FromText(row.extras);
}

void ExpectPages(const PageCase& row, const std::optional<Text>& result) {
    SCOPED_TRACE(Utf8FromText(row.page));
    ASSERT_EQ(result.has_value(), row.result != nullptr);
    EXPECT_EQ(result.value_or(u""), row.result == nullptr ? u"" : row.result);
}

TEST(HtmlRewriting, ALinkIsReplacedOrPutBeforeTheEndOfTheHead) {
    for (const PageCase& row : LinkCases)
        ExpectPages(row, PageWithLink(row.page, Element));
}

TEST(HtmlRewriting, AStyleElementIsReplacedOrPutBeforeTheEndOfTheHead) {
    for (const PageCase& row : StyleCases)
        ExpectPages(row, PageWithStyle(row.page, Element));
}

TEST(HtmlRewriting, AnElementThatDoesNotEndFails) {
    for (const TextView page : UnclosedLinks) {
        SCOPED_TRACE(Utf8FromText(page));
        EXPECT_THROW(static_cast<void>(PageWithLink(page, Element)), UnclosedElementFailure);
        EXPECT_THROW(static_cast<void>(LinkedStyleSheetURL(page)), UnclosedElementFailure);
    }
    for (const TextView page : UnclosedStyles) {
        SCOPED_TRACE(Utf8FromText(page));
        EXPECT_THROW(static_cast<void>(PageWithStyle(page, Element)), UnclosedElementFailure);
    }
}

TEST(HtmlRewriting, LinkingAgainChangesNothingMore) {
    const Text element = LinkElement(u"stylesheet", u"main.css", u"");
    for (const PageCase& row : LinkCases) {
        const std::optional<Text> once = PageWithLink(row.page, element);
        if (!once)
            continue;
        EXPECT_EQ(PageWithLink(*once, element), once) << Utf8FromText(row.page);
    }
}

TEST(HtmlRewriting, EmbeddingAgainLeavesOneElementWithTheLaterText) {
    const Text page = u"<html><head>\n</head></html>";
    const Text first = PageWithStyle(page, StyleElement(u"a{}", u"print")).value();
    const Text second = PageWithStyle(first, StyleElement(u"b{}", u"")).value();
    EXPECT_EQ(second, u"<html><head>\n<style type=\"text/css\" >b{}</style>  </head></html>");
    EXPECT_EQ(ExtractStyleSheetText(second), u"b{}");
}

TEST(HtmlRewriting, AnAlternateLinkReplacesAPlainOneButNotTheOtherWayRound) {
    const Text plain = LinkElement(u"stylesheet", u"a.css", u"");
    const Text alternate = LinkElement(u"alternate stylesheet", u"b.css", u"");
    EXPECT_EQ(PageWithLink(plain + u"</head>", alternate), alternate + u"</head>");
    EXPECT_EQ(PageWithLink(alternate + u"</head>", plain), alternate + plain + u"  </head>");
}

TEST(HtmlRewriting, AnElementForTheHeadReplacesNone) {
    const TextView linked = u"<link rel=\"stylesheet\" href=\"a.css\"></HEAD></head>";
    EXPECT_EQ(PageWithElementInHead(linked, Element), u"<link rel=\"stylesheet\" href=\"a.css\">[E]  </HEAD></head>");
    EXPECT_EQ(PageWithElementInHead(u"</head>", Element), u"[E]  </head>");
    EXPECT_EQ(PageWithElementInHead(u"<link rel=\"stylesheet\"></body>", Element), std::nullopt);
    EXPECT_EQ(PageWithElementInHead(u"", Element), std::nullopt);
    EXPECT_EQ(PageWithElementInHead(PageOf(u"</head>", 32767), Element), PageOf(u"[E]  </head>", 32767));
    EXPECT_THROW(static_cast<void>(PageWithElementInHead(PageOf(u"</head>", 32768), Element)), OverflowFailure);
}

TEST(HtmlRewriting, AHeadThatEndsWithinTheLimitOfPositionsTakesTheElement) {
    const Text page = PageOf(u"</head>" + Text(40000, u'x'), 32767);
    const Text expected = PageOf(u"[E]  </head>" + Text(40000, u'x'), 32767);
    EXPECT_EQ(PageWithLink(page, Element), expected);
    EXPECT_EQ(PageWithStyle(page, Element), expected);
}

TEST(HtmlRewriting, AHeadThatEndsBeyondTheLimitOfPositionsFails) {
    for (const std::size_t headEnd : {32768U, 65536U, 70000U}) {
        const Text page = PageOf(u"</head>", headEnd);
        EXPECT_THROW(static_cast<void>(PageWithLink(page, Element)), OverflowFailure) << headEnd;
        EXPECT_THROW(static_cast<void>(PageWithStyle(page, Element)), OverflowFailure) << headEnd;
    }
}

TEST(HtmlRewriting, AnElementBeyondTheLimitOfPositionsIsReplacedAllTheSame) {
    EXPECT_EQ(PageWithLink(PageOf(u"<link rel=\"stylesheet\" a></head>", 70000), Element),
              PageOf(u"[E]</head>", 70000));
    EXPECT_EQ(PageWithStyle(PageOf(u"<style>a{}</style></head>", 70000), Element), PageOf(u"[E]</head>", 70000));
}

TEST(HtmlRewriting, ALargePageWithoutAHeadHasNoLimit) {
    EXPECT_EQ(PageWithLink(Text(70000, u'x'), Element), std::nullopt);
    EXPECT_EQ(PageWithStyle(Text(70000, u'x'), Element), std::nullopt);
}

TEST(HtmlRewriting, TheURLOfTheFirstLinkIsFound) {
    for (const UrlCase& row : UrlCases)
        EXPECT_EQ(LinkedStyleSheetURL(row.page), row.url) << Utf8FromText(row.page);
}

TEST(HtmlRewriting, ALinkThatEndsBeyondTheLimitOfPositionsIsNotFollowed) {
    const Text link = u"<link rel=\"stylesheet\" href=\"a.css\">";
    EXPECT_EQ(LinkedStyleSheetURL(PageOf(link, 32767 - link.size())), u"a.css");
    EXPECT_THROW(static_cast<void>(LinkedStyleSheetURL(PageOf(link, 32768 - link.size()))), OverflowFailure);
    EXPECT_THROW(static_cast<void>(LinkedStyleSheetURL(PageOf(link, 70000))), OverflowFailure);
}

TEST(HtmlRewriting, LinkElementsAreCounted) {
    for (const CountCase& row : LinkCounts)
        EXPECT_EQ(GetLinkElements(row.text), Texts(row.count)) << Utf8FromText(row.text);
}

TEST(HtmlRewriting, PagesInWhichEverythingRepeatsTakeNoLonger) {
    Text opening;
    while (opening.size() < 1'000'000)
        opening += u"<link rel=\"stylesheet\"";
    const Text page = opening + u">" + opening + opening;
    EXPECT_EQ(PageWithLink(page, Element), u"[E]" + opening + opening);
    Text style;
    while (style.size() < 1'000'000)
        style += u"<style";
    EXPECT_EQ(PageWithStyle(style + u"/style>" + style, Element), u"[E]" + style);
}

}  // namespace
}  // namespace tintora
