#include "shell/qt/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <QDir>
#include <QFile>

namespace tintora {

InstanceLock::InstanceLock(const QString& folder) {
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QByteArray path = QFile::encodeName(folder + QStringLiteral("/tintora.lock"));
    file_ = ::open(path.constData(), O_CREAT | O_RDWR | O_CLOEXEC, 0600);
}

InstanceLock::~InstanceLock() {
    if (file_ >= 0)
        ::close(file_);
}

QString InstanceLock::UserFolder() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString base =
        runtime.isEmpty() ? QStringLiteral("%1/user-%2").arg(QDir::tempPath()).arg(::getuid()) : runtime;
    return base + QStringLiteral("/tintora");
}

bool InstanceLock::TryToTake() { return file_ < 0 || ::flock(file_, LOCK_EX | LOCK_NB) == 0; }

QString InstanceSocketPath(const QString& folder) { return folder + QStringLiteral("/tintora.socket"); }

}  // namespace tintora
