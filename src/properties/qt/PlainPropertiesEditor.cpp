#include "properties/qt/PlainPropertiesEditor.h"

#include "properties/qt/LabeledRows.h"
#include "properties/qt/ValueControl.h"

#include <QVBoxLayout>

namespace tintora {

namespace {

/// Paddings behind margins; sizes behind offsets, and what is seen behind sizes.
bool BeginsGroup(int number) {
    constexpr int Padding = 1024;
    constexpr int Width = 1034;
    constexpr int Visibility = 1040;
    return number == Padding || number == Width || number == Visibility;
}

}  // namespace

PlainPropertiesEditor::PlainPropertiesEditor(int number, const ControlSurroundings& surroundings, QWidget* parent)
    : GroupEditorForm(number, surroundings, parent) {
    LabeledRows* rows = nullptr;
    for (const ControlRow& row : RowsOfEditor(number)) {
        if (rows == nullptr || BeginsGroup(row.number)) {
            rows = new LabeledRows(this);
            Groups().addWidget(rows);
        }
        AddRow(*rows, row);
    }
    FinishControls();
}

}  // namespace tintora
