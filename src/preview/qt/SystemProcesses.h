#pragma once

#include "preview/BrowserSurroundings.h"

namespace tintora {

/// Starts programs as processes of their own, which outlive this one and have its environment and its folder.
///
/// What can't be started isn't: a program that isn't an absolute path, or isn't there or may not be run; a text that
/// the system can't take as an argument, as it has a NUL, is too long, or has no bytes in the system's encoding.
class SystemProcesses final : public ProcessStarter {
  public:
    [[nodiscard]] bool Start(const Texts& command) override;
};

}  // namespace tintora
