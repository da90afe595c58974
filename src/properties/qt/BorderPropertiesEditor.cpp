#include "properties/qt/BorderPropertiesEditor.h"

#include "properties/DisplaySections.h"
#include "properties/GroupEditors.h"
#include "properties/qt/NarrowTabBar.h"
#include "properties/qt/ValueControl.h"
#include "text/qt/QtText.h"

#include <QVBoxLayout>

namespace tintora {

namespace {

/// The 0-based index of the tab of a section; -1 for none.
int TabOfSection(TextView section) {
    int index = 0;
    for (const ControlRow& row : RowsOfEditor(group_editor::Border)) {
        if (row.section == section)
            return index;
        ++index;
    }
    return -1;
}

}  // namespace

BorderPropertiesEditor::BorderPropertiesEditor(const ControlSurroundings& surroundings, QWidget* parent)
    : GroupEditorForm(group_editor::Border, surroundings, parent), tabs_(new NarrowTabBar(this)) {
    tabs_->setObjectName(QStringLiteral("BordersTab"));
    tabs_->setAccessibleName(QStringLiteral("Sides"));
    Groups().addWidget(tabs_);
    for (const ControlRow& row : RowsOfEditor(group_editor::Border))
        AddTab(row);
    connect(tabs_, &NarrowTabBar::currentChanged, this, &BorderPropertiesEditor::ShowPage);
    ShowPage(tabs_->currentIndex());
    FinishControls();
}

void BorderPropertiesEditor::AddTab(const ControlRow& row) {
    const int index = tabs_->addTab(ToQString(BorderTabCaption(row.section, false)));
    tabs_->setTabToolTip(index, ToQString(row.label));
    Groups().addWidget(MakeControl(row, this));
}

void BorderPropertiesEditor::Clear() {
    GroupEditorForm::Clear();
    for (const ControlRow& row : RowsOfEditor(group_editor::Border))
        MarkSection(row.section, false);
}

void BorderPropertiesEditor::MarkSection(TextView section, bool hasDeclaration) {
    const int index = TabOfSection(section);
    const QString caption = ToQString(BorderTabCaption(section, hasDeclaration));
    if (tabs_->tabText(index) != caption)
        tabs_->setTabText(index, caption);
}

void BorderPropertiesEditor::ShowPage(int index) {
    // Widgets in a stack would go on asking for the room that they took when they were seen last.
    int page = 0;
    for (const ControlRow& row : RowsOfEditor(group_editor::Border))
        FindControl(row.number)->setVisible(page++ == index);
}

void BorderPropertiesEditor::SwitchToBorder(TextView section) { tabs_->setCurrentIndex(TabOfSection(section)); }

}  // namespace tintora
