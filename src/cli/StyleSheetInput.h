#pragma once

#include "cli/Console.h"
#include "text/Text.h"

#include <CLI/App.hpp>
#include <string>

namespace tintora::cli {

/// The style sheet in a file, "-" being standard input. An HTML page stands for the text of its first `style` element.
///
/// Throws `CommandFailure` for a file that can't be read, and for a text beyond the length limit.
[[nodiscard]] Text ReadStyleSheet(Console& console, const std::string& file);

/// The bytes of a file, "-" being standard input. Throws `CommandFailure` for a file that can't be read.
[[nodiscard]] std::string ReadInputBytes(Console& console, const std::string& file);

/// Adds a command that takes one FILE and hands it to `run`.
void AddFileCommand(CLI::App& app, Console& console, const std::string& name, const std::string& description,
                    void (*run)(Console&, const std::string&));

}  // namespace tintora::cli
