#include "language/FeatureNames.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace tintora {
namespace {

struct TypeCase {
    int type;
    TextView name;
};

constexpr auto TypeCases = std::to_array<TypeCase>({
    {selector_type::None, u"Contents"},
    {selector_type::AtImport, u"@import Rule"},
    {selector_type::AtMedia, u"@media Rule"},
    {selector_type::AtPage, u"Contents"},
    {selector_type::Comment, u"Comments"},
    {selector_type::Type, u"Type Selector"},
    {selector_type::Link, u"Link Selector"},
    {selector_type::Class, u"Class Selector"},
    {selector_type::ID, u"ID Selector"},
    {selector_type::Descendant, u"Descendant Selector"},
    {selector_type::Group, u"Group Selector"},
    {selector_type::Dynamic, u"Dynamic Selector"},
    {selector_type::Language, u"Language Selector"},
    {selector_type::Typographical, u"Typographical Selector"},
    {selector_type::GeneratedContent, u"Generated Content Selector"},
    {selector_type::FirstChild, u"First Child Selector"},
    {selector_type::Child, u"Child Selector"},
    {selector_type::AdjacentSibling, u"Adjacent Sibling Selector"},
    {selector_type::Attribute, u"Attribute Selector"},
    {19, u"Contents"},
    {100, u"Contents"},
    {998, u"Contents"},
    {999, u"Contents"},
    {-1, u"Contents"},
    {std::numeric_limits<int>::min(), u"Contents"},
});

struct PropertyCase {
    int number;
    TextView name;
};

constexpr auto PropertyCases = std::to_array<PropertyCase>({
    {1000, u"generic"},
    {1001, u"font-size"},
    {1019, u"margin"},
    {1071, u"border-rightcolor"},
    {1083, u"margin"},
    {1102, u"generic"},
    {1106, u"content"},
    {1107, u"generic"},
    {std::numeric_limits<int>::max(), u"generic"},
});

TEST(FeatureNames, ASelectorTypeHasItsName) {
    for (const TypeCase& row : TypeCases)
        EXPECT_EQ(SelectorTypeName(row.type), row.name) << row.type;
}

TEST(FeatureNames, TheTypesAreNumberedFromZero) {
    for (int type = 0; type <= selector_type::Attribute; ++type)
        EXPECT_EQ(TypeCases[static_cast<std::size_t>(type)].type, type);
}

TEST(FeatureNames, APropertyNumberIsNoSelectorType) {
    for (const PropertyCase& row : PropertyCases)
        EXPECT_EQ(SelectorTypeName(row.number), u"Contents") << row.number;
}

TEST(FeatureNames, AFeatureIsASelectorTypeBelowAThousandAndAPropertyFromThereOn) {
    for (const TypeCase& row : TypeCases)
        EXPECT_EQ(GetFeatureName(row.type), row.name) << row.type;
    for (const PropertyCase& row : PropertyCases)
        EXPECT_EQ(GetFeatureName(row.number), row.name) << row.number;
}

}  // namespace
}  // namespace tintora
