#include "preview/WebBrowsers.h"

#include "preview/BrowserFixture.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

namespace fs = std::filesystem;

class WebBrowsersTest : public test::BrowserTest {
  protected:
    [[nodiscard]] WebBrowsers Read() const {
        return {{PathOf("home/share/applications"), PathOf("share/applications")}, ProgramSearch(PathOf("bin"))};
    }

    /// The browsers as "name: path below the folder of the test".
    [[nodiscard]] std::vector<std::string> All() const {
        std::vector<std::string> browsers;
        const WebBrowsers read = Read();
        for (const WebBrowser& browser : read.All())
            browsers.push_back(Utf8FromText(browser.name) + ": " +
                               FileNameFromText(browser.path).substr(files_.FilePath("").size()));
        return browsers;
    }

    [[nodiscard]] std::string At(std::string_view name) const { return files_.FilePath(name); }
};

using Found = std::vector<std::string>;

TEST_F(WebBrowsersTest, AreTheDeclaredOnesThatAreThereInTheOrderOfTheirNames) {
    static_cast<void>(MakeProgram("bin/firefox"));
    static_cast<void>(MakeProgram("opt/my browser/run"));
    static_cast<void>(MakeProgram("bin/aaa"));
    Declare("share/applications/1.desktop", "Name=Zebra\nExec=firefox %u");
    Declare("share/applications/2.desktop", "Name=alpha\nExec=\"" + At("opt/my browser/run") + "\" --flag %U");
    Declare("share/applications/3.desktop", "Name=Beta\nExec=aaa");
    Declare("share/applications/4.desktop", "Name=Gone\nExec=missing %u");
    Declare("share/applications/5.desktop", "Name=Nothing");
    EXPECT_EQ(All(), (Found{"alpha: opt/my browser/run", "Beta: bin/aaa", "Zebra: bin/firefox"}));
}

TEST_F(WebBrowsersTest, AreOnlyThoseThatAPersonCanUse) {
    static_cast<void>(MakeProgram("bin/run"));
    Declare("share/applications/1.desktop", "Name=Text\nExec=run %u\nTerminal=true");
    Declare("share/applications/2.desktop", "Name=Hidden\nExec=run %u\nNoDisplay=true");
    Declare("share/applications/3.desktop", "Name=Try\nExec=run %u\nTryExec=missing");
    Declare("share/applications/4.desktop", "Name=Shell\nExec=run -c \"firefox %u\"");
    Declare("share/applications/5.desktop", "Exec=run %u");
    static_cast<void>(files_.Write("share/applications/6.desktop",
                                   "[Desktop Entry]\nType=Application\nName=Editor\nExec=run %u\nCategories=Network;"));
    EXPECT_EQ(All(), Found());
    Declare("share/applications/7.desktop", "Name=Good\nExec=run %u\nTryExec=run");
    EXPECT_EQ(All(), Found{"Good: bin/run"});
}

TEST_F(WebBrowsersTest, AreOfferedOnceEach) {
    static_cast<void>(MakeProgram("bin/run"));
    fs::create_symlink(At("bin/run"), At("bin/link"));
    Declare("share/applications/1.desktop", "Name=One\nExec=run %u");
    Declare("share/applications/2.desktop", "Name=Two\nExec=" + At("bin/run") + " --private %u");
    Declare("share/applications/3.desktop", "Name=Three\nExec=link");
    EXPECT_EQ(All(), Found{"One: bin/run"});
}

TEST_F(WebBrowsersTest, MayBeStartedWithAnEnvironment) {
    static_cast<void>(MakeProgram("bin/run"));
    static_cast<void>(MakeProgram("bin/env"));
    Declare("share/applications/1.desktop", "Name=One\nExec=env A=b HINT=/x/y.desktop run %u");
    Declare("share/applications/2.desktop", "Name=Two\nExec=env A=b");
    EXPECT_EQ(All(), Found{"One: bin/run"});
}

TEST_F(WebBrowsersTest, OfASandboxAreTheProgramsThatItExports) {
    static_cast<void>(MakeProgram("bin/flatpak"));
    static_cast<void>(MakeProgram("home/bin/org.example.Web"));
    const std::string command = "Exec=flatpak run --command=web org.example.Web @@u %u @@";
    Declare("home/share/applications/org.example.Web.desktop", "Name=Web\n" + command);
    Declare("home/share/applications/org.example.Other.desktop", "Name=Other\n" + command);
    EXPECT_EQ(All(), Found{"Web: home/bin/org.example.Web"});
}

TEST_F(WebBrowsersTest, ThatAreLinksToOneProgramAreSeveral) {
    static_cast<void>(MakeProgram("lib/launcher"));
    fs::create_directory(At("bin"));
    fs::create_symlink(At("lib/launcher"), At("bin/firefox"));
    fs::create_symlink(At("lib/launcher"), At("bin/chromium"));
    Declare("share/applications/1.desktop", "Name=Firefox\nExec=firefox %u");
    Declare("share/applications/2.desktop", "Name=Chromium\nExec=chromium %u");
    EXPECT_EQ(All(), (Found{"Chromium: bin/chromium", "Firefox: bin/firefox"}));
    EXPECT_EQ(Read().FileDescription(PathOf("bin/firefox")), u"Firefox");
    EXPECT_EQ(Read().FileDescription(PathOf("bin/chromium")), u"Chromium");
}

TEST_F(WebBrowsersTest, AreCalledAsTheirDesktopFilesSay) {
    const Text firefox = MakeProgram("lib/firefox-esr/firefox-esr");
    static_cast<void>(MakeProgram("bin/firefox-esr"));
    static_cast<void>(MakeProgram("bin/viewer"));
    static_cast<void>(MakeProgram("bin/chrome"));
    fs::create_symlink(FileNameFromText(firefox), At("bin/x-www-browser"));
    Declare("share/applications/1.desktop", "Name=Firefox ESR\nExec=" + FileNameFromText(firefox) + " %u");
    static_cast<void>(files_.Write("share/applications/0.desktop",
                                   "[Desktop Entry]\nType=Application\nName=Viewer & Co\nExec=viewer %f\n"));
    static_cast<void>(files_.Write("share/applications/00.desktop",
                                   "[Desktop Entry]\nType=Application\nName=Mail\nExec=chrome --app=mail\n"));
    const WebBrowsers browsers = Read();
    EXPECT_EQ(browsers.FileDescription(firefox), u"Firefox ESR");
    EXPECT_EQ(browsers.FileDescription(PathOf("bin/x-www-browser")), u"Firefox ESR") << "a link to it";
    EXPECT_EQ(browsers.FileDescription(PathOf("bin/firefox-esr")), u"Firefox ESR") << "the same file name";
    EXPECT_EQ(browsers.FileDescription(PathOf("bin/viewer")), u"Viewer & Co") << "no browser, and yet it has a name";
    EXPECT_EQ(browsers.FileDescription(PathOf("bin/chrome")), u"chrome") << "what it shows isn't what it is";
    EXPECT_EQ(browsers.FileDescription(u"/opt/a b/\u0436.sh"), u"\u0436.sh");
    EXPECT_EQ(browsers.FileDescription(u""), u"");
}

}  // namespace
}  // namespace tintora
