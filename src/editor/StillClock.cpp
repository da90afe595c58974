#include "editor/StillClock.h"

#include <algorithm>
#include <utility>

namespace tintora {

class StillClock::Timer final : public DelayTimer {
  public:
    Timer(StillClock& clock, std::chrono::milliseconds interval, std::function<void()> onFire)
        : clock_(clock), interval_(interval), onFire_(std::move(onFire)) {
        clock_.timers_.push_back(this);
    }
    ~Timer() override { std::erase(clock_.timers_, this); }
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    void Restart() override {
        isRunning_ = true;
        due_ = clock_.now_ + interval_;
        start_ = ++clock_.startCount_;
    }
    void Stop() override { isRunning_ = false; }
    [[nodiscard]] bool IsRunning() const override { return isRunning_; }

    [[nodiscard]] std::pair<std::chrono::milliseconds, long> Due() const { return {due_, start_}; }

    void Fire() {
        Stop();
        onFire_();
    }

  private:
    StillClock& clock_;
    std::chrono::milliseconds interval_;
    std::function<void()> onFire_;
    std::chrono::milliseconds due_{0};
    long start_ = 0;
    bool isRunning_ = false;
};

std::unique_ptr<DelayTimer> StillClock::MakeTimer(std::chrono::milliseconds interval, std::function<void()> onFire) {
    return std::make_unique<Timer>(*this, interval, std::move(onFire));
}

StillClock::Timer* StillClock::NextDue(std::chrono::milliseconds until) const {
    Timer* next = nullptr;
    for (Timer* const timer : timers_) {
        const bool isDue = timer->IsRunning() && timer->Due().first <= until;
        if (isDue && (next == nullptr || timer->Due() < next->Due()))
            next = timer;
    }
    return next;
}

void StillClock::Advance(std::chrono::milliseconds time) {
    const std::chrono::milliseconds until = now_ + time;
    while (Timer* const next = NextDue(until)) {
        now_ = next->Due().first;
        next->Fire();
    }
    now_ = until;
}

}  // namespace tintora
