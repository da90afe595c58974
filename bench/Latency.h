#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QWidget>
#include <functional>
#include <vector>

/// How long something takes until what it changes has been painted.
namespace tintora::bench {

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
  public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    /// Does `act`, and gives the milliseconds until the widget has been painted, 1,000 at most.
    double MillisecondsToPaint(const std::function<void()>& act) {
        paints_ = 0;
        QElapsedTimer timer;
        timer.start();
        act();
        while (paints_ == 0 && timer.elapsed() < 1000)
            QCoreApplication::processEvents();
        const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        QCoreApplication::processEvents();
        return milliseconds;
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            ++paints_;
        return QObject::eventFilter(watched, event);
    }

  private:
    int paints_ = 0;
};

/// Prints the median, the 99th percentile and the worst of some milliseconds in a line.
void PrintFigures(const char* what, std::vector<double> milliseconds);

}  // namespace tintora::bench
