#pragma once

#include "selectors/StatementMark.h"

#include <QColor>
#include <QIcon>

namespace tintora {

/// The width and height of a mark, in pixels of the interface.
inline constexpr int StatementMarkSize = 16;

/// A mark as an icon. It is drawn anew for every size and pixel ratio, in `color`, or in `selectedColor` where its row
/// is selected.
[[nodiscard]] QIcon StatementMarkIcon(StatementMark mark, const QColor& color, const QColor& selectedColor);

}  // namespace tintora
