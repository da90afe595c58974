#include "properties/qt/ListPropertiesEditor.h"

#include "properties/qt/ControlLayout.h"
#include "properties/qt/ValueControl.h"
#include "text/qt/QtText.h"

#include <QLabel>
#include <QVBoxLayout>

namespace tintora {

ListPropertiesEditor::ListPropertiesEditor(int number, const ControlSurroundings& surroundings, QWidget* parent)
    : GroupEditorForm(number, surroundings, parent) {
    for (const ControlRow& row : RowsOfEditor(number)) {
        auto* const rows = new QVBoxLayout;
        rows->setSpacing(ControlGap);
        auto* const label = new QLabel(ToQString(row.label), this);
        label->setToolTip(PropertyToolTip(row.number));
        rows->addWidget(label);
        ValueControl* const control = MakeControl(row, this);
        label->setBuddy(control);
        rows->addWidget(control);
        Groups().addLayout(rows);
    }
    FinishControls();
}

}  // namespace tintora
