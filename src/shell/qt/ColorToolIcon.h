#pragma once

#include <QColor>
#include <QIcon>
#include <optional>

class QPalette;

namespace tintora {

/// What a colour tool colours: the letters of a text, or the ground behind them.
enum class ColorToolSign { Letter, Ground };

/// A sign in the colours of buttons, and below it a swatch of `color`, or a mere line where there is none. It is drawn
/// anew for every size and pixel ratio, its edges on whole pixels.
[[nodiscard]] QIcon ColorToolIcon(ColorToolSign sign, const QPalette& palette, const std::optional<QColor>& color);

}  // namespace tintora
