#include "properties/LengthPair.h"

#include "language/Declarations.h"
#include "language/Words.h"
#include "properties/ValueWords.h"

namespace tintora {

void LengthPair::Clear(TextView preferredUnits) {
    horizontal_.Clear(preferredUnits);
    vertical_.Clear(preferredUnits);
}

void LengthPair::SetValue(TextView value) {
    Texts words = SplitAtBlanks(StripImportant(value));
    if (words.empty())
        return;
    horizontal_.SetValue(words.front());
    words.erase(words.begin());
    vertical_.SetValue(JoinItems(words, u" "));
}

Text LengthPair::GetValue() const {
    Text value = horizontal_.GetValue() + u" " + vertical_.GetValue();
    value.resize(value.find_last_not_of(u' ') + 1);
    return value;
}

}  // namespace tintora
