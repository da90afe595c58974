#pragma once

#include "text/Text.h"

/// What a preview in a browser calls outside of itself.
namespace tintora {

/// Asks the user for a file.
class FileQuestion {
  public:
    virtual ~FileQuestion() = default;

    /// The path of a file that exists, by an open dialog with a filter; "" if it is cancelled.
    [[nodiscard]] virtual Text LocateFile(TextView filter) = 0;
};

/// Starts programs.
class ProcessStarter {
  public:
    virtual ~ProcessStarter() = default;

    /// Starts a process and doesn't wait for it. `command` is the program's path and its arguments, each of which
    /// reaches it as it is: no shell reads them. Whether the process was started; the user isn't told if it wasn't.
    [[nodiscard]] virtual bool Start(const Texts& command) = 0;
};

}  // namespace tintora
