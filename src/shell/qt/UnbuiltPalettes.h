#pragma once

#include "document/DocumentSurroundings.h"

namespace tintora {

/// In the place of the palettes and forms that the program doesn't have yet: palettes that are closed, and forms that
/// are cancelled.
class UnbuiltPalettes final : public SupportWarnings, public StatementDialogs {
  public:
    void SetUpWarnings(int) override {}
    [[nodiscard]] Text AskStatementKind() override { return {}; }
    [[nodiscard]] Text EditSelector(TextView, TextView) override { return {}; }
};

}  // namespace tintora
