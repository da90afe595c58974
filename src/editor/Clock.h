#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace tintora {

/// A timer that fires once for each start.
class DelayTimer {
  public:
    virtual ~DelayTimer() = default;

    /// Starts the full interval from now, whether it was running or not.
    virtual void Restart() = 0;
    virtual void Stop() = 0;
    [[nodiscard]] virtual bool IsRunning() const = 0;
};

/// What makes timers. It must outlive them.
class Clock {
  public:
    virtual ~Clock() = default;

    /// A timer that doesn't run yet. `onFire` is called from the event loop, never inside of another call; the timer
    /// has stopped by then.
    [[nodiscard]] virtual std::unique_ptr<DelayTimer> MakeTimer(std::chrono::milliseconds interval,
                                                                std::function<void()> onFire) = 0;
};

}  // namespace tintora
