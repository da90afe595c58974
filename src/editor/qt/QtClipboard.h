#pragma once

#include "editor/EditorSurroundings.h"

namespace tintora {

/// The desktop's clipboard.
class QtClipboard final : public Clipboard {
  public:
    [[nodiscard]] bool HasText() const override;
    [[nodiscard]] Text GetText() const override;
    void SetText(TextView text) override;
};

}  // namespace tintora
