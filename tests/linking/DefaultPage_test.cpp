#include "linking/HtmlRewriting.h"
#include "linking/HtmlStyle.h"
#include "linking/TextFiles.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

// The page that the preview shows until the user has chosen another one. It has what a style sheet can be tried on, and
// nothing of its own that comes between.

namespace tintora {
namespace {

/// How often an element must stand there at least.
struct ElementCase {
    std::string_view elements;
    int count;
};

constexpr auto ElementCases = std::to_array<ElementCase>({
    {"h1 h2 h3 h4 h5 h6 address hr", 1},
    {"p", 20},
    {"div", 8},
    {"ul ol", 2},
    {"li", 15},
    {"dl dt dd", 1},
    {"a", 8},
    {"blockquote q cite", 1},
    {"code pre kbd samp var", 1},
    {"em strong b i u s small dfn abbr sub sup bdo span br", 1},
    {"ins del", 1},
    {"img", 1},
    {"table caption colgroup col thead tbody tfoot tr th td", 1},
    {"form fieldset legend label input select optgroup option textarea button", 1},
});

/// What inputs there must be.
constexpr std::string_view InputTypes =
    "text email password url tel search number range color date time datetime-local week month radio checkbox file "
    "submit "
    "reset button";

constexpr std::string_view NamedBlocks = "header nav content sidebar footer";

/// What a page must not hold, since a style sheet would have to fight it, or the preview to run it.
constexpr auto Unwanted = std::to_array<std::string_view>({
    "<style",
    "<link",
    "<script",
    "<font",
    "<center",
    " style=",
    " align=",
    " bgcolor=",
    " border=",
    " onclick=",
    " onload=",
    " src=\"http",
    "lorem",
    "Lorem",
});

// Elements without an end.
constexpr std::string_view EmptyElements = "br col hr img input meta";

struct Tag {
    /// "/p" for the end of a "p".
    std::string name;
    std::map<std::string, std::string> attributes;
};

std::vector<std::string> Words(std::string_view words) {
    std::istringstream stream{std::string(words)};
    return {std::istream_iterator<std::string>(stream), {}};
}

bool Contains(std::string_view words, const std::string& word) {
    const std::vector<std::string> all = Words(words);
    return std::ranges::find(all, word) != all.end();
}

const std::string& Page() {
    static const std::string page =
        ReadFileBytes(TextFromUtf8(TINTORA_SAMPLES "/../data/Help_Files/Preview/default.html"));
    return page;
}

/// What stands between "<" and ">". Values stand in double quotes, and none of them holds a ">".
Tag TagFrom(const std::string& content) {
    std::size_t at = std::min(content.find_first_of(" \n"), content.size());
    Tag tag{content.substr(0, at), {}};
    while ((at = content.find_first_not_of(" \n", at)) != std::string::npos) {
        const std::size_t end = std::min(content.find_first_of("= \n", at), content.size());
        const std::string name = content.substr(at, end - at);
        at = end;
        std::string value;
        if (content.substr(end, 2) == "=\"") {
            at = content.find('"', end + 2);
            value = content.substr(end + 2, at - end - 2);
            ++at;
        }
        EXPECT_TRUE(tag.attributes.emplace(name, value).second) << name << " twice in " << content;
    }
    return tag;
}

const std::vector<Tag>& Tags() {
    static const std::vector<Tag> tags = [] {
        std::vector<Tag> found;
        const std::string& page = Page();
        for (std::size_t at = page.find('<', 1); at != std::string::npos; at = page.find('<', at + 1))
            found.push_back(TagFrom(page.substr(at + 1, page.find('>', at) - at - 1)));
        return found;
    }();
    return tags;
}

/// The values of an attribute in all tags, those of a list one by one.
std::multiset<std::string> ValuesOf(const std::string& attribute) {
    std::multiset<std::string> values;
    for (const Tag& tag : Tags()) {
        const auto found = tag.attributes.find(attribute);
        if (found == tag.attributes.end())
            continue;
        for (const std::string& value : Words(found->second))
            values.insert(value);
    }
    return values;
}

int CountOf(std::string_view part) {
    int count = 0;
    for (std::size_t at = Page().find(part); at != std::string::npos; at = Page().find(part, at + 1))
        ++count;
    return count;
}

/// The selectors that the text of the page names: what its `code` elements begin or go on with "." or "#" for.
std::set<std::string> NamedSelectors() {
    std::set<std::string> selectors;
    constexpr std::string_view Start = "<code>";
    for (std::size_t at = Page().find(Start); at != std::string::npos; at = Page().find(Start, at + 1)) {
        const std::size_t from = at + Start.size();
        for (const std::string& word : Words(Page().substr(from, Page().find('<', from) - from))) {
            const std::size_t mark = word.find_first_of(".#");
            if (mark != std::string::npos)
                selectors.insert(word.substr(mark));
        }
    }
    return selectors;
}

TEST(DefaultPage, HasEveryElementThatASheetMayStyle) {
    std::map<std::string, int> counts;
    for (const Tag& tag : Tags())
        ++counts[tag.name];
    for (const ElementCase& row : ElementCases) {
        for (const std::string& element : Words(row.elements))
            EXPECT_GE(counts[element], row.count) << element;
    }
}

TEST(DefaultPage, HasEveryControlOfAForm) {
    std::set<std::string> types;
    for (const Tag& tag : Tags()) {
        if (tag.name == "input")
            types.insert(tag.attributes.at("type"));
    }
    for (const std::string& type : Words(InputTypes))
        EXPECT_TRUE(types.contains(type)) << type;
}

TEST(DefaultPage, HasNoStyleOfItsOwn) {
    for (const std::string_view part : Unwanted)
        EXPECT_EQ(CountOf(part), 0) << part;
    EXPECT_EQ(ExtractStyleSheetText(DecodeBytes(Page()).text), u"");
}

TEST(DefaultPage, ClosesWhatItOpens) {
    std::vector<std::string> open;
    for (const Tag& tag : Tags()) {
        if (tag.name.starts_with('/')) {
            ASSERT_FALSE(open.empty()) << tag.name;
            ASSERT_EQ(tag.name, "/" + open.back());
            open.pop_back();
        } else if (!Contains(EmptyElements, tag.name)) {
            open.push_back(tag.name);
        }
    }
    EXPECT_TRUE(open.empty());
}

TEST(DefaultPage, NamesInItsTextTheBlocksAndClassesThatASheetCanUse) {
    const std::multiset<std::string> ids = ValuesOf("id");
    const std::multiset<std::string> classes = ValuesOf("class");
    const std::set<std::string> named = NamedSelectors();
    for (const std::string& block : Words(NamedBlocks))
        EXPECT_TRUE(named.contains("#" + block)) << block;
    for (const std::string& name : classes)
        EXPECT_TRUE(named.contains("." + name)) << name;
    for (const std::string& selector : named) {
        const auto& names = selector.starts_with('#') ? ids : classes;
        EXPECT_TRUE(names.contains(selector.substr(1))) << selector;
    }
    EXPECT_GE(classes.size(), 10U);
}

TEST(DefaultPage, LeadsToPlacesThatExist) {
    const std::multiset<std::string> ids = ValuesOf("id");
    for (const std::string& id : ids)
        EXPECT_EQ(ids.count(id), 1U) << id;
    for (const std::string& control : ValuesOf("for"))
        EXPECT_TRUE(ids.contains(control)) << control;
    int places = 0;
    for (const std::string& address : ValuesOf("href")) {
        if (address.starts_with('#')) {
            ++places;
            EXPECT_TRUE(ids.contains(address.substr(1))) << address;
        } else {
            EXPECT_TRUE(address.starts_with("https://")) << address;
        }
    }
    EXPECT_GE(places, 8);
}

TEST(DefaultPage, IsAShortPageInUtf8) {
    EXPECT_LT(Page().size(), 12U * 1024U);
    EXPECT_EQ(DecodeBytes(Page()).encoding, Encoding::Utf8);
    EXPECT_TRUE(Page().starts_with("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"));
    for (const std::string_view part : {"<html", "</html>", "<head>", "</head>"})
        EXPECT_EQ(CountOf(part), 1) << part;
}

TEST(DefaultPage, TakesTheLinkOfThePreviewAtTheEndOfItsHead) {
    const Text page = DecodeBytes(Page()).text;
    EXPECT_TRUE(ContainsHTMLTags(page));
    Text linked = page;
    linked.insert(linked.find(u"</head>"), u"[E]  ");
    EXPECT_EQ(PageWithLink(page, u"[E]"), linked);
}

}  // namespace
}  // namespace tintora
