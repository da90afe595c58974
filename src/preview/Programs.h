#pragma once

#include "text/Text.h"

#include <span>

/// Programs as the system finds them.
namespace tintora {

/// Whether the path names a file that may be run.
[[nodiscard]] bool IsProgram(TextView path);

/// Whether the two paths are one program: they are equal, or one of them is what the other, as a link, leads to. Two
/// links to one file are two programs, which the file tells apart by their names.
[[nodiscard]] bool IsSameProgram(TextView path, TextView other);

/// Looks for programs along the folders of a search path, which are parted by ":". Folders that aren't absolute don't
/// count. Nothing is remembered: each question looks at the disk.
class ProgramSearch {
  public:
    /// `searchPath` is what the system has in PATH.
    explicit ProgramSearch(TextView searchPath);

    /// The path of the program: the first in the folders for a bare name, the name itself for an absolute path; "" if
    /// there is no such program.
    [[nodiscard]] Text Find(TextView name) const;

    /// The path of the first of the programs that there is; "" if there is none of them.
    [[nodiscard]] Text FindFirst(std::span<const TextView> names) const;

  private:
    Texts folders_;
};

}  // namespace tintora
