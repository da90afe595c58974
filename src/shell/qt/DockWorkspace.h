#pragma once

#include "shell/Workspace.h"
#include "shell/qt/PaneSizes.h"

#include <QByteArray>
#include <QString>
#include <functional>

class QAction;
class QDockWidget;
class QMainWindow;
class QToolBar;
class QWidget;

namespace tintora {

/// The workspace of a window: its panes are the window's dock widgets, by their object names, and its toolbars those of
/// the window, by their titles or object names.
///
///     DockWorkspace workspace(window, refreshCurrentEditor, updatePropertiesEditor);
///     for (const Pane& pane : Panes)
///         workspace.AddPane(pane.key, TitleOf(pane));
///     workspace.ArrangeAsDesigned();
///     OpenLayout(workspace, path);                            // what the user has made of it
///     workspace.SetForm(u"dwPreview", new frmPreview);        // and the same for each
///
/// All of it works in a window that isn't shown yet, or is hidden: sizes are given when it is shown.
class DockWorkspace final : public Workspace {
  public:
    /// `window` must outlive the object. A callback that is empty does nothing.
    DockWorkspace(QMainWindow& window, std::function<void()> refreshCurrentEditor,
                  std::function<void()> updatePropertiesEditor);

    /// Adds a pane, shown, at its designed place, and gives it; one that the window has already gets the title and the
    /// form. Without a form it is empty. A key that no pane has adds nothing and gives `nullptr`.
    ///
    /// The pane's `toggleViewAction` shows and hides it.
    QDockWidget* AddPane(TextView key, const QString& title, QWidget* form = nullptr);

    /// Hands the form to its pane, which owns it from now on; one that it had goes. The pane is neither shown nor
    /// hidden. A form that needs more room than the pane has is scrolled: it never makes the window larger. Without
    /// that pane nothing happens.
    void SetForm(TextView key, QWidget* form);

    /// The form that the pane holds, or `nullptr`.
    [[nodiscard]] QWidget* GetFloatingWindow(TextView key) const;

    /// The pane's title.
    void ChangeBandCaption(TextView key, const QString& caption);

    /// From now on the action is checked while the pane is shown, also when it is triggered.
    void CheckWhileShown(QAction& action, TextView key);

    /// Docks all panes at their designed places and sizes, shown, with those in front that others lie behind, and shows
    /// all toolbars.
    void ArrangeAsDesigned();

    /// The arrangement of panes and toolbars as bytes.
    [[nodiscard]] QByteArray SaveArrangement() const;

    /// Arranges panes and toolbars as they were saved, in a window of whatever size. Floating panes come to where they
    /// are visible. False, and the arrangement stays, for bytes that are no arrangement.
    bool RestoreArrangement(const QByteArray& bytes);

    void ShowPane(TextView key) override;
    void HidePane(TextView key) override;
    void BringPaneForward(TextView key) override;
    /// The pane gets a place of its own there, behind the last.
    void DockPane(TextView key, DockSide side) override;
    void SetPaneWidth(TextView key, int pixels) override;
    void SetPaneHeight(TextView key, int pixels) override;
    void ShowToolbar(TextView caption) override;
    void HideToolbar(TextView caption) override;
    void RefreshCurrentEditor() override;
    void UpdatePropertiesEditor() override;

  private:
    [[nodiscard]] QDockWidget* FindPane(TextView key) const;
    [[nodiscard]] QToolBar* FindToolbar(TextView caption) const;
    void SetPaneSize(TextView key, Qt::Orientation direction, int pixels);
    void PutBehind(QDockWidget& pane, TextView front);

    QMainWindow& window_;
    std::function<void()> refreshCurrentEditor_;
    std::function<void()> updatePropertiesEditor_;
    PaneSizes sizes_;
};

}  // namespace tintora
