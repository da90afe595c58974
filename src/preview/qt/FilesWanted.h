#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace tintora {

/// Files that exist already and that the user is to choose.
struct FilesWanted {
    enum class Kind {
        /// What one of the filters lets through.
        Documents,
        /// Files that may be run, and no others.
        Programs,
    };

    QString title{};
    Kind kind = Kind::Documents;
    /// As the toolkit has them: "Pages (*.html *.htm);;All Files (*)".
    QString filters{};
    /// Where the choice starts; "" for the folder that the process is in.
    QString folder{};
    bool isSeveral = false;
};

/// Asks for files over the window of `parent`; gives nothing if the question is cancelled.
using AskFiles = std::function<QStringList(const FilesWanted& wanted, QWidget* parent)>;

/// Asks by a dialogue, which is modal.
[[nodiscard]] QStringList AskFilesByDialog(const FilesWanted& wanted, QWidget* parent);

}  // namespace tintora
