#include "properties/TextDecorationBoxes.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora {
namespace {

struct ValueCase {
    TextView value;
    /// "x" for a ticked box.
    TextView ticks;
    TextView given;
};

constexpr auto Values = std::to_array<ValueCase>({
    {u"", u"-----", u""},
    {u"none", u"x----", u"none"},
    {u"underline", u"-x---", u"underline"},
    {u"underline none", u"xx---", u"none"},
    {u"blink overline", u"--x-x", u"overline blink"},
    {u"LINE-THROUGH Underline", u"-x-x-", u"underline line-through"},
    {u"underline !important", u"-x---", u"underline"},
    {u"nonexistent", u"x----", u"none"},
    {u"under line", u"-----", u""},
    {u"inherit", u"-----", u""},
    {u"blink line-through overline underline", u"-xxxx", u"underline overline line-through blink"},
});

Text Ticks(const TextDecorationBoxes& boxes) {
    Text ticks;
    for (std::size_t box = 0; box < 5; ++box)
        ticks.push_back(boxes.IsTicked(static_cast<TextDecorationBoxes::Box>(box)) ? u'x' : u'-');
    return ticks;
}

TEST(TextDecorationBoxes, AValueTicksTheBoxesOfItsWords) {
    for (const ValueCase& row : Values) {
        SCOPED_TRACE(Utf8FromText(row.value));
        TextDecorationBoxes boxes;
        boxes.SetValue(row.value);
        EXPECT_EQ(Ticks(boxes), row.ticks);
        EXPECT_EQ(boxes.GetValue(), row.given);
        boxes.Clear();
        EXPECT_EQ(Ticks(boxes), u"-----");
    }
}

TEST(TextDecorationBoxes, NoneHasTheOthersRest) {
    TextDecorationBoxes boxes;
    boxes.SetValue(u"underline none");
    EXPECT_TRUE(boxes.IsEnabled(TextDecorationBoxes::None));
    for (const auto box : {TextDecorationBoxes::Underline, TextDecorationBoxes::Overline,
                           TextDecorationBoxes::LineThrough, TextDecorationBoxes::Blink})
        EXPECT_FALSE(boxes.IsEnabled(box));
    boxes.Tick(TextDecorationBoxes::None, false);
    EXPECT_TRUE(boxes.IsEnabled(TextDecorationBoxes::Blink));
    EXPECT_EQ(boxes.GetValue(), u"underline");
    boxes.Tick(TextDecorationBoxes::Underline, false);
    EXPECT_EQ(boxes.GetValue(), u"");
}

TEST(TextDecorationBoxes, SeveralValuesAddUp) {
    TextDecorationBoxes boxes;
    boxes.SetValue(u"underline");
    boxes.SetValue(u"blink");
    EXPECT_EQ(boxes.GetValue(), u"underline blink");
}

TEST(TextDecorationBoxes, EverySetOfTicksComesBackAsItWasWritten) {
    for (unsigned set = 0; set < 32; ++set) {
        TextDecorationBoxes boxes;
        for (std::size_t box = 0; box < 5; ++box)
            boxes.Tick(static_cast<TextDecorationBoxes::Box>(box), ((set >> box) & 1U) != 0);
        TextDecorationBoxes read;
        read.SetValue(boxes.GetValue());
        EXPECT_EQ(read.GetValue(), boxes.GetValue());
        if (!boxes.IsTicked(TextDecorationBoxes::None)) {
            EXPECT_EQ(Ticks(read), Ticks(boxes));
        }
    }
}

}  // namespace
}  // namespace tintora
