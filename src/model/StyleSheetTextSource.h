#pragma once

#include "text/Text.h"

namespace tintora {

/// What a style sheet's model needs of the window that holds its text.
class StyleSheetTextSource {
  public:
    virtual ~StyleSheetTextSource() = default;

    /// The whole present text.
    [[nodiscard]] virtual Text GetText() const = 0;

    /// Loads a file into the window.
    virtual void LoadContent(TextView file) = 0;
};

}  // namespace tintora
