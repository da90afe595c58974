#include "linking/SiteWalk.h"

#include "linking/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <filesystem>

namespace tintora {
namespace {

using namespace std::string_view_literals;

// Made in an order that isn't that of their names.
constexpr auto Files = std::to_array<std::string_view>({
    "zebra.html",
    "b/x.html",
    "a/c/deep.htm",
    "a/z.css",
    "a.html",
    "B/y.HTML",
    "a/a.html",
    "\xC3\xA9.html",
    "\xFF.html",
    ".hidden/h.html",
    "a b/\"#%.Htm",
    "html",
    "page.html.bak",
    "a-b/k.xhtml",
});

// A folder's own files come before those of its subfolders, and both in the order of the bytes of their names.
constexpr auto Collected = std::to_array<std::string_view>({
    "a.html",
    "html",
    "page.html.bak",
    "zebra.html",
    "\xC3\xA9.html",
    "\xFF.html",
    ".hidden/h.html",
    "B/y.HTML",
    "a/a.html",
    "a/z.css",
    "a/c/deep.htm",
    "a b/\"#%.Htm",
    "a-b/k.xhtml",
    "b/x.html",
});

constexpr auto Pages = std::to_array<std::string_view>({
    "a.html",
    "zebra.html",
    "\xC3\xA9.html",
    "\xFF.html",
    ".hidden/h.html",
    "B/y.HTML",
    "a/a.html",
    "a/c/deep.htm",
    "a b/\"#%.Htm",
    "b/x.html",
});

constexpr auto SubFolders = std::to_array<std::string_view>({".hidden", "B", "a", "a b", "a-b", "b"});

template <std::size_t Size>
Texts PathsIn(const TemporaryFolder& folder, const std::array<std::string_view, Size>& names) {
    Texts paths;
    for (const std::string_view name : names)
        paths.push_back(TextFromFileName(folder.FilePath(name)));
    return paths;
}

Texts FilesIn(TextView folder) {
    Texts files;
    CollectFilesInFolder(files, folder);
    return files;
}

Texts FoldersIn(TextView folder) {
    Texts folders;
    CollectSubFolders(folders, folder);
    return folders;
}

TEST(SiteWalk, AFoldersOwnFilesComeBeforeThoseOfItsSubfolders) {
    const TemporaryFolder folder;
    for (const std::string_view name : Files)
        static_cast<void>(folder.Write(name, ""));
    EXPECT_EQ(FilesIn(folder.Path()), PathsIn(folder, Collected));
    EXPECT_EQ(FilesIn(folder.Path() + u"/"), PathsIn(folder, Collected));
    EXPECT_EQ(FoldersIn(folder.Path()), PathsIn(folder, SubFolders));
}

TEST(SiteWalk, PagesAreKnownByTheirExtensions) {
    const TemporaryFolder folder;
    for (const std::string_view name : Files)
        static_cast<void>(folder.Write(name, ""));
    EXPECT_EQ(KeepHTMLFiles(FilesIn(folder.Path())), PathsIn(folder, Pages));
    EXPECT_EQ(KeepHTMLFiles({}), Texts());
    EXPECT_EQ(KeepHTMLFiles({u"a.html/b", u"\\a.HtM", u".htm", u"htm", u"a.html "}), (Texts{u"\\a.HtM", u".htm"}));
}

TEST(SiteWalk, WhatIsCollectedIsAddedToWhatIsThere) {
    const TemporaryFolder folder;
    const Text page = folder.Write("sub/a.html", "");
    Texts list = {u"first"};
    CollectFilesInFolder(list, folder.Path());
    CollectSubFolders(list, folder.Path());
    EXPECT_EQ(list, (Texts{u"first", page, folder.Path() + u"/sub"}));
}

TEST(SiteWalk, LinksAreNotFollowed) {
    const TemporaryFolder folder;
    const Text page = folder.Write("site/sub/a.html", "");
    static_cast<void>(folder.Write("outside/b.html", ""));
    namespace fs = std::filesystem;
    fs::create_directory_symlink("../outside", folder.FilePath("site/out"));
    fs::create_directory_symlink("..", folder.FilePath("site/sub/up"));
    fs::create_directory_symlink(".", folder.FilePath("site/same"));
    fs::create_symlink("../outside/b.html", folder.FilePath("site/b.html"));
    fs::create_symlink("sub/a.html", folder.FilePath("site/again.html"));
    fs::create_symlink("missing.html", folder.FilePath("site/dangling.html"));
    EXPECT_EQ(FilesIn(folder.Path() + u"/site"), Texts{page});
    EXPECT_EQ(FoldersIn(folder.Path() + u"/site"), Texts{folder.Path() + u"/site/sub"});
}

TEST(SiteWalk, TheFolderItselfMayBeALink) {
    const TemporaryFolder folder;
    static_cast<void>(folder.Write("site/a.html", ""));
    std::filesystem::create_directory_symlink("site", folder.FilePath("link"));
    EXPECT_EQ(FilesIn(folder.Path() + u"/link"), Texts{folder.Path() + u"/link/a.html"});
}

TEST(SiteWalk, OnlyOrdinaryFilesAreFiles) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mknod(folder.FilePath("socket.html").c_str(), S_IFSOCK | S_IRUSR | S_IWUSR, 0), 0);
    ASSERT_EQ(::mkfifo(folder.FilePath("pipe.html").c_str(), 0600), 0);
    EXPECT_EQ(FilesIn(folder.Path()), Texts());
}

TEST(SiteWalk, WhatIsNoFolderHoldsNothing) {
    const TemporaryFolder folder;
    const Text page = folder.Write("a.html", "");
    for (const TextView path : {TextView(u""), TextView(page), TextView(u"/nowhere at all"), TextView(u"/\0"sv)}) {
        EXPECT_EQ(FilesIn(path), Texts());
        EXPECT_EQ(FoldersIn(path), Texts());
    }
}

TEST(SiteWalk, AFolderThatMayNotBeReadIsPassedOver) {
    const TemporaryFolder folder;
    const Text page = folder.Write("z/a.html", "");
    const Text hidden = folder.Write("closed/b.html", "");
    ASSERT_EQ(::chmod(folder.FilePath("closed").c_str(), 0), 0);
    const Texts files = FilesIn(folder.Path());
    ASSERT_EQ(::chmod(folder.FilePath("closed").c_str(), 0700), 0);
    if (::geteuid() == 0)
        EXPECT_EQ(files, (Texts{hidden, page}));
    else
        EXPECT_EQ(files, Texts{page});
}

TEST(SiteWalk, DeepFoldersAreWalkedAsFarAsAPathReaches) {
    const TemporaryFolder folder;
    std::string name = "a.html";
    for (int depth = 0; depth < 200; ++depth)
        name = "d/" + name;
    const Text page = folder.Write(name, "");
    EXPECT_EQ(FilesIn(folder.Path()), Texts{page});
}

}  // namespace
}  // namespace tintora
