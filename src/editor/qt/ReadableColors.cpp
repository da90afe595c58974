#include "editor/qt/ReadableColors.h"

#include <algorithm>
#include <cmath>

namespace tintora {

namespace {

constexpr double LeastContrast = 4.5;
constexpr int Steps = 100;

double LinearComponent(double component) {
    return component <= 0.03928 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

/// The relative luminance, from 0 (black) to 1 (white).
double LuminanceOf(const QColor& color) {
    return 0.2126 * LinearComponent(color.redF()) + 0.7152 * LinearComponent(color.greenF()) +
           0.0722 * LinearComponent(color.blueF());
}

}  // namespace

double ContrastOf(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({LuminanceOf(one), LuminanceOf(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor ReadableOn(const QColor& text, const QColor& ground) {
    const bool towardsWhite = ContrastOf(Qt::white, ground) > ContrastOf(Qt::black, ground);
    const double lightness = text.lightnessF();
    QColor readable = text;
    for (int step = 1; step <= Steps && ContrastOf(readable, ground) < LeastContrast; ++step) {
        const double share = static_cast<double>(step) / Steps;
        const double shifted = towardsWhite ? lightness + (1 - lightness) * share : lightness * (1 - share);
        readable = QColor::fromHslF(static_cast<float>(std::max(text.hslHueF(), 0.0F)), text.hslSaturationF(),
                                    static_cast<float>(shifted));
    }
    return readable;
}

}  // namespace tintora
