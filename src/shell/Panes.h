#pragma once

#include "shell/Workspace.h"
#include "text/Text.h"

#include <array>

/// The docking panes of the main window.
namespace tintora {

struct Pane {
    TextView key;
    /// The menu item that shows the pane and is checked while it is shown; "" where there is none.
    TextView menuItem;

    // Where the pane is as long as the user hasn't moved anything.

    DockSide side;
    /// Its width at the left and right, its height at the bottom; 0 for a pane that shares the place of another.
    int pixels;
    /// The pane behind which it is a tab; "" for one that has its place to itself or lies in front of others.
    TextView behind;
};

/// All panes, in the order in which their palettes are opened.
inline constexpr auto Panes = std::to_array<Pane>({
    {u"dwSelectorsEditor", u"miWSelectorsEditor", DockSide::Left, 200, u""},
    {u"dwPropertiesEditor", u"miWPropertiesEditor", DockSide::Right, 385, u""},
    {u"dwBrowserSupport", u"miWBrowserSupportFloater", DockSide::Right, 0, u"dwPropertiesEditor"},
    {u"dwCompatibility", u"miWCompatibilityFloater", DockSide::Right, 0, u"dwPropertiesEditor"},
    {u"dwInfo", u"miWInfoFloater", DockSide::Right, 0, u"dwPropertiesEditor"},
    {u"dwPreview", u"", DockSide::Bottom, 260, u""},
    {u"dwPreviewRule", u"", DockSide::Bottom, 0, u"dwPreview"},
});

}  // namespace tintora
