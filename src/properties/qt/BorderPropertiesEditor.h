#pragma once

#include "properties/qt/GroupEditorForm.h"

namespace tintora {

class NarrowTabBar;

/// The group editor of borders: a tab for all sides and one for each, with a star where the rule has a declaration.
class BorderPropertiesEditor : public GroupEditorForm {
    Q_OBJECT

  public:
    BorderPropertiesEditor(const ControlSurroundings& surroundings, QWidget* parent);

  protected:
    void Clear() override;
    void RevealSection(TextView section) override { SwitchToBorder(section); }
    void ShowSection(TextView section) override { SwitchToBorder(section); }
    void MarkSection(TextView section, bool hasDeclaration) override;

  private:
    void AddTab(const ControlRow& row);
    void ShowPage(int index);
    void SwitchToBorder(TextView section);

    NarrowTabBar* tabs_;
};

}  // namespace tintora
