#include "settings/Separators.h"

#include "settings/MemorySettingsStore.h"
#include "settings/SettingKeys.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

struct SeparatorCase {
    Text (*get)(SettingsStore&);
    void (*set)(SettingsStore&, TextView);
    TextView key;
    TextView defaultSeparator;
};

const std::vector<SeparatorCase> Cases = {
    {GetStatementSeparator, SetStatementSeparator, u"StatementSeparator", u"\r\r"},
    {GetPropertySeparator, SetPropertySeparator, u"PropertySeparator", u"\r"},
    {GetSelectorDeclarationSeparator, SetSelectorDeclarationSeparator, u"SelectorDeclarationSeparator", u" "},
    {GetLastPropertySeparator, SetLastPropertySeparator, u"LastPropertySeparator", u""},
    {GetFirstPropertySeparator, SetFirstPropertySeparator, u"FirstPropertySeparator", u""},
};

TEST(Separators, AnEmptyStoreGivesTheDefaults) {
    MemorySettingsStore store;
    for (const SeparatorCase& row : Cases)
        EXPECT_EQ(row.get(store), row.defaultSeparator);
}

TEST(Separators, AStoredEmptyTextGivesTheDefault) {
    MemorySettingsStore store;
    for (const SeparatorCase& row : Cases) {
        row.set(store, u"");
        EXPECT_EQ(row.get(store), row.defaultSeparator);
    }
}

TEST(Separators, StoredWhitespaceComesBackAsItIs) {
    for (const TextView stored : {u" ", u"\r\n", u"\r\r\r\t", u"\t \f\n"}) {
        MemorySettingsStore store;
        for (const SeparatorCase& row : Cases) {
            row.set(store, stored);
            EXPECT_EQ(row.get(store), stored);
        }
    }
}

TEST(Separators, EachIsStoredUnderItsOwnKeyOnly) {
    for (const SeparatorCase& row : Cases) {
        MemorySettingsStore store;
        row.set(store, u"\t");
        EXPECT_EQ(store.GetSetting(ApplicationTitle, u"Formatting", row.key, u""), u"\t");
        EXPECT_EQ(store.Size(), 1U);
    }
}

TEST(Separators, AReadStoresNothing) {
    MemorySettingsStore store;
    static_cast<void>(ReadSeparators(store));
    EXPECT_EQ(store.Size(), 0U);
}

TEST(Separators, TheFiveTogetherAreReadAfreshEachTime) {
    MemorySettingsStore store;
    SetStatementSeparator(store, u"1");
    SetPropertySeparator(store, u"2");
    SetSelectorDeclarationSeparator(store, u"3");
    SetLastPropertySeparator(store, u"4");
    SetFirstPropertySeparator(store, u"5");
    const Separators first = ReadSeparators(store);
    EXPECT_EQ(first.statement + first.property + first.selectorDeclaration + first.lastProperty + first.firstProperty,
              u"12345");
    SetPropertySeparator(store, u"\r\r");
    EXPECT_EQ(ReadSeparators(store).property, u"\r\r");
}

}  // namespace
}  // namespace tintora
