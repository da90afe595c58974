#include "language/PropertyRules.h"

#include "language/ValueLists.h"
#include "language/Words.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tintora {
namespace {

constexpr auto OtherNames = std::to_array<TextView>({u"", u"list-style", u"table-layout", u"colour", u"border-x",
                                                     u"borde", u"border", u"maxheight", u"Margin", u"\xD800"});

void ExpectRulesAreThoseOfTheLists(TextView name) {
    SCOPED_TRACE(Utf8FromText(name));
    const PropertyRules& rules = RulesOfProperty(name);
    EXPECT_EQ(rules.number, PropertyNumberFromName(name));
    EXPECT_EQ(rules.words, name == u"font-family" ? nullptr : &PossibleWords(rules.number));
    EXPECT_EQ(rules.isLengthProperty, ListHasKey(LengthProperties(), name));
    EXPECT_EQ(rules.isPositiveLengthProperty, ListHasKey(PositiveLengthProperties(), name));
    EXPECT_EQ(rules.isURLProperty, ListHasKey(URLProperties(), name));
    EXPECT_EQ(rules.isColorProperty, ListHasKey(ColorProperties(), name));
    EXPECT_EQ(rules.isBorder, name.starts_with(u"border"));
}

TEST(PropertyRules, TheRulesAreThoseOfTheLists) {
    for (const Text& name : NamesOfProperties())
        ExpectRulesAreThoseOfTheLists(name);
    for (const TextView name : OtherNames)
        ExpectRulesAreThoseOfTheLists(name);
}

TEST(PropertyRules, ANameIsKnownInWhateverCase) {
    EXPECT_EQ(&RulesOfProperty(u"MARGIN"), &RulesOfProperty(u"margin"));
    EXPECT_EQ(RulesOfProperty(u"MARGIN").name, u"margin");
    EXPECT_EQ(RulesOfProperty(u"List-Style").ownRule, OwnRule::ListStyle);
    EXPECT_TRUE(RulesOfProperty(u"BORDER-x").isBorder);
    EXPECT_EQ(RulesOfProperty(u"nonsense").ownRule, OwnRule::None);
    EXPECT_EQ(RulesOfProperty(u"nonsense").name, u"");
}

TEST(PropertyRules, EveryNameOfAPropertyHasItsNumber) {
    const Texts names = NamesOfProperties();
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    EXPECT_EQ(names.size(), 101U);
    for (const Text& name : names)
        EXPECT_TRUE(IsPropertyNumber(PropertyNumberFromName(name))) << Utf8FromText(name);
}

TEST(PropertyRules, ThePossibleWordsAreThoseThatTheEditorsOffer) {
    for (int number = 990; number <= 1120; ++number)
        EXPECT_EQ(PossibleWords(number).Words(), GetPossibleValues(number)) << number;
    EXPECT_EQ(PossibleWords(1).Words(), Texts());
    EXPECT_EQ(PossibleWords(-7).Words(), GetPossibleValues(-7));
    EXPECT_EQ(&PossibleWords(1083), &PossibleWords(1083));
}

}  // namespace
}  // namespace tintora
