#pragma once

#include "cli/Console.h"
#include "text/Text.h"

#include <string>

namespace tintora::cli {

/// The style sheet in a file, "-" being standard input. An HTML page stands for the text of its first `style` element.
///
/// Throws `CommandFailure` for a file that can't be read, and for a text beyond the length limit.
[[nodiscard]] Text ReadStyleSheet(Console& console, const std::string& file);

}  // namespace tintora::cli
