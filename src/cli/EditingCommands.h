#pragma once

#include "cli/Console.h"

#include <CLI/App.hpp>

namespace tintora::cli {

/// Adds the commands that change a style sheet as the document window does. `console` must outlive `app`.
void AddEditingCommands(CLI::App& app, Console& console);

}  // namespace tintora::cli
