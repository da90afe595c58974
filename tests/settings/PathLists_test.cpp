#include "settings/PathLists.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

struct JoinCase {
    Texts paths;
    Text stored;
};

const std::vector<JoinCase> JoinCases = {
    {{}, u""},
    {{u"/a"}, u"/a"},
    {{u"/a", u"/b"}, u"/a^^^/b"},
    {{u"a.html", u"b.html", u"a.html"}, u"a.html^^^b.html^^^a.html"},
    {{u"/x^y"}, u"/x^-y"},
    {{u"/x^", u"^/y"}, u"/x^-^^^^-/y"},
    {{u"^^^"}, u"^-^-^-"},
    {{u"^-"}, u"^--"},
};

TEST(PathLists, JoinTheirPathsAndPartThemAgain) {
    for (const JoinCase& row : JoinCases) {
        SCOPED_TRACE(Utf8FromText(row.stored));
        EXPECT_EQ(JoinPaths(row.paths), row.stored);
        EXPECT_EQ(SplitPaths(row.stored), row.paths);
    }
}

/// Paths that a list of paths may stumble over.
const Texts HardPaths = {
    u"^",
    u"^^",
    u"^^^",
    u"^^^^",
    u"^-",
    u"^^^-",
    u"-",
    u"/a^",
    u"^/a",
    u"/a^^^/b",
    u"/a^-^/b",
    u"/a\nb",
    u"/a\r\n",
    u"\n",
    u" ",
    u" /a b ",
    u"/a\tb",
    u"C:\\a\\b.css",
    u"/\u00e9\u4e2d",
    u"/\U0001f600",
    u"/\xdcff",
    u"/a%5E.css",
    u"/a\"'b.css",
    Text(1, u'\0'),
};

TEST(PathLists, BringEveryPathBackAsItWas) {
    EXPECT_EQ(SplitPaths(JoinPaths(HardPaths)), HardPaths);
    for (const Text& path : HardPaths) {
        SCOPED_TRACE(Utf8FromText(path));
        for (const Text& neighbour : HardPaths)
            EXPECT_EQ(SplitPaths(JoinPaths({neighbour, path, neighbour})), (Texts{neighbour, path, neighbour}));
    }
}

struct SplitCase {
    Text stored;
    Texts paths;
};

const std::vector<SplitCase> SplitCases = {
    {u"/a^^^", {u"/a"}}, {u"^^^/a", {u"/a"}},    {u"/a^^^^^^/b", {u"/a", u"/b"}}, {u"^^^", {}},
    {u"^^^^^^^^^", {}},  {u"/a^/b", {u"/a^/b"}}, {u"/a^^/b", {u"/a^^/b"}},        {u"/a^^^^/b", {u"/a", u"^/b"}},
    {u"/a^", {u"/a^"}},
};

TEST(PathLists, AreReadForWhatTheyCanBe) {
    for (const SplitCase& row : SplitCases)
        EXPECT_EQ(SplitPaths(row.stored), row.paths) << Utf8FromText(row.stored);
}

}  // namespace
}  // namespace tintora
