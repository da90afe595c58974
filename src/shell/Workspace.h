#pragma once

#include "text/Text.h"

namespace tintora {

/// The sides of the main window at which panes are docked.
enum class DockSide { Left, Right, Bottom };

/// The panes and toolbars of the main window, and what layouts do with them.
///
/// A pane is named by its key ("dwPreview"), a toolbar by its caption ("Standard"). One that the program doesn't have
/// is passed over. Steps come in an order that matters: a size is meant for the place that the pane has at that time.
class Workspace {
  public:
    virtual ~Workspace() = default;

    /// Shows the pane, where it is docked or floats. One that is shown already stays as it is.
    virtual void ShowPane(TextView key) = 0;
    virtual void HidePane(TextView key) = 0;

    /// Brings a shown pane in front of those that share its place, without the focus.
    virtual void BringPaneForward(TextView key) = 0;

    /// Docks the pane at that side, whether it is shown or not.
    virtual void DockPane(TextView key, DockSide side) = 0;

    /// Sizes of a docked pane, in pixels.
    virtual void SetPaneWidth(TextView key, int pixels) = 0;
    virtual void SetPaneHeight(TextView key, int pixels) = 0;

    virtual void ShowToolbar(TextView caption) = 0;
    virtual void HideToolbar(TextView caption) = 0;

    /// Has the palette of properties fill its current editor anew.
    virtual void RefreshCurrentEditor() = 0;

    /// `UpdatePropertiesEditor` of the active document; nothing without one.
    virtual void UpdatePropertiesEditor() = 0;
};

}  // namespace tintora
