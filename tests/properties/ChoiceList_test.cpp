#include "properties/ChoiceList.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

TEST(ChoiceList, ATextThatIsOfferedIsChosenInItsPlace) {
    ChoiceList list;
    list.Offer({u"", u"a", u"b", u"a"});
    EXPECT_EQ(list.Chosen(), ChoiceList::None);
    EXPECT_EQ(list.ChosenText(), u"");
    list.Choose(u"a");
    EXPECT_EQ(list.Chosen(), 1U);
    list.Choose(u"");
    EXPECT_EQ(list.Chosen(), 0U);
    EXPECT_EQ(list.Entries().size(), 4U);
    EXPECT_FALSE(list.IsAddedChosen());
}

TEST(ChoiceList, AnotherTextIsAddedOnce) {
    ChoiceList list;
    list.Offer({u"a"});
    list.Choose(u"x");
    list.Choose(u"y");
    list.Choose(u"x");
    EXPECT_EQ(list.Entries(), (Texts{u"a", u"x", u"y"}));
    EXPECT_EQ(list.OfferedCount(), 1U);
    EXPECT_EQ(list.ChosenText(), u"x");
    EXPECT_TRUE(list.IsAddedChosen());
    EXPECT_FALSE(list.Has(u"X"));
}

TEST(ChoiceList, ChoosingAnExistingEntryAddsNothing) {
    ChoiceList list;
    list.Offer({u"a", u"b"});
    list.ChooseAt(1);
    EXPECT_FALSE(list.ChooseExisting(u"x"));
    EXPECT_EQ(list.ChosenText(), u"b");
    EXPECT_TRUE(list.ChooseExisting(u"a"));
    EXPECT_EQ(list.ChosenText(), u"a");
    list.ChooseAt(2);
    EXPECT_EQ(list.Chosen(), ChoiceList::None);
}

TEST(ChoiceList, WhatWasAddedGoesButForTheChosenEntry) {
    ChoiceList list;
    list.Offer({u"a", u"b"});
    for (const TextView text : {u"x", u"y", u"z"})
        list.Choose(text);
    list.Choose(u"y");
    list.DropAdded();
    EXPECT_EQ(list.Entries(), (Texts{u"a", u"b", u"y"}));
    EXPECT_EQ(list.ChosenText(), u"y");
    EXPECT_FALSE(list.Has(u"z"));
    list.Choose(u"b");
    list.DropAdded();
    list.DropAdded();
    EXPECT_EQ(list.Entries(), (Texts{u"a", u"b"}));
    EXPECT_EQ(list.Chosen(), 1U);
    EXPECT_FALSE(list.Has(u"y"));
}

TEST(ChoiceList, AnAddedTwinOfAnOfferedEntryGoesAlone) {
    ChoiceList list;
    list.Offer({u"a"});
    list.Add(u"a");
    EXPECT_EQ(list.Entries().size(), 2U);
    EXPECT_EQ(list.Find(u"a"), 0U);
    list.DropAdded();
    EXPECT_EQ(list.Find(u"a"), 0U);
    EXPECT_EQ(list.Entries(), (Texts{u"a"}));
}

TEST(ChoiceList, ManyAddedEntriesCostNoMoreThanTheirNumber) {
    ChoiceList list;
    list.Offer({u"a"});
    for (int round = 0; round < 200'000; ++round) {
        list.Choose(Text(1, static_cast<char16_t>(0x100 + round % 60'000)));
        if (round % 1000 == 0)
            list.DropAdded();
    }
    list.Choose(u"a");
    list.DropAdded();
    EXPECT_EQ(list.Entries().size(), 1U);
}

}  // namespace
}  // namespace tintora
