#pragma once

#include "properties/qt/GroupEditorForm.h"

namespace tintora {

/// A group editor of plain rows, in groups: all but those of text style, borders and display types.
class PlainPropertiesEditor : public GroupEditorForm {
    Q_OBJECT

  public:
    PlainPropertiesEditor(int number, const ControlSurroundings& surroundings, QWidget* parent);
};

}  // namespace tintora
