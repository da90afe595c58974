#pragma once

#include "properties/KeywordChoice.h"
#include "properties/LengthFields.h"
#include "text/Text.h"

#include <array>
#include <cstddef>

namespace tintora {

/// What a `ClipEditor` holds: the shape, and the four sides of a rectangle. A side is entered only behind the one in
/// front of it.
///
///     ClipFields clip;
///     clip.Clear(u"em");
///     clip.SetValue(u"rect(1px 2px 3px 4px)");
///     clip.Side(ClipFields::Right).GetValue();    // "2px"
class ClipFields {
  public:
    /// In the order in which they are written.
    enum SideIndex : std::size_t { Top, Right, Bottom, Left };
    static constexpr std::size_t SideCount = 4;

    ClipFields();

    void Clear(TextView preferredUnits);

    /// Shows a value of the text: "inherit" or "auto", in whatever case, or what stands between "(" and the first ")".
    /// Words behind the fourth count for nothing. Any other value changes nothing.
    ///
    /// Commas part nothing: they stay with their words, which the sides then mark as bad.
    void SetValue(TextView value);

    /// The word, or a "rect()" of the sides that aren't empty; "" if all are.
    [[nodiscard]] Text GetValue() const;

    [[nodiscard]] KeywordChoice& Shape() noexcept { return shape_; }
    [[nodiscard]] LengthFields& Side(SideIndex side) noexcept { return sides_[side]; }

    /// Whether a side can be edited, given that the whole control can.
    [[nodiscard]] bool IsSideEnabled(SideIndex side) const;

  private:
    [[nodiscard]] bool IsShape(TextView word) const { return shape_.List().ChosenText() == word; }

    KeywordChoice shape_;
    std::array<LengthFields, SideCount> sides_;
};

}  // namespace tintora
