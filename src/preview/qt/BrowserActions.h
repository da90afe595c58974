#pragma once

#include "preview/BrowserMenu.h"

#include <QString>
#include <functional>
#include <vector>

class QMenu;

namespace tintora {

/// Adds an action for each entry to a menu, which owns them. Their object names are the entries' keys; `choose` is told
/// the key of the one that is triggered.
void AddBrowserActions(QMenu& menu, const std::vector<BrowserMenuEntry>& entries,
                       const std::function<void(const QString& key)>& choose);

/// A caption of an entry as a menu takes it: a "&" is a letter.
[[nodiscard]] QString MenuText(const BrowserMenuEntry& entry);

}  // namespace tintora
