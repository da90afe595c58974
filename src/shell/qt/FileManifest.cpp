#include "shell/qt/FileManifest.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <optional>

namespace tintora {

namespace {

constexpr auto FirstLine = "Tintora files 1";

/// The path leads to a file below the folder. A damaged manifest mustn't lead anywhere else.
bool StaysBelow(const QString& path) {
    return !path.isEmpty() && QDir::isRelativePath(path) && QDir::cleanPath(path) == path &&
           !path.startsWith(QStringLiteral(".."));
}

/// Reads "SIZE DIGEST PATH".
bool ReadFileLine(const QByteArray& line, QMap<QString, FileContent>& files) {
    const qsizetype digest = line.indexOf(' ') + 1;
    const qsizetype path = line.indexOf(' ', digest) + 1;
    if (digest == 0 || path == 0)
        return false;
    bool isNumber = false;
    const FileContent content{line.left(digest - 1).toLongLong(&isNumber), line.mid(digest, path - digest - 1)};
    const QString name = QString::fromUtf8(line.mid(path));
    if (!isNumber || !StaysBelow(name))
        return false;
    files.insert(name, content);
    return true;
}

}  // namespace

FileContent ContentOf(const QByteArray& bytes) {
    return {bytes.size(), QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex()};
}

FileManifest FileManifest::Read(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return {};
    const QList<QByteArray> lines = file.readAll().split('\n');
    if (lines.size() < 3 || lines[0] != FirstLine || !lines.last().isEmpty())
        return {};
    FileManifest manifest{QString::fromUtf8(lines[1]), {}};
    for (qsizetype index = 2; index + 1 < lines.size(); ++index) {
        if (!ReadFileLine(lines[index], manifest.files))
            return {};
    }
    return manifest;
}

bool FileManifest::Write(const QString& path) const {
    QByteArray text = QByteArray(FirstLine) + '\n' + stamp.toUtf8() + '\n';
    for (auto file = files.begin(); file != files.end(); ++file)
        text += QByteArray::number(file->size) + ' ' + file->digest + ' ' + file.key().toUtf8() + '\n';
    QSaveFile file(path);
    return file.open(QFile::WriteOnly) && file.write(text) >= 0 && file.commit();
}

}  // namespace tintora
