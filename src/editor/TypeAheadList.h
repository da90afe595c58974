#pragma once

#include "language/FrontDocument.h"
#include "text/Text.h"

/// What a type-ahead list holds, how it is narrowed, and how high it stands.
namespace tintora {

/// "}", and behind it every property name that is offered, in the order of the vocabulary.
[[nodiscard]] Texts TypeAheadNames();

/// What is offered for a property, without duplicates: its words, then the colour words and the style sheet's colours
/// for a colour property, the style sheet's URLs (the last one first) for one that takes URLs, its fonts for
/// `font-family`. Units and placeholders aren't offered. Empty for what has none of all these.
[[nodiscard]] Texts TypeAheadValues(TextView property, const FrontDocument& sheet);

/// The items that begin with `partial` exactly; all of them for "".
[[nodiscard]] Texts ItemsBeginningWith(const Texts& items, TextView partial);

/// Whether a narrowed list is worth showing: it holds something that isn't typed already.
[[nodiscard]] bool IsWorthOffering(const Texts& items, TextView partial) noexcept;

/// What an open list shows of its rows: those that begin with the lower-case form of `currentValue`. The rows are
/// compared as they stand, so that none is left where a row has capitals there.
[[nodiscard]] Texts RowsToShow(const Texts& rows, TextView currentValue);

/// What a key does to an open list, by the code of its character (0 for a key that gives none).
enum class TypeAheadListKey {
    /// Closes it, and nothing is written.
    Closes,
    Chooses,
    /// It is the list's own business: to go to another row.
    IsTheLists,
};

[[nodiscard]] TypeAheadListKey TypeAheadListKeyOf(char16_t character) noexcept;

/// Twips, the unit in which a list reckons its height, in a pixel.
inline constexpr int TwipsPerPixel = 15;

/// The height in twips of a list with that many rows of `rowHeight` twips each, its edge included: as high as its rows;
/// one row for fewer than three; ten rows for more than fifteen.
[[nodiscard]] int TypeAheadFormHeight(int rowHeight, int rows) noexcept;

}  // namespace tintora
