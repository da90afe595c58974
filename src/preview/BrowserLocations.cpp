#include "preview/BrowserLocations.h"

#include "linking/TextFiles.h"
#include "settings/PathLists.h"
#include "settings/Settings.h"

#include <span>

namespace tintora {

namespace {

constexpr auto SystemPrograms = std::to_array<TextView>({u"xdg-open"});
constexpr auto ChromiumPrograms = std::to_array<TextView>(
    {u"chromium", u"chromium-browser", u"google-chrome", u"google-chrome-stable", u"microsoft-edge",
     u"microsoft-edge-stable", u"brave-browser", u"brave-browser-stable", u"vivaldi", u"vivaldi-stable"});
constexpr auto OperaPrograms =
    std::to_array<TextView>({u"opera", u"opera-stable", u"opera-beta", u"opera-developer", u"opera-gx"});
constexpr auto FirefoxPrograms = std::to_array<TextView>(
    {u"firefox", u"firefox-esr", u"firefox-bin", u"firefox-beta", u"firefox-devedition", u"firefox-nightly"});

struct BrowserFacts {
    SettingKey key;
    TextView name;
    std::span<const TextView> programs;
};

constexpr auto Facts = std::to_array<BrowserFacts>({
    {setting::IELocation, u"Default browser", SystemPrograms},
    {setting::NetscapeLocation, u"Chromium", ChromiumPrograms},
    {setting::OperaLocation, u"Opera", OperaPrograms},
    {setting::MozillaLocation, u"Firefox", FirefoxPrograms},
});

const BrowserFacts& FactsOf(NamedBrowser browser) { return Facts[static_cast<std::size_t>(browser)]; }

}  // namespace

Text BrowserLocations::Default(NamedBrowser browser) const { return search_.FindFirst(FactsOf(browser).programs); }

Text BrowserLocations::Get(NamedBrowser browser) const {
    Text stored = Settings(store_).Get(FactsOf(browser).key);
    return stored.empty() ? Default(browser) : stored;
}

void BrowserLocations::Save(NamedBrowser browser, TextView path) { Settings(store_).Save(FactsOf(browser).key, path); }

Text BrowserLocations::Name(NamedBrowser browser, const WebBrowsers& browsers) const {
    const Text location = browser == NamedBrowser::IE ? Text() : Get(browser);
    return FileExists(location) ? browsers.FileDescription(location) : Text(FactsOf(browser).name);
}

Texts BrowserLocations::GetAllPreviewBrowsers() const {
    return SplitPaths(Settings(store_).Get(setting::AllPreviewBrowsers));
}

void BrowserLocations::SaveAllPreviewBrowsers(const Texts& paths) {
    Settings(store_).Save(setting::AllPreviewBrowsers, JoinPaths(paths));
}

}  // namespace tintora
