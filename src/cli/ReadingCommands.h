#pragma once

#include "cli/Console.h"

#include <CLI/App.hpp>

namespace tintora::cli {

/// Adds the commands that read a style sheet and tell what it holds. `console` must outlive `app`.
void AddReadingCommands(CLI::App& app, Console& console);

}  // namespace tintora::cli
