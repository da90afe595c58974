#pragma once

#include "document/DocumentRecorders.h"
#include "model/DeclarationText.h"
#include "properties/PaletteSurroundings.h"

namespace tintora::test {

/// A real document window as the palette edits it.
class WindowDocument final : public EditedDocument {
  public:
    explicit WindowDocument(ktStyleSheetWindow& window) : window_(window) {}

    void ChangeCurrentProperty(TextView name, TextView value) override {
        window_.ChangeCurrentProperty(name, value);
        ++changeCount;
    }
    void ChangeCurrentProperties(const DeclarationChanges& changes) override {
        window_.ChangeCurrentProperties(changes);
        changeCount += static_cast<int>(changes.size());
    }
    void UpdatePropertiesEditor() override { window_.UpdatePropertiesEditor(); }
    void PreviewNow() override { window_.PreviewNow(); }
    void PreviewCurrentRule() override { window_.PreviewCurrentRule(); }
    void DisableNextPreview() override { window_.DisableNextPreview(); }
    [[nodiscard]] Text GetCurrentSelector() const override { return window_.GetCurrentSelector(); }
    [[nodiscard]] int GetCurrentSelectorType() const override { return window_.GetCurrentSelectorType(); }
    [[nodiscard]] Text GetFile() const override { return window_.GetFile(); }
    [[nodiscard]] Texts GetCurrentColors() const override { return window_.GetCurrentColors(); }
    [[nodiscard]] Texts GetCurrentFonts() const override { return window_.GetCurrentFonts(); }
    [[nodiscard]] Texts GetCurrentURLs() const override { return window_.GetCurrentURLs(); }
    [[nodiscard]] Texts GetCurrentSelectors() const override { return window_.GetCurrentSelectors(); }

    /// The body of the rule at the caret, as the document hands it to the palette.
    [[nodiscard]] Text Body() const {
        return window_.StyleSheet().GetPropertiesFromSelection(window_.GetSelectionStart());
    }
    [[nodiscard]] Texts Declarations() const { return GetEditorDeclarations(Body()); }

    int changeCount = 0;

  private:
    ktStyleSheetWindow& window_;
};

}  // namespace tintora::test
