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
        changes.push_back({Text(name), Text(value)});
    }
    void ChangeCurrentProperties(const DeclarationChanges& wanted) override {
        window_.ChangeCurrentProperties(wanted);
        changes.insert(changes.end(), wanted.begin(), wanted.end());
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

    /// The body of the rule at the caret, as the document hands it to the palette.
    [[nodiscard]] Text Body() const {
        return window_.StyleSheet().GetPropertiesFromSelection(window_.GetSelectionStart());
    }
    [[nodiscard]] Texts Declarations() const { return GetEditorDeclarations(Body()); }

    /// What has been changed, in order.
    DeclarationChanges changes;

  private:
    ktStyleSheetWindow& window_;
};

}  // namespace tintora::test
