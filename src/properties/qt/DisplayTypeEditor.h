#pragma once

#include "properties/qt/GroupEditorForm.h"

#include <map>

namespace tintora {

/// The group editor of display types: below the type and what every box has there is one more section, or none,
/// depending on the type. The sections lie below what is always there, so that nothing moves but them.
class DisplayTypeEditor : public GroupEditorForm {
    Q_OBJECT

  public:
    DisplayTypeEditor(const ControlSurroundings& surroundings, QWidget* parent);

  protected:
    void RevealSection(TextView section) override;
    void ShowSection(TextView section) override;

  private:
    LabeledRows* RowsOfSection(TextView section);

    std::map<Text, LabeledRows*, std::less<>> sections_;
};

}  // namespace tintora
