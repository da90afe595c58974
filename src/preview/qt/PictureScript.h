#pragma once

#include <QPointF>
#include <QString>
#include <chrono>

namespace tintora {

/// A script that brings a page to its place, in pixels of its style sheet, and writes to the console, behind the mark
/// and in front of a blank and the number of the load,
/// - "painted" when the engine has drawn the page as it stands there and handed the picture over;
/// - "nothing" if there is no page.
/// It reads the page to the end first, since the page would stand at the wrong place, unless that takes longer than
/// told.
[[nodiscard]] QString PictureScript(const QString& mark, int load, QPointF place, std::chrono::milliseconds longest);

}  // namespace tintora
