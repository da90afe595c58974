#pragma once

#include "preview/Programs.h"
#include "preview/WebBrowsers.h"
#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <array>

namespace tintora {

/// The browsers that have a location of their own in the settings, in the order of the menus.
enum class NamedBrowser { IE, Netscape, Opera, Mozilla };

inline constexpr std::array NamedBrowsers = {NamedBrowser::IE, NamedBrowser::Netscape, NamedBrowser::Opera,
                                             NamedBrowser::Mozilla};

/// Where the browsers for previews are, as the settings keep it. Nothing is cached.
///
///     BrowserLocations locations(store, ProgramSearch(searchPath));
///     locations.Get(NamedBrowser::Mozilla);               // "/usr/bin/firefox-esr", where nothing is stored
///     locations.Save(NamedBrowser::Mozilla, u"/opt/firefox/firefox");
class BrowserLocations {
  public:
    /// `store` must outlive the object.
    BrowserLocations(SettingsStore& store, ProgramSearch search) : store_(store), search_(std::move(search)) {}

    /// The location that holds where none is stored: for `IE` the system's own way to open a page (`xdg-open`), for
    /// `Mozilla` the first of the usual programs of Firefox that is there, for `Opera` of Opera, for `Netscape` of any
    /// Chromium; "" if none is there.
    [[nodiscard]] Text Default(NamedBrowser browser) const;

    /// The stored location, whether there is such a file or not; the default where nothing, or "", is stored.
    [[nodiscard]] Text Get(NamedBrowser browser) const;
    void Save(NamedBrowser browser, TextView path);

    /// What the browser is called where a person reads it: "Default browser" for `IE`, and for the others what the
    /// program at its location is called; "Chromium", "Opera" and "Firefox" where there is none.
    [[nodiscard]] Text Name(NamedBrowser browser, const WebBrowsers& browsers) const;

    /// The paths of further browsers, in their order.
    [[nodiscard]] Texts GetAllPreviewBrowsers() const;
    void SaveAllPreviewBrowsers(const Texts& paths);

  private:
    SettingsStore& store_;
    ProgramSearch search_;
};

}  // namespace tintora
