#include "properties/LengthPair.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora {
namespace {

constexpr int BackgroundPosition = 1018;
constexpr int BorderSpacing = 1096;

struct ValueCase {
    int property;
    TextView value;
    TextView horizontal;
    TextView vertical;
    TextView given;
};

constexpr auto Values = std::to_array<ValueCase>({
    {BackgroundPosition, u"10px 20px", u"10px", u"20px", u"10px 20px"},
    {BackgroundPosition, u"10px", u"10px", u"", u"10px"},
    {BackgroundPosition, u"top left", u"top", u"left", u"top left"},
    {BackgroundPosition, u"-10px +5%", u"-10px", u"+5%", u"-10px +5%"},
    {BackgroundPosition, u"10px  20px", u"10px", u"20px", u"10px 20px"},
    {BackgroundPosition, u"10px 20px 30px", u"10px", u"20px 30px", u"10px 20px 30px"},
    {BackgroundPosition, u"calc(1px + 2px) top", u"calc(1px + 2px)", u"top", u"calc(1px + 2px) top"},
    {BackgroundPosition, u"top left !important", u"top", u"left", u"top left"},
    {BackgroundPosition, u"", u"", u"", u""},
    {BackgroundPosition, u"inherit", u"inherit", u"", u"inherit"},
    {BorderSpacing, u"1px -2px", u"1px", u"2px", u"1px 2px"},
});

TEST(LengthPair, TheFirstWordIsHorizontalAndTheRestVertical) {
    for (const ValueCase& row : Values) {
        SCOPED_TRACE(Utf8FromText(row.value));
        LengthPair pair(row.property, row.property == BackgroundPosition);
        pair.Clear(u"em");
        pair.SetValue(row.value);
        EXPECT_EQ(pair.Horizontal().GetValue(), row.horizontal);
        EXPECT_EQ(pair.Vertical().GetValue(), row.vertical);
        EXPECT_EQ(pair.GetValue(), row.given);
        EXPECT_EQ(pair.IsVerticalEnabled(), !row.horizontal.empty());
        pair.Clear(u"em");
        EXPECT_EQ(pair.GetValue(), u"");
        EXPECT_FALSE(pair.IsVerticalEnabled());
    }
}

TEST(LengthPair, AVerticalValueAloneKeepsTheBlankInFrontOfIt) {
    LengthPair pair(BackgroundPosition, true);
    pair.Clear(u"em");
    pair.SetValue(u"10px 20px");
    pair.Horizontal().EnterNumber(u"");
    EXPECT_FALSE(pair.IsVerticalEnabled());
    EXPECT_EQ(pair.GetValue(), u" 20px");
}

}  // namespace
}  // namespace tintora
