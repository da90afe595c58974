#include "properties/LengthFields.h"

#include "language/Declarations.h"
#include "language/PropertyValidation.h"
#include "language/ValueParsers.h"
#include "language/Vocabulary.h"
#include "properties/LengthText.h"
#include "text/LowerCase.h"
#include "text/NumberText.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

/// By their index.
constexpr std::array<TextView, 3> Signs = {u"", u"+", u"-"};

int IndexOfSign(TextView sign) { return static_cast<int>(std::ranges::find(Signs, sign) - Signs.begin()); }

}  // namespace

LengthFields::LengthFields(int property, bool showSign) : property_(property), showSign_(showSign) {
    units_.Offer(GetPossibleValues(property_));
}

void LengthFields::Clear(TextView preferredUnits) {
    sign_ = 0;
    number_.clear();
    isBad_ = false;
    if (ChooseOfferedBehindFirst(preferredUnits) || ChooseOfferedBehindFirst(u"number") ||
        ChooseOfferedBehindFirst(u"px"))
        units_.DropAdded();
}

bool LengthFields::ChooseOfferedBehindFirst(TextView unit) {
    const Texts& entries = units_.Entries();
    for (std::size_t index = 1; index < units_.OfferedCount(); ++index) {
        if (entries[index] != unit)
            continue;
        units_.ChooseAt(index);
        return true;
    }
    return false;
}

void LengthFields::SetValue(TextView text) {
    const Text value = StripImportant(text);
    if (value.empty())
        return;
    const bool isLength = IsNumeric(value) || IsLengthValue(value);
    const bool isEntry = !isLength && units_.ChooseExisting(value);
    if (!isEntry)
        ShowNumber(value);
    // A text that nothing knows stays where it can be seen, also where it ends with the letters of a unit.
    if (!isLength && !isEntry)
        units_.Choose(value);
    Judge();
}

void LengthFields::ShowNumber(TextView value) {
    const TextView number = GetPropertyValue(value);
    if (IsNumeric(number))
        number_ = number;
    sign_ = IndexOfSign(GetPropertySign(value));
    const TextView unit = GetPropertyUnits(value);
    units_.ChooseExisting(unit.empty() ? number : unit);
}

Text LengthFields::GetValue() const {
    const TextView sign = showSign_ ? Signs[static_cast<std::size_t>(sign_)] : TextView();
    return JoinLength(sign, number_, units_.ChosenText());
}

void LengthFields::ChooseSign(int index) {
    sign_ = index == 1 || index == 2 ? index : 0;
    Judge();
}

void LengthFields::EnterNumber(TextView number) {
    number_ = number;
    Judge();
}

void LengthFields::ChooseUnit(TextView unit) {
    units_.Choose(unit);
    Judge();
}

bool LengthFields::PasteValue(TextView clipboard) {
    const TextView value = TrimmedView(clipboard);
    if (value.empty())
        return false;
    if (ValidatePropertyValue(PropertyNameFromNumber(property_), value))
        SetValue(value);
    else if (IsNumeric(value))
        EnterNumber(value);
    else
        return false;
    return true;
}

void LengthFields::SelectUnit(TextView text) {
    const Texts& entries = units_.Entries();
    for (std::size_t index = 1; index < entries.size(); ++index) {
        if (!HasLoweredAt(text, 0, entries[index]))
            continue;
        units_.ChooseAt(index);
        return;
    }
}

bool LengthFields::TakesNumber() const noexcept { return IsLengthUnit(units_.ChosenText()); }

void LengthFields::Judge() {
    // An added entry may pass for a unit, and then be no value without a number.
    const Text value = units_.IsAddedChosen() ? Text(units_.ChosenText()) : GetValue();
    isBad_ = !ValidatePropertyValue(PropertyNameFromNumber(property_), value);
    if (!isBad_)
        units_.DropAdded();
}

}  // namespace tintora
