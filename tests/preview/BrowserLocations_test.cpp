#include "preview/BrowserLocations.h"

#include "preview/BrowserFixture.h"
#include "preview/BrowserMenu.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

struct DefaultCase {
    NamedBrowser browser;
    SettingKey key;
    /// Programs that are there, and the one that is the default.
    std::vector<std::string> programs;
    std::string_view location;
    TextView name;
};

const std::vector<DefaultCase> DefaultCases = {
    {NamedBrowser::IE, setting::IELocation, {"xdg-open", "firefox"}, "bin/xdg-open", u"Default browser"},
    {NamedBrowser::IE, setting::IELocation, {"firefox", "chromium"}, "", u"Default browser"},
    {NamedBrowser::Mozilla, setting::MozillaLocation, {"firefox", "firefox-esr"}, "bin/firefox", u"firefox"},
    {NamedBrowser::Mozilla, setting::MozillaLocation, {"firefox-esr", "chromium"}, "bin/firefox-esr", u"firefox-esr"},
    {NamedBrowser::Mozilla, setting::MozillaLocation, {"chromium"}, "", u"Firefox"},
    {NamedBrowser::Opera, setting::OperaLocation, {"opera"}, "bin/opera", u"opera"},
    {NamedBrowser::Opera, setting::OperaLocation, {"xdg-open"}, "", u"Opera"},
    {NamedBrowser::Netscape, setting::NetscapeLocation, {"google-chrome", "chromium"}, "bin/chromium", u"chromium"},
    {NamedBrowser::Netscape, setting::NetscapeLocation, {"vivaldi-stable"}, "bin/vivaldi-stable", u"vivaldi-stable"},
    {NamedBrowser::Netscape, setting::NetscapeLocation, {}, "", u"Chromium"},
};

class BrowserLocationsTest : public test::BrowserTest {};

TEST_F(BrowserLocationsTest, AreByDefaultTheFirstUsualProgramThatIsThere) {
    for (const DefaultCase& row : DefaultCases) {
        SCOPED_TRACE(row.location);
        std::filesystem::remove_all(files_.FilePath("bin"));
        for (const std::string& program : row.programs)
            static_cast<void>(MakeProgram("bin/" + program));
        const Text location = row.location.empty() ? Text() : PathOf(row.location);
        EXPECT_EQ(Locations().Default(row.browser), location);
        EXPECT_EQ(Locations().Get(row.browser), location);
        EXPECT_EQ(Locations().Name(row.browser, Browsers()), row.name);
        EXPECT_EQ(Stored(row.key), u"") << "a default isn't stored";
    }
}

TEST_F(BrowserLocationsTest, AreTheStoredOnesWhetherTheyAreThereOrNot) {
    for (const DefaultCase& row : DefaultCases) {
        BrowserLocations locations = Locations();
        locations.Save(row.browser, u"/opt/a^b");
        EXPECT_EQ(locations.Get(row.browser), u"/opt/a^b");
        EXPECT_EQ(Stored(row.key), u"/opt/a^b");
        locations.Save(row.browser, u"");
        EXPECT_EQ(locations.Get(row.browser), locations.Default(row.browser));
    }
}

TEST_F(BrowserLocationsTest, AreCalledByWhatIsThere) {
    const Text program = MakeProgram("opt/epiphany");
    Declare("share/web.desktop", "Name=GNOME Web\nExec=" + FileNameFromText(program) + " %U");
    for (const NamedBrowser browser : NamedBrowsers)
        Locations().Save(browser, program);
    EXPECT_EQ(Locations().Name(NamedBrowser::IE, Browsers()), u"Default browser");
    EXPECT_EQ(Locations().Name(NamedBrowser::Netscape, Browsers()), u"GNOME Web");
    EXPECT_EQ(Locations().Name(NamedBrowser::Opera, Browsers()), u"GNOME Web");
    Locations().Save(NamedBrowser::Mozilla, u"/missing/epiphany");
    EXPECT_EQ(Locations().Name(NamedBrowser::Mozilla, Browsers()), u"Firefox");
}

TEST_F(BrowserLocationsTest, OfFurtherBrowsersAreAList) {
    EXPECT_EQ(Locations().GetAllPreviewBrowsers(), Texts());
    const Texts paths = {u"/opt/a^^^b", u"/opt/c d", u"/opt/c d"};
    Locations().SaveAllPreviewBrowsers(paths);
    EXPECT_EQ(Locations().GetAllPreviewBrowsers(), paths);
    EXPECT_EQ(Stored(setting::AllPreviewBrowsers), u"/opt/a^-^-^-b^^^/opt/c d^^^/opt/c d");
}

using Menu = std::vector<std::string>;

class BrowserMenuTest : public test::BrowserTest {
  protected:
    [[nodiscard]] Menu Entries() {
        Menu entries;
        for (const BrowserMenuEntry& entry : BrowserMenu(Locations(), Browsers())) {
            EXPECT_EQ(entry.IsSeparator(), entry.key.empty());
            entries.push_back(Utf8FromText(entry.key) + ": " + Utf8FromText(entry.caption));
        }
        return entries;
    }
};

const Menu FixedEntries = {"PreviewInIE: Preview in Default browser", "PreviewInNS: Preview in Chromium",
                           "PreviewInOpera: Preview in Opera", "PreviewInMozilla: Preview in Firefox"};

TEST_F(BrowserMenuTest, HasFourEntriesAndNoSeparatorWithoutFurtherBrowsers) { EXPECT_EQ(Entries(), FixedEntries); }

TEST_F(BrowserMenuTest, HasAnEntryForEachFurtherBrowserBehindASeparator) {
    static_cast<void>(MakeProgram("bin/web"));
    Declare("share/web.desktop", "Name=Web & Co\nExec=web %U");
    Locations().SaveAllPreviewBrowsers({PathOf("bin/web"), u"/opt/a b/browser.sh", u"/usr/web"});
    Menu entries = FixedEntries;
    entries.insert(entries.end(), {": -", "web: Preview in Web & Co", "browser.sh: Preview in browser.sh",
                                   "web: Preview in Web & Co"});
    EXPECT_EQ(Entries(), entries);
}

TEST(BrowserMenu, KnowsTheKeysOfTheNamedBrowsers) {
    EXPECT_EQ(BrowserForKey(u"PreviewInIE"), NamedBrowser::IE);
    EXPECT_EQ(BrowserForKey(u"PreviewInNS"), NamedBrowser::Netscape);
    EXPECT_EQ(BrowserForKey(u"PreviewInOpera"), NamedBrowser::Opera);
    EXPECT_EQ(BrowserForKey(u"PreviewInMozilla"), NamedBrowser::Mozilla);
    for (const TextView key : {u"", u"-", u"firefox", u"previewinie", u"PreviewIn"})
        EXPECT_EQ(BrowserForKey(key), std::nullopt) << Utf8FromText(key);
}

}  // namespace
}  // namespace tintora
