#include "shell/Layouts.h"

#include "shell/Panes.h"
#include "shell/Toolbars.h"

namespace tintora {

namespace {

constexpr int SelectorsWidth = PixelsFromTwips(3000);
constexpr int PropertiesWidth = PixelsFromTwips(5775);
constexpr int LowerRightHeight = PixelsFromTwips(3250);
constexpr int PreviewHeight = PixelsFromTwips(1500);

void ShowInFront(Workspace& workspace, TextView pane) {
    workspace.ShowPane(pane);
    workspace.BringPaneForward(pane);
}

void ShowDocked(Workspace& workspace, TextView pane, DockSide side) {
    workspace.DockPane(pane, side);
    workspace.ShowPane(pane);
}

void UseStandardLayout(Workspace& workspace) {
    HidePalettes(workspace);
    workspace.DockPane(u"dwSelectorsEditor", DockSide::Left);
    workspace.SetPaneWidth(u"dwSelectorsEditor", SelectorsWidth);
    ShowPalettes(workspace);
    ShowAllToolbars(workspace);
}

void UseEditLayout(Workspace& workspace) {
    ShowDocked(workspace, u"dwPropertiesEditor", DockSide::Right);
    workspace.SetPaneWidth(u"dwPropertiesEditor", PropertiesWidth);
    ShowDocked(workspace, u"dwSelectorsEditor", DockSide::Right);
    workspace.SetPaneHeight(u"dwSelectorsEditor", LowerRightHeight);
    workspace.HideToolbar(u"Basic Properties");
    for (const TextView caption : {u"Standard", u"Special", u"Palettes", u"Text Editing"})
        workspace.ShowToolbar(caption);
}

void UseDesignerLayout(Workspace& workspace) {
    ShowAllToolbars(workspace);
    ShowDocked(workspace, u"dwPropertiesEditor", DockSide::Right);
    workspace.SetPaneWidth(u"dwPropertiesEditor", PropertiesWidth);
    ShowDocked(workspace, u"dwSelectorsEditor", DockSide::Left);
    workspace.SetPaneWidth(u"dwSelectorsEditor", SelectorsWidth);
    ShowDocked(workspace, u"dwBrowserSupport", DockSide::Right);
    workspace.SetPaneHeight(u"dwBrowserSupport", LowerRightHeight);
    ShowDocked(workspace, u"dwPreview", DockSide::Bottom);
    workspace.SetPaneHeight(u"dwPreview", PreviewHeight);
}

}  // namespace

void ShowFloatingWindow(Workspace& workspace, TextView pane) {
    workspace.ShowPane(pane);
    if (pane != u"dwBrowserSupport")
        workspace.BringPaneForward(pane);
}

void ShowPalettes(Workspace& workspace) {
    HidePalettes(workspace);
    for (const TextView pane :
         {u"dwPropertiesEditor", u"dwBrowserSupport", u"dwSelectorsEditor", u"dwInfo", u"dwCompatibility"})
        workspace.ShowPane(pane);
    ShowInFront(workspace, u"dwInfo");
    ShowInFront(workspace, u"dwBrowserSupport");
    workspace.ShowPane(u"dwPreview");
    workspace.ShowPane(u"dwPreviewRule");
    workspace.RefreshCurrentEditor();
}

void HidePalettes(Workspace& workspace) {
    for (const Pane& pane : Panes)
        workspace.HidePane(pane.key);
}

void ShowAllToolbars(Workspace& workspace) {
    for (const Toolbar& toolbar : Toolbars())
        workspace.ShowToolbar(toolbar.caption);
}

void HideAllToolbars(Workspace& workspace) {
    for (const Toolbar& toolbar : Toolbars())
        workspace.HideToolbar(toolbar.caption);
}

void UseLayout(Workspace& workspace, TextView name) {
    void (*const use)(Workspace&) = name == u"Standard"   ? UseStandardLayout
                                    : name == u"Edit"     ? UseEditLayout
                                    : name == u"Designer" ? UseDesignerLayout
                                                          : nullptr;
    if (use == nullptr)
        return;
    // Panes that were hidden hold what was current then.
    HidePalettes(workspace);
    use(workspace);
    workspace.UpdatePropertiesEditor();
}

}  // namespace tintora
