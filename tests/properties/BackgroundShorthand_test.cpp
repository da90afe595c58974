#include "properties/BackgroundShorthand.h"

#include "PropertyValueDump.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora::test {
namespace {

struct ApartCase {
    TextView value;
    const char* parts;
};

/// 1015 colour, 1003 image, 1016 repeat, 1017 attachment, 1018 position.
constexpr auto TakenApart = std::to_array<ApartCase>({
    {u"", ""},
    {u"#fff url(a.gif) no-repeat fixed 10px 20px",
     "1015 [#fff], 1003 [url(a.gif)], 1016 [no-repeat], 1017 [fixed], 1018 [10px], 1018 [10px 20px]"},
    {u"10px red 20px repeat-x", "1018 [10px], 1015 [red], 1016 [repeat-x], 1018 [10px 20px]"},
    {u"none", "1003 [none]"},
    {u"NONE", "1003 [NONE]"},
    {u"inherit", "1015 [inherit]"},
    {u"rgb(1, 2, 3) url(a b.gif)", "1015 [rgb(1, 2, 3)], 1003 [url(a b.gif)]"},
    {u"top left", "1018 [top], 1018 [top left]"},
    {u"0 0", "1018 [0], 1018 [0 0]"},
    {u"top left bottom", "1018 [top], 1018 [top left bottom]"},
    {u"REPEAT Fixed TOP", "1016 [REPEAT], 1017 [Fixed], 1018 [TOP]"},
    // A part of a word is enough; a unit alone gives no value yet.
    {u"rep scrol lef", "1016 [rep], 1017 [scrol], 1018 [lef]"},
    {u"cm 5px 6px", "1018 [cm], 1018 [5px], 1018 [5px 6px]"},
    // What nothing takes is dropped.
    {u"red x!y transparent Red !important", "1015 [red]"},
    {u"red!important", "1015 [red]"},
    {u"linear-gradient(red, blue)", ""},
});

struct WriteCase {
    PropertyValues shown;
    const char* parts;
    TextView value;
};

const std::vector<WriteCase> Written = {
    {{}, "", u""},
    {{{1018, u"10px 20px"}, {1017, u"fixed"}, {1016, u"repeat"}, {1003, u"url(a.gif)"}, {1015, u"#fff"}},
     "1015 [#fff], 1003 [url(a.gif)], 1016 [repeat], 1017 [fixed], 1018 [10px 20px]",
     u"#fff url(a.gif) repeat fixed 10px 20px"},
    {{{1003, u"none"}}, "1003 [none]", u"none"},
    {{{1015, u"red"}, {1018, u" 20px"}}, "1015 [red], 1018 [ 20px]", u"red  20px"},
};

TEST(BackgroundShorthand, EachWordGoesToTheFirstPartThatTakesIt) {
    for (const ApartCase& row : TakenApart) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EXPECT_EQ(Dump(TakeBackgroundApart(row.value)), row.parts);
    }
}

TEST(BackgroundShorthand, ThePartsAreWrittenInTheirOrder) {
    for (const WriteCase& row : Written) {
        const PropertyValues parts = BackgroundPartsToWrite(ShownBy(row.shown));
        EXPECT_EQ(Dump(parts), row.parts);
        EXPECT_EQ(JoinValues(parts), row.value);
    }
}

TEST(BackgroundShorthand, AValueOfManyPositionsTakesNoLonger) {
    Text value;
    for (int round = 0; round < 200'000; ++round)
        value += u"top ";
    EXPECT_EQ(TakeBackgroundApart(value).size(), 2U);
}

}  // namespace
}  // namespace tintora::test
