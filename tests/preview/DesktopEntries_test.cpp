#include "preview/DesktopEntries.h"

#include "preview/BrowserFixture.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>

namespace tintora {
namespace {

std::string Joined(const Texts& texts) {
    std::string joined;
    for (const Text& text : texts)
        joined += "[" + Utf8FromText(text) + "]";
    return joined;
}

struct WordsCase {
    TextView command;
    std::string_view words;
};

constexpr auto WordsCases = std::to_array<WordsCase>({
    {u"", ""},
    {u"  ", ""},
    {u"firefox", "[firefox]"},
    {u" /usr/bin/firefox  --new-window %u ", "[/usr/bin/firefox][--new-window][%u]"},
    {u"\"/opt/my browser/run\" %u", "[/opt/my browser/run][%u]"},
    {u"a\"b c\"d", "[ab cd]"},
    {u"\"\" x", "[][x]"},
    {u"\"a \\\" \\` \\$ \\\\ b\"", "[a \" ` $ \\ b]"},
    {u"a\\ b", "[a\\][b]"},
    {u"\"a b", "[a b]"},
    {u"\"a\\", "[a\\]"},
});

TEST(DesktopEntries, PartTheirCommandsIntoWords) {
    for (const WordsCase& row : WordsCases)
        EXPECT_EQ(Joined(CommandWords(row.command)), row.words) << Utf8FromText(row.command);
}

struct EntryCase {
    TextView text;
    /// "name; command; tryExec; categories; hidden; terminal", or "" for none.
    std::string_view entry;
};

constexpr auto EntryCases = std::to_array<EntryCase>({
    {u"", ""},
    {u"[Desktop Entry]\nName=Firefox", ""},
    {u"[Desktop Entry]\nType=Link\nName=A page", ""},
    {u"Type=Application\nName=No group", ""},
    {u"[Desktop Entry]\nType=Application", "; ; ; ; ; "},
    {u"[Desktop Entry]\nType=Application\nName=Firefox\nExec=firefox %u\nCategories=Network;WebBrowser;\n",
     "Firefox; [firefox][%u]; ; [Network][WebBrowser]; ; "},
    {u"# a comment\r\n[Desktop Entry]\r\n Type = Application \r\n Name = A  browser \r\n", "A  browser; ; ; ; ; "},
    {u"[Desktop Entry]\nType=Application\nName[de]=Netz\nName=One\nName=Two\n#Name=Three", "One; ; ; ; ; "},
    {u"[Other]\nName=Other\n[Desktop Entry]\nType=Application\nName=Main\n[Desktop Action new]\nName=New window\n"
     u"Exec=new\nType=X",
     "Main; ; ; ; ; "},
    {u"[Desktop Entry]\nType=Application\nName=a\\sb\\\\c\\d\\", "a b\\c\\d\\; ; ; ; ; "},
    {u"[Desktop Entry]\nType=Application\nExec=\"a \\\\\\\\ b\"\nTryExec=/opt/a b", "; [a \\ b]; /opt/a b; ; ; "},
    {u"[Desktop Entry]\nType=Application\nHidden=true", "; ; ; ; hidden; "},
    {u"[Desktop Entry]\nType=Application\nNoDisplay=true", "; ; ; ; hidden; "},
    {u"[Desktop Entry]\nType=Application\nNoDisplay=false\nHidden=no\nTerminal=true", "; ; ; ; ; terminal"},
    {u"[Desktop Entry]\nType=Application\nCategories=;;WebBrowser", "; ; ; [WebBrowser]; ; "},
    {u"[Desktop Entry]\nType=Application\nName=\u7f51\u7edc", "\xE7\xBD\x91\xE7\xBB\x9C; ; ; ; ; "},
});

std::string Dump(const DesktopEntry& entry) {
    return Utf8FromText(entry.name) + "; " + Joined(entry.command) + "; " + Utf8FromText(entry.tryExec) + "; " +
           Joined(entry.categories) + "; " + (entry.isHidden ? "hidden" : "") + "; " +
           (entry.needsTerminal ? "terminal" : "");
}

TEST(DesktopEntries, AreReadFromTheGroupThatDescribesTheFile) {
    for (const EntryCase& row : EntryCases) {
        const std::optional<DesktopEntry> entry = ParseDesktopEntry(row.text);
        EXPECT_EQ(entry ? Dump(*entry) : "", row.entry) << Utf8FromText(row.text);
    }
}

class DesktopEntriesTest : public test::BrowserTest {
  protected:
    [[nodiscard]] std::string Names(const std::vector<std::string>& folders) const {
        Texts paths;
        for (const std::string& folder : folders)
            paths.push_back(PathOf(folder));
        std::string names;
        for (const DesktopEntry& entry : ReadDesktopEntries(paths))
            names += "[" + Utf8FromText(entry.name) + "]";
        return names;
    }
};

TEST_F(DesktopEntriesTest, OfAnEarlierFolderTakeThePlaceOfThoseOfALater) {
    Declare("home/b.desktop", "Name=My b");
    Declare("home/c.desktop", "Name=My c\nHidden=true");
    Declare("home/d-e.desktop", "Name=My e");
    Declare("usr/a.desktop", "Name=a");
    Declare("usr/b.desktop", "Name=b");
    Declare("usr/c.desktop", "Name=c");
    Declare("usr/d/e.desktop", "Name=e");
    Declare("usr/d/f.desktop", "Name=f");
    EXPECT_EQ(Names({"home", "missing", "usr"}), "[My b][My e][a][f]");
    EXPECT_EQ(Names({"usr/", "home"}), "[a][b][c][e][f]");
    EXPECT_EQ(Names({}), "");
}

TEST_F(DesktopEntriesTest, AreFilesOfThatExtensionOrLinksToThem) {
    Declare("elsewhere/a", "Name=a");
    std::filesystem::create_directories(files_.FilePath("usr/folder.desktop"));
    std::filesystem::create_symlink(files_.FilePath("elsewhere/a"), files_.FilePath("usr/a.desktop"));
    std::filesystem::create_symlink(files_.FilePath("elsewhere/missing"), files_.FilePath("usr/b.desktop"));
    std::filesystem::create_directory_symlink(files_.FilePath("usr"), files_.FilePath("usr/circle"));
    Declare("usr/c.desktop~", "Name=c");
    static_cast<void>(files_.Write("usr/d.desktop", "\xFF\xFE\x00"));
    ASSERT_EQ(::mkfifo(files_.FilePath("usr/pipe.desktop").c_str(), 0600), 0);
    EXPECT_EQ(Names({"usr"}), "[a]");
    for (const DesktopEntry& entry : ReadDesktopEntries({PathOf("usr")}))
        EXPECT_EQ(entry.path, PathOf("usr/a.desktop"));
}

struct FoldersCase {
    DataFolders data;
    std::string_view folders;
};

const std::vector<FoldersCase> FoldersCases = {
    {{u"/home/ann", u"", u""},
     "[/home/ann/.local/share/applications][/usr/local/share/applications][/usr/share/applications]"},
    {{u"/home/ann/", u"/data", u"/a/:/b:/b/c"},
     "[/data/applications][/a/applications][/b/applications][/b/c/applications]"},
    {{u"", u"", u"/a"}, "[/a/applications]"},
    {{u"", u"relative", u"::relative:/a:"}, "[/a/applications]"},
};

TEST(DesktopEntries, LieWhereTheEnvironmentSays) {
    for (const FoldersCase& row : FoldersCases)
        EXPECT_EQ(Joined(ApplicationFolders(row.data)), row.folders);
}

}  // namespace
}  // namespace tintora
