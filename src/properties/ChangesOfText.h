#pragma once

#include "document/DeclarationChange.h"
#include "properties/DeclarationReading.h"
#include "properties/PropertyValues.h"
#include "text/Text.h"

/// The road from the controls of a group editor to the declarations of a rule, without the controls.
namespace tintora {

/// The changes of the text when the control with the number reports a value, in their order. `valueOf` is asked for
/// what the other controls show.
///
/// - Without a shorthand it is the property itself.
/// - Of `font`, the text style editor removes the longhand of each part that it writes; the others leave them.
/// - Of `background`, each longhand of a part that is written goes.
/// - A side of a box is written with its shorthand, and so is the control for all sides, whose value is lost.
/// - An edge is always written whole, under the name of its side.
/// - For the value "list" the list of parts is asked for. The keyword that waits to be added changes nothing.
[[nodiscard]] DeclarationChanges ChangesOfText(int editor, const EditorState& state, int number, TextView value,
                                               const ShownValue& valueOf);

}  // namespace tintora
