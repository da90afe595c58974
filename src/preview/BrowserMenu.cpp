#include "preview/BrowserMenu.h"

#include "linking/Paths.h"

#include <algorithm>

namespace tintora {

namespace {

/// In the order of `NamedBrowsers`.
constexpr std::array<TextView, NamedBrowsers.size()> Keys = {u"PreviewInIE", u"PreviewInNS", u"PreviewInOpera",
                                                             u"PreviewInMozilla"};

Text Caption(const Text& name) { return u"Preview in " + name; }

}  // namespace

std::vector<BrowserMenuEntry> BrowserMenu(const BrowserLocations& locations, const WebBrowsers& browsers) {
    std::vector<BrowserMenuEntry> entries;
    for (std::size_t index = 0; index < Keys.size(); ++index)
        entries.push_back({Text(Keys[index]), Caption(locations.Name(NamedBrowsers[index], browsers))});
    const Texts further = locations.GetAllPreviewBrowsers();
    if (!further.empty())
        entries.push_back({{}, u"-"});
    for (const Text& path : further)
        entries.push_back({GetFileNamePart(path), Caption(browsers.FileDescription(path))});
    return entries;
}

std::optional<NamedBrowser> BrowserForKey(TextView key) {
    const auto found = std::ranges::find(Keys, key);
    if (found == Keys.end())
        return std::nullopt;
    return NamedBrowsers[static_cast<std::size_t>(found - Keys.begin())];
}

}  // namespace tintora
