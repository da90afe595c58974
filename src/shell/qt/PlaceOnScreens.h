#pragma once

#include <QRect>

namespace tintora {

/// The place on the screens that there are now for a window that was stored in the place `stored`: `VisiblePlace` with
/// what the desktop leaves of each screen to windows. Both are in pixels of the desktop.
[[nodiscard]] QRect PlaceOnScreens(const QRect& stored);

}  // namespace tintora
