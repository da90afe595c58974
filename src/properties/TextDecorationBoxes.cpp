#include "properties/TextDecorationBoxes.h"

#include "language/Words.h"
#include "text/LowerCase.h"

namespace tintora {

void TextDecorationBoxes::SetValue(TextView value) {
    for (std::size_t box = 0; box < Words.size(); ++box) {
        if (FindLowered(value, Words[box]) != TextView::npos)
            isTicked_[box] = true;
    }
}

Text TextDecorationBoxes::GetValue() const {
    if (isTicked_[None])
        return Text(Words[None]);
    Texts words;
    for (std::size_t box = Underline; box < Words.size(); ++box) {
        if (isTicked_[box])
            words.emplace_back(Words[box]);
    }
    return JoinItems(words, u" ");
}

}  // namespace tintora
