#pragma once

#include <CLI/App.hpp>
#include <string>
#include <vector>

namespace tintora::cli {

/// The arguments in an order that leaves no doubt to the parser: options first, then "--", then all else as it stands.
///
/// A word behind the command is an option only if the command has one of that name, so `-10px` is a value.
/// Throws `CommandFailure` where a word that is no command stands in the command's place.
[[nodiscard]] std::vector<std::string> ArrangeArguments(CLI::App& app, const std::vector<std::string>& arguments);

}  // namespace tintora::cli
