#include "shell/qt/PreviousInstance.h"

#include "shell/Mailbox.h"
#include "shell/qt/InstanceLock.h"

#include <QDeadlineTimer>
#include <QThread>

namespace tintora {

namespace {

constexpr int MillisecondsToStart = 10'000;
constexpr int MillisecondsToConnect = 1'000;
constexpr int MillisecondsToAnswer = 60'000;
constexpr int MillisecondsBetweenTries = 20;

bool WaitForLine(QLocalSocket& socket) {
    const QDeadlineTimer deadline(MillisecondsToAnswer);
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            return false;
    }
    socket.readLine();
    return true;
}

}  // namespace

PreviousInstance::PreviousInstance(const QString& folder, SettingsStore& store)
    : socketPath_(InstanceSocketPath(folder)), store_(store) {}

bool PreviousInstance::FindPreviousInstance(InstanceLock& lock) {
    const QDeadlineTimer deadline(MillisecondsToStart);
    while (!lock.TryToTake()) {
        socket_.connectToServer(socketPath_);
        if (socket_.waitForConnected(MillisecondsToConnect))
            return true;
        if (deadline.hasExpired())
            return false;
        QThread::msleep(MillisecondsBetweenTries);
    }
    return false;
}

bool PreviousInstance::SendFileToInstance(TextView path) {
    if (!WaitForLine(socket_))
        return false;
    Mailbox(store_).Put(path);
    socket_.write("wake\n");
    return WaitForLine(socket_);
}

}  // namespace tintora
