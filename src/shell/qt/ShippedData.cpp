#include "shell/qt/ShippedData.h"

#include "shell/qt/ApplicationFolder.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace tintora {

ShippedData FindShippedData() {
    const QString version = QStringLiteral(TINTORA_VERSION);
    const QString programs = QCoreApplication::applicationDirPath();
    if (QDir(programs).canonicalPath() == QDir(QStringLiteral(TINTORA_BUILD_FOLDER)).canonicalPath()) {
        const QString data = QStringLiteral(TINTORA_SOURCE_DATA);
        return {data, version + QLatin1Char('-') + StampOfFiles(data)};
    }
    return {QDir::cleanPath(programs + QStringLiteral("/" TINTORA_DATA_FROM_PROGRAMS)), version};
}

QString StampOfFiles(const QString& folder) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString& path : ShippedFiles(folder)) {
        const QFileInfo file(folder + QLatin1Char('/') + path);
        const qint64 time = file.lastModified().toMSecsSinceEpoch();
        hash.addData(QStringLiteral("%1 %2 %3\n").arg(file.size()).arg(time).arg(path).toUtf8());
    }
    constexpr qsizetype Digits = 16;
    return QString::fromLatin1(hash.result().toHex().left(Digits));
}

}  // namespace tintora
