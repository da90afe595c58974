#pragma once

#include <QColor>

namespace tintora {

/// The contrast of two colours, from 1 (none) to 21 (black and white).
[[nodiscard]] double ContrastOf(const QColor& one, const QColor& other);

/// `text`, made as much lighter or darker as it takes to be read on `ground` with a contrast of 4.5 or more.
[[nodiscard]] QColor ReadableOn(const QColor& text, const QColor& ground);

}  // namespace tintora
