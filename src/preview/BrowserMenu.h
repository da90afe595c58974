#pragma once

#include "preview/BrowserLocations.h"
#include "preview/WebBrowsers.h"
#include "text/Text.h"

#include <optional>
#include <vector>

/// The menu of the browsers in which a style sheet can be previewed.
namespace tintora {

/// An entry of the menu. A "&" in a caption is a letter of a name, and no mnemonic.
struct BrowserMenuEntry {
    Text key;
    Text caption;

    [[nodiscard]] bool IsSeparator() const { return caption == u"-"; }
};

/// The entries: the four named browsers with the keys "PreviewInIE", "PreviewInNS", "PreviewInOpera" and
/// "PreviewInMozilla", and, if there are further browsers, a separator and an entry for each, whose key is the file
/// name of its program. The caption is "Preview in " and the browser's name.
[[nodiscard]] std::vector<BrowserMenuEntry> BrowserMenu(const BrowserLocations& locations, const WebBrowsers& browsers);

/// The named browser of a key; nothing for any other key, which is the file name of a further browser.
[[nodiscard]] std::optional<NamedBrowser> BrowserForKey(TextView key);

}  // namespace tintora
