#pragma once

#include <QString>

namespace tintora {

/// The files that ship beside the program, as they are installed: nobody writes there.
struct ShippedData {
    /// The folder that holds them. It may be missing.
    QString folder;
    /// What is another when the files are: the program's version. In a source tree the files change without it, and
    /// their names, sizes and times are part of the stamp.
    QString stamp;
};

/// The files of this program: those of the source tree if it runs where it was built, and otherwise those that were
/// installed with it, wherever that is.
[[nodiscard]] ShippedData FindShippedData();

/// A stamp that changes with the names, sizes and times of the files below the folder.
[[nodiscard]] QString StampOfFiles(const QString& folder);

}  // namespace tintora
