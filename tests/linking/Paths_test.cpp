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
