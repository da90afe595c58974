#include "editor/qt/QtClock.h"

#include <QTimer>
#include <utility>

namespace tintora {

namespace {

class QtDelayTimer final : public DelayTimer {
  public:
    QtDelayTimer(std::chrono::milliseconds interval, std::function<void()> onFire) {
        timer_.setSingleShot(true);
        timer_.setInterval(interval);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, std::move(onFire));
    }

    void Restart() override { timer_.start(); }
    void Stop() override { timer_.stop(); }
    [[nodiscard]] bool IsRunning() const override { return timer_.isActive(); }

  private:
    QTimer timer_;
};

}  // namespace

std::unique_ptr<DelayTimer> QtClock::MakeTimer(std::chrono::milliseconds interval, std::function<void()> onFire) {
    return std::make_unique<QtDelayTimer>(interval, std::move(onFire));
}

}  // namespace tintora
