#pragma once

#include "document/DocumentRecorders.h"
#include "model/DeclarationText.h"
#include "properties/EditedStyleSheet.h"

namespace tintora::test {

/// A document window as the palette edits it, which writes down what is changed.
class WindowDocument final : public EditedStyleSheet {
  public:
    explicit WindowDocument(ktStyleSheetWindow& window) : EditedStyleSheet(window), window_(window) {}

    void ChangeCurrentProperty(TextView name, TextView value) override {
        EditedStyleSheet::ChangeCurrentProperty(name, value);
        changes.push_back({Text(name), Text(value)});
    }
    void ChangeCurrentProperties(const DeclarationChanges& wanted) override {
        EditedStyleSheet::ChangeCurrentProperties(wanted);
        changes.insert(changes.end(), wanted.begin(), wanted.end());
    }

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
