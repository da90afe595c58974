#pragma once

#include "text/Text.h"

#include <array>
#include <cstddef>

namespace tintora {

/// What a `TextDecorationEditor` holds: five check boxes. With "none" ticked the others rest, but keep their ticks.
///
///     TextDecorationBoxes boxes;
///     boxes.SetValue(u"underline none");
///     boxes.GetValue();                   // "none"
///     boxes.Tick(TextDecorationBoxes::None, false);
///     boxes.GetValue();                   // "underline"
class TextDecorationBoxes {
  public:
    enum Box : std::size_t { None, Underline, Overline, LineThrough, Blink };

    static constexpr std::array<TextView, 5> Words = {u"none", u"underline", u"overline", u"line-through", u"blink"};

    /// The name of each control.
    static constexpr std::array<TextView, 5> Controls = {
        u"TextDecorationNoneValue", u"TextDecorationUnderlineValue", u"TextDecorationOverlineValue",
        u"TextDecorationLinethroughValue", u"TextDecorationBlinkValue"};

    void Clear() noexcept { isTicked_ = {}; }

    /// Ticks each box whose word stands anywhere in the value, in whatever case. No tick goes.
    void SetValue(TextView value);

    /// "none", or the words of the ticked boxes in their order; "" for none ticked.
    [[nodiscard]] Text GetValue() const;

    void Tick(Box box, bool isTicked) noexcept { isTicked_[box] = isTicked; }
    [[nodiscard]] bool IsTicked(Box box) const noexcept { return isTicked_[box]; }

    /// Whether a box can be ticked, given that the whole control is enabled.
    [[nodiscard]] bool IsEnabled(Box box) const noexcept { return box == None || !isTicked_[None]; }

  private:
    std::array<bool, 5> isTicked_{};
};

}  // namespace tintora
