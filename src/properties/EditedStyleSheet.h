#pragma once

#include "document/ktStyleSheetWindow.h"
#include "properties/PaletteSurroundings.h"

namespace tintora {

/// A document window, as the palette changes it.
class EditedStyleSheet : public EditedDocument {
  public:
    /// `window` must outlive the object.
    explicit EditedStyleSheet(ktStyleSheetWindow& window) : window_(window) {}

    void ChangeCurrentProperty(TextView name, TextView value) override { window_.ChangeCurrentProperty(name, value); }
    void ChangeCurrentProperties(const DeclarationChanges& changes) override {
        window_.ChangeCurrentProperties(changes);
    }
    void UpdatePropertiesEditor() override { window_.UpdatePropertiesEditor(); }
    void PreviewNow() override { window_.PreviewNow(); }
    void PreviewCurrentRule() override { window_.PreviewCurrentRule(); }
    void DisableNextPreview() override { window_.DisableNextPreview(); }

    [[nodiscard]] int GetCurrentStatementNumber() const override {
        return window_.GetCurrentStatementNumber(window_.GetSelectionStart());
    }
    [[nodiscard]] Text GetCurrentSelector() const override { return window_.GetCurrentSelector(); }
    [[nodiscard]] int GetCurrentSelectorType() const override { return window_.GetCurrentSelectorType(); }
    [[nodiscard]] Text GetFile() const override { return window_.GetFile(); }
    [[nodiscard]] Texts GetCurrentColors() const override { return window_.GetCurrentColors(); }
    [[nodiscard]] Texts GetCurrentFonts() const override { return window_.GetCurrentFonts(); }
    [[nodiscard]] Texts GetCurrentURLs() const override { return window_.GetCurrentURLs(); }
    [[nodiscard]] Texts GetCurrentSelectors() const override { return window_.GetCurrentSelectors(); }

  private:
    ktStyleSheetWindow& window_;
};

}  // namespace tintora
