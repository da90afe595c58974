#include "shell/VisiblePlace.h"

#include <algorithm>
#include <cstdint>
#include <tuple>

namespace tintora {

namespace {

constexpr int MinimumWidth = 200;
constexpr int MinimumHeight = 150;
constexpr int TitleHeight = 30;
constexpr int GripWidth = 100;
constexpr int GripHeight = 15;

/// A stored place may hold any numbers, so nothing is reckoned in `int`.
using Pixels = std::int64_t;

Pixels Right(const PixelRectangle& place) { return Pixels{place.left} + place.width; }
Pixels Bottom(const PixelRectangle& place) { return Pixels{place.top} + place.height; }

/// How far two rectangles overlap; a negative number is the gap between them.
Pixels CommonWidth(const PixelRectangle& one, const PixelRectangle& other) {
    return std::min(Right(one), Right(other)) - std::max(one.left, other.left);
}

Pixels CommonHeight(const PixelRectangle& one, const PixelRectangle& other) {
    return std::min(Bottom(one), Bottom(other)) - std::max(one.top, other.top);
}

Pixels CommonArea(const PixelRectangle& one, const PixelRectangle& other) {
    return std::max<Pixels>(CommonWidth(one, other), 0) * std::max<Pixels>(CommonHeight(one, other), 0);
}

Pixels Gap(const PixelRectangle& one, const PixelRectangle& other) {
    return std::max<Pixels>(-CommonWidth(one, other), 0) + std::max<Pixels>(-CommonHeight(one, other), 0);
}

bool IsWithin(const PixelRectangle& inner, const PixelRectangle& outer) {
    return CommonWidth(inner, outer) == inner.width && CommonHeight(inner, outer) == inner.height;
}

/// The screens without empty ones and without those that show a part of another.
std::vector<PixelRectangle> DistinctScreens(const std::vector<PixelRectangle>& screens) {
    std::vector<PixelRectangle> distinct;
    for (const PixelRectangle& screen : screens) {
        const auto holdsScreen = [&](const PixelRectangle& other) { return IsWithin(screen, other); };
        if (screen.width <= 0 || screen.height <= 0 || std::ranges::any_of(distinct, holdsScreen))
            continue;
        std::erase_if(distinct, [&](const PixelRectangle& other) { return IsWithin(other, screen); });
        distinct.push_back(screen);
    }
    return distinct;
}

bool FitsOnDesktop(const PixelRectangle& place, const std::vector<PixelRectangle>& screens) {
    const Pixels width = Right(*std::ranges::max_element(screens, {}, Right)) -
                         std::ranges::min_element(screens, {}, &PixelRectangle::left)->left;
    const Pixels height = Bottom(*std::ranges::max_element(screens, {}, Bottom)) -
                          std::ranges::min_element(screens, {}, &PixelRectangle::top)->top;
    return place.width <= width && place.height <= height;
}

bool CanBeGrasped(const PixelRectangle& place, const std::vector<PixelRectangle>& screens) {
    const PixelRectangle title{place.left, place.top, place.width, TitleHeight};
    return std::ranges::any_of(screens, [&](const PixelRectangle& screen) {
        return CommonWidth(title, screen) >= GripWidth && CommonHeight(title, screen) >= GripHeight;
    });
}

bool HalfOfItShows(const PixelRectangle& place, const std::vector<PixelRectangle>& screens) {
    Pixels visible = 0;
    for (const PixelRectangle& screen : screens)
        visible += CommonArea(place, screen);
    return visible >= Pixels{place.width} * place.height - visible;
}

const PixelRectangle& BestScreen(const PixelRectangle& place, const std::vector<PixelRectangle>& screens) {
    return *std::ranges::min_element(screens, {}, [&](const PixelRectangle& screen) {
        return std::tuple(-CommonArea(place, screen), Gap(place, screen));
    });
}

PixelRectangle MovedInto(const PixelRectangle& screen, PixelRectangle place) {
    place.width = std::min(place.width, screen.width);
    place.height = std::min(place.height, screen.height);
    place.left = static_cast<int>(std::clamp<Pixels>(place.left, screen.left, Right(screen) - place.width));
    place.top = static_cast<int>(std::clamp<Pixels>(place.top, screen.top, Bottom(screen) - place.height));
    return place;
}

}  // namespace

PixelRectangle VisiblePlace(const PixelRectangle& stored, const std::vector<PixelRectangle>& screens) {
    const std::vector<PixelRectangle> distinct = DistinctScreens(screens);
    if (distinct.empty())
        return stored;
    PixelRectangle place = stored;
    place.width = std::max(place.width, MinimumWidth);
    place.height = std::max(place.height, MinimumHeight);
    if (FitsOnDesktop(place, distinct) && CanBeGrasped(place, distinct) && HalfOfItShows(place, distinct))
        return place;
    return MovedInto(BestScreen(place, distinct), place);
}

}  // namespace tintora
