#include "properties/ClipFields.h"

#include "language/Declarations.h"
#include "language/Words.h"
#include "properties/ControlRows.h"
#include "properties/ValueWords.h"
#include "text/LowerCase.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr int ClipProperty = 1048;
constexpr TextView Rectangle = u"rectangle";

/// The side as the table of parts has it; the shape stands in front of the sides there.
LengthFields NewSide(ClipFields::SideIndex side) {
    const ControlPart& part = PartsOfControl(ClipProperty)[side + 1];
    return {part.wordsOf, part.showSign};
}

}  // namespace

ClipFields::ClipFields() : shape_(ClipProperty), sides_{NewSide(Top), NewSide(Right), NewSide(Bottom), NewSide(Left)} {}

void ClipFields::Clear(TextView preferredUnits) {
    shape_.Clear();
    for (LengthFields& side : sides_)
        side.Clear(preferredUnits);
}

void ClipFields::SetValue(TextView text) {
    const Text value = StripImportant(text);
    for (const TextView word : {TextView(u"inherit"), TextView(u"auto")}) {
        if (EqualsLowered(value, word)) {
            shape_.SetValue(word);
            return;
        }
    }
    const std::size_t close = value.find(u')');
    if (close == Text::npos)
        return;
    // Without a "(" in front of it, everything up to the ")" counts.
    const TextView inside = TextView(value).substr(0, close);
    const Texts words = SplitAtBlanks(inside.substr(inside.find(u'(') + 1));
    for (std::size_t side = 0; side < std::min(words.size(), SideCount); ++side)
        sides_[side].SetValue(words[side]);
    shape_.SetValue(Rectangle);
}

Text ClipFields::GetValue() const {
    if (IsShape(u"inherit") || IsShape(u"auto"))
        return shape_.GetValue();
    Texts values;
    for (const LengthFields& side : sides_) {
        if (Text value = side.GetValue(); !value.empty())
            values.push_back(std::move(value));
    }
    return values.empty() ? Text() : u"rect(" + JoinItems(values, u" ") + u")";
}

bool ClipFields::IsSideEnabled(SideIndex side) const {
    return IsShape(Rectangle) && (side == Top || !sides_[side - 1].GetValue().empty());
}

}  // namespace tintora
