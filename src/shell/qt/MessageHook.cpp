#include "shell/qt/MessageHook.h"

#include "shell/Mailbox.h"
#include "shell/qt/InstanceLock.h"

#include <QLocalSocket>

namespace tintora {

namespace {

constexpr int MostWaiting = 128;

}  // namespace

MessageHook::MessageHook(const QString& folder, SettingsStore& store, OnWake onWake)
    : store_(store), onWake_(std::move(onWake)) {
    // A socket that a crashed instance left behind belongs to nobody: this process holds the lock.
    QLocalServer::removeServer(InstanceSocketPath(folder));
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    server_.setListenBacklogSize(MostWaiting);
    server_.setMaxPendingConnections(MostWaiting);
    connect(&server_, &QLocalServer::newConnection, this, &MessageHook::Enqueue);
    server_.listen(InstanceSocketPath(folder));
}

MessageHook::~MessageHook() { server_.close(); }

void MessageHook::Enqueue() {
    while (QLocalSocket* const sender = server_.nextPendingConnection())
        waiting_.push_back(sender);
    if (current_ == nullptr && !waiting_.empty())
        GiveTurn();
}

void MessageHook::GiveTurn() {
    current_ = waiting_.front();
    waiting_.pop_front();
    connect(current_, &QLocalSocket::readyRead, this, &MessageHook::TakeFile);
    // A sender that dies after it has filled the mailbox counts as one that rang.
    connect(current_, &QLocalSocket::disconnected, this, &MessageHook::TakeFile);
    if (current_->state() == QLocalSocket::ConnectedState)
        current_->write("turn\n");
    else
        TakeFile();
}

void MessageHook::TakeFile() {
    const bool isThere = current_->state() == QLocalSocket::ConnectedState;
    if (isThere && !current_->canReadLine())
        return;
    current_->disconnect(this);
    const Text path = Mailbox(store_).Take();
    if (isThere) {
        current_->write("taken\n");
        current_->flush();
        current_->disconnectFromServer();
    }
    current_->deleteLater();
    current_ = nullptr;
    QMetaObject::invokeMethod(this, &MessageHook::Enqueue, Qt::QueuedConnection);
    onWake_(path);
}

}  // namespace tintora
