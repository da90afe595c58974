#include "properties/ClipFields.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora {
namespace {

struct ValueCase {
    TextView value;
    TextView shape;
    std::array<TextView, 4> sides;
    TextView given;
};

constexpr auto Values = std::to_array<ValueCase>({
    {u"", u"", {u"", u"", u"", u""}, u""},
    {u"auto", u"auto", {u"", u"", u"", u""}, u"auto"},
    {u"INHERIT", u"inherit", {u"", u"", u"", u""}, u"inherit"},
    {u"auto !important", u"auto", {u"", u"", u"", u""}, u"auto"},
    {u"rect(1px 2px 3px 4px)", u"rectangle", {u"1px", u"2px", u"3px", u"4px"}, u"rect(1px 2px 3px 4px)"},
    {u"rect(-1px +2em auto 4px) !important",
     u"rectangle",
     {u"-1px", u"+2em", u"auto", u"4px"},
     u"rect(-1px +2em auto 4px)"},
    {u"rect( 1px  2px )", u"rectangle", {u"1px", u"2px", u"", u""}, u"rect(1px 2px)"},
    {u"rect(1px 2px 3px 4px 5px)", u"rectangle", {u"1px", u"2px", u"3px", u"4px"}, u"rect(1px 2px 3px 4px)"},
    // Commas stay with their words.
    {u"rect(1px, 2px, 3px, 4px)", u"rectangle", {u"1px,", u"2px,", u"3px,", u"4px"}, u"rect(1px, 2px, 3px, 4px)"},
    {u"rect(1px,2px)", u"rectangle", {u"1px,2px", u"", u"", u""}, u"rect(1px,2px)"},
    {u"rect()", u"rectangle", {u"", u"", u"", u""}, u""},
    {u"1px 2px)", u"rectangle", {u"1px", u"2px", u"", u""}, u"rect(1px 2px)"},
    {u"rect(1px 2px", u"", {u"", u"", u"", u""}, u""},
    {u"circle", u"", {u"", u"", u"", u""}, u""},
});

constexpr std::array<ClipFields::SideIndex, 4> Sides = {ClipFields::Top, ClipFields::Right, ClipFields::Bottom,
                                                        ClipFields::Left};

ClipFields ClearedClip() {
    ClipFields clip;
    clip.Clear(u"em");
    return clip;
}

TEST(ClipFields, ARectangleHasItsSidesInTheOrderOfCSS) {
    for (const ValueCase& row : Values) {
        SCOPED_TRACE(Utf8FromText(row.value));
        ClipFields clip = ClearedClip();
        clip.SetValue(row.value);
        EXPECT_EQ(clip.Shape().GetValue(), row.shape);
        for (const ClipFields::SideIndex side : Sides) {
            EXPECT_EQ(clip.Side(side).GetValue(), row.sides[side]);
            EXPECT_EQ(clip.Side(side).IsBad(), row.sides[side].find(u',') != TextView::npos);
        }
        EXPECT_EQ(clip.GetValue(), row.given);
        clip.Clear(u"em");
        EXPECT_EQ(clip.GetValue(), u"");
        EXPECT_EQ(clip.Shape().GetValue(), u"");
    }
}

TEST(ClipFields, TheSidesHaveTheNumbersOfTheOffsets) {
    ClipFields clip;
    constexpr std::array<int, 4> numbers = {1030, 1033, 1032, 1031};
    for (const ClipFields::SideIndex side : Sides)
        EXPECT_EQ(clip.Side(side).Property(), numbers[side]);
}

TEST(ClipFields, ASideIsEnabledBehindOneThatHasAValue) {
    ClipFields clip = ClearedClip();
    for (const ClipFields::SideIndex side : Sides)
        EXPECT_FALSE(clip.IsSideEnabled(side));
    clip.Shape().Choose(u"rectangle");
    for (const ClipFields::SideIndex side : Sides) {
        EXPECT_TRUE(clip.IsSideEnabled(side));
        if (side != ClipFields::Left) {
            EXPECT_FALSE(clip.IsSideEnabled(Sides[side + 1]));
        }
        clip.Side(side).EnterNumber(u"1");
    }
    EXPECT_EQ(clip.GetValue(), u"rect(1em 1em 1em 1em)");
    clip.Shape().Choose(u"auto");
    for (const ClipFields::SideIndex side : Sides)
        EXPECT_FALSE(clip.IsSideEnabled(side));
    EXPECT_EQ(clip.GetValue(), u"auto");
}

TEST(ClipFields, EmptySidesLeaveNoPlace) {
    ClipFields clip = ClearedClip();
    clip.SetValue(u"rect(1px 2px 3px 4px)");
    clip.Side(ClipFields::Right).EnterNumber(u"");
    EXPECT_EQ(clip.GetValue(), u"rect(1px 3px 4px)");
}

}  // namespace
}  // namespace tintora
