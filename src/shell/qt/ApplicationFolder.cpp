#include "shell/qt/ApplicationFolder.h"

#include "shell/qt/FileManifest.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <cstdio>
#include <optional>

namespace tintora {

namespace {

constexpr auto ShippedFolder = "Help_Files";
constexpr auto ManifestName = "shipped-files";

std::optional<QByteArray> ReadBytes(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QFile::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

/// Puts the bytes there at once or not at all. The disk is not waited for: there are hundreds of files.
bool PutFile(const QString& path, const QByteArray& bytes) {
    const QString unfinished = path + QStringLiteral(".unfinished");
    QFile file(unfinished);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QFile::WriteOnly))
        return false;
    const bool isWritten = file.write(bytes) == bytes.size() && file.flush();
    file.close();
    if (isWritten && std::rename(QFile::encodeName(unfinished).constData(), QFile::encodeName(path).constData()) == 0)
        return true;
    QFile::remove(unfinished);
    return false;
}

/// Whether the file isn't the user's: there is none, or it is what was put there.
bool MayBeReplaced(const QString& path, const std::optional<FileContent>& put) {
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymbolicLink())
        return true;
    if (!file.isFile() || file.isSymbolicLink())
        return false;
    if (file.size() == 0)
        return true;
    if (!put || file.size() != put->size)
        return false;
    const std::optional<QByteArray> bytes = ReadBytes(path);
    return bytes && ContentOf(*bytes) == *put;
}

std::optional<FileContent> PutBefore(const FileManifest& manifest, const QString& path) {
    const auto found = manifest.files.find(path);
    return found == manifest.files.end() ? std::nullopt : std::optional(*found);
}

/// Whether the file is now what ships, or the user's own.
bool Refresh(const QString& source, const QString& target, const QString& path, FileManifest& manifest) {
    const std::optional<QByteArray> bytes = ReadBytes(source);
    if (!bytes)
        return false;
    const FileContent shipped = ContentOf(*bytes);
    if (ReadBytes(target) != bytes) {
        if (!MayBeReplaced(target, PutBefore(manifest, path)))
            return true;
        if (!PutFile(target, *bytes))
            return false;
    }
    manifest.files.insert(path, shipped);
    return true;
}

}  // namespace

ApplicationFolder::ApplicationFolder(QString path) : path_(std::move(path)) {}

QString ApplicationFolder::UserPath() {
    const QString home = qEnvironmentVariable("TINTORA_HOME");
    if (!home.isEmpty())
        return QDir::cleanPath(QDir(home).absolutePath());
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/tintora");
}

QString ApplicationFolder::LayoutPath() const { return Below(QStringLiteral("Layouts/current")); }

void ApplicationFolder::Fill(const ShippedData& shipped) const {
    const QString manifestPath = Below(QString::fromUtf8(ManifestName));
    FileManifest manifest = FileManifest::Read(manifestPath);
    if (manifest.stamp == shipped.stamp && QFileInfo(Below(QString::fromUtf8(ShippedFolder))).isDir())
        return;
    const QStringList paths = ShippedFiles(shipped.folder);
    if (paths.isEmpty())
        return;
    bool isWhole = true;
    for (const QString& path : paths)
        isWhole = Refresh(shipped.folder + QLatin1Char('/') + path, Below(path), path, manifest) && isWhole;
    for (const QString& path : manifest.files.keys()) {
        if (paths.contains(path))
            continue;
        if (MayBeReplaced(Below(path), manifest.files.value(path)))
            QFile::remove(Below(path));
        manifest.files.remove(path);
    }
    manifest.stamp = isWhole ? shipped.stamp : QString();
    static_cast<void>(manifest.Write(manifestPath));
}

QStringList ShippedFiles(const QString& folder) {
    QStringList paths;
    QDirIterator file(folder + QLatin1Char('/') + QString::fromUtf8(ShippedFolder), QDir::Files | QDir::NoSymLinks,
                      QDirIterator::Subdirectories);
    while (file.hasNext())
        paths.append(QDir(folder).relativeFilePath(file.next()));
    paths.sort();
    return paths;
}

}  // namespace tintora
