#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <chrono>
#include <functional>

namespace tintora::test {

/// Waits until something holds; false if it doesn't within ten seconds. The browser draws only while an event loop
/// runs; processing the events that are there wouldn't do. What is waited for may itself wait.
inline bool WaitFor(const std::function<bool()>& holds) {
    constexpr std::chrono::milliseconds Limit(10'000);
    constexpr std::chrono::milliseconds Look(2);
    QElapsedTimer time;
    time.start();
    while (!holds()) {
        if (time.hasExpired(Limit.count()))
            return false;
        QEventLoop loop;
        QTimer::singleShot(Look, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

}  // namespace tintora::test
