#include "properties/BoxSides.h"

#include "PropertyValueDump.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora::test {
namespace {

struct ApartCase {
    int shorthand;
    TextView value;
    const char* sides;
};

constexpr auto TakenApart = std::to_array<ApartCase>({
    {box::Margin, u"0", "1019 [0]"},
    {box::Margin, u"auto", "1019 [auto]"},
    {box::Margin, u"1px 2px", "1020 [1px], 1022 [1px], 1021 [2px], 1023 [2px]"},
    {box::Margin, u"1px 2px 3px", "1020 [1px], 1022 [1px], 1021 [2px], 1023 [2px], 1022 [3px]"},
    {box::Margin, u"1px 2px 3px 4px", "1020 [1px], 1022 [1px], 1021 [2px], 1023 [2px], 1022 [3px], 1023 [4px]"},
    {box::Padding, u"1px 2px 3px 4px 5px 6px",
     "1025 [1px], 1027 [1px], 1026 [2px], 1028 [2px], 1027 [3px], 1028 [4px]"},
    {box::Padding, u"1px", "1024 [1px]"},
    {box::Margin, u"0 !important", "1019 [0]"},
    {box::Margin, u"1px 2px!IMPORTANT", "1020 [1px], 1022 [1px], 1021 [2px], 1023 [2px]"},
    {box::Margin, u"  1px \n 2px ", "1020 [1px], 1022 [1px], 1021 [2px], 1023 [2px]"},
    {box::Margin, u"calc(1px + 2px)", "1019 [calc(1px + 2px)]"},
    {box::Margin, u"", ""},
    {box::Margin, u"!important", ""},
});

struct JoinCase {
    int shorthand;
    PropertyValues shown;
    TextView value;
};

const std::vector<JoinCase> Joined = {
    {box::Margin, {}, u""},
    {box::Margin, {{1019, u"9px"}}, u""},
    {box::Margin, {{1023, u"4px"}, {1020, u"1px"}, {1022, u"3px"}, {1021, u"2px"}}, u"1px 2px 3px 4px"},
    {box::Margin, {{1022, u"3px"}}, u"3px"},
    {box::Padding, {{1020, u"1px"}, {1025, u"5px"}, {1028, u"8px"}}, u"5px 8px"},
};

TEST(BoxSides, TheWordsGoToTheSides) {
    for (const ApartCase& row : TakenApart) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EXPECT_EQ(Dump(TakeSidesApart(row.shorthand, row.value)), row.sides);
    }
}

TEST(BoxSides, TheSidesAreWrittenInTheProgramsOrder) {
    for (const JoinCase& row : Joined)
        EXPECT_EQ(JoinSides(row.shorthand, ShownBy(row.shown)), row.value);
}

TEST(BoxSides, FourWordsComeBackAsTheyWere) {
    const Text value = u"1px 2px 3px 4px";
    EXPECT_EQ(JoinSides(box::Margin, ShownBy(TakeSidesApart(box::Margin, value))), value);
    EXPECT_EQ(JoinSides(box::Padding, ShownBy(TakeSidesApart(box::Padding, u"1px 2px"))), u"1px 2px 1px 2px");
}

}  // namespace
}  // namespace tintora::test
