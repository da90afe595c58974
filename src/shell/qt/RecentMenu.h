#pragma once

#include "shell/RecentFiles.h"
#include "text/Text.h"

#include <QMenu>
#include <functional>

namespace tintora {

/// The submenu of the files that were open last. It is filled each time when it opens; a file that is gone is grey.
class RecentMenu : public QMenu {
    Q_OBJECT

  public:
    /// `onChosen` gets the path of a chosen entry, `onCleared` is called for the entry that empties the list. `recent`
    /// must outlive the menu.
    RecentMenu(const RecentFiles& recent, std::function<void(TextView)> onChosen, std::function<void()> onCleared,
               QWidget* parent);

  private:
    void Fill();

    const RecentFiles& recent_;
    std::function<void(TextView)> onChosen_;
    std::function<void()> onCleared_;
};

}  // namespace tintora
