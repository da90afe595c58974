#include "properties/EdgeFields.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora {
namespace {

constexpr int Border = 1052;
constexpr int BorderTop = 1055;
constexpr int Outline = 1073;

struct ValueCase {
    int property;
    TextView value;
    TextView width;
    TextView color;
    TextView style;
    TextView given;
};

constexpr auto Values = std::to_array<ValueCase>({
    {Border, u"1px solid red", u"1px", u"red", u"solid", u"1px red solid"},
    {Border, u"red 1px solid", u"1px", u"red", u"solid", u"1px red solid"},
    {BorderTop, u"dotted", u"", u"", u"dotted", u"dotted"},
    {BorderTop, u"thick", u"thick", u"", u"", u"thick"},
    {BorderTop, u"#f00", u"", u"#f00", u"", u"#f00"},
    {BorderTop, u"rgb(1, 2, 3) thin", u"thin", u"rgb(1, 2, 3)", u"", u"thin rgb(1, 2, 3)"},
    {BorderTop, u"", u"", u"", u"", u""},
    // "inherit" is a colour first.
    {BorderTop, u"inherit", u"", u"inherit", u"", u"inherit"},
    {BorderTop, u"0", u"0em", u"", u"", u"0em"},
    // Any part of the words for the width is one; another number isn't.
    {BorderTop, u"hi", u"hi", u"", u"", u"hi"},
    {BorderTop, u"5", u"", u"", u"5", u"5"},
    {BorderTop, u"SOLID", u"", u"", u"SOLID", u"SOLID"},
    // The last of several holds.
    {BorderTop, u"1px 2px solid dotted red blue", u"2px", u"blue", u"dotted", u"2px blue dotted"},
    // The flag lands in the style of a border, and empties that of an outline.
    {Border, u"1px solid red !important", u"1px", u"red", u"!important", u"1px red !important"},
    {Border, u"1px solid !IMPORTANT", u"1px", u"", u"!IMPORTANT", u"1px !IMPORTANT"},
    {Border, u"1px solid!important", u"1px", u"", u"solid", u"1px solid"},
    {Border, u"solid red!important", u"", u"red", u"solid", u"red solid"},
    {Border, u"solid !importantly", u"", u"", u"solid", u"solid"},
    {Outline, u"1px solid red !important", u"1px", u"red", u"", u"1px red"},
    {Outline, u"2px dotted #000", u"2px", u"#000", u"dotted", u"2px #000 dotted"},
    {Outline, u"thick invert", u"thick", u"", u"invert", u"thick invert"},
});

struct BadCase {
    int property;
    TextView value;
    bool isWidthBad;
    bool isColorBad;
    bool isStyleBad;
};

constexpr auto BadValues = std::to_array<BadCase>({
    {Border, u"1px solid red", false, false, false},
    {Border, u"thick", false, false, false},
    {BorderTop, u"thin", false, false, false},
    {Outline, u"thick solid red", false, false, false},
    {Border, u"!important", false, false, true},
    {Border, u"wavy", false, false, true},
    {Outline, u"wavy", false, false, true},
    {Border, u"rgb(300)", false, false, false},
    {Outline, u"hi", true, false, false},
});

EdgeFields ClearedEdge(int property) {
    EdgeFields edge(property);
    edge.Clear(nullptr, u"em");
    return edge;
}

TEST(EdgeFields, TheWordsComeInAnyOrderAndGoInOne) {
    for (const ValueCase& row : Values) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EdgeFields edge = ClearedEdge(row.property);
        edge.SetValue(row.value);
        EXPECT_EQ(edge.Width().GetValue(), row.width);
        EXPECT_EQ(edge.Color().GetValue(), row.color);
        EXPECT_EQ(edge.Style().GetValue(), row.style);
        EXPECT_EQ(edge.GetValue(), row.given);
        EXPECT_EQ(edge.HasStyle(), !row.style.empty());
        edge.Clear(nullptr, u"em");
        EXPECT_EQ(edge.GetValue(), u"");
    }
}

TEST(EdgeFields, APartIsMarkedThatIsWrong) {
    for (const BadCase& row : BadValues) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EdgeFields edge = ClearedEdge(row.property);
        edge.SetValue(row.value);
        EXPECT_EQ(edge.Width().IsBad(), row.isWidthBad);
        EXPECT_EQ(edge.Color().IsBad(), row.isColorBad);
        EXPECT_EQ(edge.Style().IsBad(), row.isStyleBad);
    }
}

TEST(EdgeFields, DeclarationsOfAnEdgeAddUp) {
    EdgeFields edge = ClearedEdge(BorderTop);
    edge.SetValue(u"red");
    EXPECT_FALSE(edge.HasStyle());
    edge.SetValue(u"2px");
    edge.SetValue(u"solid");
    EXPECT_TRUE(edge.HasStyle());
    EXPECT_EQ(edge.GetValue(), u"2px red solid");
}

TEST(EdgeFields, WhatIsChosenIsWritten) {
    EdgeFields edge = ClearedEdge(BorderTop);
    edge.SetValue(u"red");
    edge.Style().Choose(u"solid");
    EXPECT_EQ(edge.GetValue(), u"red solid");
    edge.Width().EnterNumber(u"3");
    EXPECT_EQ(edge.GetValue(), u"3em red solid");
    edge.Color().TakeColor(ColorFromComponents(0, 0, 255));
    EXPECT_EQ(edge.GetValue(), u"3em #0000ff solid");
}

TEST(EdgeFields, EveryPartComesBackAsItWasWritten) {
    for (const int property : {Border, BorderTop, Outline}) {
        EdgeFields offers(property);
        for (const Text& width : offers.Width().Units().Entries()) {
            for (const Text& style : offers.Style().List().Entries()) {
                if (width == u"inherit" || style == u"inherit")
                    continue;
                EdgeFields edge = ClearedEdge(property);
                edge.Width().EnterNumber(u"7");
                edge.Width().ChooseUnit(width);
                edge.Style().Choose(style);
                edge.Color().EnterHex(u"123456");
                EdgeFields read = ClearedEdge(property);
                read.SetValue(edge.GetValue());
                EXPECT_EQ(read.GetValue(), edge.GetValue());
                EXPECT_EQ(read.Style().GetValue(), style);
            }
        }
    }
}

}  // namespace
}  // namespace tintora
