#include "shell/qt/LayoutFile.h"

#include "shell/qt/DockWorkspace.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace tintora {

namespace {

/// No arrangement comes near this; what is larger isn't worth reading.
constexpr qint64 MostBytes = 1'000'000;

/// The digest is no ornament: of bytes that were changed the toolkit may read and write beyond its memory.
QByteArray HeaderFor(const QByteArray& arrangement) {
    const QByteArray digest = QCryptographicHash::hash(arrangement, QCryptographicHash::Sha256).toHex();
    return "Tintora layout 1 " + QByteArray::number(arrangement.size()) + ' ' + digest + '\n';
}

}  // namespace

bool OpenLayout(DockWorkspace& workspace, const QString& path) {
    QFile file(path);
    // What is no ordinary file could keep the reader waiting.
    if (!QFileInfo(path).isFile() || !file.open(QFile::ReadOnly))
        return false;
    const QByteArray content = file.read(MostBytes);
    const qsizetype start = content.indexOf('\n') + 1;
    const QByteArray arrangement = content.mid(start);
    return content.first(start) == HeaderFor(arrangement) && workspace.RestoreArrangement(arrangement);
}

bool SaveLayout(const DockWorkspace& workspace, const QString& path) {
    if (!QDir().mkpath(QFileInfo(path).path()))
        return false;
    const QByteArray arrangement = workspace.SaveArrangement();
    QSaveFile file(path);
    return file.open(QFile::WriteOnly) && file.write(HeaderFor(arrangement) + arrangement) >= 0 && file.commit();
}

}  // namespace tintora
