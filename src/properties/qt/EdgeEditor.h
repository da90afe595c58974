#pragma once

#include "properties/EdgeFields.h"
#include "properties/qt/CompoundControl.h"

namespace tintora {

/// The compound control for width, colour and style of an edge: each `BorderValuesEditor`, and the `OutlineEditor`.
/// Width and colour can be used with a style alone.
class EdgeEditor final : public CompoundControl {
    Q_OBJECT

  public:
    /// `number` is the shorthand of the edge.
    EdgeEditor(int number, const ControlSurroundings& surroundings, QWidget* parent);

    [[nodiscard]] Text GetValue() const override { return edge_->GetValue(); }
    void SetValue(TextView value) override;
    void Clear(const FrontDocument* front) override;

  private:
    void UpdateEditor() override;

    /// The style, without which the others have no effect.
    [[nodiscard]] ValueControl& MainPart() const override { return *style_; }

    std::shared_ptr<EdgeFields> edge_;
    ValueControl* width_;
    ValueControl* color_;
    ValueControl* style_;
};

}  // namespace tintora
