#pragma once

#include "properties/FieldKeys.h"
#include "properties/LengthFields.h"
#include "properties/qt/ValueControl.h"

#include <memory>

namespace tintora {

class ChoiceBox;
class FilteredField;

/// A value control for a property that takes a number with a unit, or a word: the list `Sign`, which is there only if
/// the value may carry one, the field `Value`, and the list `Unit`, which has the words too.
///
/// `Value` takes digits and ".", and what the clipboard has that is a value or a number.
class LengthEditor final : public ValueControl {
    Q_OBJECT

  public:
    /// `number` is what is reported. `fields` may be a part of what a compound control holds, which calls `ShowState`
    /// whenever it has changed it; `showSign` is as they were made with.
    LengthEditor(int number, std::shared_ptr<LengthFields> fields, bool showSign,
                 const ControlSurroundings& surroundings, QWidget* parent);

    [[nodiscard]] Text GetValue() const override { return fields_->GetValue(); }
    void SetValue(TextView value) override;
    void Clear(const FrontDocument* front) override;
    void EditProperty(int property) override;
    void SetLabel(const QString& label) override;

    // The clipboard, for `Value`.

    void Paste() override { PasteValue(); }
    void Cut() override { CutValue(); }
    void Copy() override { CopyValue(); }
    void ClearSelection() override;

    void SelectAll();
    void CopyValue();
    void CutValue();
    /// What is neither a value of the property nor a number changes nothing.
    void PasteValue();

    /// Chooses the first unit that `text` begins with, as `LengthFields::SelectUnit` does. It isn't reported.
    void SelectUnit(TextView text);

    /// Shows what the fields hold.
    void ShowState();

    /// The commands of the main window, as far as they depend on `Value`; nothing unless the palettes are in front.
    void UpdateMenu();

  protected:
    /// The keys of the clipboard are for `Value` also where a list has the focus.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void ConnectParts();
    void HandleKey(FieldKey key);
    void UpdateEditor();
    void ReportAndUpdate();

    std::shared_ptr<LengthFields> fields_;
    ChoiceBox* sign_;
    FilteredField* value_;
    ChoiceBox* unit_;
};

}  // namespace tintora
