#include "properties/qt/EdgeEditor.h"

#include <QGridLayout>

namespace tintora {

EdgeEditor::EdgeEditor(int number, const ControlSurroundings& surroundings, QWidget* parent)
    : CompoundControl(number, surroundings, parent), edge_(std::make_shared<EdgeFields>(number)) {
    const auto parts = PartsOfControl(number);
    width_ = &MakePart(parts[0], std::shared_ptr<LengthFields>(edge_, &edge_->Width()));
    color_ = &MakePart(parts[1], std::shared_ptr<ColorFields>(edge_, &edge_->Color()));
    style_ = &MakePart(parts[2], std::shared_ptr<KeywordChoice>(edge_, &edge_->Style()));
    QGridLayout& grid = MakeGrid();
    AddRow(grid, parts[0], *width_);
    AddRow(grid, parts[1], *color_);
    AddRow(grid, parts[2], *style_);
    ShowState();
}

void EdgeEditor::SetValue(TextView value) {
    edge_->SetValue(value);
    ShowState();
}

void EdgeEditor::Clear(const FrontDocument* front) {
    edge_->Clear(front, PreferredUnits());
    ShowState();
}

void EdgeEditor::UpdateEditor() {
    width_->SetUsable(edge_->HasStyle());
    color_->SetUsable(edge_->HasStyle());
}

}  // namespace tintora
