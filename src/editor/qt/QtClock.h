#pragma once

#include "editor/Clock.h"

namespace tintora {

/// The clock of the event loop.
class QtClock final : public Clock {
  public:
    [[nodiscard]] std::unique_ptr<DelayTimer> MakeTimer(std::chrono::milliseconds interval,
                                                        std::function<void()> onFire) override;
};

}  // namespace tintora
