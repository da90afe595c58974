#include "properties/BackgroundShorthand.h"

#include "language/Colors.h"
#include "language/Declarations.h"
#include "language/ValueParsers.h"
#include "language/Vocabulary.h"
#include "language/Words.h"
#include "properties/LengthPair.h"
#include "properties/ValueWords.h"
#include "text/LowerCase.h"

namespace tintora {

namespace {

constexpr int Color = 1015;
constexpr int Image = 1003;
constexpr int Repeat = 1016;
constexpr int Attachment = 1017;
constexpr int Position = 1018;

/// Whether the word stands anywhere in the words of the property.
bool IsPartOfWords(int property, TextView word) {
    const Text words = JoinItems(PossibleWords(property).Words(), u" ");
    return word.size() <= words.size() && words.find(LowerCase(word)) != Text::npos;
}

/// The part that a word is; 0 for none.
int PartOfWord(TextView word) {
    if (IsValidColor(word))
        return Color;
    if (IsURLValue(word))
        return Image;
    if (IsPartOfWords(Repeat, word))
        return Repeat;
    if (IsPartOfWords(Attachment, word))
        return Attachment;
    return IsLengthValue(word) || IsPartOfWords(Position, word) ? Position : 0;
}

}  // namespace

PropertyValues TakeBackgroundApart(TextView value) {
    PropertyValues parts;
    LengthPair position(Position, true);
    Texts morePosition;
    for (Text& word : SplitAtBlanks(StripImportant(value))) {
        const int part = PartOfWord(word);
        if (part == 0)
            continue;
        if (part == Position) {
            // A unit alone gives no value yet.
            if (!position.GetValue().empty()) {
                morePosition.push_back(std::move(word));
                continue;
            }
            position.SetValue(word);
        }
        parts.push_back({part, std::move(word)});
    }
    if (!morePosition.empty())
        parts.push_back({Position, position.GetValue() + u" " + JoinItems(morePosition, u" ")});
    return parts;
}

PropertyValues BackgroundPartsToWrite(const ShownValue& valueOf) {
    PropertyValues parts;
    for (const int number : {Color, Image, Repeat, Attachment, Position}) {
        if (Text value = valueOf(number); !value.empty())
            parts.push_back({number, std::move(value)});
    }
    return parts;
}

}  // namespace tintora
