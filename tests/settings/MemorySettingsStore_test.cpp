#include "settings/MemorySettingsStore.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct StoredValue {
    TextView application;
    TextView section;
    TextView key;
    TextView value;
};

/// Values with different addresses, which may differ in little.
constexpr auto StoredValues = std::to_array<StoredValue>({
    {u"Tintora", u"Preview", u"File", u"a"},
    {u"Tintora", u"Preview", u"file", u"b"},
    {u"Tintora", u"preview", u"File", u"c"},
    {u"tintora", u"Preview", u"File", u"d"},
    {u"Tintora", u"PreviewFile", u"", u"e"},
    {u"Tintora", u"", u"PreviewFile", u"f"},
    {u"TintoraPreview", u"File", u"", u"g"},
    {u"", u"", u"", u"nothing but a value"},
    {u"Tintora", u"TextEditing", u" 5", u"with a blank"},
    {u"Tintora", u"TextEditing", u"5", u"without"},
    {u"Tintora", u"Preview", u"Empty", u""},
    {u"Tintora", u"Formatting", u"Separator", u"\r\n\t "},
    {u"Tintora", u"Preview", u"Nul\0Key"sv, u"nul\0value"sv},
    {u"Tintora", u"Preview", u"Nul", u"another key"},
    {u"Tintora", u"Preview", u"\xD800", u"\xDC00\xD800"},
    {u"Tintora", u"Preview", u"[x]=y;#", u"=;#[]\"\\"},
});

TEST(MemorySettingsStore, AFreshStoreGivesEveryDefault) {
    const MemorySettingsStore store;
    for (const StoredValue& row : StoredValues) {
        EXPECT_EQ(store.GetSetting(row.application, row.section, row.key, u"default"), u"default");
        EXPECT_EQ(store.GetSetting(row.application, row.section, row.key, u""), u"");
    }
    EXPECT_EQ(store.Size(), 0U);
}

TEST(MemorySettingsStore, ApplicationSectionAndKeyAddressAValue) {
    MemorySettingsStore store;
    for (const StoredValue& row : StoredValues)
        store.SaveSetting(row.application, row.section, row.key, row.value);
    EXPECT_EQ(store.Size(), StoredValues.size());
    for (const StoredValue& row : StoredValues) {
        SCOPED_TRACE(Utf8FromText(row.key));
        EXPECT_EQ(store.GetSetting(row.application, row.section, row.key, u"default"), row.value);
    }
}

TEST(MemorySettingsStore, AReadNeverWrites) {
    const MemorySettingsStore store;
    EXPECT_EQ(store.GetSetting(u"a", u"b", u"c", u"first"), u"first");
    EXPECT_EQ(store.GetSetting(u"a", u"b", u"c", u"second"), u"second");
    EXPECT_EQ(store.Size(), 0U);
}

TEST(MemorySettingsStore, TheLastWriteHolds) {
    MemorySettingsStore store;
    store.SaveSetting(u"a", u"b", u"c", u"first");
    store.SaveSetting(u"a", u"b", u"c", u"second");
    EXPECT_EQ(store.GetSetting(u"a", u"b", u"c", u"default"), u"second");
    EXPECT_EQ(store.Size(), 1U);
}

TEST(MemorySettingsStore, EmptyingAKeyIsNotTakingItAway) {
    MemorySettingsStore store;
    store.SaveSetting(u"a", u"b", u"c", u"value");
    store.SaveSetting(u"a", u"b", u"c", u"");
    EXPECT_EQ(store.GetSetting(u"a", u"b", u"c", u"default"), u"");
}

TEST(MemorySettingsStore, StoresKnowNothingOfEachOther) {
    MemorySettingsStore store;
    store.SaveSetting(u"a", u"b", u"c", u"value");
    const MemorySettingsStore other;
    EXPECT_EQ(other.GetSetting(u"a", u"b", u"c", u"default"), u"default");
}

}  // namespace
}  // namespace tintora
