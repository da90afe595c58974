#pragma once

#include "properties/PlaceOfEdit.h"

namespace tintora {

/// The document and the rule that the palette shows, for whoever asks the user something and must know afterwards
/// whether the answer still concerns what was asked about.
class PresentRule {
  public:
    /// `documents` must outlive the object.
    explicit PresentRule(EditedDocuments& documents);

    /// Whether the same document is in front, and the same rule is its current one.
    [[nodiscard]] bool IsStillInFront() const;

  private:
    EditedDocuments& documents_;
    PlaceOfEdit place_;
};

}  // namespace tintora
