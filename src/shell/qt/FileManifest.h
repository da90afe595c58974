#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace tintora {

/// A file as it was put somewhere.
struct FileContent {
    qint64 size = 0;
    /// SHA-256, in hexadecimal digits.
    QByteArray digest;

    friend bool operator==(const FileContent&, const FileContent&) = default;
};

[[nodiscard]] FileContent ContentOf(const QByteArray& bytes);

/// What was put into a folder, so that what the user has changed since can be told from it. It is kept as a text file:
/// a line that names the kind, one with the stamp, and one for each file with its size, digest and path.
struct FileManifest {
    /// What was put there last; "" as long as that wasn't all.
    QString stamp;
    /// By the paths below the folder, with "/".
    QMap<QString, FileContent> files;

    /// An empty manifest where the file is missing or not understood.
    [[nodiscard]] static FileManifest Read(const QString& path);

    /// False, and a file that was there stays, where it can't be written.
    [[nodiscard]] bool Write(const QString& path) const;
};

}  // namespace tintora
