#include "properties/qt/ClipEditor.h"

#include <QGridLayout>

namespace tintora {

ClipEditor::ClipEditor(int number, const ControlSurroundings& surroundings, QWidget* parent)
    : CompoundControl(number, surroundings, parent), clip_(std::make_shared<ClipFields>()) {
    const auto parts = PartsOfControl(number);
    QGridLayout& grid = MakeGrid();
    AddRow(grid, parts.front(), MakePart(parts.front(), std::shared_ptr<KeywordChoice>(clip_, &clip_->Shape())));
    for (std::size_t index = 0; index < sides_.size(); ++index) {
        LengthFields& side = clip_->Side(static_cast<ClipFields::SideIndex>(index));
        sides_[index] = &MakePart(parts[index + 1], std::shared_ptr<LengthFields>(clip_, &side));
        AddRow(grid, parts[index + 1], *sides_[index]);
    }
    ShowState();
}

void ClipEditor::SetValue(TextView value) {
    clip_->SetValue(value);
    ShowState();
}

void ClipEditor::Clear(const FrontDocument* /*front*/) {
    clip_->Clear(PreferredUnits());
    ShowState();
}

void ClipEditor::UpdateEditor() {
    for (std::size_t index = 0; index < sides_.size(); ++index)
        sides_[index]->SetUsable(clip_->IsSideEnabled(static_cast<ClipFields::SideIndex>(index)));
}

}  // namespace tintora
