#include "editor/TypeAheadList.h"

#include "language/Colors.h"
#include "language/ValueLists.h"
#include "language/Vocabulary.h"
#include "text/LowerCase.h"
#include "text/StringTable.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr int PropertyNameWords = 1500;

/// A word of a property's list that stands for something else.
bool IsPlaceholder(const Text& word) {
    constexpr TextView Units = u"em ex px pt pc mm in cm %";
    return word == u"list" || word == u"number" || Units.find(word) != TextView::npos;
}

void Append(Texts& list, const Texts& items) { list.insert(list.end(), items.begin(), items.end()); }

Texts ValidColors(Texts colors) {
    std::erase_if(colors, [](const Text& color) { return !IsValidColor(color); });
    return colors;
}

}  // namespace

Texts TypeAheadNames() {
    Texts names = {u"}"};
    Append(names, GetWordsFromText(LoadResourceString(PropertyNameWords), u" "));
    return names;
}

Texts TypeAheadValues(TextView property, const FrontDocument& sheet) {
    Texts values = GetPossibleValues(PropertyNumberFromName(property), &sheet);
    std::erase_if(values, IsPlaceholder);
    if (ListHasKey(ColorProperties(), property)) {
        Append(values, GetColorKeywords());
        Append(values, ValidColors(sheet.GetCurrentColors()));
    }
    if (ListHasKey(URLProperties(), property)) {
        const Texts urls = sheet.GetCurrentURLs();
        values.insert(values.end(), urls.rbegin(), urls.rend());
    }
    if (property == u"font-family")
        Append(values, sheet.GetCurrentFonts());
    std::erase(values, Text());
    return RemoveDuplicateItems(values);
}

Texts ItemsBeginningWith(const Texts& items, TextView partial) {
    Texts found;
    std::copy_if(items.begin(), items.end(), std::back_inserter(found),
                 [=](const Text& item) { return item.starts_with(partial); });
    return found;
}

bool IsWorthOffering(const Texts& items, TextView partial) noexcept {
    return !items.empty() && !(items.size() == 1 && items.front() == partial);
}

Texts RowsToShow(const Texts& rows, TextView currentValue) { return ItemsBeginningWith(rows, LowerCase(currentValue)); }

TypeAheadListKey TypeAheadListKeyOf(char16_t character) noexcept {
    constexpr char16_t Escape = 27;
    switch (character) {
        case u'.':
        case u'\b':
        case u'\f':
        case Escape: return TypeAheadListKey::Closes;
        case u'\t':
        case u'\r': return TypeAheadListKey::Chooses;
        default: return TypeAheadListKey::IsTheLists;
    }
}

int TypeAheadFormHeight(int rowHeight, int rows) noexcept {
    constexpr int Edge = 30;
    int total = (rowHeight - 1) * rows;
    if (total < 2 * rowHeight)
        total = rowHeight;
    if (total > 15 * rowHeight)
        total = 10 * rowHeight;
    return total + Edge;
}

}  // namespace tintora
