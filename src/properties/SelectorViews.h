#pragma once

#include "text/Text.h"

#include <span>

/// The four views of the property selector. Whatever is chosen in one, its text goes to `PlaceToEdit`: a caption or the
/// name of a property.
namespace tintora {

enum class SelectorView { Editors, ByCategory, Alphabetical, CurrentProperties };

struct SelectorTab {
    SelectorView view;
    TextView caption;

    /// The name of the list or tree that the tab shows.
    TextView control;
};

/// In their order.
[[nodiscard]] std::span<const SelectorTab> SelectorTabs() noexcept;

/// What "Editors" lists: captions, in their order.
[[nodiscard]] std::span<const TextView> EditorCaptions() noexcept;

/// A top node of "By Category". Its children are the words of a numbered string, each of which is its own key.
struct PropertyCategory {
    TextView key;
    TextView caption;
    int wordsString;
};

[[nodiscard]] std::span<const PropertyCategory> PropertyCategories() noexcept;
[[nodiscard]] Texts PropertiesOfCategory(const PropertyCategory& category);

/// The category that has a node for the property; `nullptr` for one without a node: `font`, `background` and `border`
/// have none, and `widows`, `orphans`, `page`, `font-stretch`, `font-size-adjust`, `marks` and `size`.
[[nodiscard]] const PropertyCategory* CategoryOfProperty(TextView name);

/// What "Alphabetical" lists: the properties of all categories, sorted.
[[nodiscard]] Texts AlphabeticalProperties();

/// What "Current Properties" lists: the trimmed name of each declaration text that has a ":", as it is written, as
/// often as it occurs. Comments have none.
[[nodiscard]] Texts CurrentPropertyNames(const Texts& declarations);

/// What the views select for a property that gets the focus: its name, which is also its key in the tree. "" for a
/// number that is no property; the selection then stays, as it does for a name that a view hasn't.
[[nodiscard]] TextView NameToSelect(int property) noexcept;

/// What "Editors" selects while an editor of that class is current; "" for an unknown class. The one editor of margins
/// and paddings is "Margin Editor" there.
[[nodiscard]] TextView CaptionToSelect(TextView className) noexcept;

}  // namespace tintora
