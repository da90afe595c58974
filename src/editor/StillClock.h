#pragma once

#include "editor/Clock.h"

#include <vector>

namespace tintora {

/// A clock that stands still until it is moved on.
class StillClock final : public Clock {
  public:
    [[nodiscard]] std::unique_ptr<DelayTimer> MakeTimer(std::chrono::milliseconds interval,
                                                        std::function<void()> onFire) override;

    /// Moves the time on. Timers that come due fire in the order of their times, of two at the same time the one that
    /// was started first; one that is started by a handler fires too if it comes due.
    void Advance(std::chrono::milliseconds time);

  private:
    class Timer;

    [[nodiscard]] Timer* NextDue(std::chrono::milliseconds until) const;

    std::chrono::milliseconds now_{0};
    long startCount_ = 0;
    std::vector<Timer*> timers_;
};

}  // namespace tintora
