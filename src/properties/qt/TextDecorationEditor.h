#pragma once

#include "properties/TextDecorationBoxes.h"
#include "properties/qt/ValueControl.h"

#include <array>

class QCheckBox;

namespace tintora {

/// The value control for `text-decoration`: five check boxes, of which "none" disables the others.
class TextDecorationEditor final : public ValueControl {
    Q_OBJECT

  public:
    TextDecorationEditor(int number, const ControlSurroundings& surroundings, QWidget* parent);

    [[nodiscard]] Text GetValue() const override { return boxes_.GetValue(); }
    void SetValue(TextView value) override;
    void Clear(const FrontDocument* front) override;
    void EditProperty(int property) override;
    void SetLabel(const QString& label) override;

    // The clipboard, for the whole value. Only a value of the property can be pasted; it takes the place of all ticks.

    void Paste() override;
    void Cut() override;
    void Copy() override;
    void ClearSelection() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void UpdateEditor();

    TextDecorationBoxes boxes_;
    std::array<QCheckBox*, TextDecorationBoxes::Words.size()> checks_{};
};

}  // namespace tintora
