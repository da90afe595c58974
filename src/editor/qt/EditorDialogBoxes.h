#pragma once

#include "editor/EditorSurroundings.h"

#include <functional>

class QWidget;

namespace tintora {

/// The editor's questions as dialogs and menus over a window.
class EditorDialogBoxes final : public EditorDialogs {
  public:
    /// `window` must outlive the object. `isOffered` says of an entry of the contextual menu whether there is what it
    /// opens.
    using IsOffered = std::function<bool(const ContextMenuEntry&)>;
    EditorDialogBoxes(QWidget& window, IsOffered isOffered) : window_(window), isOffered_(std::move(isOffered)) {}

    [[nodiscard]] std::optional<int> AskLineNumber() override;
    [[nodiscard]] Text ChooseFromMenu(const std::vector<ContextMenuEntry>& entries) override;
    void ShowMessage(TextView title, TextView text) override;

  private:
    QWidget& window_;
    IsOffered isOffered_;
};

}  // namespace tintora
