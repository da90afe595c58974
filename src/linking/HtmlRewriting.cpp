#include "linking/HtmlRewriting.h"

#include "linking/HtmlStyle.h"
#include "linking/LiteralSearch.h"
#include "linking/Paths.h"
#include "linking/TextFiles.h"
#include "text/LowerCase.h"
#include "text/Narrowing.h"
#include "text/StringTable.h"
#include "text/Whitespace.h"

namespace tintora {

namespace {

constexpr TextView LinkTemplate = uR"(<link rel="^0" type="text/css" href="^1" ^2 />)";
constexpr TextView StyleTemplate = uR"(<style type="text/css" ^1>^0</style>)";

constexpr TextView LinkOpening = u"<link rel=";
constexpr TextView LinkToReplace = uR"(<link rel="stylesheet")";
// Without the closing quote: a link whose rel only begins with the word is followed, though it isn't replaced.
constexpr TextView LinkToFollow = uR"(<link rel="stylesheet)";

/// The first link element that starts with `opening`, as a part of the page; nothing if there is none.
std::optional<TextView> FindLinkElement(TextView page, TextView opening) {
    const std::size_t start = FindLowered(page, opening);
    if (start == TextView::npos)
        return std::nullopt;
    const std::size_t end = page.find(u'>', start);
    if (end == TextView::npos)
        throw UnclosedElementFailure("the link element doesn't end");
    return page.substr(start, end - start + 1);
}

std::optional<Text> WithElement(TextView page, std::optional<TextView> old, TextView element) {
    return old ? ReplaceOccurrences(page, *old, element) : PageWithElementInHead(page, element);
}

/// Puts `element` into a page by one of the two functions above.
void RewritePage(TextView path, TextView element, std::optional<Text> (*rewrite)(TextView, TextView),
                 const FileWriter& write) {
    const std::optional<Text> page = rewrite(ReadTextFile(path), element);
    if (!page)
        return;
    if (write)
        write(path, *page);
    else
        WriteTextFile(path, *page);
}

}  // namespace

Text LinkElement(TextView relValue, TextView href, TextView extraAttributes) {
    return FormatMessage(LinkTemplate, relValue, href, extraAttributes);
}

Text StyleElement(TextView cssText, TextView media) {
    Text attribute;
    if (!media.empty())
        attribute.append(u"media=\"").append(media).append(u"\"");
    return FormatMessage(StyleTemplate, cssText, attribute);
}

Text ExtraLinkAttributes(TextView title, TextView media) {
    Text attributes;
    if (!title.empty())
        attributes += u"title=" + QuoteText(title);
    attributes += u' ';
    if (!media.empty())
        attributes += u"media=" + QuoteText(media);
    return attributes.substr(FindNonWhitespace(attributes, 0));
}

std::optional<Text> PageWithElementInHead(TextView page, TextView element) {
    const std::size_t headEnd = FindLowered(page, u"</head>");
    if (headEnd == TextView::npos)
        return std::nullopt;
    static_cast<void>(Narrow(static_cast<long long>(headEnd)));
    Text result;
    result.reserve(page.size() + element.size() + 2);
    return result.append(page, 0, headEnd).append(element).append(u"  ").append(page, headEnd);
}

std::optional<Text> PageWithLink(TextView page, TextView element) {
    return WithElement(page, FindLinkElement(page, LinkToReplace), element);
}

std::optional<Text> PageWithStyle(TextView page, TextView element) {
    return WithElement(page, FindStyleElement(page), element);
}

Text LinkedStyleSheetURL(TextView page) {
    const std::optional<TextView> element = FindLinkElement(page, LinkToFollow);
    if (!element)
        return {};
    static_cast<void>(Narrow(element->data() + element->size() - page.data()));
    const std::size_t name = FindLowered(*element, u"href");
    if (name == TextView::npos)
        return {};
    const std::size_t opening = element->find(u'"', name);
    if (opening == TextView::npos)
        return {};
    const std::size_t closing = element->find(u'"', opening + 1);
    if (closing == TextView::npos)
        return {};
    return Text(element->substr(opening + 1, closing - opening - 1));
}

void LinkStyleSheetInHTMLFile(TextView htmlPath, TextView styleSheetPath, TextView relValue, TextView extraAttributes,
                              const FileWriter& write) {
    const Text href = GetRelativePath(htmlPath, styleSheetPath);
    RewritePage(htmlPath, LinkElement(relValue, href, extraAttributes), PageWithLink, write);
}

void LinkStyleSheetAbsoluteInHTMLFile(TextView htmlPath, TextView styleSheetPath, TextView relValue,
                                      TextView extraAttributes, const FileWriter& write) {
    const Text href = u"file:///" + Text(styleSheetPath);
    RewritePage(htmlPath, LinkElement(relValue, href, extraAttributes), PageWithLink, write);
}

void EmbedStyleSheetInHTMLFile(TextView htmlPath, TextView cssText, TextView media, const FileWriter& write) {
    RewritePage(htmlPath, StyleElement(cssText, media), PageWithStyle, write);
}

Texts GetLinkElements(TextView text) {
    Texts elements;
    for (std::size_t found = FindLowered(text, LinkOpening); found != TextView::npos;
         found = FindLowered(text, LinkOpening, found + 1))
        elements.emplace_back();
    return elements;
}

Text GetLinkedStyleSheetPath(TextView htmlPath) {
    return ResolveRelativePath(htmlPath, LinkedStyleSheetURL(ReadTextFile(htmlPath)));
}

}  // namespace tintora
