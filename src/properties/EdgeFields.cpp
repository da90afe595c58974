#include "properties/EdgeFields.h"

#include "language/Declarations.h"
#include "language/ValueParsers.h"
#include "language/Words.h"
#include "properties/ValueWords.h"
#include "text/LowerCase.h"
#include "text/StringTable.h"

namespace tintora {

namespace {

constexpr int OutlineProperty = 1073;
constexpr int OutlineWidth = 1075;
constexpr int OutlineStyle = 1074;
constexpr int BorderProperty = 1052;
constexpr int BorderStyle = 1059;
constexpr int WidthWords = 1327;

bool IsWidth(TextView word) {
    return LoadResourceString(WidthWords).find(word) != TextView::npos || IsLengthValue(word);
}

}  // namespace

EdgeFields::EdgeFields(int property)
    : isBorder_(property != OutlineProperty),
      width_(isBorder_ ? BorderProperty : OutlineWidth, false),
      style_(isBorder_ ? BorderStyle : OutlineStyle) {}

void EdgeFields::Clear(const FrontDocument* front, TextView preferredUnits) {
    width_.Clear(preferredUnits);
    color_.Clear(front);
    style_.Clear();
}

void EdgeFields::SetValue(TextView value) {
    for (const Text& untouched : SplitAtBlanks(value)) {
        const bool isImportant = isBorder_ && EqualsLowered(untouched, u"!important");
        const Text word = isBorder_ && !isImportant ? StripImportant(untouched) : untouched;
        if (IsValidColor(word))
            color_.SetValue(word);
        else if (IsWidth(word))
            width_.SetValue(word);
        else if (isImportant)
            style_.Choose(word);
        else
            style_.SetValue(word);
    }
}

Text EdgeFields::GetValue() const {
    Texts parts;
    for (Text part : {width_.GetValue(), color_.GetValue(), style_.GetValue()}) {
        if (!part.empty())
            parts.push_back(std::move(part));
    }
    return JoinItems(parts, u" ");
}

}  // namespace tintora
