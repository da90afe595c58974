#pragma once

#include "document/DocumentSurroundings.h"

namespace tintora {

/// In the place of the palettes and forms that the program doesn't have yet: palettes that are closed, and forms that
/// are cancelled.
class UnbuiltPalettes final : public PropertiesPalette, public SupportWarnings, public StatementDialogs {
  public:
    [[nodiscard]] bool IsOpen() const override { return false; }
    void Enable() override {}
    void Disable() override {}
    void SetProperties(TextView) override {}
    void SelectPropertyinText(TextView) override {}
    void EditProperty(TextView) override {}
    void SetLastProperty(int) override {}
    [[nodiscard]] bool IsChangingProperty() const override { return false; }
    void SetUpWarnings(int) override {}
    [[nodiscard]] Text AskStatementKind() override { return {}; }
    [[nodiscard]] Text EditSelector(TextView, TextView) override { return {}; }
};

}  // namespace tintora
