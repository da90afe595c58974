#pragma once

namespace tintora {

/// The process from its entry to its exit; gives its exit status.
[[nodiscard]] int RunEditor(int argc, char** argv);

}  // namespace tintora
