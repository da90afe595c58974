#pragma once

#include "properties/ChoiceList.h"
#include "text/Text.h"

namespace tintora {

/// What a `LengthEditor` holds: a sign, a number, and a list of units and words.
///
/// A word in the place of a unit is the value, and the number rests. A text that is neither a length nor in the list is
/// added there and chosen, and marked as bad unless it is valid for the property.
///
///     LengthFields margin(1020, true);
///     margin.Clear(u"em");
///     margin.SetValue(u"-12px");          // sign "-", number "12", unit "px"
///     margin.SetValue(u"auto");           // the word; sign and number can't be edited
class LengthFields {
  public:
    /// `showSign` says whether the value may carry a sign. Nothing is chosen until `Clear`.
    LengthFields(int property, bool showSign);

    [[nodiscard]] int Property() const noexcept { return property_; }

    /// Empties the fields and chooses a unit: the preferred one, else "number", else "px", whichever the list has
    /// behind its first entry, which is never looked at. If it has none of them, the choice stays.
    ///
    /// So the list of `text-indent`, which begins with "em", is cleared to "px" where "em" is preferred.
    void Clear(TextView preferredUnits);

    /// Shows a value of the text; "" changes nothing. An "!important" in it is put aside. A bare number leaves the unit
    /// as it is.
    void SetValue(TextView value);

    /// The CSS text of what is shown; "" without a number. A sign counts only if one may be shown.
    [[nodiscard]] Text GetValue() const;

    // What the user does.

    /// 0 for no sign, 1 for "+", 2 for "-"; any other number for none.
    void ChooseSign(int index);
    void EnterNumber(TextView number);
    void ChooseUnit(TextView unit);

    /// Takes the text of the clipboard: all of it if it is valid for the property, or as the number if it is one.
    /// False, and nothing changes, for any other text.
    bool PasteValue(TextView clipboard);

    /// Chooses the first unit behind the first entry that `text`, in whatever case, begins with; none, and nothing
    /// changes.
    void SelectUnit(TextView text);

    // What is shown.

    [[nodiscard]] int SignIndex() const noexcept { return sign_; }
    [[nodiscard]] const Text& Number() const noexcept { return number_; }
    [[nodiscard]] const ChoiceList& Units() const noexcept { return units_; }
    [[nodiscard]] bool IsBad() const noexcept { return isBad_; }

    /// Whether number and sign can be edited, given that the whole control can.
    [[nodiscard]] bool TakesNumber() const noexcept;
    [[nodiscard]] bool TakesSign() const noexcept { return showSign_ && TakesNumber(); }

  private:
    [[nodiscard]] bool ChooseOfferedBehindFirst(TextView unit);
    void ShowNumber(TextView value);

    /// Checks the value and marks it, and drops what was added if it is good.
    void Judge();

    int property_;
    bool showSign_;
    int sign_ = 0;
    Text number_;
    ChoiceList units_;
    bool isBad_ = false;
};

}  // namespace tintora
