#include "shell/PropertyToggles.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tintora {

void PrintTo(const PropertyChange& change, std::ostream* out) {
    *out << change.number << ": \"" << Utf8FromText(change.value) << '"';
}

namespace {

struct ToggleCase {
    Texts declarations;
    Texts values;
};

constexpr int FontWeight = 1002;
constexpr int TextAlign = 1010;
constexpr int FontStyle = 1012;
constexpr int TextDecoration = 1013;

const std::vector<ToggleCase> BoldCases = {
    {{}, {u"bold"}},
    {{u"color: red;", u"/* font-weight: bold */"}, {u"bold"}},
    {{u"font-weight"}, {u"bold"}},
    {{u"font-weight: bold;"}, {u""}},
    {{u"font-weight: bold"}, {u""}},
    {{u"FONT-WEIGHT: BOLD;"}, {u""}},
    {{u"font-weight: bolder;"}, {u""}},
    {{u"font-weight: bold !important;"}, {u""}},
    {{u"font-weight: normal;"}, {u"bold"}},
    {{u"font-weight: normal !important;"}, {u"bold"}},
    {{u"font-weight: 700;"}, {u"bold"}},
    {{u"font-weight: ;"}, {u"bold"}},
    {{u"font-weight:;"}, {u"bold"}},
    {{u"font-weight: bold;", u"color: red;", u"font-weight: normal;"}, {u"", u"bold"}},
    {{u"font-weight: bold;", u"font-weight: bold;"}, {u"", u""}},
    {{u"font-weight: normal;", u"font-weight: 100;"}, {u"bold", u"bold"}},
};

const std::vector<ToggleCase> ItalicCases = {
    {{}, {u"italic"}},
    {{u"font-weight: italic;"}, {u"italic"}},
    {{u"font-style: italic;"}, {u""}},
    {{u"Font-Style: Italic;"}, {u""}},
    {{u"font-style: oblique;"}, {u"italic"}},
    {{u"font-style: normal;", u"font-style: italic;"}, {u"italic", u""}},
};

const std::vector<ToggleCase> UnderlineCases = {
    {{}, {u"underline"}},
    {{u"/* text-decoration: underline; */"}, {u"underline"}},
    {{u"text-decoration: underline;"}, {u""}},
    {{u"TEXT-DECORATION: UNDERLINE;"}, {u""}},
    {{u"text-decoration: underline overline;"}, {u"overline"}},
    {{u"text-decoration: underline \t overline;"}, {u"overline"}},
    {{u"text-decoration: overline;"}, {u"overline underline"}},
    {{u"text-decoration: Overline;"}, {u"Overline underline"}},
    {{u"text-decoration: none;"}, {u"none underline"}},
    {{u"text-decoration: overline underline;"}, {u"overline "}},
    {{u"text-decoration: overline underline line-through;"}, {u"overline line-through"}},
    {{u"text-decoration: Overline  Underline  Line-Through;"}, {u"Overline Line-Through"}},
    {{u"text-decoration: underline underline;"}, {u"underline"}},
    {{u"text-decoration: underlined;"}, {u"d"}},
    {{u"text-decoration: ;"}, {u" underline"}},
    {{u"text-decoration: underline !important;"}, {u"!important"}},
    {{u"text-decoration: overline !important;"}, {u"overline !important underline"}},
    {{u"text-decoration: underline;", u"color: red;", u"text-decoration: overline;"}, {u"", u"overline underline"}},
};

const std::vector<ToggleCase> LinethroughCases = {
    {{}, {u"line-through"}},
    {{u"text-decoration: line-through;"}, {u""}},
    {{u"text-decoration: underline;"}, {u"underline line-through"}},
    {{u"text-decoration: underline LINE-THROUGH overline;"}, {u"underline overline"}},
    {{u"text-decoration: underline line-through;"}, {u"underline "}},
};

void Check(PropertyChanges (*toggle)(const Texts&), int number, const std::vector<ToggleCase>& cases) {
    for (const ToggleCase& row : cases) {
        SCOPED_TRACE(row.declarations.empty() ? "none" : Utf8FromText(row.declarations.front()));
        PropertyChanges changes;
        for (const Text& value : row.values)
            changes.push_back({value, number});
        EXPECT_EQ(toggle(row.declarations), changes);
    }
}

TEST(PropertyToggles, BoldIsRemovedWhereTheValueContainsItAndElseSet) { Check(ToggleBold, FontWeight, BoldCases); }

TEST(PropertyToggles, ItalicIsRemovedWhereTheValueContainsItAndElseSet) { Check(ToggleItalic, FontStyle, ItalicCases); }

TEST(PropertyToggles, UnderlineGoesAndComesBesideTheOtherDecorations) {
    Check(ToggleUnderline, TextDecoration, UnderlineCases);
}

TEST(PropertyToggles, LinethroughGoesAndComesBesideTheOtherDecorations) {
    Check(ToggleLinethrough, TextDecoration, LinethroughCases);
}

TEST(PropertyToggles, AnAlignmentThatIsShownIsRemoved) {
    for (const TextAlignTool& tool : TextAlignTools) {
        SCOPED_TRACE(Utf8FromText(tool.alignment));
        const CorePropertiesToolbar shown = SetUpCorePropertiesToolbar(u"{text-align: " + Text(tool.alignment) + u";}");
        for (const TextAlignTool& other : TextAlignTools) {
            const Text value = other.alignment == tool.alignment ? Text() : Text(other.alignment);
            EXPECT_EQ(ToggleTextAlign(shown, other.alignment), (PropertyChange{value, TextAlign}));
        }
        EXPECT_EQ(ToggleTextAlign({}, tool.alignment), (PropertyChange{Text(tool.alignment), TextAlign}));
    }
}

}  // namespace
}  // namespace tintora
