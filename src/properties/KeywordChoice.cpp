#include "properties/KeywordChoice.h"

#include "language/Declarations.h"
#include "language/PropertyValidation.h"
#include "language/Vocabulary.h"

#include <algorithm>

namespace tintora {

Texts KeywordEntries(int property, const FrontDocument* front) {
    Texts entries = {u""};
    for (Text& word : GetPossibleValues(property, front)) {
        std::replace(word.begin(), word.end(), u'+', u' ');
        entries.push_back(std::move(word));
    }
    return entries;
}

KeywordChoice::KeywordChoice(int property) : property_(property) { Clear(); }

void KeywordChoice::Clear(const FrontDocument* front) {
    list_.Offer(KeywordEntries(property_, front));
    list_.ChooseAt(0);
    isBad_ = false;
}

void KeywordChoice::SetValue(TextView value) { Choose(StripImportant(value)); }

void KeywordChoice::Choose(TextView text) {
    list_.Choose(text);
    isBad_ = !IsValid();
    if (!isBad_)
        list_.DropAdded();
}

bool KeywordChoice::IsValid() const {
    const Text value = GetValue();
    if (ValidatePropertyValue(PropertyNameFromNumber(property_), value))
        return true;
    // The validator doesn't know all words of the lists: "crop cross", and the keywords of generated content. A font of
    // the document may be in the list and bad.
    const auto isOwnWord = [&](Text word) {
        std::replace(word.begin(), word.end(), u'+', u' ');
        return word == value;
    };
    return std::ranges::any_of(PossibleWords(property_).Words(), isOwnWord);
}

}  // namespace tintora
