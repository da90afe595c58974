#pragma once

#include <vector>

namespace tintora {

/// A rectangle in pixels of the desktop. One without width or height is empty.
struct PixelRectangle {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const PixelRectangle&, const PixelRectangle&) = default;
};

/// The place for a window that was stored in the place `stored`, on the screens that there are now: what the desktop
/// leaves of each to windows, the main screen first. The window may have been on a larger screen, or on one that is
/// gone.
///
/// A window that is visible enough stays where it is, also across two screens or partly off one. That is one
///
/// - of which at least half shows,
/// - whose title bar can be grasped: 100 by 15 pixels of its upper 30 rows show on one screen,
/// - that is no wider and no higher than all screens together.
///
/// Any other comes to the screen that shows most of it, or else to the nearest, by the shortest way on which all of it
/// shows, and is cut to the size of that screen. A window smaller than 200 by 150 pixels is made so large first. The
/// place of a place that this has given is that place. Without a screen, `stored` stays as it is.
[[nodiscard]] PixelRectangle VisiblePlace(const PixelRectangle& stored, const std::vector<PixelRectangle>& screens);

}  // namespace tintora
