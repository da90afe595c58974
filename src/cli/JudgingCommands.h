#pragma once

#include "cli/Console.h"

#include <CLI/App.hpp>

namespace tintora::cli {

/// Adds the commands that scan a style sheet into tokens and judge it. `console` must outlive `app`.
void AddJudgingCommands(CLI::App& app, Console& console);

}  // namespace tintora::cli
