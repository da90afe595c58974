#include "shell/OnlinePages.h"

#include "shell/Commands.h"
#include "text/Encoding.h"
#include "text/LowerCase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace tintora {
namespace {

struct AddressCase {
    Text key;
    Text address;
};

const std::vector<AddressCase> AddressCases = {
    {u"miHCSS2", u"https://www.w3.org/TR/CSS2/"},
    {u"CSS2", u"https://www.w3.org/TR/CSS2/"},
    {u"miHCSSValidator", u"https://jigsaw.w3.org/css-validator/"},
    {u"CSSValidator", u"https://jigsaw.w3.org/css-validator/"},
    {u"miHWCAG", u"https://www.w3.org/TR/WCAG22/"},
    {u"", u""},
    {u"miH", u""},
    {u"HCSS2", u""},
    {u"mihcss2", u""},
    {u"css2", u""},
    {u"miHCSS2 ", u""},
    {u"miHNothing", u""},
    {u"miHAbout", u""},
};

TEST(OnlinePages, APageIsFoundByItsKeyAndByItsShortName) {
    for (const AddressCase& row : AddressCases)
        EXPECT_EQ(OnlinePageAddress(row.key), row.address) << Utf8FromText(row.key);
}

TEST(OnlinePages, EachPageAnswersToItsOwnNamesOnly) {
    std::set<TextView> addresses;
    for (const OnlinePage& page : OnlinePages()) {
        SCOPED_TRACE(Utf8FromText(page.key));
        EXPECT_EQ(OnlinePageAddress(page.key), page.address);
        EXPECT_EQ(OnlinePageAddress(page.key.substr(3)), page.address);
        EXPECT_TRUE(addresses.insert(page.address).second) << "no page twice";
    }
    EXPECT_GE(addresses.size(), 20U);
}

TEST(OnlinePages, TheKeysOfAllPagesGoToTheOnePlace) {
    for (const OnlinePage& page : OnlinePages()) {
        SCOPED_TRACE(Utf8FromText(page.key));
        EXPECT_TRUE(page.key.starts_with(u"miH"));
        EXPECT_GT(page.key.size(), 3U);
        const Command* const command = CommandFor(page.key);
        ASSERT_NE(command, nullptr);
        EXPECT_EQ(command->operation, CommandOperation::ShowOnlinePage) << "no other command has the key";
    }
}

TEST(OnlinePages, AddressesAreHttpsAndPlain) {
    for (const OnlinePage& page : OnlinePages()) {
        SCOPED_TRACE(Utf8FromText(page.address));
        EXPECT_TRUE(page.address.starts_with(u"https://"));
        EXPECT_TRUE(std::ranges::all_of(page.address, [](char16_t unit) { return unit > u' ' && unit < 0x7f; }));
        EXPECT_EQ(page.address.find_first_of(u"?\"'<>\\"), TextView::npos);
    }
}

/// The character behind the only "&", in lower case; 0 where there isn't exactly one.
char16_t Mnemonic(TextView text) {
    const std::size_t mark = text.find(u'&');
    const bool isAlone = mark + 1 < text.size() && text.find(u'&', mark + 1) == TextView::npos;
    return mark != TextView::npos && isAlone ? LowerCaseUnit(text[mark + 1]) : u'\0';
}

TEST(OnlinePages, EachEntryHasAMnemonicThatNoOtherOfItsMenuHas) {
    std::map<TextView, std::set<char16_t>> mnemonics;
    std::set<char16_t> ofMenus;
    for (const OnlinePage& page : OnlinePages()) {
        SCOPED_TRACE(Utf8FromText(page.text));
        EXPECT_NE(Mnemonic(page.text), u'\0');
        if (mnemonics[page.menu].empty()) {
            EXPECT_TRUE(ofMenus.insert(Mnemonic(page.menu)).second) << Utf8FromText(page.menu);
        }
        EXPECT_TRUE(mnemonics[page.menu].insert(Mnemonic(page.text)).second);
    }
    EXPECT_FALSE(ofMenus.contains(u'\0'));
}

TEST(OnlinePages, TheEntriesOfAMenuStandTogether) {
    std::set<TextView> seen;
    TextView current;
    for (const OnlinePage& page : OnlinePages()) {
        if (page.menu != current) {
            EXPECT_TRUE(seen.insert(page.menu).second) << Utf8FromText(page.key);
        }
        current = page.menu;
    }
}

TEST(OnlinePages, EveryEntryTellsWhatItShows) {
    for (const OnlinePage& page : OnlinePages()) {
        SCOPED_TRACE(Utf8FromText(page.key));
        EXPECT_GE(page.statusTip.size(), 10U);
        EXPECT_FALSE(page.statusTip.ends_with(u'.'));
    }
}

}  // namespace
}  // namespace tintora
