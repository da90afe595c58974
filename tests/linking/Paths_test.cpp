#include "linking/Paths.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct PathCase {
    TextView path;
    TextView folder;
    TextView name;
    TextView extension;
};

constexpr auto PathCases = std::to_array<PathCase>({
    {u"", u"", u"", u""},
    {u"a.css", u"", u"a.css", u"css"},
    {u"/", u"", u"", u""},
    {u"\\", u"", u"", u""},
    {u"/a.css", u"", u"a.css", u"css"},
    {u"/site/a.css", u"/site", u"a.css", u"css"},
    {u"/site/css/", u"/site/css", u"", u""},
    {u"/site//a.css", u"/site/", u"a.css", u"css"},
    {u"C:\\Site\\a.css", u"C:\\Site", u"a.css", u"css"},
    {u"C:\\Site/sub\\a.css", u"C:\\Site/sub", u"a.css", u"css"},
    {u"C:\\Site\\sub/a.css", u"C:\\Site\\sub", u"a.css", u"css"},
    {u"../a.css", u"..", u"a.css", u"css"},
    {u"..", u"", u"..", u""},
    {u"page.HTML", u"", u"page.HTML", u"html"},
    {u"archive.tar.GZ", u"", u"archive.tar.GZ", u"gz"},
    {u"no-extension", u"", u"no-extension", u""},
    {u"ends-with-dot.", u"", u"ends-with-dot.", u""},
    {u".hidden", u"", u".hidden", u"hidden"},
    {u"/site.d/readme", u"/site.d", u"readme", u""},
    {u"/site.d\\readme", u"/site.d", u"readme", u""},
    {u"a b/c d.css", u"a b", u"c d.css", u"css"},
    {u"\xDCFF/\xD800.\x00C9", u"\xDCFF", u"\xD800.\x00C9", u"\x00E9"},
    {u"a\0/b\0.c\0"sv, u"a\0"sv, u"b\0.c\0"sv, u"c\0"sv},
});

struct QuoteCase {
    TextView text;
    TextView quoted;
    TextView unquoted;
};

constexpr auto QuoteCases = std::to_array<QuoteCase>({
    {u"", u"", u""},
    {u"a", u"\"a\"", u"a"},
    {u"\"a\"", u"\"a\"", u"a"},
    {u"\"a", u"\"a\"", u"a"},
    {u"a\"", u"\"a\"", u"a"},
    {u"\"\"a\"\"", u"\"\"a\"\"", u"\"a\""},
    {u"a\"b", u"\"a\"b\"", u"a\"b"},
    {u"'a'", u"\"'a'\"", u"'a'"},
    {u" ", u"\" \"", u" "},
    {u" \"a\" ", u"\" \"a\" \"", u" \"a\" "},
    {u"\"\"", u"\"\"", u""},
    {u"\"\"\"", u"\"\"\"", u"\""},
    {u"\0"sv, u"\"\0\""sv, u"\0"sv},
    {u"\xD800", u"\"\xD800\"", u"\xD800"},
});

struct RelativeCase {
    TextView from;
    TextView to;
    TextView url;
};

constexpr auto RelativeCases = std::to_array<RelativeCase>({
    {u"C:\\a\\b\\x.html", u"C:\\a\\c\\y.css", u"../c/y.css"},
    {u"C:\\a\\x.html", u"C:\\a\\b\\y.css", u"b/y.css"},
    {u"C:\\a\\b\\x.html", u"C:\\a\\y.css", u"../y.css"},
    {u"C:\\ab\\x.html", u"C:\\ab2\\y.css", u"../ab2/y.css"},
    {u"C:\\a\\x.html", u"D:\\a\\y.css", u"D:\\a\\y.css"},
    {u"C:\\a\\x.html", u"C:\\a\\y.css", u"y.css"},
    {u"C:\\Site\\a.html", u"c:\\site\\b.css", u"c:\\site\\b.css"},
    {u"C:\\Site\\a.html", u"C:\\site\\b.css", u"../site/b.css"},
    {u"C:\\a\\b\\c\\x.html", u"C:\\y.css", u"../../../y.css"},
    {u"C:\\x.html", u"C:\\a\\b\\y.css", u"a/b/y.css"},
    {u"C:/a\\b/x.html", u"C:\\a/b\\y.css", u"y.css"},

    {u"/a/b/x.html", u"/a/c/y.css", u"../c/y.css"},
    {u"/a/x.html", u"/a/b/y.css", u"b/y.css"},
    {u"/a/b/x.html", u"/a/y.css", u"../y.css"},
    {u"/ab/x.html", u"/ab2/y.css", u"../ab2/y.css"},
    {u"/a/x.html", u"/b/y.css", u"../b/y.css"},
    {u"/x.html", u"/y.css", u"y.css"},
    {u"/x.html", u"/a/y.css", u"a/y.css"},
    {u"/a/x.html", u"/y.css", u"../y.css"},
    {u"/a b/x.html", u"/c \"d\"#%/\x4E2D.css", u"../c \"d\"#%/\x4E2D.css"},
    {u"/\xDCFF/x.html", u"/\xDCFE/y.css", u"../\xDCFE/y.css"},

    // Paths that aren't absolute.
    {u"", u"", u""},
    {u"x.html", u"y.css", u"y.css"},
    {u"x.html", u"a/y.css", u"y.css"},
    {u"a/x.html", u"y.css", u"../y.css"},
    {u"a/x.html", u"b/y.css", u"b/y.css"},
    {u"ab/x.html", u"a/b/y.css", u"../b/y.css"},

    // The beginning of the one folder stands further back in the other, which misleads.
    {u"/a/x.html", u"/b/a/y.css", u"a/y.css"},
    {u"/a/b/x.html", u"/c/a/b/y.css", u"b/y.css"},
    {u"/a/x.html", u"/bb/a/y.css", u"a/y.css"},
    {u"a/x.html", u"b/a/y.css", u"a/y.css"},

    // The one folder's name begins with the other's, and the longer one is left.
    {u"C:\\ab2\\x.html", u"C:\\ab\\y.css", u"../y.css"},
    {u"/ab2/x.html", u"/ab/y.css", u"../y.css"},
    {u"/ab2/c/x.html", u"/ab/y.css", u"../../y.css"},
});

struct ResolveCase {
    TextView base;
    TextView relative;
    TextView path;
};

constexpr auto ResolveCases = std::to_array<ResolveCase>({
    {u"C:\\site\\sub\\x.html", u"../css/main.css", u"C:\\site\\css\\main.css"},
    {u"C:\\site\\sub\\x.html", u"../main.css", u"C:\\site\\sub\\..\\main.css"},
    {u"C:\\site\\x.html", u"../main.css", u"C:\\site\\..\\main.css"},
    {u"C:\\site\\x.html", u"main.css", u"C:\\site\\\\main.css"},
    {u"C:\\site\\x.html", u"", u"C:\\site\\\\"},
    {u"C:\\site\\x.html", u"a/b/main.css", u"C:\\site\\a/b\\main.css"},
    {u"C:\\site\\x.html", u"a\\b\\main.css", u"C:\\site\\a/b\\main.css"},
    {u"C:\\site\\a\\b\\x.html", u"../../css/deep/main.css", u"C:\\site\\css\\deep\\main.css"},
    {u"C:\\site\\a\\b\\x.html", u"../../main.css", u"C:\\site\\a\\..\\main.css"},
    {u"C:\\site\\a\\x.html", u"..\\css\\main.css", u"C:\\site\\css\\main.css"},
    {u"C:/site/x.html", u"main.css", u"C:/site//main.css"},

    {u"/site/sub/x.html", u"../css/main.css", u"/site/css/main.css"},
    {u"/site/sub/x.html", u"../main.css", u"/site/sub/../main.css"},
    {u"/site/x.html", u"main.css", u"/site//main.css"},
    {u"/site/x.html", u"", u"/site//"},
    {u"/site/x.html", u"css/main.css", u"/site/css/main.css"},
    {u"/site/x.html", u"a/b/main.css", u"/site/a/b/main.css"},
    {u"/site/x.html", u"/css/main.css", u"/site//css/main.css"},
    {u"/x.html", u"main.css", u"//main.css"},
    {u"x.html", u"main.css", u"//main.css"},
    {u"/site/x.html", u"http://a/b.css", u"/site/http://a/b.css"},
    {u"/site/x.html", u"a b/\"#%\x4E2D.css", u"/site/a b/\"#%\x4E2D.css"},

    // Either one's backslash decides.
    {u"/site/sub/x.html", u"..\\css\\main.css", u"\\site\\css\\main.css"},
    {u"/site/x.html", u"css\\main.css", u"\\site\\css\\main.css"},

    // Steps up are counted wherever they stand, and taken away only at the start.
    {u"/a/b/c/x.html", u"css/../main/y.css", u"/a/b/css/../main/y.css"},
    {u"/a/b/c/x.html", u"../d/../e/y.css", u"/a/d/../e/y.css"},
    {u"/a/b/c/x.html", u"a../d/y.css", u"/a/b/a../d/y.css"},
    {u"/a/b/c/x.html", u"../../../../d/y.css", u"/d/y.css"},
    {u"a/x.html", u"../../d/y.css", u"a/d/y.css"},
    {u"/a/b/x.html", u"..//y.css", u"/a//y.css"},
    {u"/a/b/x.html", u"./../d/y.css", u"/a/./../d/y.css"},
});

TEST(Paths, BothSeparatorsPartFolderAndName) {
    for (const PathCase& row : PathCases) {
        SCOPED_TRACE(Utf8FromText(row.path));
        EXPECT_EQ(GetFolderPath(row.path), row.folder);
        EXPECT_EQ(GetFileNamePart(row.path), row.name);
        EXPECT_EQ(GetExtension(row.path), row.extension);
    }
}

TEST(Paths, FolderSeparatorAndNameAreThePath) {
    std::mt19937 random(47);
    constexpr TextView Units = u"/\\.aB\xD800";
    for (int round = 0; round < 20000; ++round) {
        Text path(random() % 12U, u'/');
        for (char16_t& unit : path)
            unit = Units[random() % Units.size()];
        SCOPED_TRACE(testing::PrintToString(path));
        const Text folder = GetFolderPath(path);
        const Text name = GetFileNamePart(path);
        const bool hasSeparator = path.find_first_of(u"/\\") != Text::npos;
        ASSERT_EQ(path.size(), folder.size() + name.size() + (hasSeparator ? 1 : 0));
        ASSERT_TRUE(path.starts_with(folder));
        ASSERT_TRUE(path.ends_with(name));
        ASSERT_EQ(name.find_first_of(u"/\\"), Text::npos);
    }
}

TEST(Paths, AURLLeadsFromOneFileToTheOther) {
    for (const RelativeCase& row : RelativeCases)
        EXPECT_EQ(GetRelativePath(row.from, row.to), row.url) << Utf8FromText(row.from) << ' ' << Utf8FromText(row.to);
}

TEST(Paths, AURLIsResolvedInTheSeparatorOfTheTexts) {
    for (const ResolveCase& row : ResolveCases) {
        EXPECT_EQ(ResolveRelativePath(row.base, row.relative), row.path)
            << Utf8FromText(row.base) << ' ' << Utf8FromText(row.relative);
    }
}

TEST(Paths, PathsInWhichEverythingRepeatsTakeNoLonger) {
    Text steps;
    Text folders;
    for (int count = 0; count < 300000; ++count) {
        steps += u"../";
        folders += u"/a";
    }
    EXPECT_EQ(ResolveRelativePath(folders + u"/x.html", steps + u"a/y.css"), u"/a/y.css");
    EXPECT_EQ(ResolveRelativePath(Text(1000000, u'a') + u"/x.html", steps + u"a/y.css"),
              Text(1000000, u'a') + u"/a/y.css");
    EXPECT_EQ(GetRelativePath(folders + u"/x.html", folders + u"b/y.css"), u"../ab/y.css");
}

TEST(Paths, QuotesStandAtBothEndsOnce) {
    for (const QuoteCase& row : QuoteCases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(QuoteText(row.text), row.quoted);
    }
}

TEST(Paths, OneQuoteGoesFromEachEnd) {
    for (const QuoteCase& row : QuoteCases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(UnquoteText(row.text), row.unquoted);
    }
}

TEST(Paths, QuotingTwiceIsQuotingOnce) {
    for (const QuoteCase& row : QuoteCases)
        EXPECT_EQ(QuoteText(QuoteText(row.text)), QuoteText(row.text)) << Utf8FromText(row.text);
}

}  // namespace
}  // namespace tintora
