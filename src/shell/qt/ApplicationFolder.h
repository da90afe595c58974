#pragma once

#include "shell/qt/ShippedData.h"

#include <QString>
#include <QStringList>

namespace tintora {

/// The folder of the program's own files, which belongs to the user: `Help_Files`, which is read and written to, and
/// `Layouts`.
///
/// It is filled with what ships with the program at the first start of a version. What the user has changed there stays
/// as it is, also when a later version ships something else; what is as it was put there follows the version. Nothing
/// that fails here is reported: the program starts without its files too.
///
///     const ApplicationFolder folder(ApplicationFolder::UserPath());
///     folder.Fill(FindShippedData());
class ApplicationFolder {
  public:
    /// The folder is made when something is put into it.
    explicit ApplicationFolder(QString path);

    /// `$TINTORA_HOME`, or else "tintora" in the user's folder for data.
    [[nodiscard]] static QString UserPath();

    /// Absolute, without a separator behind it.
    [[nodiscard]] const QString& Path() const noexcept { return path_; }

    /// The file that holds the user's arrangement of the main window.
    [[nodiscard]] QString LayoutPath() const;

    /// Puts the shipped files into the folder, unless that has been done with this stamp. Puts them
    ///
    /// - where there is no such file, or an empty one, which a power cut leaves,
    /// - where there is what was put there before.
    ///
    /// Removes what was put there before, is unchanged, and ships no more. Without shipped files nothing is done.
    void Fill(const ShippedData& shipped) const;

  private:
    [[nodiscard]] QString Below(const QString& path) const { return path_ + QLatin1Char('/') + path; }

    QString path_;
};

/// The paths of the files that ship, of all that lie below the folder with the data of the program: those in
/// `Help_Files`. They are relative to the folder, and sorted.
[[nodiscard]] QStringList ShippedFiles(const QString& folder);

}  // namespace tintora
