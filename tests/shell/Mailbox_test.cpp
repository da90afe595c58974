#include "shell/Mailbox.h"

#include "settings/MemorySettingsStore.h"
#include "settings/SettingKeys.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

TEST(Mailbox, WhatIsPutInIsTakenOutOnce) {
    MemorySettingsStore store;
    Mailbox mailbox(store);
    EXPECT_EQ(mailbox.Take(), u"");
    mailbox.Put(u"/site/a b.css");
    EXPECT_EQ(store.GetSetting(u"Tintora 3.5", u"Temp", u"OpenMe", u"?"), u"/site/a b.css");
    EXPECT_EQ(mailbox.Take(), u"/site/a b.css");
    EXPECT_EQ(store.GetSetting(u"Tintora 3.5", u"Temp", u"OpenMe", u"?"), u"");
    EXPECT_EQ(mailbox.Take(), u"");
}

TEST(Mailbox, TheLaterPathWins) {
    MemorySettingsStore store;
    Mailbox mailbox(store);
    mailbox.Put(u"/a.css");
    mailbox.Put(u"/b.css");
    EXPECT_EQ(mailbox.Take(), u"/b.css");
}

TEST(Mailbox, AStartWithNoFileEmptiesIt) {
    MemorySettingsStore store;
    Mailbox mailbox(store);
    mailbox.Put(u"/a.css");
    mailbox.Put(u"");
    EXPECT_EQ(mailbox.Take(), u"");
}

}  // namespace
}  // namespace tintora
