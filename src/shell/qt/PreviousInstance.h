#pragma once

#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <QLocalSocket>
#include <QString>

namespace tintora {

class InstanceLock;

/// The running instance, as a later start sees it: it hands its file over and ends.
///
/// The path goes through the mailbox in the settings; the socket is only a bell. Senders are served one by one, so that
/// none writes over the mailbox of another:
///
///     sender:    connects, and waits for "turn"
///                puts its path into the mailbox, and says "wake"
///     instance:  takes the path out, and says "taken"; then it opens the file
class PreviousInstance {
  public:
    /// `folder` is that of the lock. `store` must outlive the object.
    PreviousInstance(const QString& folder, SettingsStore& store);

    /// Whether an instance is running and can be reached. One that is just starting or ending is waited for; where it
    /// has ended, `lock` is taken, and this process is the first.
    [[nodiscard]] bool FindPreviousInstance(InstanceLock& lock);

    /// Hands over the path, also "", and waits until it has been taken. False if the instance doesn't answer.
    [[nodiscard]] bool SendFileToInstance(TextView path);

  private:
    QString socketPath_;
    SettingsStore& store_;
    QLocalSocket socket_;
};

}  // namespace tintora
