#pragma once

#include <QObject>
#include <functional>

class QSocketNotifier;

namespace tintora {

/// The signals by which the system asks a program to end: SIGHUP, SIGINT and SIGTERM. They are told from the event
/// loop, so that the program can put things in order first. A signal that was ignored from the start stays so.
///
///     const EndingSignals ending([&](int signal) { QCoreApplication::exit(128 + signal); });
///
/// There is one at a time. What comes when it has gone ends the program at once again.
class EndingSignals final : public QObject {
  public:
    /// `end` is told the signal's number, for each signal again.
    explicit EndingSignals(std::function<void(int signal)> end);
    ~EndingSignals() override;

  private:
    void Read();

    std::function<void(int signal)> end_;
    QSocketNotifier* notifier_ = nullptr;
};

}  // namespace tintora
