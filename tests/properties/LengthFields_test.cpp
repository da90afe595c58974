#include "properties/LengthFields.h"

#include "language/ValueParsers.h"
#include "language/Words.h"
#include "properties/ControlRows.h"
#include "text/Encoding.h"
#include "text/StringTable.h"

#include <gtest/gtest.h>
#include <array>
#include <string>

namespace tintora {
namespace {

struct ListCase {
    int property;
    int string;
};

/// Which numbered string holds the units and words of each length list.
constexpr auto Lists = std::to_array<ListCase>({
    {1001, 1301}, {1005, 1302}, {1006, 1302}, {1007, 1300}, {1008, 1304}, {1009, 1303}, {1018, 1311}, {1019, 1312},
    {1020, 1312}, {1021, 1312}, {1022, 1312}, {1023, 1312}, {1024, 1313}, {1025, 1313}, {1026, 1313}, {1027, 1313},
    {1028, 1313}, {1030, 1312}, {1031, 1312}, {1032, 1312}, {1033, 1312}, {1034, 1312}, {1035, 1312}, {1036, 1312},
    {1037, 1312}, {1038, 1300}, {1039, 1300}, {1041, 1315}, {1052, 1327}, {1075, 1327}, {1096, 1342}, {998, 1336},
    {1047, 1322}, {1080, 1332}, {1083, 1333}, {1087, 1333}, {1095, 1340}, {0, 1300},
});

struct ClearCase {
    int property;
    TextView preferred;
    TextView unit;
};

constexpr auto Cleared = std::to_array<ClearCase>({
    {1001, u"em", u"em"},
    {1001, u"px", u"px"},
    {1001, u"%", u"%"},
    {1009, u"em", u"em"},
    {1020, u"mm", u"mm"},
    // The first entry is never looked at.
    {1007, u"em", u"px"},
    {1038, u"em", u"px"},
    {1039, u"em", u"px"},
    {1007, u"ex", u"ex"},
    {1007, u"pt", u"pt"},
    // Without the preferred unit: a bare number, then pixels.
    {1041, u"em", u"number"},
    {1009, u"pc", u"number"},
    {1001, u"pc", u"px"},
    {1001, u"", u"px"},
    {1001, u"PX", u"px"},
    {998, u"em", u""},
    {998, u"pt", u"pt"},
    // Any entry may be preferred.
    {1020, u"auto", u"auto"},
    {1020, u"inherit", u"px"},
});

struct ValueCase {
    int property;
    bool showSign;
    TextView value;
    /// Sign, number and unit as shown.
    TextView shown;
    TextView given;
    bool isBad;
};

constexpr auto Values = std::to_array<ValueCase>({
    {1001, false, u"12px", u"|12|px", u"12px", false},
    {1001, false, u"12px !important", u"|12|px", u"12px", false},
    {1001, false, u"12px!IMPORTANT", u"|12|px", u"12px", false},
    {1001, false, u"!important", u"||em", u"", false},
    {1001, false, u"", u"||em", u"", false},
    {1001, false, u"xx-small", u"||xx-small", u"xx-small", false},
    {1001, false, u"inherit", u"||inherit", u"inherit", false},
    {1020, true, u"auto", u"||auto", u"auto", false},
    {1020, true, u"-12.5%", u"-|12.5|%", u"-12.5%", false},
    {1020, true, u"+3ex", u"+|3|ex", u"+3ex", false},
    // A bare number leaves the unit that clearing has chosen.
    {1009, false, u"1.5", u"|1.5|em", u"1.5em", false},
    {1020, true, u"0", u"|0|em", u"0em", false},
    {1020, true, u"-5", u"-|5|em", u"-5em", false},
    {1041, true, u"5", u"|5|number", u"5", false},
    {1041, true, u"-5", u"-|5|number", u"-5", false},
    {1041, true, u"auto", u"||auto", u"auto", false},
    // No sign is written where none may be.
    {1025, false, u"-5px", u"-|5|px", u"5px", false},
    // A unit that is none of the list's.
    {1020, true, u"1pc", u"|1|em", u"1em", false},
    {1020, true, u"1er", u"|1|em", u"1em", false},
    // A unit alone is an entry.
    {1020, true, u"px", u"||px", u"", false},
    // What nothing knows stays to be seen.
    {1001, false, u"huge", u"||huge", u"huge", true},
    {1001, false, u"12qx", u"||12qx", u"12qx", true},
    {1030, true, u"1px,", u"||1px,", u"1px,", true},
    {1020, true, u"item", u"||item", u"item", true},
    {1020, true, u"er", u"||er", u"", true},
    {1020, true, u"50%foo", u"|50|50%foo", u"50%foo", true},
    {1020, true, u"-moz-auto", u"-||-moz-auto", u"-moz-auto", true},
    {1020, true, u"1px 2px", u"|1|1px 2px", u"1px 2px", true},
    // Valid for the property, but no list has it.
    {1001, false, u"12PX", u"||12PX", u"12PX", false},
    {1020, true, u"AUTO", u"||AUTO", u"AUTO", false},
});

Text Shown(const LengthFields& fields) {
    constexpr std::array<TextView, 3> Signs = {u"", u"+", u"-"};
    return Text(Signs[static_cast<std::size_t>(fields.SignIndex())])
        .append(u"|")
        .append(fields.Number())
        .append(u"|")
        .append(fields.Units().ChosenText());
}

LengthFields ClearedFields(int property, bool showSign, TextView preferred = u"em") {
    LengthFields fields(property, showSign);
    fields.Clear(preferred);
    return fields;
}

TEST(LengthFields, AListOffersTheWordsOfItsPropertyWithNoEmptyEntry) {
    for (const ListCase& row : Lists) {
        SCOPED_TRACE(row.property);
        const LengthFields fields(row.property, false);
        EXPECT_EQ(fields.Units().Entries(), GetWordsFromText(LoadResourceString(row.string), u" "));
        EXPECT_EQ(fields.Units().Chosen(), ChoiceList::None);
    }
}

TEST(LengthFields, ClearingChoosesAUnitBehindTheFirstEntry) {
    for (const ClearCase& row : Cleared) {
        SCOPED_TRACE(std::to_string(row.property) + " " + Utf8FromText(row.preferred));
        const LengthFields fields = ClearedFields(row.property, true, row.preferred);
        EXPECT_EQ(fields.Units().ChosenText(), row.unit);
        EXPECT_EQ(fields.GetValue(), IsLengthUnit(row.unit) ? TextView() : row.unit);
        EXPECT_FALSE(fields.IsBad());
    }
}

TEST(LengthFields, AValueIsTakenApartIntoTheFields) {
    for (const ValueCase& row : Values) {
        SCOPED_TRACE(Utf8FromText(row.value));
        LengthFields fields = ClearedFields(row.property, row.showSign);
        fields.SetValue(row.value);
        EXPECT_EQ(Utf8FromText(Shown(fields)), Utf8FromText(row.shown));
        EXPECT_EQ(fields.GetValue(), row.given);
        EXPECT_EQ(fields.IsBad(), row.isBad);
        // The same property once more.
        fields.SetValue(row.value);
        EXPECT_EQ(Utf8FromText(Shown(fields)), Utf8FromText(row.shown));
        EXPECT_EQ(fields.IsBad(), row.isBad);
    }
}

TEST(LengthFields, AWordPutsNumberAndSignToRest) {
    LengthFields margin = ClearedFields(1020, true);
    EXPECT_TRUE(margin.TakesNumber());
    EXPECT_TRUE(margin.TakesSign());
    margin.SetValue(u"auto");
    EXPECT_FALSE(margin.TakesNumber());
    EXPECT_FALSE(margin.TakesSign());
    margin.ChooseUnit(u"px");
    EXPECT_TRUE(margin.TakesNumber());
    LengthFields index = ClearedFields(1041, true);
    EXPECT_TRUE(index.TakesNumber());
    const LengthFields size = ClearedFields(1001, false);
    EXPECT_TRUE(size.TakesNumber());
    EXPECT_FALSE(size.TakesSign());
}

TEST(LengthFields, TheNumberOutlivesAWord) {
    LengthFields margin = ClearedFields(1020, true);
    margin.SetValue(u"-12px");
    margin.SetValue(u"auto");
    EXPECT_EQ(margin.GetValue(), u"auto");
    margin.ChooseUnit(u"pt");
    EXPECT_EQ(margin.GetValue(), u"-12pt");
}

TEST(LengthFields, EachFieldChangesItsPartOfTheValue) {
    LengthFields margin = ClearedFields(1020, true);
    margin.EnterNumber(u"5");
    EXPECT_EQ(margin.GetValue(), u"5em");
    margin.ChooseSign(2);
    EXPECT_EQ(margin.GetValue(), u"-5em");
    margin.ChooseSign(1);
    EXPECT_EQ(margin.GetValue(), u"+5em");
    margin.ChooseSign(7);
    EXPECT_EQ(margin.GetValue(), u"5em");
    margin.EnterNumber(u"1.");
    EXPECT_EQ(margin.GetValue(), u"1.em");
    margin.EnterNumber(u"1.2.3");
    EXPECT_TRUE(margin.IsBad());
    margin.EnterNumber(u"");
    EXPECT_EQ(margin.GetValue(), u"");
    EXPECT_FALSE(margin.IsBad());
}

TEST(LengthFields, AWrongValueLeavesTheListWhenAValidOneIsChosen) {
    LengthFields size = ClearedFields(1001, false);
    const Texts offered = size.Units().Entries();
    size.SetValue(u"huge");
    size.SetValue(u"huger");
    EXPECT_EQ(size.Units().Entries().size(), offered.size() + 2);
    size.ChooseUnit(u"small");
    EXPECT_FALSE(size.IsBad());
    EXPECT_EQ(size.Units().Entries(), offered);
    size.SetValue(u"huge");
    size.Clear(u"em");
    EXPECT_EQ(size.Units().Entries(), offered);
    EXPECT_FALSE(size.IsBad());
}

struct PasteCase {
    int property;
    TextView clipboard;
    bool isTaken;
    TextView given;
};

constexpr auto Pasted = std::to_array<PasteCase>({
    {1020, u"12px", true, u"12px"},
    {1020, u" 12px\n", true, u"12px"},
    {1020, u"auto", true, u"auto"},
    {1001, u"12", true, u"12em"},
    {1001, u"1e3", true, u"1e3em"},
    {1001, u"-12", true, u"-12em"},
    {1001, u"huge", false, u""},
    {1001, u"", false, u""},
    {1001, u"  ", false, u""},
    {1001, u"12 13", false, u""},
    {1001, u"}; p {", false, u""},
});

TEST(LengthFields, OnlyAValidValueOrANumberIsPasted) {
    for (const PasteCase& row : Pasted) {
        SCOPED_TRACE(Utf8FromText(row.clipboard));
        LengthFields fields = ClearedFields(row.property, true);
        EXPECT_EQ(fields.PasteValue(row.clipboard), row.isTaken);
        EXPECT_EQ(fields.GetValue(), row.given);
    }
    LengthFields fields = ClearedFields(1001, true);
    EXPECT_FALSE(fields.PasteValue(Text(3'000'000, u'x')));
    EXPECT_TRUE(fields.PasteValue(Text(3'000'000, u'1')));
    EXPECT_EQ(fields.Number().size(), 3'000'000U);
}

struct UnitCase {
    int property;
    TextView text;
    TextView unit;
};

constexpr auto SelectedUnits = std::to_array<UnitCase>({
    {1020, u"pxy", u"px"},
    {1020, u"PX", u"px"},
    {1020, u"%", u"%"},
    {1020, u"autom", u"auto"},
    {1020, u"apx", u"mm"},
    {1020, u"", u"mm"},
    {1020, u"inherit", u"in"},
    {1300, u"em", u"mm"},
    // "x-large" stands in front of "xx-large" in no text, and "smaller" begins with "small".
    {1001, u"xx-large", u"xx-large"},
    {1001, u"smaller", u"small"},
});

TEST(LengthFields, AUnitIsFoundAtTheStartOfATextBehindTheFirstEntry) {
    for (const UnitCase& row : SelectedUnits) {
        SCOPED_TRACE(Utf8FromText(row.text));
        LengthFields fields = ClearedFields(row.property, true, u"mm");
        fields.SelectUnit(row.text);
        EXPECT_EQ(fields.Units().ChosenText(), row.unit);
    }
}

TEST(LengthFields, EveryUnitAndWordComesBackAsItWasWritten) {
    const auto check = [](int property, bool showSign) {
        const Texts units = LengthFields(property, showSign).Units().Entries();
        for (const Text& unit : units) {
            LengthFields fields = ClearedFields(property, showSign);
            fields.EnterNumber(u"7");
            fields.ChooseSign(2);
            fields.ChooseUnit(unit);
            const Text value = fields.GetValue();
            LengthFields read = ClearedFields(property, showSign, unit);
            read.SetValue(value);
            SCOPED_TRACE(std::to_string(property) + " " + Utf8FromText(value));
            // A bare number takes the unit that is there, for which entry 0 is never chosen.
            EXPECT_EQ(read.GetValue(), value);
        }
    };
    for (const ControlRow& row : ControlRows()) {
        if (row.kind == ControlKind::Length)
            check(row.number, row.showSign);
        for (const ControlPart& part : PartsOfControl(row.number)) {
            if (part.kind == ControlKind::Length)
                check(part.wordsOf, part.showSign);
        }
    }
}

}  // namespace
}  // namespace tintora
