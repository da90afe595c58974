#pragma once

#include "properties/LengthFields.h"
#include "text/Text.h"

namespace tintora {

/// What a `BackgroundPositionEditor` or a `BorderSpacingEditor` holds: a horizontal and a vertical length. No vertical
/// value is entered without a horizontal one.
///
/// Words keep their places: of "top left" the horizontal length shows "top".
class LengthPair {
  public:
    LengthPair(int property, bool showSign) : horizontal_(property, showSign), vertical_(property, showSign) {}

    void Clear(TextView preferredUnits);

    /// Shows a value of the text: its first word horizontally, the rest vertically, where there is a rest. "" changes
    /// nothing.
    void SetValue(TextView value);

    /// Both values with a blank between; the vertical one alone keeps the blank in front of it.
    [[nodiscard]] Text GetValue() const;

    [[nodiscard]] LengthFields& Horizontal() noexcept { return horizontal_; }
    [[nodiscard]] LengthFields& Vertical() noexcept { return vertical_; }

    /// Whether the vertical length can be edited, given that the whole control can.
    [[nodiscard]] bool IsVerticalEnabled() const { return !horizontal_.GetValue().empty(); }

  private:
    LengthFields horizontal_;
    LengthFields vertical_;
};

}  // namespace tintora
