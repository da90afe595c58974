#pragma once

#include "settings/MemorySettingsStore.h"
#include "text/Text.h"

#include <iosfwd>
#include <stdexcept>
#include <string>

namespace tintora::cli {

/// What a command is run with: the streams of its process, and settings that live as long as the process does.
struct Console {
    std::istream& input;
    std::ostream& output;
    std::ostream& errors;
    MemorySettingsStore settings;
    /// What the process ends with; a command that found something raises it.
    int exitStatus = 0;
};

inline constexpr int ExitFound = 1;
inline constexpr int ExitFailed = 2;

/// A call, file or text that a command can't go on with. It ends the process with `ExitFailed` and the message
/// "tintora-cli: WHAT: WHY".
class CommandFailure : public std::runtime_error {
  public:
    CommandFailure(std::string what, const std::string& why) : std::runtime_error(why), what_(std::move(what)) {}

    /// The thing concerned: a file, a command, a value.
    [[nodiscard]] const std::string& What() const noexcept { return what_; }

  private:
    std::string what_;
};

/// Writes "tintora-cli: WHAT: WHY" on the console's errors.
void Report(Console& console, const std::string& what, const std::string& why);

/// Stores a "SECTION/KEY=VALUE" of the command line. VALUE knows the escapes \r, \n, \t and \\.
void ApplySetting(Console& console, const std::string& assignment);

/// All of standard input as text.
[[nodiscard]] Text ReadStandardInput(Console& console);

/// The lines of a text, without their line ends (LF or CR LF). A last line that is empty is none.
[[nodiscard]] Texts Lines(TextView text);

}  // namespace tintora::cli
