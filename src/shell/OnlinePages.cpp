#include "shell/OnlinePages.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

constexpr TextView KeyPrefix = u"miH";

constexpr TextView Standards = u"&Standards";
constexpr TextView References = u"&References";
constexpr TextView Validators = u"&Validators";
constexpr TextView Accessibility = u"&Accessibility";
constexpr TextView Color = u"&Color";

constexpr auto Pages = std::to_array<OnlinePage>({
    {u"miHCSSStandards", Standards, u"CSS at the &W3C", u"https://www.w3.org/Style/CSS/",
     u"The home page of CSS at the World Wide Web Consortium"},
    {u"miHCSSCurrentWork", Standards, u"CSS C&urrent Work", u"https://www.w3.org/Style/CSS/current-work",
     u"All CSS specifications and how far each of them is"},
    {u"miHCSSSnapshot", Standards, u"CSS &Snapshot", u"https://www.w3.org/TR/CSS/",
     u"The specifications that make up CSS today"},
    {u"miHCSS1", Standards, u"CSS Level &1", u"https://www.w3.org/TR/CSS1/", u"The first specification of CSS"},
    {u"miHCSS2", Standards, u"CSS Level &2", u"https://www.w3.org/TR/CSS2/",
     u"The specification of CSS 2.1: properties, selectors, the box model"},
    {u"miHSelectors", Standards, u"S&electors", u"https://www.w3.org/TR/selectors-3/",
     u"The specification of selectors, level 3"},
    {u"miHMediaQueries", Standards, u"&Media Queries", u"https://www.w3.org/TR/mediaqueries-3/",
     u"The specification of media queries, level 3"},
    {u"miHHTML", Standards, u"&HTML", u"https://html.spec.whatwg.org/", u"The living standard of HTML"},
    {u"miHHTML4", Standards, u"HTML &4.01", u"https://www.w3.org/TR/html401/", u"The specification of HTML 4.01"},

    {u"miHCSSReference", References, u"&CSS Reference", u"https://developer.mozilla.org/en-US/docs/Web/CSS/Reference",
     u"Every property, selector and at-rule of CSS by its name"},
    {u"miHCSSGuides", References, u"CSS &Guides", u"https://developer.mozilla.org/en-US/docs/Web/CSS",
     u"Guides and tutorials for the parts of CSS"},
    {u"miHHTMLReference", References, u"&HTML Reference", u"https://developer.mozilla.org/en-US/docs/Web/HTML",
     u"Every element and attribute of HTML, and guides to them"},
    {u"miHLearnCSS", References, u"&Learning CSS", u"https://www.w3.org/Style/CSS/learning",
     u"Books, courses and tutorials that the World Wide Web Consortium lists"},
    {u"miHBrowserSupport", References, u"&Browser Support", u"https://caniuse.com/",
     u"Tables of what each browser supports"},

    {u"miHCSSValidator", Validators, u"&CSS Validator", u"https://jigsaw.w3.org/css-validator/",
     u"Tells whether a style sheet is valid CSS"},
    {u"miHHTMLValidator", Validators, u"&Markup Validator", u"https://validator.w3.org/",
     u"Checks a page against the doctype that it names"},
    {u"miHHTMLChecker", Validators, u"&HTML Checker", u"https://validator.w3.org/nu/",
     u"Checks a page against the living standard of HTML"},
    {u"miHLinkChecker", Validators, u"&Link Checker", u"https://validator.w3.org/checklink",
     u"Looks for broken links in a page or a site"},

    {u"miHAccessibility", Accessibility, u"Web &Accessibility Initiative", u"https://www.w3.org/WAI/",
     u"How to make the Web usable for people with disabilities"},
    {u"miHWCAG", Accessibility, u"&Content Accessibility Guidelines", u"https://www.w3.org/TR/WCAG22/",
     u"The Web Content Accessibility Guidelines (WCAG) 2.2"},
    {u"miHWCAGQuickReference", Accessibility, u"&Quick Reference to the Guidelines",
     u"https://www.w3.org/WAI/WCAG22/quickref/", u"The guidelines as a list, with techniques for each of them"},

    {u"miHColorModule", Color, u"CSS &Color", u"https://www.w3.org/TR/css-color-3/",
     u"The specification of colors, level 3"},
    {u"miHColorNames", Color, u"Color &Names", u"https://www.w3.org/TR/css-color-4/#named-colors",
     u"All color keywords with their values"},
    {u"miHContrastChecker", Color, u"Contrast C&hecker", u"https://webaim.org/resources/contrastchecker/",
     u"Tells whether a text is readable in its color on its background"},
});

}  // namespace

std::span<const OnlinePage> OnlinePages() noexcept { return Pages; }

TextView OnlinePageAddress(TextView key) noexcept {
    const auto found = std::ranges::find_if(
        Pages, [key](const OnlinePage& page) { return page.key == key || page.key.substr(KeyPrefix.size()) == key; });
    return found == Pages.end() ? TextView() : found->address;
}

}  // namespace tintora
