#pragma once

#include "text/Text.h"

#include <vector>

/// The menus that act on the active document: `EnableMenus` and `DisableMenus` switch them.
namespace tintora {

/// The keys that a document enables when it becomes active or has been saved: those of every command that needs a
/// document, in the order of the commands.
///
/// Not among them is what follows the state of the document by itself, and would be enabled here for nothing: what
/// `CSSEditorSrcView::UpdateMenu` and `ktStyleSheetWindow::UpdateMenus` rule, and the tools of the core properties,
/// which are enabled in a rule only.
[[nodiscard]] const std::vector<TextView>& MenusToEnable();

/// The keys that a document disables when it closes: those of every command that needs a document, whoever rules it
/// otherwise, and those that act on a selection, which the palettes enable again for their own fields.
[[nodiscard]] const std::vector<TextView>& MenusToDisable();

}  // namespace tintora
