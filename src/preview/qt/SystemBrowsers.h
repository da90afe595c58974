#pragma once

#include "preview/Programs.h"
#include "preview/WebBrowsers.h"

/// The programs and browsers of this system, as the environment tells where to look.
namespace tintora {

[[nodiscard]] ProgramSearch SystemPrograms();

/// Reads all desktop files: some milliseconds.
[[nodiscard]] WebBrowsers ReadWebBrowsers();

}  // namespace tintora
