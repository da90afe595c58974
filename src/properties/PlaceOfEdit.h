#pragma once

#include "properties/PaletteSurroundings.h"
#include "text/Text.h"

namespace tintora {

/// Where the palette edits: a statement of a document. What a dialog of the palette answers is good for the place at
/// which it was opened, and for no other.
struct PlaceOfEdit {
    /// Only to be compared: it may be gone. `nullptr` for none.
    const EditedDocument* document = nullptr;
    Text file;

    int statement = 0;
    Text selector;
    int selectorType = 0;

    friend bool operator==(const PlaceOfEdit&, const PlaceOfEdit&) = default;
};

[[nodiscard]] PlaceOfEdit PresentPlaceOfEdit(EditedDocuments& documents);

}  // namespace tintora
