#include "shell/PropertyToggles.h"

#include "language/Declarations.h"
#include "language/Vocabulary.h"
#include "text/LowerCase.h"
#include "text/Whitespace.h"

#include <algorithm>

namespace tintora {

namespace {

/// A change for each declaration of the property, by `newValue(old)`; the word as its value where there is none.
template <typename NewValue>
PropertyChanges ToggleWord(const Texts& declarations, TextView name, TextView word, NewValue newValue) {
    const int number = PropertyNumberFromName(name);
    PropertyChanges changes;
    for (const Text& declaration : declarations) {
        if (EqualsLowered(GetDeclarationName(declaration), name))
            changes.push_back({newValue(GetDeclarationValue(declaration)), number});
    }
    if (changes.empty())
        changes.push_back({Text(word), number});
    return changes;
}

PropertyChanges ToggleWholeValue(const Texts& declarations, TextView name, TextView word) {
    return ToggleWord(declarations, name, word, [word](const Text& value) {
        return FindLowered(value, word) == Text::npos ? Text(word) : Text();
    });
}

Text WithoutWord(TextView value, std::size_t place, std::size_t length) {
    return StripLeftWhitespace(TrimWhitespace(value.substr(0, place)) + u" " +
                               TrimWhitespace(value.substr(place + length)));
}

PropertyChanges ToggleDecoration(const Texts& declarations, TextView word) {
    return ToggleWord(declarations, u"text-decoration", word, [word](const Text& value) {
        const std::size_t place = FindLowered(value, word);
        return place == Text::npos ? value + u" " + Text(word) : WithoutWord(value, place, word.size());
    });
}

}  // namespace

PropertyChanges ToggleBold(const Texts& declarations) {
    return ToggleWholeValue(declarations, u"font-weight", u"bold");
}

PropertyChanges ToggleItalic(const Texts& declarations) {
    return ToggleWholeValue(declarations, u"font-style", u"italic");
}

PropertyChanges ToggleUnderline(const Texts& declarations) { return ToggleDecoration(declarations, u"underline"); }

PropertyChanges ToggleLinethrough(const Texts& declarations) { return ToggleDecoration(declarations, u"line-through"); }

PropertyChange ToggleTextAlign(const CorePropertiesToolbar& shown, TextView alignment) {
    const bool isShown = std::ranges::any_of(TextAlignTools, [&](const TextAlignTool& tool) {
        return tool.alignment == alignment && shown.IsChecked(tool.key);
    });
    return {isShown ? Text() : Text(alignment), PropertyNumberFromName(u"text-align")};
}

}  // namespace tintora
