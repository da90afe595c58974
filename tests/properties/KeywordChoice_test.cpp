#include "properties/KeywordChoice.h"

#include "language/FakeFrontDocument.h"
#include "language/Vocabulary.h"
#include "language/Words.h"
#include "properties/ControlRows.h"
#include "text/Encoding.h"
#include "text/StringTable.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora {
namespace {

struct ListCase {
    int property;
    int string;
};

/// Which numbered string holds the words of each keyword list.
constexpr auto Lists = std::to_array<ListCase>({
    {1002, 1306}, {1010, 1305}, {1012, 1308}, {1016, 1309}, {1017, 1310}, {1029, 1314}, {1040, 1316}, {1043, 1318},
    {1044, 1319}, {1045, 1320}, {1046, 1321}, {1048, 1323}, {1049, 1324}, {1050, 1325}, {1051, 1326}, {1059, 1328},
    {1072, 1329}, {1074, 1328}, {1077, 1331}, {1078, 1331}, {1079, 1331}, {1089, 1335}, {1090, 1345}, {1091, 1337},
    {1092, 1338}, {1094, 1341}, {1097, 1343}, {1098, 1344}, {1099, 1346}, {1100, 1347}, {1101, 1348}, {1102, 1349},
    {1103, 1349}, {1104, 1349}, {1105, 1350}, {1106, 1352}, {1107, 1353},
});

struct ValueCase {
    int property;
    TextView value;
    TextView shown;
    bool isBad;
};

constexpr auto Values = std::to_array<ValueCase>({
    {1002, u"bold", u"bold", false},
    {1002, u"100", u"100", false},
    {1002, u"inherit", u"inherit", false},
    {1002, u"", u"", false},
    {1002, u"heavy", u"heavy", true},
    {1002, u"bold italic", u"bold italic", true},
    {1002, u" bold", u" bold", false},
    // Valid, though no list has it: it stays, and isn't marked.
    {1010, u"CENTER", u"CENTER", false},
    {1072, u"url(a.cur)", u"url(a.cur)", false},
    // The flag is put aside.
    {1002, u"bold !important", u"bold", false},
    {1002, u"bold!IMPORTANT", u"bold", false},
    {1002, u"bold ! important", u"bold ! important", true},
    {1002, u"!important", u"", false},
    {1002, u"heavy !important", u"heavy", true},
    {1011, u"Times, \"Times New Roman\", serif", u"Times, \"Times New Roman\", serif", false},
    {1011, u"Comic Sans MS", u"Comic Sans MS", true},
    {1011, u"Arial", u"Arial", false},
    {1088, u"crop cross", u"crop cross", false},
    {1107, u"no-open-quote", u"no-open-quote", false},
    {1107, u"quote", u"quote", true},
});

TEST(KeywordChoice, AListOffersNothingFirstAndThenTheWordsOfItsProperty) {
    for (const ListCase& row : Lists) {
        SCOPED_TRACE(row.property);
        Texts expected = GetWordsFromText(LoadResourceString(row.string), u" ");
        expected.insert(expected.begin(), u"");
        EXPECT_EQ(KeywordEntries(row.property), expected);
        KeywordChoice choice(row.property);
        EXPECT_EQ(choice.List().Entries(), expected);
        EXPECT_EQ(choice.GetValue(), u"");
    }
}

TEST(KeywordChoice, APlusInAWordStandsForABlank) {
    EXPECT_EQ(KeywordEntries(1088), (Texts{u"", u"inherit", u"none", u"crop", u"cross", u"crop cross"}));
}

TEST(KeywordChoice, TheFontsOfTheDocumentComeBehindTheOthers) {
    FakeFrontDocument front;
    front.fonts = {u"Georgia", u"\"Comic Sans MS\", cursive"};
    const Texts alone = KeywordEntries(1011);
    Texts expected = alone;
    expected.insert(expected.end(), front.fonts.begin(), front.fonts.end());
    EXPECT_EQ(alone.size(), 9U);
    EXPECT_EQ(alone[6], u"Times, \"Times New Roman\", serif");
    EXPECT_EQ(KeywordEntries(1011, &front), expected);
    KeywordChoice choice(1011);
    choice.Clear(&front);
    EXPECT_EQ(choice.List().Entries(), expected);
    // A bad one is bad also where the document has it.
    front.fonts = {u"Comic Sans MS"};
    choice.Clear(&front);
    choice.SetValue(u"Comic Sans MS");
    EXPECT_TRUE(choice.IsBad());
}

TEST(KeywordChoice, AValueIsShownWhetherTheListHasItOrNot) {
    for (const ValueCase& row : Values) {
        SCOPED_TRACE(Utf8FromText(row.value));
        KeywordChoice choice(row.property);
        choice.SetValue(row.value);
        EXPECT_EQ(choice.GetValue(), row.shown);
        EXPECT_EQ(choice.IsBad(), row.isBad);
        EXPECT_TRUE(choice.List().Has(row.shown));
    }
}

TEST(KeywordChoice, AWrongValueLeavesTheListWhenAValidOneIsChosen) {
    KeywordChoice weight(1002);
    const Texts offered = weight.List().Entries();
    weight.SetValue(u"heavy");
    weight.Choose(u"heavier");
    EXPECT_EQ(weight.List().Entries().size(), offered.size() + 2);
    weight.Choose(u"bold");
    EXPECT_FALSE(weight.IsBad());
    EXPECT_EQ(weight.GetValue(), u"bold");
    EXPECT_EQ(weight.List().Entries(), offered);
}

TEST(KeywordChoice, AValidValueThatNoListHasStaysWhileItIsChosen) {
    KeywordChoice align(1010);
    align.SetValue(u"CENTER");
    EXPECT_TRUE(align.List().Has(u"CENTER"));
    align.Choose(u"Left");
    EXPECT_FALSE(align.List().Has(u"CENTER"));
    EXPECT_EQ(align.GetValue(), u"Left");
}

TEST(KeywordChoice, ClearingLeavesNothingOfTheValue) {
    KeywordChoice weight(1002);
    weight.SetValue(u"heavy");
    weight.Clear();
    EXPECT_EQ(weight.GetValue(), u"");
    EXPECT_FALSE(weight.IsBad());
    EXPECT_FALSE(weight.List().Has(u"heavy"));
    EXPECT_EQ(weight.List().Chosen(), 0U);
}

TEST(KeywordChoice, WhatTheUserTypesStaysAsItIs) {
    KeywordChoice weight(1002);
    weight.Choose(u"bold !important");
    EXPECT_EQ(weight.GetValue(), u"bold !important");
    EXPECT_TRUE(weight.IsBad());
}

TEST(KeywordChoice, EveryOfferedWordIsGoodAndComesBackAsItIs) {
    const auto check = [](int property) {
        for (const Text& word : KeywordEntries(property)) {
            SCOPED_TRACE(std::to_string(property) + " " + Utf8FromText(word));
            KeywordChoice choice(property);
            choice.Choose(word);
            EXPECT_EQ(choice.GetValue(), word);
            EXPECT_FALSE(choice.IsBad());
            KeywordChoice read(property);
            read.SetValue(word);
            EXPECT_EQ(read.GetValue(), word);
            EXPECT_FALSE(read.IsBad());
            EXPECT_EQ(read.List().Entries(), KeywordEntries(property));
        }
    };
    for (const ControlRow& row : ControlRows()) {
        if (row.kind == ControlKind::Keyword)
            check(row.number);
        for (const ControlPart& part : PartsOfControl(row.number)) {
            if (part.kind == ControlKind::Keyword)
                check(part.wordsOf);
        }
    }
    check(1088);
}

}  // namespace
}  // namespace tintora
