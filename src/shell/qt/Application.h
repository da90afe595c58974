#pragma once

#include <QApplication>
#include <functional>

namespace tintora {

class OverflowFailure;

/// The event boundary: an exception that passes out of the handling of any event is told to the user here, and the
/// program goes on.
class Application : public QApplication {
    Q_OBJECT

  public:
    Application(int& argc, char** argv);

    /// What is done about a text beyond the length limit, and about any other failure, which is a fault of the program.
    void SetFailureHandlers(std::function<void(const OverflowFailure&)> onOverflow,
                            std::function<void(const QString&)> onFault);

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    std::function<void(const OverflowFailure&)> onOverflow_;
    std::function<void(const QString&)> onFault_;
};

}  // namespace tintora
