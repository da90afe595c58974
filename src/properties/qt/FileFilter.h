#pragma once

#include "text/Text.h"

#include <QString>

namespace tintora {

/// A filter of files as the toolkit's dialog takes it, from captions and patterns that take turns with "|" between. A
/// pattern for all names is "*" there; patterns of one caption are parted by ";". A caption without a pattern is
/// dropped.
///
///     ToolkitFilter(u"JPEG (*.jpg)|*.jpg|All Files (*.*)|*.*")    // "JPEG (*.jpg);;All Files (*)"
[[nodiscard]] QString ToolkitFilter(TextView filter);

}  // namespace tintora
