#include "language/FeatureNames.h"

#include "language/Vocabulary.h"

#include <array>
#include <iterator>

namespace tintora {

namespace {

/// By the number of the type. Style sheets, @page rules and unknown types are "Contents".
constexpr auto TypeNames = std::to_array<TextView>({
    u"Contents",
    u"@import Rule",
    u"@media Rule",
    u"Contents",
    u"Comments",
    u"Type Selector",
    u"Link Selector",
    u"Class Selector",
    u"ID Selector",
    u"Descendant Selector",
    u"Group Selector",
    u"Dynamic Selector",
    u"Language Selector",
    u"Typographical Selector",
    u"Generated Content Selector",
    u"First Child Selector",
    u"Child Selector",
    u"Adjacent Sibling Selector",
    u"Attribute Selector",
});

}  // namespace

TextView SelectorTypeName(int type) noexcept {
    return type >= 0 && type < std::ssize(TypeNames) ? TypeNames[static_cast<std::size_t>(type)] : TypeNames.front();
}

TextView GetFeatureName(int number) noexcept {
    return IsPropertyNumber(number) ? PropertyNameFromNumber(number) : SelectorTypeName(number);
}

}  // namespace tintora
