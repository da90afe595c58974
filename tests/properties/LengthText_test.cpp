#include "properties/LengthText.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora {
namespace {

struct ApartCase {
    TextView text;
    TextView sign;
    TextView value;
    TextView unit;
};

constexpr auto TakenApart = std::to_array<ApartCase>({
    {u"12px", u"", u"12", u"px"},
    {u"-12px", u"-", u"12", u"px"},
    {u"+1.5em", u"+", u"1.5", u"em"},
    {u"50%", u"", u"50", u"%"},
    {u"-50%", u"-", u"50", u"%"},
    {u"1pc", u"", u"1", u"pc"},
    {u"12px  ", u"", u"12", u"px"},
    {u"1.5", u"", u"1.5", u""},
    {u"0", u"", u"0", u""},
    {u"-5", u"-", u"5", u""},
    {u"5", u"", u"5", u""},
    {u"", u"", u"", u""},
    {u"   ", u"", u"   ", u""},
    {u"auto", u"", u"auto", u""},
    {u"12PX", u"", u"12PX", u""},
    {u"12\t", u"", u"12\t", u""},
    // Signs and "%" count wherever they stand, and "+" before "-".
    {u"5-3px", u"-", u"3", u"px"},
    {u"-5+3px", u"+", u"3", u"px"},
    {u"1%2px", u"", u"1", u"%"},
    {u"xx-small", u"-", u"small", u""},
    // A unit is any pair of its letters, at the end; it is looked for from the start.
    {u"item", u"", u"it", u"em"},
    {u"number", u"", u"numb", u"er"},
    {u"em1em", u"", u"", u"em"},
    {u"1 m", u"", u"1", u" m"},
    {u"m", u"", u"", u"m"},
    {u"px-", u"-", u"", u""},
    {u"-", u"-", u"", u""},
    {u"%", u"", u"", u"%"},
    {u"%-1", u"-", u"1", u"%"},
});

struct JoinCase {
    TextView sign;
    TextView number;
    TextView unit;
    TextView value;
};

constexpr auto Joined = std::to_array<JoinCase>({
    {u"", u"12", u"px", u"12px"},
    {u"-", u"12", u"px", u"-12px"},
    {u"+", u"1.5", u"%", u"+1.5%"},
    {u"", u"1.5", u"number", u"1.5"},
    {u"-", u"5", u"number", u"-5"},
    {u"", u"", u"px", u""},
    {u"-", u"", u"px", u""},
    {u"", u"", u"number", u""},
    {u"", u"", u"auto", u"auto"},
    {u"-", u"12", u"auto", u"auto"},
    {u"", u"12", u"xx-small", u"xx-small"},
    // Without a unit the number is the value, and parts of units are units.
    {u"-", u"12", u"", u"-12"},
    {u"", u"12", u"er", u"12er"},
    {u"", u"", u"er", u""},
    {u"", u"12", u"1px,", u"1px,"},
});

TEST(LengthText, ALengthHasASignANumberAndAUnit) {
    for (const ApartCase& row : TakenApart) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(GetPropertySign(row.text), row.sign);
        EXPECT_EQ(GetPropertyValue(row.text), row.value);
        EXPECT_EQ(GetPropertyUnits(row.text), row.unit);
    }
}

TEST(LengthText, ThePartsMakeAValue) {
    for (const JoinCase& row : Joined) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EXPECT_EQ(JoinLength(row.sign, row.number, row.unit), row.value);
    }
}

TEST(LengthText, LongTextsAreTakenApartToo) {
    const Text digits(1'000'000, u'1');
    EXPECT_EQ(GetPropertyValue(u"-" + digits + u"px"), digits);
    EXPECT_EQ(GetPropertyUnits(digits + Text(1'000'000, u' ')), u"");
}

}  // namespace
}  // namespace tintora
