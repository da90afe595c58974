#pragma once

#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <QLocalServer>
#include <QObject>
#include <deque>
#include <functional>

class QLocalSocket;

namespace tintora {

/// The first instance's side of the hand-over that `PreviousInstance` tells of.
class MessageHook : public QObject {
    Q_OBJECT

  public:
    using OnWake = std::function<void(const Text&)>;

    /// Listens in the folder of the lock, which this process must hold, until the object is destroyed. `onWake` is
    /// called with each path that comes, also "", when its sender has been let go; it may run an event loop of its own,
    /// in which the next one arrives. `store` must outlive the object.
    MessageHook(const QString& folder, SettingsStore& store, OnWake onWake);
    ~MessageHook() override;

  private:
    void Enqueue();
    void GiveTurn();
    void TakeFile();

    SettingsStore& store_;
    OnWake onWake_;
    QLocalServer server_;
    std::deque<QLocalSocket*> waiting_;
    QLocalSocket* current_ = nullptr;
};

}  // namespace tintora
