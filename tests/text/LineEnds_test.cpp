#include "text/LineEnds.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

using namespace std::string_literals;

struct LineEndCase {
    Text text;
    Text first;
    /// The text with "<>" for each of its line ends.
    Text marked;
    std::vector<int> starts;
};

const std::vector<LineEndCase> Cases = {
    {u"", u"\n", u"", {0}},
    {u"a", u"\n", u"a", {0}},
    {u"\n", u"\n", u"<>", {0, 1}},
    {u"\r", u"\r", u"<>", {0, 1}},
    {u"\r\n", u"\r\n", u"<>", {0, 2}},
    {u"a\nb", u"\n", u"a<>b", {0, 2}},
    {u"a\rb", u"\r", u"a<>b", {0, 2}},
    {u"a\r\nb", u"\r\n", u"a<>b", {0, 3}},

    // The first of them is the text's own, whatever follows.
    {u"a\nb\r\nc\rd", u"\n", u"a<>b<>c<>d", {0, 2, 5, 7}},
    {u"a\rb\r\nc\nd", u"\r", u"a<>b<>c<>d", {0, 2, 5, 7}},
    {u"a\r\nb\nc\rd", u"\r\n", u"a<>b<>c<>d", {0, 3, 5, 7}},

    // A CR belongs to the LF behind it, and to none in front of it.
    {u"\n\r", u"\n", u"<><>", {0, 1, 2}},
    {u"\r\r\n", u"\r", u"<><>", {0, 1, 3}},
    {u"\r\n\n", u"\r\n", u"<><>", {0, 2, 3}},
    {u"\r\n\r\n", u"\r\n", u"<><>", {0, 2, 4}},
    {u"\n\n", u"\n", u"<><>", {0, 1, 2}},

    // Nothing else ends a line.
    {u"a\fb\vc\u0085d\u2028e\u2029f"s, u"\n", u"a\fb\vc\u0085d\u2028e\u2029f"s, {0}},
    {u"a\0b\nc"s, u"\n", u"a\0b<>c"s, {0, 4}},
    {u"\U0001F600\n\U0001F600", u"\n", u"\U0001F600<>\U0001F600", {0, 3}},
    {u"\\n", u"\n", u"\\n", {0}},
};

TEST(LineEnds, TheFirstOneIsFoundAndIsALineFeedWhereThereIsNone) {
    for (const LineEndCase& row : Cases) {
        SCOPED_TRACE(Utf8FromText(row.marked));
        EXPECT_EQ(FirstLineEnd(row.text), row.first);
    }
}

TEST(LineEnds, EachOneIsReplacedAndAllElseStays) {
    for (const LineEndCase& row : Cases) {
        SCOPED_TRACE(Utf8FromText(row.marked));
        EXPECT_EQ(WithLineEnds(row.text, u"<>"), row.marked);
    }
}

TEST(LineEnds, EachOneBeginsARow) {
    for (const LineEndCase& row : Cases) {
        SCOPED_TRACE(Utf8FromText(row.marked));
        EXPECT_EQ(LineStarts(row.text), row.starts);
    }
}

TEST(LineEnds, AnyOneIsTurnedIntoAnyOther) {
    const Text mixed = u"a\nb\r\nc\rd";
    EXPECT_EQ(WithLineEnds(mixed, u"\n"), u"a\nb\nc\nd");
    EXPECT_EQ(WithLineEnds(mixed, u"\r"), u"a\rb\rc\rd");
    EXPECT_EQ(WithLineEnds(mixed, u"\r\n"), u"a\r\nb\r\nc\r\nd");
    EXPECT_EQ(WithLineEnds(mixed, u""), u"abcd");
}

TEST(LineEnds, TurningThemTwiceChangesNothingMore) {
    for (const TextView lineEnd : {TextView(u"\n"), TextView(u"\r"), TextView(u"\r\n")}) {
        for (const LineEndCase& row : Cases) {
            SCOPED_TRACE(Utf8FromText(row.marked));
            const Text once = WithLineEnds(row.text, lineEnd);
            EXPECT_EQ(WithLineEnds(once, lineEnd), once);
        }
    }
}

TEST(LineEnds, ALargeTextOfNothingElseHasAllItsRows) {
    const std::vector<int> starts = LineStarts(Text(32767, u'\n'));
    ASSERT_EQ(starts.size(), 32768U);
    EXPECT_EQ(starts.front(), 0);
    EXPECT_EQ(starts.back(), 32767);
}

}  // namespace
}  // namespace tintora
