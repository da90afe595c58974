#include "preview/PageLinks.h"

#include "preview/TagReader.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <limits>

namespace tintora {
namespace {

struct TagCase {
    TextView page;
    /// Each tag as "name(attribute=value, ...)@start+length".
    std::string_view tags;
};

constexpr auto TagCases = std::to_array<TagCase>({
    {u"", ""},
    {u"plain < text <", ""},
    {u"<p>", "p()@0+3"},
    {u"a<P Class=Big>b</P>", "p(class=Big)@1+13"},
    {u"<a href=\"x > y\" title='it\"s'>", "a(href=x > y, title=it\"s)@0+29"},
    {u"<a\n\thref = x\ny/>", "a(href=x, y=)@0+16"},
    {u"<br/><img src=a/>", "br()@0+5 img(src=a/)@5+12"},
    {u"<a =b=c>", "a(=b=c)@0+8"},
    {u"<a b='1'c=2>", "a(b=1, c=2)@0+12"},
    {u"<a href=>", "a(href=)@0+9"},
    {u"<a href=''>", "a(href=)@0+11"},
    {u"<1><_><><a>", "a()@8+3"},
    {u"<<a>", "a()@1+3"},
    {u"</a b='>'><c>", "c()@10+3"},

    // What ends nowhere.
    {u"<a", ""},
    {u"<a b='x><c>", ""},
    {u"<a b=\"x><c>", ""},
    {u"<a b=x", ""},
    {u"</a", ""},

    // Comments and declarations.
    {u"<!-- <a> --><b>", "b()@12+3"},
    {u"<!--><b>", "b()@5+3"},
    {u"<!---><b>", "b()@6+3"},
    {u"<!-- <a>", ""},
    {u"<!DOCTYPE html><b>", "b()@15+3"},
    {u"<?xml <a> ?><b>", "b()@12+3"},
    {u"</ <a> <b>", "b()@7+3"},

    // Plain text.
    {u"<script>a < b; '<b>'</script><c>", "script()@0+8 c()@29+3"},
    {u"<STYLE><b></Style ><c>", "style()@0+7 c()@19+3"},
    {u"<title></titles><b></title><c>", "title()@0+7 c()@27+3"},
    {u"<textarea><b></textarea><c>", "textarea()@0+10 c()@24+3"},
    {u"<noscript><b></noscript/><c>", "noscript()@0+10 c()@25+3"},
    {u"<title><b>", "title()@0+7"},
    {u"<title><b></title", "title()@0+7"},
    {u"<scripty><b>", "scripty()@0+9 b()@9+3"},
});

std::string Dump(const Tag& tag) {
    std::string dump = Utf8FromText(tag.name) + "(";
    for (const auto& [name, value] : tag.attributes)
        dump += (dump.ends_with('(') ? "" : ", ") + Utf8FromText(name) + "=" + Utf8FromText(value);
    return dump + ")@" + std::to_string(tag.start) + "+" + std::to_string(tag.length);
}

TEST(TagReader, ReadsTheStartTagsAsABrowserDoes) {
    for (const TagCase& row : TagCases) {
        std::string tags;
        TagReader reader(row.page);
        while (const std::optional<Tag> tag = reader.Next())
            tags += (tags.empty() ? "" : " ") + Dump(*tag);
        EXPECT_EQ(tags, row.tags) << Utf8FromText(row.page);
        EXPECT_FALSE(reader.Next().has_value()) << "nor afterwards";
    }
}

TEST(TagReader, GivesTheFirstOfTwoAttributesOfOneName) {
    TagReader reader(u"<a b=1 B=2 c>");
    const std::optional<Tag> tag = reader.Next();
    ASSERT_TRUE(tag.has_value());
    EXPECT_EQ(tag->Attribute(u"b"), u"1");
    EXPECT_EQ(tag->Attribute(u"c"), u"");
    EXPECT_EQ(tag->Attribute(u"d"), std::nullopt);
}

struct LinkCase {
    TextView page;
    /// The addresses, each in brackets.
    std::string_view addresses;
};

constexpr auto LinkCases = std::to_array<LinkCase>({
    {u"<link rel=\"stylesheet\" href=\"a.css\">", "[a.css]"},
    {u"<LINK HREF='a.css' TYPE=text/css REL=StyleSheet />", "[a.css]"},
    {u"<link rel=' alternate\nstylesheet ' href=a.css>", "[a.css]"},
    {u"<link rel=stylesheet>", "[]"},
    {u"<link rel=stylesheets href=a.css><link rel=icon href=b><link href=c.css>", ""},
    {u"<link rel=preload as=style href=a.css>", ""},
    {u"<links rel=stylesheet href=a.css>", ""},
    {u"<!-- <link rel=stylesheet href=a.css> --><link rel=stylesheet href=b.css>", "[b.css]"},
    {u"<noscript><link rel=stylesheet href=a.css></noscript>", ""},
    {u"<head></head><body><link rel=stylesheet href=a.css></body>", "[a.css]"},
    {u"<link rel=stylesheet href=a.css><link rel=stylesheet href=a.css>", "[a.css][a.css]"},
    {u"<link rel=stylesheet href='a&amp;b&lt;&gt;&quot;&apos;.css'>", "[a&b<>\"'.css]"},
    {u"<link rel=stylesheet href='&#65;&#x42;&#X1F600;.css'>", "[AB\xF0\x9F\x98\x80.css]"},
    {u"<link rel=stylesheet href='a&b&;&nothing;&#;&#x;&#xG;&#99999999;&#38'>",
     "[a&b&;&nothing;&#;&#x;&#xG;&#99999999;&#38]"},
});

TEST(PageLinks, AreTheElementsThatLeadToStyleSheets) {
    for (const LinkCase& row : LinkCases) {
        std::string addresses;
        for (const StyleSheetLink& link : FindPageLinks(row.page).styleSheets) {
            addresses += "[" + Utf8FromText(link.href) + "]";
            const TextView element = row.page.substr(link.start, link.length);
            EXPECT_TRUE(element.starts_with(u'<') && element.ends_with(u'>')) << Utf8FromText(element);
        }
        EXPECT_EQ(addresses, row.addresses) << Utf8FromText(row.page);
    }
}

TEST(PageLinks, AreRelativeToTheFirstBaseWithAnAddress) {
    EXPECT_EQ(FindPageLinks(u"<base target=_top><BASE HREF='../x&amp;y/'><base href=z>").base, u"../x&y/");
    EXPECT_EQ(FindPageLinks(u"<!-- <base href=x> -->").base, u"");
}

std::clock_t TimeOfSearch(const Text& page) {
    auto shortest = std::numeric_limits<std::clock_t>::max();
    for (int round = 0; round < 3; ++round) {
        const std::clock_t start = std::clock();
        EXPECT_LE(FindPageLinks(page).styleSheets.size(), page.size());
        shortest = std::min(shortest, std::clock() - start);
    }
    return shortest;
}

Text Repeated(TextView text, std::size_t count) {
    Text repeated;
    while (count-- > 0)
        repeated += text;
    return repeated;
}

TEST(PageLinks, TakeTimeInProportionToThePage) {
    for (const TextView pattern : {u"<", u"<a ", u"<a b='", u"<!--", u"<!", u"</", u"<title>", u"<title></titl", u"&#",
                                   u"<link rel=stylesheet href=&amp", u"<a b=c d=e>"}) {
        constexpr std::size_t Count = 20'000;
        const std::clock_t once = TimeOfSearch(Repeated(pattern, Count));
        const std::clock_t eightTimes = TimeOfSearch(Repeated(pattern, 8 * Count));
        // In proportion it is 8 times, with the square of the length 64 times.
        constexpr std::clock_t Allowance = CLOCKS_PER_SEC / 100;
        EXPECT_LE(eightTimes, 24 * once + Allowance) << Utf8FromText(pattern);
    }
}

}  // namespace
}  // namespace tintora
