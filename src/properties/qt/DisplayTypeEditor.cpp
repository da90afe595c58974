#include "properties/qt/DisplayTypeEditor.h"

#include "properties/GroupEditors.h"
#include "properties/qt/LabeledRows.h"
#include "properties/qt/ValueControl.h"
#include "text/qt/QtText.h"

#include <QVBoxLayout>

namespace tintora {

namespace {

/// The sections that take no turns: the type itself and what every box has.
bool IsAlwaysShown(TextView section) { return section.empty() || section == u"BlockPropertiesEditor"; }

}  // namespace

DisplayTypeEditor::DisplayTypeEditor(const ControlSurroundings& surroundings, QWidget* parent)
    : GroupEditorForm(group_editor::DisplayType, surroundings, parent) {
    for (const ControlRow& row : RowsOfEditor(group_editor::DisplayType))
        AddRow(*RowsOfSection(row.section), row);
    ShowSection({});
    FinishControls();
}

LabeledRows* DisplayTypeEditor::RowsOfSection(TextView section) {
    LabeledRows*& rows = sections_[Text(section)];
    if (rows == nullptr) {
        rows = new LabeledRows(this);
        rows->setObjectName(ToQString(section));
        Groups().addWidget(rows);
    }
    return rows;
}

void DisplayTypeEditor::ShowSection(TextView section) {
    for (const auto& [name, rows] : sections_)
        rows->setVisible(IsAlwaysShown(name) || name == section);
}

void DisplayTypeEditor::RevealSection(TextView section) {
    if (!IsAlwaysShown(section))
        ShowSection(section);
}

}  // namespace tintora
