#pragma once

#include "properties/ClipFields.h"
#include "properties/qt/CompoundControl.h"

#include <array>

namespace tintora {

/// The compound control for `clip`: the shape, and the four sides of a rectangle, each of which can be used behind the
/// one in front of it.
class ClipEditor final : public CompoundControl {
    Q_OBJECT

  public:
    ClipEditor(int number, const ControlSurroundings& surroundings, QWidget* parent);

    [[nodiscard]] Text GetValue() const override { return clip_->GetValue(); }
    void SetValue(TextView value) override;
    void Clear(const FrontDocument* front) override;

  private:
    void UpdateEditor() override;

    std::shared_ptr<ClipFields> clip_;
    std::array<ValueControl*, ClipFields::SideCount> sides_{};
};

}  // namespace tintora
