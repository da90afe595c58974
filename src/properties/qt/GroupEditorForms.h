#pragma once

#include "properties/qt/GroupEditorForm.h"

/// The group editors by their numbers.
namespace tintora {

/// The form of an editor; `nullptr` for a number that has no editor.
[[nodiscard]] GroupEditorForm* MakeGroupEditorForm(int number, const ControlSurroundings& surroundings,
                                                   QWidget* parent);

}  // namespace tintora
