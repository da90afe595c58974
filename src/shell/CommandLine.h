#pragma once

#include "text/Text.h"

/// What the editor was started with.
namespace tintora {

/// The file that the command line names; "" for none.
///
/// The whole line after the program's name is one path: its arguments joined by blanks, without a double quote at
/// either end. So a path with blanks needs no quotes, and a second file on the line is no second file.
[[nodiscard]] Text GetCommandLineFile(const Texts& arguments);

/// `path` as an absolute path, seen from this process's working folder; "" stays "".
[[nodiscard]] Text AbsolutePath(TextView path);

/// What the line asks for beside opening a file.
enum class CommandLineRequest { OpenFile, ShowHelp, ShowVersion };

/// `--help` or `--version`, alone on the line, unless a file of that name exists.
[[nodiscard]] CommandLineRequest GetCommandLineRequest(const Texts& arguments);

}  // namespace tintora
