#include "document/TextDifference.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace tintora {
namespace {

using Kind = DifferenceLine::Kind;

struct DifferenceCase {
    Text old;
    Text now;
    /// Each line with " ", "-" or "+" in front of it, "~" for omitted ones, and "|" behind it.
    std::string lines;
};

const std::vector<DifferenceCase> Cases = {
    {u"", u"", ""},
    {u"a", u"a", ""},
    {u"a\n", u"a", ""},
    {u"a\r\nb", u"a\nb\r", ""},
    {u"", u"a", "+a|"},
    {u"a", u"", "-a|"},
    {u"a", u"b", "-a|+b|"},
    {u"a\nb\nc", u"a\nc", " a|-b| c|"},
    {u"a\nc", u"a\nb\nc", " a|+b| c|"},
    {u"a\nb\nc\nd", u"a\nx\nc\ny", " a|-b|+x| c|-d|+y|"},
    {u"a\n\nb", u"a\nb", " a|-| b|"},
    {u"1\n2\n3\n4\n5\n6\n7\n8\n9", u"1\n2\n3\n4\n5\n6\n7\n8\nX", "~| 6| 7| 8|-9|+X|"},
    {u"X\n2\n3\n4\n5\n6\n7\n8\n9\nY", u"1\n2\n3\n4\n5\n6\n7\n8\n9\n10", "-X|+1| 2| 3| 4|~| 7| 8| 9|-Y|+10|"},
    {u"a\na\nb", u"a\nb", " a|-a| b|"},
    {u"b\na", u"a\nb", "-b| a|+b|"},
};

std::string Drawn(const std::vector<DifferenceLine>& lines) {
    std::string drawn;
    for (const DifferenceLine& line : lines) {
        drawn += line.kind == Kind::Same      ? ' '
                 : line.kind == Kind::Removed ? '-'
                 : line.kind == Kind::Added   ? '+'
                                              : '~';
        drawn += Utf8FromText(line.text) + "|";
    }
    return drawn;
}

/// What one side of a difference reads like.
Text Side(const std::vector<DifferenceLine>& lines, Kind kind) {
    Text text;
    for (const DifferenceLine& line : lines) {
        if (line.kind == Kind::Same || line.kind == kind)
            text += line.text + u"\n";
    }
    return text;
}

TEST(TextDifference, ItIsMadeOfTheLinesThatGoAndThoseThatCome) {
    for (const DifferenceCase& row : Cases)
        EXPECT_EQ(Drawn(DifferenceOfLines(row.old, row.now)), row.lines) << Utf8FromText(row.old);
}

TEST(TextDifference, BothTextsCanBeReadOffIt) {
    std::mt19937 engine(11);
    const auto random = [&] {
        Text text;
        for (auto line = engine() % 12; line > 0; --line)
            text += Text(1, static_cast<char16_t>(u'a' + engine() % 3)) + u"\n";
        return text;
    };
    for (int round = 0; round < 5000; ++round) {
        const Text old = random();
        const Text now = random();
        const auto lines = DifferenceOfLines(old, now, 100);
        if (old == now) {
            EXPECT_TRUE(lines.empty());
            continue;
        }
        EXPECT_EQ(Side(lines, Kind::Removed), old);
        EXPECT_EQ(Side(lines, Kind::Added), now);
    }
}

TEST(TextDifference, TextsThatDifferInThousandsOfLinesAreComparedQuickly) {
    Text old;
    Text now;
    for (int line = 0; line < 10'000; ++line) {
        old += u"a\n";
        now += u"b\n";
    }
    const auto lines = DifferenceOfLines(u"same\n" + old, u"same\n" + now);
    EXPECT_EQ(lines.size(), 20'001U);
}

}  // namespace
}  // namespace tintora
