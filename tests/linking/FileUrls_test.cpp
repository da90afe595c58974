#include "linking/FileUrls.h"

#include "linking/TemporaryFolder.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct URLCase {
    TextView path;
    TextView url;
};

constexpr auto URLCases = std::to_array<URLCase>({
    {u"/", u"file:///"},
    {u"/site/a.css", u"file:///site/a.css"},
    {u"/a b/ktTemp 61234.56.css", u"file:///a%20b/ktTemp%2061234.56.css"},
    {u"/50% #1?.css", u"file:///50%25%20%231%3F.css"},
    {u"/it's \"<odd>\" & ^1;=.css", u"file:///it%27s%20%22%3Codd%3E%22%20%26%20%5E1%3B%3D.css"},
    {u"/back\\slash", u"file:///back%5Cslash"},
    {u"/line\nend\t", u"file:///line%0Aend%09"},
    {u"/AZaz09-_.~", u"file:///AZaz09-_.~"},
    {u"/\u00e9\u4e2d\U0001f600", u"file:///%C3%A9%E4%B8%AD%F0%9F%98%80"},
    {u"/\xdcff", u"file:///%FF"},
});

TEST(FileUrls, HoldEveryPathWithPlainLettersAlone) {
    for (const URLCase& row : URLCases) {
        SCOPED_TRACE(Utf8FromText(row.path));
        EXPECT_EQ(FileURLFromPath(row.path), row.url);
        EXPECT_EQ(ResolveFileURL(u"/other/page.html", row.url), Text(row.path)) << "and back";
    }
}

struct ResolveCase {
    TextView url;
    /// "" for none.
    TextView path;
};

/// All from the page `/site/pages/a b#.html`.
constexpr auto ResolveCases = std::to_array<ResolveCase>({
    {u"main.css", u"/site/pages/main.css"},
    {u"./main.css", u"/site/pages/main.css"},
    {u"css/main.css", u"/site/pages/css/main.css"},
    {u"../main.css", u"/site/main.css"},
    {u"../css/./x/../main.css", u"/site/css/main.css"},
    {u"../../../../main.css", u"/main.css"},
    {u"/css/main.css", u"/css/main.css"},
    {u"css//main.css", u"/site/pages/css/main.css"},
    {u"..\\css\\main.css", u"/site/css/main.css"},
    {u" \n main.css\t", u"/site/pages/main.css"},
    {u"ma\nin.\tcss", u"/site/pages/main.css"},
    {u"main.css?v=3", u"/site/pages/main.css"},
    {u"main.css#top", u"/site/pages/main.css"},
    {u"main.css?v=a#b?c", u"/site/pages/main.css"},
    {u"a%20b.css", u"/site/pages/a b.css"},
    {u"a b.css", u"/site/pages/a b.css"},
    {u"50%25%23.css", u"/site/pages/50%#.css"},
    {u"50%.css", u"/site/pages/50%.css"},
    {u"50%2", u"/site/pages/50%2"},
    {u"50%zz.css", u"/site/pages/50%zz.css"},
    {u"%2e%2E/main.css", u"/site/main.css"},
    {u"%C3%A9.css", u"/site/pages/\u00e9.css"},
    {u"\u00e9.css", u"/site/pages/\u00e9.css"},
    {u"%FF.css", u"/site/pages/\xdcff.css"},
    {u"", u"/site/pages/a b#.html"},
    {u"#top", u"/site/pages/a b#.html"},
    {u"file:///css/main.css", u"/css/main.css"},
    {u"FILE:///css/main.css", u"/css/main.css"},
    {u"file://localhost/css/main.css", u"/css/main.css"},
    {u"file:/css/main.css", u"/css/main.css"},
    {u"file:////css/main.css", u"/css/main.css"},
    {u"file:main.css", u"/site/pages/main.css"},
    {u"file://", u"/"},
    {u"sub/with:colon.css", u"/site/pages/sub/with:colon.css"},
    {u":main.css", u"/site/pages/:main.css"},
    {u"1a:main.css", u"/site/pages/1a:main.css"},
    {u"http://example.com/main.css", u""},
    {u"https:main.css", u""},
    {u"data:text/css,a{}", u""},
    {u"//example.com/main.css", u""},
    {u"file://example.com/main.css", u""},
    {u"c:\\site\\main.css", u""},
    {u"a%00b.css", u""},
    {u"a%2Fb.css", u""},
    {u"a\0b.css"sv, u""},
});

TEST(FileUrls, LeadFromAPageToAPath) {
    for (const ResolveCase& row : ResolveCases) {
        SCOPED_TRACE(Utf8FromText(row.url));
        EXPECT_EQ(ResolveFileURL(u"/site/pages/a b#.html", row.url).value_or(u""), row.path);
    }
}

TEST(FileUrls, LeadToOneFileByNameOrByTheDisk) {
    const TemporaryFolder folder;
    const Text file = folder.Write("site/main.css", "a{}");
    const Text other = folder.Write("site/other.css", "a{}");
    std::filesystem::create_directory_symlink(folder.FilePath("site"), folder.FilePath("link"));
    EXPECT_TRUE(IsSameFile(file, file));
    EXPECT_TRUE(IsSameFile(folder.Path() + u"/site/../site//main.css", file));
    EXPECT_TRUE(IsSameFile(folder.Path() + u"/link/main.css", file));
    EXPECT_FALSE(IsSameFile(other, file));
    EXPECT_FALSE(IsSameFile(folder.Path() + u"/link/missing.css", file));
    EXPECT_TRUE(IsSameFile(u"/missing/a.css", u"/missing/./a.css")) << "where there is no such file";
    EXPECT_FALSE(IsSameFile(u"/missing/a.css", u""));
    EXPECT_FALSE(IsSameFile(Text(u"/a\0", 3), u"/a"));
}

}  // namespace
}  // namespace tintora
