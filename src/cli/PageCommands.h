#pragma once

#include "cli/Console.h"

#include <CLI/App.hpp>

namespace tintora::cli {

/// Adds the commands that tie pages to style sheets, and those that tell the paths between the two. `console` must
/// outlive `app`.
void AddPageCommands(CLI::App& app, Console& console);

}  // namespace tintora::cli
