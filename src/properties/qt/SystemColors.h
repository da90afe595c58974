#pragma once

#include "language/Colors.h"

#include <QColor>

class QPalette;

namespace tintora {

/// The colour to draw for a colour of the program: those of the system, which are known by their numbers, are the
/// desktop's own. A number that there is not is drawn as the face of a button.
[[nodiscard]] QColor DisplayColor(ColorValue color, const QPalette& palette);

/// The colour with the components of one that is drawn.
[[nodiscard]] ColorValue ColorValueOf(const QColor& color);

}  // namespace tintora
