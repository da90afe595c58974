#pragma once

#include <QObject>
#include <optional>

class QWidget;

namespace tintora {

/// Measures a start: once a window has been painted for the first time, prints how long the process has run and how
/// much memory is resident, and ends the process without closing the window.
///
///     first paint 312 ms, resident 84231 kB
///
/// The system counts the start of a process in hundredths of a second, so that the time may be up to 10 ms too long.
class FirstPaint final : public QObject {
  public:
    /// Measures the start with `window` if the environment variable `TINTORA_REPORT_FIRST_PAINT` is 1, and does nothing
    /// otherwise. `window` must not be painted yet, and must outlive the object.
    explicit FirstPaint(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    static void Report();
};

/// The milliseconds since this process was started, from the tables of the system; nothing where it has none.
[[nodiscard]] std::optional<long> MillisecondsSinceStart();

/// The kilobytes of memory that this process has in use; nothing where the system doesn't tell.
[[nodiscard]] std::optional<long> ResidentKilobytes();

}  // namespace tintora
