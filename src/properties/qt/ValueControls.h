#pragma once

#include "properties/ControlRows.h"
#include "properties/qt/ValueControl.h"

/// The value controls by their kind.
namespace tintora {

/// The control of a row, named as the row says; its accessible name is the row's label, and the name of the property is
/// its tool tip.
[[nodiscard]] ValueControl* MakeValueControl(const ControlRow& row, const ControlSurroundings& surroundings,
                                             QWidget* parent);

}  // namespace tintora
