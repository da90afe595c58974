#pragma once

#include "properties/qt/GroupEditorForm.h"

namespace tintora {

/// A group editor of one control with a list, which takes all the room: quotes and generated content.
class ListPropertiesEditor : public GroupEditorForm {
    Q_OBJECT

  public:
    ListPropertiesEditor(int number, const ControlSurroundings& surroundings, QWidget* parent);
};

}  // namespace tintora
