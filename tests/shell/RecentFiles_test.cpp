#include "shell/RecentFiles.h"

#include "settings/MemorySettingsStore.h"
#include "settings/SettingKeys.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

struct AddCase {
    Texts added;
    Texts list;
};

const std::vector<AddCase> AddCases = {
    {{}, {}},
    {{u"/a"}, {u"/a"}},
    {{u"/a", u"/b", u"/c"}, {u"/c", u"/b", u"/a"}},
    {{u"/a", u"/b", u"/a"}, {u"/a", u"/b"}},
    {{u"/a", u"/b", u"/c", u"/b"}, {u"/b", u"/c", u"/a"}},
    {{u"/a", u"/a"}, {u"/a"}},
    {{u"/a", u""}, {u"/a"}},
    {{u""}, {}},
    {{u"/a", u"/A", u"/a/", u"//a"}, {u"//a", u"/a/", u"/A", u"/a"}},
    {{u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9", u"10"},
     {u"10", u"9", u"8", u"7", u"6", u"5", u"4", u"3", u"2", u"1"}},
    {{u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9", u"10", u"11"},
     {u"11", u"10", u"9", u"8", u"7", u"6", u"5", u"4", u"3", u"2"}},
    {{u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9", u"10", u"1"},
     {u"1", u"10", u"9", u"8", u"7", u"6", u"5", u"4", u"3", u"2"}},
};

TEST(RecentFiles, TheLatestOfTenStandsFirstAndNoneTwice) {
    for (const AddCase& row : AddCases) {
        MemorySettingsStore store;
        RecentFiles recent(store);
        for (const Text& path : row.added)
            recent.Add(path);
        EXPECT_EQ(recent.Read(), row.list);
        EXPECT_EQ(RecentFiles(store).Read(), row.list) << "for another start too";
    }
}

/// Paths that a list of paths may stumble over.
const Texts HardPaths = {
    u"^",       u"^^",        u"^^^",        u"^^^^",        u"^-",           u"^^^-",          u"-",
    u"/a^",     u"^/a",       u"/a^^^/b",    u"/a^^^^/b",    u"/a^-^/b",      u"/a\nb.css",     u"/a\r\n",
    u"\n",      u" ",         u" /a b ",     u"/a\tb",       u"C:\\a\\b.css", u"/\u00e9\u4e2d", u"/\U0001f600",
    u"/\xdcff", u"/a%5E.css", u"/a\"'b.css", Text(1, u'\0'),
};

TEST(RecentFiles, EveryPathComesBackAsItWas) {
    for (const Text& path : HardPaths) {
        SCOPED_TRACE(Utf8FromText(path));
        for (const Text& neighbour : HardPaths) {
            if (neighbour == path)
                continue;
            MemorySettingsStore store;
            RecentFiles recent(store);
            recent.Add(neighbour);
            recent.Add(path);
            recent.Add(u"/last");
            EXPECT_EQ(recent.Read(), (Texts{u"/last", path, neighbour}));
            recent.Add(neighbour);
            EXPECT_EQ(recent.Read(), (Texts{neighbour, u"/last", path}));
        }
    }
}

struct StoredCase {
    Text stored;
    Texts list;
};

const std::vector<StoredCase> StoredCases = {
    {u"", {}},
    {u"/a", {u"/a"}},
    {u"/a^^^/b", {u"/a", u"/b"}},
    {u"/a^^^", {u"/a"}},
    {u"^^^/a", {u"/a"}},
    {u"/a^^^^^^/b", {u"/a", u"/b"}},
    {u"^^^", {}},
    {u"^^^^^^^^^", {}},
    {u"/a^^^/b^^^/a", {u"/a", u"/b"}},
    {u"/a^/b", {u"/a^/b"}},
    {u"/a^^/b", {u"/a^^/b"}},
    {u"/a^^^^/b", {u"/a", u"^/b"}},
    {u"/a^-/b", {u"/a^/b"}},
    {u"/a^-^^^/b", {u"/a^", u"/b"}},
    {u"/a^", {u"/a^"}},
    {u"\u0001\xd800^^^/b", {u"\u0001\xd800", u"/b"}},
    {u"1^^^2^^^3^^^4^^^5^^^6^^^7^^^8^^^9^^^10^^^11^^^12",
     {u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9", u"10"}},
    {u"1^^^1^^^1^^^^^^1^^^1^^^1^^^1^^^1^^^1^^^1^^^1^^^2", {u"1", u"2"}},
};

TEST(RecentFiles, AStoredListIsReadForWhatItCanBe) {
    for (const StoredCase& row : StoredCases) {
        SCOPED_TRACE(Utf8FromText(row.stored));
        MemorySettingsStore store;
        store.SaveSetting(ApplicationTitle, u"Recent", u"Files", row.stored);
        EXPECT_EQ(RecentFiles(store).Read(), row.list);
    }
}

TEST(RecentFiles, PathsAreStoredJoinedUnderTheirKey) {
    MemorySettingsStore store;
    RecentFiles recent(store);
    recent.Add(u"/site/a b.css");
    recent.Add(u"/site/x^y.css");
    EXPECT_EQ(store.GetSetting(u"Tintora 3.5", u"Recent", u"Files", u"?"), u"/site/x^-y.css^^^/site/a b.css");
    EXPECT_EQ(store.Size(), 1U);
    recent.Clear();
    EXPECT_EQ(store.GetSetting(u"Tintora 3.5", u"Recent", u"Files", u"?"), u"");
    EXPECT_TRUE(recent.Read().empty());
}

TEST(RecentFiles, AReadStoresNothing) {
    MemorySettingsStore store;
    EXPECT_TRUE(RecentFiles(store).Read().empty());
    RecentFiles(store).Add(u"");
    EXPECT_EQ(store.Size(), 0U);
}

TEST(RecentFiles, ChangesOfTheStoreAreSeenAtOnce) {
    MemorySettingsStore store;
    RecentFiles one(store);
    RecentFiles other(store);
    one.Add(u"/a");
    other.Add(u"/b");
    EXPECT_EQ(one.Read(), (Texts{u"/b", u"/a"}));
}

}  // namespace
}  // namespace tintora
