#include "shell/qt/PlaceOnScreens.h"

#include "shell/VisiblePlace.h"

#include <QGuiApplication>
#include <QScreen>

namespace tintora {

namespace {

PixelRectangle ToPixelRectangle(const QRect& place) { return {place.x(), place.y(), place.width(), place.height()}; }

}  // namespace

QRect PlaceOnScreens(const QRect& stored) {
    std::vector<PixelRectangle> screens;
    // The main screen is the first.
    for (const QScreen* const screen : QGuiApplication::screens())
        screens.push_back(ToPixelRectangle(screen->availableGeometry()));
    const PixelRectangle place = VisiblePlace(ToPixelRectangle(stored), screens);
    return {place.left, place.top, place.width, place.height};
}

}  // namespace tintora
