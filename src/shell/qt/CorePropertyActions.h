#pragma once

#include "text/Text.h"

#include <QAction>

namespace tintora {

/// The action of a button on the toolbar of core properties, by its key: checkable but for the two colour tools, which
/// have no icon of their own. `nullptr` for the combo boxes and any other key.
[[nodiscard]] QAction* MakeCorePropertyAction(TextView key, QObject* parent);

}  // namespace tintora
