#include "language/HelpPages.h"

#include "language/Vocabulary.h"
#include "text/Encoding.h"

#include <array>
#include <filesystem>
#include <iterator>
#include <system_error>

namespace tintora {

namespace {

/// By the selector type. @page rules have no page.
constexpr auto SelectorPages = std::to_array<TextView>({
    u"index.html",
    u"@import.html",
    u"@media.html",
    u"",
    u"comments.html",
    u"type_selector.html",
    u"link_selector.html",
    u"class_selector.html",
    u"id_selector.html",
    u"descendent_selector.html",
    u"group_selector.html",
    u"dynamic_selector.html",
    u"language_selector.html",
    u"typographical_selector.html",
    u"generated_content_selector.html",
    u"first_child_selector.html",
    u"child_selector.html",
    u"adjacent_sibling_selector.html",
    u"attribute_selector.html",
});

Text ExistingPage(const Text& folder, int number) {
    const Text page = folder + HelpPageName(number);
    std::error_code ignored;
    const bool exists = std::filesystem::is_regular_file(FileNameFromText(page), ignored);
    return exists ? page : folder + u"index.html";
}

}  // namespace

HelpPages::HelpPages(Text applicationFolder) : applicationFolder_(std::move(applicationFolder)) {}

Text HelpPages::GetInfoPagePath(int number) const {
    return ExistingPage(applicationFolder_ + u"/Help_Files/Info/", number);
}

Text HelpPages::GetCompatabilityPagePath(int number) const {
    return ExistingPage(applicationFolder_ + u"/Help_Files/Compatability/", number);
}

Text HelpPageName(int number) {
    if (number >= 1052 && number <= 1071)
        return u"border.html";
    if (number >= 1073 && number <= 1076)
        return u"outline.html";
    if (IsPropertyNumber(number))
        return Text(PropertyNameFromNumber(number)) + u".html";
    return number >= 0 && number < std::ssize(SelectorPages) ? Text(SelectorPages[static_cast<std::size_t>(number)])
                                                             : Text();
}

}  // namespace tintora
