#include "linking/HtmlStyle.h"

#include "linking/TemporaryFolder.h"
#include "linking/TextFiles.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

#include <array>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct PageCase {
    TextView text;
    bool isPage;
};

constexpr auto PageCases = std::to_array<PageCase>({
    {u"", false},
    {u"<html></html>", true},
    {u"<HTML lang=en></HtMl>", true},
    {u"<!-- </html> --> p { } <html", true},
    {u"<htmlx></html>", true},
    {u"<html></body>", false},
    {u"<html></html >", false},
    {u"</html>", false},
    {u"<html>", false},
    {u"< html></html>", false},
    {u"<body><p>a fragment</p></body>", false},
    {u"a { color: red }", false},
    {u"\0<html\0</html>\0"sv, true},
    {u"<html\xD800</html>", true},
});

struct ElementCase {
    TextView text;
    TextView element;
};

constexpr auto ElementCases = std::to_array<ElementCase>({
    {u"", u""},
    {u"<html></html>", u""},
    {u"a { }", u""},
    {u"/style>", u""},
    {u"</style>", u""},
    {u"<style></style>", u"<style></style>"},
    {u"x<style>a{}</style>y", u"<style>a{}</style>"},
    {u"<STYLE Type='text/css'>A{}</Style>", u"<STYLE Type='text/css'>A{}</Style>"},
    {u"<style>a{}</style><style>b{}</style>", u"<style>a{}</style>"},
    {u"</style> <style>a{}</style>", u"<style>a{}</style>"},
    {u"<!-- <style>a{} --> <style>b{}</style>", u"<style>a{} --> <style>b{}</style>"},
    {u"<stylesheet>a{}</stylesheet> b{}</style>", u"<stylesheet>a{}</stylesheet> b{}</style>"},
    {u"<style>a{}</style >b{}< /style>", u"<style>a{}</style >b{}< /style>"},
    {u"<style/style>", u"<style/style>"},
    {u"<style>\0\xD800</style>"sv, u"<style>\0\xD800</style>"sv},

    // Without an end, the element is what precedes the seventh character of the text.
    {u"<style", u"<style"},
    {u"<style>a{}", u"<style"},
    {u"1<style>a{}", u"<styl"},
    {u"12345<style>a{}", u"<"},
    {u"123456<style>a{}", u""},
});

constexpr auto UnclosedElements = std::to_array<TextView>({
    u"1234567<style>a{}",
    u"<html><head><style>a{}</head></html>",
    u"/style> <style>",
    u"<html>  <style>a{}</styl></html>",
});

struct SheetCase {
    TextView text;
    TextView sheet;
};

constexpr auto SheetCases = std::to_array<SheetCase>({
    // No pages.
    {u"", u""},
    {u"a { color: red }", u"a { color: red }"},
    {u" <style>a{}</style> ", u" <style>a{}</style> "},
    {u"<html><style>a{}</style>", u"<html><style>a{}</style>"},

    // Pages.
    {u"<html></html>", u""},
    {u"<html><style></style></html>", u""},
    {u"<html><style>a{}</style></html>", u"a{}"},
    {u"<HTML><STYLE TYPE=\"text/css\" media=print>\r\nA { }\r\n</STYLE></HTML>", u"\r\nA { }\r\n"},
    {u"<html><style><!-- a{} --></style></html>", u"<!-- a{} -->"},
    {u"<html><style>a > b {}</style></html>", u"a > b {}"},
    {u"<html><style>a{content: '<'}</style></html>", u"a{content: '<'}"},
    {u"<html><style title='x>y'>a{}</style></html>", u"y'>a{}"},
    {u"<html><style>a{}</style><style>b{}</style></html>", u"a{}"},
    {u"<html><style>a{}/style></html>", u""},
    {u"<html><style/style></html>", u""},
    {u"</html><style>a{}</style><html", u"a{}"},
    {u"<style></html><html>", u""},
    {u"<html><style>\0\xD800</style></html>"sv, u"\0\xD800"sv},
});

TEST(HtmlStyle, APageHoldsBothTagsInWhateverOrderAndCase) {
    for (const PageCase& row : PageCases)
        EXPECT_EQ(ContainsHTMLTags(row.text), row.isPage) << Utf8FromText(row.text);
}

TEST(HtmlStyle, TheTextOfAFileDecidesWhetherItIsAPage) {
    const TemporaryFolder folder;
    for (const PageCase& row : PageCases) {
        const std::optional<std::string> bytes = EncodeText(row.text, Encoding::Utf8);
        if (!bytes)
            continue;
        EXPECT_EQ(IsHTMLFile(folder.Write("style.css", *bytes)), row.isPage) << *bytes;
    }
    EXPECT_FALSE(IsHTMLFile(TextFromFileName(folder.FilePath("missing.html"))));
    EXPECT_FALSE(IsHTMLFile(folder.Path()));
    EXPECT_TRUE(IsHTMLFile(folder.Write("legacy.html", "<html>\xE9</html>")));
}

TEST(HtmlStyle, TheFirstElementIsTakenWithItsTags) {
    for (const ElementCase& row : ElementCases)
        EXPECT_EQ(GetStyleElement(row.text), row.element) << Utf8FromText(row.text);
}

TEST(HtmlStyle, AnElementThatDoesNotEndFails) {
    for (const TextView text : UnclosedElements) {
        SCOPED_TRACE(Utf8FromText(text));
        EXPECT_THROW(static_cast<void>(GetStyleElement(text)), UnclosedElementFailure);
    }
    EXPECT_THROW(static_cast<void>(ExtractStyleSheetText(u"<html><head><style>a{}</head></html>")),
                 UnclosedElementFailure);
}

TEST(HtmlStyle, TheContentOfTheElementIsTheStyleSheet) {
    for (const SheetCase& row : SheetCases)
        EXPECT_EQ(ExtractStyleSheetText(row.text), row.sheet) << Utf8FromText(row.text);
}

TEST(HtmlStyle, AnElementWithinTheLimitOfPositionsIsFound) {
    const Text element = u"<style></style>";
    const Text page = Text(32766 - element.size(), u' ') + element + Text(40000, u' ');
    EXPECT_EQ(GetStyleElement(page), element);
    EXPECT_EQ(ExtractStyleSheetText(page + u"<html></html>"), u"");
}

TEST(HtmlStyle, AnElementBeyondTheLimitOfPositionsFails) {
    const Text element = u"<style></style>";
    EXPECT_THROW(static_cast<void>(GetStyleElement(Text(32768 - element.size(), u' ') + element)), OverflowFailure);
    EXPECT_THROW(static_cast<void>(GetStyleElement(Text(70000, u' ') + element)), OverflowFailure);
    EXPECT_THROW(static_cast<void>(GetStyleElement(u"<style>" + Text(40000, u' ') + u"</style>")), OverflowFailure);
    EXPECT_THROW(static_cast<void>(ExtractStyleSheetText(u"<html>" + Text(40000, u' ') + element + u"</html>")),
                 OverflowFailure);
}

TEST(HtmlStyle, ATextThatIsNoPageHasNoLimit) {
    const Text sheet(70000, u'a');
    EXPECT_EQ(ExtractStyleSheetText(sheet), sheet);
    EXPECT_EQ(GetStyleElement(sheet), u"");
}

TEST(HtmlStyle, TheSheetOfThePageInTheSamplesKeepsItsCommentDelimiters) {
    const Text text = ReadTextFile(TextFromFileName(TINTORA_SAMPLES "/site/embedded.html"));
    const Text sheet = ExtractStyleSheetText(text);
    EXPECT_TRUE(ContainsHTMLTags(text));
    EXPECT_NE(sheet.find(u"<!--"), Text::npos);
    EXPECT_NE(sheet.find(u"-->"), Text::npos);
    EXPECT_EQ(sheet.find(u"style>"), Text::npos);
    EXPECT_NE(text.find(sheet), Text::npos);
}

}  // namespace
}  // namespace tintora
