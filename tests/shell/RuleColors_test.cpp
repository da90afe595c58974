#include "shell/RuleColors.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

constexpr ColorValue Red = ColorFromComponents(255, 0, 0);
constexpr ColorValue Blue = ColorFromComponents(0, 0, 255);
constexpr ColorValue Black = 0;

struct RuleColorCase {
    Texts declarations;
    TextView property;
    std::optional<ColorValue> color;
};

const std::vector<RuleColorCase> RuleColorCases = {
    {{}, u"color", {}},
    {{u"font-weight: bold;"}, u"color", {}},
    {{u"color: red;"}, u"color", Red},
    {{u"color: red"}, u"color", Red},
    {{u"COLOR: RED;"}, u"color", Red},
    {{u"color: #f00;"}, u"color", Red},
    {{u"color: #FF0000;"}, u"color", Red},
    {{u"color: rgb(255, 0, 0);"}, u"color", Red},
    {{u"color: RGB(100%, 0%, 0%);"}, u"color", Red},
    {{u"color: red !important;"}, u"color", Red},
    {{u"color: black;"}, u"color", Black},
    {{u"color: Black;"}, u"color", Black},
    {{u"color: #000;"}, u"color", Black},
    {{u"color: green;"}, u"color", ColorFromComponents(0, 153, 0)},

    {{u"color: red;", u"color: blue;"}, u"color", Blue},
    {{u"color: red;", u"color: inherit;"}, u"color", {}},
    {{u"color: red;", u"color: nothing;"}, u"color", {}},
    {{u"color: red;", u"background-color: blue;"}, u"color", Red},
    {{u"color: red;", u"background-color: blue;"}, u"background-color", Blue},
    {{u"background: blue;", u"border-color: blue;"}, u"background-color", {}},
    {{u"/* color: red; */"}, u"color", {}},

    {{u"color: inherit;"}, u"color", {}},
    {{u"color: orange;"}, u"color", {}},
    {{u"color: transparent;"}, u"color", {}},
    {{u"color: windowtext;"}, u"color", {}},
    {{u"color: WindowText;"}, u"color", {}},
    {{u"color: ;"}, u"color", {}},
    {{u"color"}, u"color", {}},
    {{u"color: #ff;"}, u"color", {}},
    {{u"color: red blue;"}, u"color", {}},
    {{u"color: var(--x);"}, u"color", {}},
};

struct ColorsCase {
    Texts values;
    std::vector<ColorValue> colors;
};

const std::vector<ColorsCase> ColorsCases = {
    {{}, {}},
    {{u"red", u"blue"}, {Red, Blue}},
    {{u" #00f\r\n", u"red !important", u"#0000ff", u"#ff0000"}, {Blue, Red}},
    {{u"inherit", u"transparent", u"1px solid red", u"", u"buttonface", u"black"}, {Black}},
};

TEST(RuleColors, ARuleHasTheColorOfItsLastDeclaration) {
    for (const RuleColorCase& row : RuleColorCases) {
        SCOPED_TRACE(row.declarations.empty() ? "none" : Utf8FromText(row.declarations.back()));
        EXPECT_EQ(RuleColor(row.declarations, row.property), row.color);
    }
}

TEST(RuleColors, TheColorsOfAStyleSheetAreShownOnce) {
    for (const ColorsCase& row : ColorsCases)
        EXPECT_EQ(ColorsToShow(row.values), row.colors);
}

}  // namespace
}  // namespace tintora
