#pragma once

#include "properties/ColorFields.h"
#include "properties/qt/PresentRule.h"
#include "properties/qt/ValueControl.h"

#include <memory>
#include <optional>

class QColor;
class QStackedWidget;

namespace tintora {

class ChoiceBox;
class ColorSwatch;
class Eyedropper;
class FilteredField;

/// A value control for a colour: the list of forms `ColorMode`, and for the form that is chosen the list
/// `ColorSelector` or one of the fields `RGBEditText` and `HexEditText`. The swatch `ColorPreview` shows the colour and
/// opens a chooser; the eyedropper `ColorPicker` takes one from the screen.
class ColorEditor final : public ValueControl {
    Q_OBJECT

  public:
    /// `number` is what is reported. `fields` may be a part of what a compound control holds, which calls `ShowState`
    /// whenever it has changed it.
    ColorEditor(int number, std::shared_ptr<ColorFields> fields, const ControlSurroundings& surroundings,
                QWidget* parent);

    [[nodiscard]] Text GetValue() const override { return fields_->GetValue(); }
    void SetValue(TextView value) override;
    void Clear(const FrontDocument* front) override;
    void EditProperty(int property) override;
    void SetLabel(const QString& label) override;

    // The clipboard, for the field that is visible; nothing if a list is.

    void Paste() override;
    void Cut() override;
    void Copy() override;
    void ClearSelection() override;

    /// Shows what the fields hold.
    void ShowState();

    /// Has the user choose a colour in the chooser. The answer counts only if control, document and rule are the same
    /// then; a chooser that fails is one that was cancelled.
    void EditColorWithDialogGM();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void ConnectLists();
    void ConnectFields();
    void ConnectPicker();
    void ShowPreview();
    void TakeColor(const QColor& color);
    [[nodiscard]] QWidget& VisiblePart() const;
    [[nodiscard]] FilteredField* VisibleField() const;

    std::shared_ptr<ColorFields> fields_;
    ChoiceBox* mode_;
    ChoiceBox* selector_;
    FilteredField* rgb_;
    FilteredField* hex_;
    QStackedWidget* parts_;
    ColorSwatch* preview_;
    Eyedropper* picker_;

    /// What the eyedropper was taken up for, and what the swatch showed then.
    std::optional<PresentRule> searchedFor_;
    ColorValue previewBefore_ = ColorFields::NoColor;
};

}  // namespace tintora
