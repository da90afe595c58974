#pragma once

#include "language/FrontDocument.h"
#include "properties/ColorFields.h"
#include "properties/KeywordChoice.h"
#include "properties/LengthFields.h"
#include "text/Text.h"

namespace tintora {

/// What a `BorderValuesEditor` or the `OutlineEditor` holds: width, colour and style of an edge. Width and colour are
/// entered only with a style, without which they have no effect.
///
///     EdgeFields top(1055);
///     top.Clear(front, u"em");
///     top.SetValue(u"red 1px solid");
///     top.GetValue();                     // "1px red solid"
class EdgeFields {
  public:
    /// `property` is the shorthand of the edge: 1052 or 1055 to 1058 for a border, 1073 for the outline.
    explicit EdgeFields(int property);

    void Clear(const FrontDocument* front, TextView preferredUnits);

    /// Shows the words of a value, in any order: a colour, a width (any part of the words for it counts, and any
    /// length), and whatever else as the style. What the value doesn't hold stays.
    ///
    /// In a border the word "!important" is shown as the style, and marked as bad, and one that ends with it loses it.
    /// In an outline the word empties the style.
    void SetValue(TextView value);

    /// Width, colour and style, as far as there are any.
    [[nodiscard]] Text GetValue() const;

    [[nodiscard]] LengthFields& Width() noexcept { return width_; }
    [[nodiscard]] ColorFields& Color() noexcept { return color_; }
    [[nodiscard]] KeywordChoice& Style() noexcept { return style_; }

    /// Whether width and colour can be edited, given that the whole control can.
    [[nodiscard]] bool HasStyle() const { return !style_.GetValue().empty(); }

  private:
    bool isBorder_;
    LengthFields width_;
    ColorFields color_;
    KeywordChoice style_;
};

}  // namespace tintora
