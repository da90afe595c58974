#include "properties/qt/SystemColors.h"

#include <QPalette>
#include <array>
#include <cstddef>

namespace tintora {

namespace {

struct PlaceInPalette {
    QPalette::ColorRole role;
    QPalette::ColorGroup group = QPalette::Active;
};

/// By the numbers of the system colours.
constexpr std::array<PlaceInPalette, 25> SystemColors = {{
    {QPalette::Midlight},                         // 0 scroll bar
    {QPalette::Mid},                              // 1 desktop
    {QPalette::Highlight},                        // 2 active caption
    {QPalette::Window, QPalette::Inactive},       // 3 inactive caption
    {QPalette::Window},                           // 4 menu
    {QPalette::Base},                             // 5 window
    {QPalette::Dark},                             // 6 window frame
    {QPalette::WindowText},                       // 7 menu text
    {QPalette::Text},                             // 8 window text
    {QPalette::WindowText},                       // 9 caption text
    {QPalette::Window},                           // 10 active border
    {QPalette::Window, QPalette::Inactive},       // 11 inactive border
    {QPalette::Mid},                              // 12 application workspace
    {QPalette::Highlight},                        // 13 highlight
    {QPalette::HighlightedText},                  // 14 highlight text
    {QPalette::Button},                           // 15 button face
    {QPalette::Dark},                             // 16 button shadow
    {QPalette::Text, QPalette::Disabled},         // 17 gray text
    {QPalette::ButtonText},                       // 18 button text
    {QPalette::WindowText, QPalette::Disabled},   // 19 inactive caption text
    {QPalette::Light},                            // 20 button highlight
    {QPalette::Shadow},                           // 21 dark 3D shadow
    {QPalette::Midlight},                         // 22 3D light
    {QPalette::ToolTipText, QPalette::Inactive},  // 23 info text
    {QPalette::ToolTipBase, QPalette::Inactive},  // 24 info background
}};

constexpr std::size_t ButtonFace = 15;

constexpr int ComponentOf(ColorValue color, unsigned shift) { return static_cast<int>((color >> shift) & 0xFFU); }

}  // namespace

QColor DisplayColor(ColorValue color, const QPalette& palette) {
    if ((color & SystemColorBase) == 0)
        return QColor(ComponentOf(color, 0), ComponentOf(color, 8), ComponentOf(color, 16));
    const std::size_t number = color & 0xFFU;
    const PlaceInPalette& place = SystemColors[number < SystemColors.size() ? number : ButtonFace];
    return palette.color(place.group, place.role);
}

ColorValue ColorValueOf(const QColor& color) {
    const auto component = [](int value) { return static_cast<unsigned>(value); };
    return ColorFromComponents(component(color.red()), component(color.green()), component(color.blue()));
}

}  // namespace tintora
