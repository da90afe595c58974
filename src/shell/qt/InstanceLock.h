#pragma once

#include <QString>

namespace tintora {

/// The folder in which the instances of one user meet, and the lock that the first of them holds.
///
/// The system frees the lock however its process ends, so there is never a stale one.
class InstanceLock {
  public:
    /// `folder` is made if it is missing, for the user alone.
    explicit InstanceLock(const QString& folder);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// The user's own folder for what lives as long as the session does.
    [[nodiscard]] static QString UserFolder();

    /// Whether this process holds the lock now, and with it is the first instance, until the object is destroyed. Where
    /// no lock can be made at all it is true too: the program works, only later starts can't find it.
    [[nodiscard]] bool TryToTake();

  private:
    int file_ = -1;
};

/// The path of the socket at which the first instance listens.
[[nodiscard]] QString InstanceSocketPath(const QString& folder);

}  // namespace tintora
