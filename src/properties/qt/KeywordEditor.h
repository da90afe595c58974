#pragma once

#include "properties/KeywordChoice.h"
#include "properties/qt/ValueControl.h"

#include <memory>

namespace tintora {

class ChoiceBox;

/// A value control for a property that takes a word: one editable list, `KeywordValue`.
///
/// A choice in the list is reported, and so is a text that was typed and confirmed with Enter. A text that was typed
/// and left is not.
class KeywordEditor final : public ValueControl {
    Q_OBJECT

  public:
    /// `number` is what is reported. `choice` may be a part of what a compound control holds, which calls `ShowState`
    /// whenever it has changed it.
    KeywordEditor(int number, std::shared_ptr<KeywordChoice> choice, const ControlSurroundings& surroundings,
                  QWidget* parent);

    [[nodiscard]] Text GetValue() const override { return choice_->GetValue(); }
    void SetValue(TextView value) override;
    void Clear(const FrontDocument* front) override;
    void EditProperty(int property) override;
    void SetLabel(const QString& label) override;

    /// The text of the clipboard is the value.
    void Paste() override;
    /// The value goes, and to the clipboard.
    void Cut() override;
    void Copy() override;
    void ClearSelection() override;

    /// Shows what the choice holds.
    void ShowState();

  private:
    void ChooseText(TextView text);

    std::shared_ptr<KeywordChoice> choice_;
    ChoiceBox* keywordValue_;
};

}  // namespace tintora
