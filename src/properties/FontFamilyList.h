#pragma once

#include "text/Text.h"

#include <array>
#include <cstddef>

namespace tintora {

/// A tab of `MoreFontsDialog`. The fonts of the first, which has no string, are those that the system has.
struct FontSet {
    TextView caption;
    int fontsString;
};

/// In the order of the tabs, whose indexes begin with 1.
inline constexpr std::array<FontSet, 5> FontSets = {{
    {u"This Computer", 0},
    {u"Generic", 1133},
    {u"Cross-Platform", 1134},
    {u"Windows", 1135},
    {u"Macintosh", 1136},
}};

/// The fonts of the tab with that index; none for an index that no tab has.
[[nodiscard]] Texts FontsOfTab(int index, const Texts& installed);

/// What `MoreFontsDialog` composes: the fonts of a `font-family` value, in order.
///
///     FontFamilyList fonts;
///     fonts.EditFonts(u"Georgia,serif");
///     fonts.AddOneFont(u"Times New Roman");
///     fonts.FamilyText();                 // "Georgia, serif, \"Times New Roman\""
class FontFamilyList {
  public:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    /// Begins with a value, which stays as it is written until something changes. It is cut at each comma.
    void EditFonts(TextView family);

    /// Adds a font at the end. One that holds a blank gets a double quote at each end that has none; "" adds nothing.
    void AddOneFont(TextView name);

    /// Selects a font by its 0-based index; one that isn't there selects none.
    void Select(std::size_t index) noexcept { selected_ = index < fonts_.size() ? index : None; }

    /// Remove the selected font, and exchange it with the one above or below it; each where it can be done.
    void RemoveOneFont();
    void MoveUp();
    void MoveDown();

    [[nodiscard]] const Texts& Fonts() const noexcept { return fonts_; }
    [[nodiscard]] std::size_t Selected() const noexcept { return selected_; }
    [[nodiscard]] bool CanRemove() const noexcept { return selected_ != None; }
    [[nodiscard]] bool CanMoveUp() const noexcept { return selected_ != None && selected_ > 0; }
    [[nodiscard]] bool CanMoveDown() const noexcept { return selected_ != None && selected_ + 1 < fonts_.size(); }

    /// The value.
    [[nodiscard]] const Text& FamilyText() const noexcept { return family_; }

  private:
    void SetUpCurrentFonts();

    Texts fonts_;
    std::size_t selected_ = None;
    Text family_;
};

}  // namespace tintora
