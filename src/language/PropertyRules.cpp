#include "language/PropertyRules.h"

#include "language/ValueLists.h"
#include "language/Words.h"
#include "text/LowerCase.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tintora {

namespace {

constexpr int FontFamily = 1011;

struct NamedRule {
    TextView name;
    OwnRule rule;
};

/// `list-style` is here without being in the vocabulary.
constexpr auto OwnRules = std::to_array<NamedRule>({
    {u"text-decoration", OwnRule::TextDecoration},
    {u"font-family", OwnRule::FontFamily},
    {u"z-index", OwnRule::Number},
    {u"line-height", OwnRule::Number},
    {u"quotes", OwnRule::Anything},
    {u"content", OwnRule::Anything},
    {u"list-style-image", OwnRule::URL},
    {u"background-image", OwnRule::URL},
    {u"cursor", OwnRule::URL},
    {u"background-color", OwnRule::Transparent},
    {u"background-position", OwnRule::BackgroundPosition},
    {u"clip", OwnRule::Rect},
    {u"outline", OwnRule::Outline},
    {u"margin", OwnRule::Sides},
    {u"padding", OwnRule::Sides},
    {u"background", OwnRule::Background},
    {u"list-style", OwnRule::ListStyle},
    {u"font", OwnRule::Font},
});

OwnRule OwnRuleOf(TextView name) {
    const auto* const found =
        std::find_if(OwnRules.begin(), OwnRules.end(), [=](const NamedRule& row) { return row.name == name; });
    return found == OwnRules.end() ? OwnRule::None : found->rule;
}

PropertyRules GatheredRules(TextView name) {
    PropertyRules rules;
    rules.number = PropertyNumberFromName(name);
    rules.words = rules.number == FontFamily ? nullptr : &PossibleWords(rules.number);
    rules.isLengthProperty = ListHasKey(LengthProperties(), name);
    rules.isPositiveLengthProperty = ListHasKey(PositiveLengthProperties(), name);
    rules.isURLProperty = ListHasKey(URLProperties(), name);
    rules.isColorProperty = ListHasKey(ColorProperties(), name);
    rules.isBorder = HasLoweredAt(name, 0, u"border");
    rules.ownRule = OwnRuleOf(name);
    return rules;
}

/// Every name that anything knows. A name may stand here twice.
Texts KnownNames() {
    Texts names = NamesOfProperties();
    for (const KeyedList* list :
         {&LengthProperties(), &PositiveLengthProperties(), &URLProperties(), &ColorProperties()})
        names.insert(names.end(), list->Items().begin(), list->Items().end());
    for (const NamedRule& row : OwnRules)
        names.emplace_back(row.name);
    return names;
}

class RuleTable {
  public:
    // The rules hold views into the names.
    RuleTable(const RuleTable&) = delete;
    RuleTable& operator=(const RuleTable&) = delete;
    RuleTable(RuleTable&&) = delete;
    RuleTable& operator=(RuleTable&&) = delete;
    ~RuleTable() = default;

    RuleTable() : names_(KnownNames(), WordTable::LetterCase::Ignored) {
        for (const Text& name : names_.Words()) {
            rules_.push_back(GatheredRules(name));
            rules_.back().name = name;
        }
    }

    [[nodiscard]] const PropertyRules& Find(TextView name) const {
        const std::size_t index = names_.Find(name);
        if (index != WordTable::NotFound)
            return rules_[index];
        return HasLoweredAt(name, 0, u"border") ? unknownBorder_ : unknown_;
    }

  private:
    WordTable names_;
    std::vector<PropertyRules> rules_;
    PropertyRules unknown_ = GatheredRules(u"unknown");
    PropertyRules unknownBorder_ = GatheredRules(u"border-unknown");
};

}  // namespace

const PropertyRules& RulesOfProperty(TextView name) {
    static const RuleTable table;
    return table.Find(name);
}

}  // namespace tintora
