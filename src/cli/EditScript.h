#pragma once

#include "cli/Console.h"

#include <string>

namespace tintora::cli {

/// Opens `text` in a headless document and runs a script: JSON Lines, one operation a line. Each "report" and the end
/// of the script print one object. Throws `CommandFailure` for a line that is no operation, and names it.
void RunEditScript(Console& console, TextView text, const std::string& scriptName, const std::string& script);

}  // namespace tintora::cli
