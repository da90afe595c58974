#pragma once

#include "shell/Workspace.h"
#include "text/Text.h"

/// The built-in arrangements of the main window's panes and toolbars.
namespace tintora {

/// Pixels of a length in twips, 1440 to the inch and 15 to the pixel, rounded to the nearest.
[[nodiscard]] constexpr int PixelsFromTwips(int twips) noexcept { return twips / 15 + twips % 15 / 8; }

/// Shows the pane, and brings it in front of those that share its place: all but "dwBrowserSupport", which never covers
/// another pane by itself.
void ShowFloatingWindow(Workspace& workspace, TextView pane);

/// Shows every pane, from none on. "dwInfo" and "dwBrowserSupport" end in front of the panes that share their places.
void ShowPalettes(Workspace& workspace);

/// Hides every pane.
void HidePalettes(Workspace& workspace);

/// Every toolbar but the menu bar.
void ShowAllToolbars(Workspace& workspace);
void HideAllToolbars(Workspace& workspace);

/// Rearranges panes and toolbars to the layout "Standard", "Edit" or "Designer", whether a document is open or not, and
/// brings the property editors up to date. Any other name does nothing.
void UseLayout(Workspace& workspace, TextView name);

}  // namespace tintora
