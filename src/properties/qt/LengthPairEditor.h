#pragma once

#include "properties/LengthPair.h"
#include "properties/qt/CompoundControl.h"

namespace tintora {

/// The compound control for a horizontal and a vertical length: `BackgroundPositionEditor` and `BorderSpacingEditor`.
/// The vertical one can be used behind a horizontal one alone.
class LengthPairEditor final : public CompoundControl {
    Q_OBJECT

  public:
    LengthPairEditor(int number, bool showSign, const ControlSurroundings& surroundings, QWidget* parent);

    [[nodiscard]] Text GetValue() const override { return pair_->GetValue(); }
    void SetValue(TextView value) override;
    void Clear(const FrontDocument* front) override;

  private:
    void UpdateEditor() override;

    std::shared_ptr<LengthPair> pair_;
    ValueControl* vertical_;
};

}  // namespace tintora
