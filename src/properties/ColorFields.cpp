#include "properties/ColorFields.h"

#include "language/Declarations.h"
#include "text/LowerCase.h"
#include "text/Whitespace.h"

namespace tintora {

namespace {

constexpr TextView RGBOpening = u"rgb(";

/// What stands between the parentheses of an "rgb", for a text that has them.
TextView ComponentsOf(TextView value) {
    return value.size() <= RGBOpening.size() ? TextView()
                                             : value.substr(RGBOpening.size(), value.size() - RGBOpening.size() - 1);
}

Texts Trimmed(const Texts& items) {
    Texts trimmed;
    for (const Text& item : items)
        trimmed.emplace_back(TrimmedView(item));
    return trimmed;
}

}  // namespace

ColorMode ModeOfColor(TextView value) {
    if (IsColorKeyword(value))
        return ColorMode::Keywords;
    if (IsSystemColorKeyword(value))
        return ColorMode::UIKeywords;
    if (HasLoweredAt(value, 0, u"rgb"))
        return ColorMode::RGB;
    return value.starts_with(u'#') ? ColorMode::Hex : ColorMode::Current;
}

ColorFields::ColorFields() {
    lists_[ListIndex(ColorMode::Keywords)].Offer(GetColorKeywords());
    lists_[ListIndex(ColorMode::UIKeywords)].Offer(GetUIColorKeywords());
}

void ColorFields::Clear(const FrontDocument* front) {
    ChooseNoWord();
    rgbText_.clear();
    hexText_.clear();
    isWordBad_ = false;
    OfferCurrentColors(front);
    preview_ = NoColor;
}

void ColorFields::SetValue(TextView text) {
    const Text value = StripImportant(text);
    if (value.empty()) {
        isWordBad_ = false;
        return;
    }
    // A field that is typed in isn't disturbed.
    if (value == GetValue())
        return;
    isWordBad_ = false;
    ChooseNoWord();
    mode_ = ModeOfColor(value);
    if (mode_ == ColorMode::RGB)
        EnterRGB(ComponentsOf(value));
    else if (mode_ == ColorMode::Hex)
        EnterHex(TextView(value).substr(1));
    else
        ChooseWord(value);
}

Text ColorFields::GetValue() const {
    switch (mode_) {
        case ColorMode::RGB: return rgbText_.empty() ? Text() : Text(RGBOpening) + rgbText_ + u")";
        case ColorMode::Hex: return hexText_.empty() ? Text() : u"#" + hexText_;
        default: return Text(Words().ChosenText());
    }
}

void ColorFields::ChooseMode(ColorMode mode, const FrontDocument* front) {
    const Text saved(Words().ChosenText());
    const bool wasAdded = Words().IsAddedChosen();
    ChooseNoWord();
    mode_ = mode;
    if (mode_ == ColorMode::Current)
        OfferCurrentColors(front);
    if (mode_ == ColorMode::Current && wasAdded)
        List().Choose(saved);
    else
        List().ChooseExisting(saved);
    isWordBad_ = isWordBad_ && List().IsAddedChosen();
    SetUpPreview();
}

void ColorFields::ChooseWord(TextView word) {
    List().Choose(word);
    isWordBad_ = !word.empty() && !IsValidColor(word);
    SetUpPreview();
}

void ColorFields::EnterHex(TextView digits) {
    hexText_ = digits;
    SetUpPreview();
}

void ColorFields::EnterRGB(TextView components) {
    rgbText_ = components;
    SetUpPreview();
}

void ColorFields::TakeColor(ColorValue color) {
    if (mode_ == ColorMode::RGB) {
        EnterRGB(ColorToRGBText(color));
        return;
    }
    mode_ = ColorMode::Hex;
    EnterHex(ColorToHex(color));
}

bool ColorFields::IsBad() const {
    switch (mode_) {
        case ColorMode::RGB: return !rgbText_.empty() && !IsRGBColor(GetValue());
        case ColorMode::Hex: return !hexText_.empty() && !IsHexColor(GetValue());
        default: return isWordBad_;
    }
}

void ColorFields::ChooseNoWord() {
    for (ChoiceList& list : lists_) {
        list.ChooseAt(ChoiceList::None);
        list.DropAdded();
    }
}

void ColorFields::OfferCurrentColors(const FrontDocument* front) {
    lists_[ListIndex(ColorMode::Current)].Offer(Trimmed(GetCurrentColorList(front)));
}

void ColorFields::SetUpPreview() {
    const Text value = GetValue();
    const ColorValue color = ColorValueFromText(value);
    if (value.empty())
        preview_ = NoColor;
    else if (color != 0 || IsValidColor(value))
        preview_ = color;
}

}  // namespace tintora
