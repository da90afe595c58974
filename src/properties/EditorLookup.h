#pragma once

#include "text/Text.h"

#include <optional>

/// Where a name leads in the palette. A name is the caption of an editor or a property.
///
/// The two look-ups differ, and callers depend on it: `EditProperty` compares exactly and always leads somewhere,
/// `OpenPropertyEditor` folds the case and may lead nowhere.
namespace tintora {

/// An editor, and the property that gets the focus in it; 0 for none.
struct EditorPlace {
    int editor = 0;
    int property = 0;

    friend bool operator==(const EditorPlace&, const EditorPlace&) = default;
};

/// Where `EditProperty` leads. A name that isn't known, in whatever way it is misspelled, leads to the text style
/// editor and to no property.
///
///     PlaceToEdit(u"margin-top")          // editor 4, property 1020
///     PlaceToEdit(u"Margin Editor")       // editor 4, no property
///     PlaceToEdit(u"Margin-Top")          // editor 0, no property
[[nodiscard]] EditorPlace PlaceToEdit(TextView name);

/// The editor that `OpenPropertyEditor` shows, for a name in whatever case; nothing for a name that isn't known.
/// "marker-offset" is known here and not above; "text-shadow" and the caption "Text Shadow Editor" aren't known here.
///
///     EditorToOpen(u"Font-Size")          // 0
///     EditorToOpen(u"margin editor")      // 4
///     EditorToOpen(u"text-shadow")        // nothing
[[nodiscard]] std::optional<int> EditorToOpen(TextView name);

}  // namespace tintora
