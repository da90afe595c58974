#include "properties/SelectorViews.h"

#include "language/Declarations.h"
#include "language/Vocabulary.h"
#include "language/Words.h"
#include "properties/GroupEditors.h"
#include "text/StringTable.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tintora {

namespace {

constexpr auto Tabs = std::to_array<SelectorTab>({
    {SelectorView::Editors, u"Editors", u"EditorSelector"},
    {SelectorView::ByCategory, u"By Category", u"PropertySelector"},
    {SelectorView::Alphabetical, u"Alphabetical", u"PropertySelectorAlphabetical"},
    {SelectorView::CurrentProperties, u"Current Properties", u"PropertySelectorCurrent"},
});

constexpr auto Captions = std::to_array<TextView>({
    u"Advanced Layout Editor",
    u"Advanced Text Editor",
    u"Background Editor",
    u"Border Editor",
    u"Content Editor",
    u"Display Type Editor",
    u"Margin Editor",
    u"Padding Editor",
    u"Page Break Editor",
    u"Page Layout Editor",
    u"Quotes Editor",
    u"Text Editor",
    u"Text Style Editor",
    u"User Interface Editor",
});

constexpr auto Categories = std::to_array<PropertyCategory>({
    {u"TextStyle", u"Text Style Editor", 1400},
    {u"Text", u"Text Editor", 1401},
    {u"Background", u"Background Editor", 1402},
    {u"Border", u"Border Editor", 1403},
    {u"Margin", u"Margin Editor", 1404},
    {u"Padding", u"Padding Editor", 1405},
    {u"PageLayout", u"Page Layout Editor", 1406},
    {u"Display", u"Display Type Editor", 1407},
    {u"AdvancedText", u"Advanced Text Editor", 1408},
    {u"AdvancedLayout", u"Advanced Layout Editor", 1409},
    {u"UI", u"User Interface Editor", 1410},
    {u"PageBreak", u"Page Break Editor", 1411},
    {u"QuotesEditor", u"Quotes Editor", 1413},
    {u"Content", u"Content Editor", 1415},
});

}  // namespace

std::span<const SelectorTab> SelectorTabs() noexcept { return Tabs; }

std::span<const TextView> EditorCaptions() noexcept { return Captions; }

std::span<const PropertyCategory> PropertyCategories() noexcept { return Categories; }

Texts PropertiesOfCategory(const PropertyCategory& category) {
    return GetWordsFromText(LoadResourceString(category.wordsString), u" ");
}

const PropertyCategory* CategoryOfProperty(TextView name) {
    const auto* const found = std::find_if(Categories.begin(), Categories.end(), [=](const PropertyCategory& category) {
        return ListContains(PropertiesOfCategory(category), name);
    });
    return found == Categories.end() ? nullptr : found;
}

Texts AlphabeticalProperties() {
    Texts names;
    for (const PropertyCategory& category : Categories)
        std::ranges::move(PropertiesOfCategory(category), std::back_inserter(names));
    std::sort(names.begin(), names.end());
    return names;
}

Texts CurrentPropertyNames(const Texts& declarations) {
    Texts names;
    for (const Text& declaration : declarations) {
        if (declaration.find(u':') != Text::npos && !declaration.starts_with(u"/*"))
            names.push_back(GetDeclarationName(declaration));
    }
    return names;
}

TextView NameToSelect(int property) noexcept {
    return IsPropertyNumber(property) ? PropertyNameFromNumber(property) : TextView();
}

TextView CaptionToSelect(TextView className) noexcept {
    const auto editors = GroupEditors();
    const auto found = std::find_if(editors.begin(), editors.end(),
                                    [=](const GroupEditorEntry& row) { return row.className == className; });
    if (found == editors.end())
        return {};
    return found->number == group_editor::MarginPadding ? TextView(u"Margin Editor") : found->caption;
}

}  // namespace tintora
