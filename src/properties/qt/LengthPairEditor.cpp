#include "properties/qt/LengthPairEditor.h"

#include <QGridLayout>

namespace tintora {

LengthPairEditor::LengthPairEditor(int number, bool showSign, const ControlSurroundings& surroundings, QWidget* parent)
    : CompoundControl(number, surroundings, parent), pair_(std::make_shared<LengthPair>(number, showSign)) {
    const auto parts = PartsOfControl(number);
    QGridLayout& grid = MakeGrid();
    AddRow(grid, parts[0], MakePart(parts[0], std::shared_ptr<LengthFields>(pair_, &pair_->Horizontal())));
    vertical_ = &MakePart(parts[1], std::shared_ptr<LengthFields>(pair_, &pair_->Vertical()));
    AddRow(grid, parts[1], *vertical_);
    ShowState();
}

void LengthPairEditor::SetValue(TextView value) {
    pair_->SetValue(value);
    ShowState();
}

void LengthPairEditor::Clear(const FrontDocument* /*front*/) {
    pair_->Clear(PreferredUnits());
    ShowState();
}

void LengthPairEditor::UpdateEditor() { vertical_->SetUsable(pair_->IsVerticalEnabled()); }

}  // namespace tintora
