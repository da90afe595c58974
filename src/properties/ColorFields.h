#pragma once

#include "language/Colors.h"
#include "language/FrontDocument.h"
#include "properties/ChoiceList.h"
#include "text/Text.h"

#include <array>
#include <cstddef>

namespace tintora {

/// The ways to enter a colour, by their place in the list of modes.
enum class ColorMode { Current, Keywords, UIKeywords, RGB, Hex };

inline constexpr std::array<TextView, 5> ColorModeCaptions = {u"Current", u"Keywords", u"UI Keywords", u"rgb", u"#"};

/// The mode in which a value is shown, by its form alone: a keyword, exactly; a system keyword, exactly; "rgb" or "#"
/// at the start; anything else among the colours that the document uses.
[[nodiscard]] ColorMode ModeOfColor(TextView value);

/// What a `ColorEditor` holds: a mode, a list of words for the first three modes, a field each for the other two, and
/// the colour of its swatch.
///
/// A word that the list of "Current" doesn't have is added and chosen, and marked as bad unless `IsValidColor` takes
/// it.
///
///     ColorFields color;
///     color.Clear(front);                 // mode "#"
///     color.SetValue(u"rgb(255, 0, 0)");  // mode "rgb", the field has "255, 0, 0"
///     color.TakeColor(ColorFromComponents(0, 0, 16));
///     color.GetValue();                   // "rgb(0, 0, 16)"
class ColorFields {
  public:
    /// The swatch of an empty control: the face of a button, a colour of the system.
    static constexpr ColorValue NoColor = SystemColorBase + 15;

    ColorFields();

    /// Empties everything and keeps the mode, which is "#" in a new control.
    void Clear(const FrontDocument* front = nullptr);

    /// Shows a value of the text; "" changes nothing but the mark, and the value that is shown already changes nothing.
    /// An "!important" in it is put aside. What lies between the parentheses of an "rgb" isn't looked at: four units go
    /// in front and one behind.
    void SetValue(TextView value);

    /// The CSS text of what is shown; "" for an empty field.
    [[nodiscard]] Text GetValue() const;

    // What the user does. Each changes the value, which is then to be reported; a change of the mode only if the new
    // value isn't "".

    void ChooseMode(ColorMode mode, const FrontDocument* front = nullptr);
    void ChooseWord(TextView word);
    void EnterHex(TextView digits);
    void EnterRGB(TextView components);

    /// A colour from the screen or the chooser, which is no colour of the system: it goes into the "rgb" field if that
    /// one is visible, and in any other case into the "#" field.
    void TakeColor(ColorValue color);

    /// Shows a colour in the swatch alone, as while the eyedropper is dragged.
    void ShowInPreview(ColorValue color) noexcept { preview_ = color; }

    // What is shown. The list is visible in the first three modes, the fields in theirs.

    [[nodiscard]] ColorMode Mode() const noexcept { return mode_; }
    [[nodiscard]] const ChoiceList& Words() const noexcept { return lists_[ListIndex(mode_)]; }
    [[nodiscard]] const Text& RGBText() const noexcept { return rgbText_; }
    [[nodiscard]] const Text& HexText() const noexcept { return hexText_; }

    /// What understands nothing leaves the swatch at the last colour.
    [[nodiscard]] ColorValue Preview() const noexcept { return preview_; }

    /// Whether the text of the visible part is to be marked.
    [[nodiscard]] bool IsBad() const;

  private:
    /// The modes with a field share the last list, which is empty.
    static constexpr std::size_t ListCount = 4;
    [[nodiscard]] static constexpr std::size_t ListIndex(ColorMode mode) noexcept {
        return mode < ColorMode::RGB ? static_cast<std::size_t>(mode) : ListCount - 1;
    }
    [[nodiscard]] ChoiceList& List() noexcept { return lists_[ListIndex(mode_)]; }

    void ChooseNoWord();
    void OfferCurrentColors(const FrontDocument* front);
    void SetUpPreview();

    ColorMode mode_ = ColorMode::Hex;
    std::array<ChoiceList, ListCount> lists_;
    Text rgbText_;
    Text hexText_;
    ColorValue preview_ = NoColor;
    bool isWordBad_ = false;
};

}  // namespace tintora
