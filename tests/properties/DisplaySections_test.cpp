#include "properties/DisplaySections.h"

#include "language/Vocabulary.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>
#include <map>

namespace tintora {
namespace {

struct TextCase {
    TextView text;
    TextView result;
};

const std::map<Text, TextView> Sections = {
    {u"list-item", u"ListStylePropertiesEditor"}, {u"table", u"TablePropertiesEditor"},
    {u"inline-table", u"TablePropertiesEditor"},  {u"table-cell", u"EmptyCellsEditor"},
    {u"table-caption", u"TableCaptionEditor"},
};

constexpr auto Defaults = std::to_array<TextCase>({
    {u"blockquote", u"block"},
    {u"body", u"block"},
    {u"dd", u"block"},
    {u"div", u"block"},
    {u"dl", u"block"},
    {u"dt", u"block"},
    {u"p", u"block"},
    {u"ul", u"block"},
    {u"P", u"block"},
    {u" p\n", u"block"},
    {u"li", u"list-item"},
    {u"LI", u"list-item"},
    {u"table", u"table"},
    {u"TABLE", u"table"},
    {u"inline-table", u"table"},
    {u"ul li", u""},
    {u"p, div", u""},
    {u"p.x", u""},
    {u"td", u""},
    {u"h1", u""},
    {u"", u""},
});

struct PositionCase {
    TextView position;
    bool takesOffsets;
};

constexpr auto Positions = std::to_array<PositionCase>({
    {u"relative", true},
    {u"absolute", true},
    {u"fixed", true},
    {u"FIXED", true},
    {u"static", false},
    {u"inherit", false},
    {u"", false},
    {u"sticky", false},
});

TEST(DisplaySections, FourSectionsTakeTurns) {
    for (const Text& display : GetPossibleValues(1090)) {
        SCOPED_TRACE(Utf8FromText(display));
        const auto found = Sections.find(display);
        EXPECT_EQ(SectionOfDisplay(display), found == Sections.end() ? TextView() : found->second);
    }
    for (const TextView none : {u"", u"tables", u"none", u"list-item x"})
        EXPECT_EQ(SectionOfDisplay(none), u"");
    EXPECT_EQ(SectionOfDisplay(u"Table"), u"TablePropertiesEditor");
}

TEST(DisplaySections, AnElementHasADisplayByItself) {
    for (const TextCase& row : Defaults)
        EXPECT_EQ(DefaultDisplay(row.text), row.result) << Utf8FromText(row.text);
}

TEST(DisplaySections, OnlyAPositionedElementTakesOffsets) {
    for (const PositionCase& row : Positions)
        EXPECT_EQ(TakesOffsets(row.position), row.takesOffsets) << Utf8FromText(row.position);
    for (int property = 1000; property < 1110; ++property)
        EXPECT_EQ(IsOffset(property), property >= 1030 && property <= 1033);
}

TEST(DisplaySections, AStarMarksATab) {
    EXPECT_EQ(BorderTabCaption(u"top", false), u"top");
    EXPECT_EQ(BorderTabCaption(u"top", true), u"*top");
}

}  // namespace
}  // namespace tintora
