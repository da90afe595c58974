#include "language/Colors.h"
#include "language/Declarations.h"
#include "language/FeatureNames.h"
#include "language/ValueParsers.h"
#include "language/Words.h"
#include "model/DeclarationText.h"
#include "model/ktStyleSheet.h"
#include "text/LowerCase.h"

#include <unordered_set>

namespace tintora {

namespace {

/// Calls `onDeclaration(name, value)` for each declaration that ends with a ";", statement by statement.
template <typename OnDeclaration>
void ForEachDeclaration(const ktStyleSheet& sheet, OnDeclaration onDeclaration) {
    for (const Text& statement : sheet.GetAllStatementsAsText()) {
        for (const Text& declaration : ExtractPropertiesAsCollection(statement))
            onDeclaration(GetPropertyName(declaration), GetPropertyValue(declaration));
    }
}

/// An ordered list that also answers quickly what is in it.
class DistinctTexts {
  public:
    [[nodiscard]] bool Contains(const Text& item) const { return known_.contains(item); }

    void Add(Text item) {
        known_.insert(item);
        items_.push_back(std::move(item));
    }

    Texts Items() && { return std::move(items_); }

  private:
    Texts items_;
    std::unordered_set<Text> known_;
};

template <typename Accepts>
Texts DistinctValues(const ktStyleSheet& sheet, Accepts accepts) {
    DistinctTexts values;
    ForEachDeclaration(sheet, [&](const Text&, Text value) {
        if (accepts(value) && !values.Contains(value))
            values.Add(std::move(value));
    });
    return std::move(values).Items();
}

/// What follows the first `mark` of each selector of `type`; the whole selector where it has none.
Texts NamesBehind(const ktStyleSheet& sheet, int type, char16_t mark) {
    Texts names;
    for (const Text& selector : sheet.GetAllSelectorsAsText()) {
        if (sheet.GetSelectorType(selector) == type)
            names.push_back(selector.substr(selector.find(mark) + 1));
    }
    return names;
}

}  // namespace

Texts ktStyleSheet::GetAllColors() const {
    constexpr TextView Property = u"color: ";
    const Text text = LowerCase(GetStyleSheetText());
    Texts colors;
    for (std::size_t found = text.find(Property); found != Text::npos;) {
        const std::size_t start = found + Property.size();
        const std::size_t end = text.find_first_of(u";}", start);
        if (end == Text::npos)
            break;
        colors.push_back(text.substr(start, end - start));
        found = text.find(Property, end);
    }
    return RemoveDuplicateItems(colors);
}

Texts ktStyleSheet::GetAllColors1() const {
    return DistinctValues(*this, [](const Text& value) { return IsValidColor(value); });
}

Texts ktStyleSheet::GetAllFonts() const {
    DistinctTexts fonts;
    // The value is compared with "!important" and stored without it.
    ForEachDeclaration(*this, [&](const Text& name, const Text& value) {
        if (EqualsLowered(name, u"font-family") && !fonts.Contains(value))
            fonts.Add(StripImportant(value));
    });
    return std::move(fonts).Items();
}

Texts ktStyleSheet::GetAllURLs() const {
    return DistinctValues(*this, [](const Text& value) { return IsURLValue(value); });
}

Texts ktStyleSheet::GetAllClasses() const { return NamesBehind(*this, selector_type::Class, u'.'); }

Texts ktStyleSheet::GetAllIDs() const { return NamesBehind(*this, selector_type::ID, u'#'); }

}  // namespace tintora
