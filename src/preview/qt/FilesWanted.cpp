#include "preview/qt/FilesWanted.h"

#include "preview/Programs.h"
#include "preview/qt/PathList.h"
#include "text/qt/QtText.h"

#include <QFileDialog>
#include <QFileSystemModel>
#include <QMessageBox>
#include <QPointer>
#include <QSortFilterProxyModel>
#include <algorithm>

namespace tintora {

namespace {

/// Folders, and files that may be run. The model of the dialogue has a filter of its own for these, which hides what
/// may be read as well.
class ProgramsOnly final : public QSortFilterProxyModel {
  public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

  protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
        const auto* const files = qobject_cast<const QFileSystemModel*>(sourceModel());
        if (files == nullptr)
            return true;
        const QFileInfo file = files->fileInfo(files->index(row, 0, parent));
        return file.isDir() || file.isExecutable();
    }
};

/// A dialogue that ends with programs only, though the name of any file can be typed into it.
class ProgramDialog final : public QFileDialog {
  public:
    explicit ProgramDialog(QWidget* parent) : QFileDialog(parent) {
        // The dialogues of desktops have no such filter.
        setOption(QFileDialog::DontUseNativeDialog);
        setProxyModel(new ProgramsOnly(this));
        setNameFilter(QStringLiteral("Executable files (*)"));
    }

  protected:
    void done(int result) override {
        const QStringList files = selectedFiles();
        const auto other = std::ranges::find_if(files, [](const QString& path) { return !IsProgram(ToText(path)); });
        if (result == QDialog::Accepted && other != files.end())
            QMessageBox::warning(this, windowTitle(), PathToolTip(QStringLiteral("%1 isn't a program.").arg(*other)));
        else
            QFileDialog::done(result);
    }
};

QFileDialog* MakeDialog(const FilesWanted& wanted, QWidget* parent) {
    if (wanted.kind == FilesWanted::Kind::Programs)
        return new ProgramDialog(parent);
    auto* const dialog = new QFileDialog(parent);
    dialog->setNameFilters(wanted.filters.split(QStringLiteral(";;")));
    return dialog;
}

}  // namespace

QStringList AskFilesByDialog(const FilesWanted& wanted, QWidget* parent) {
    // The parent may go while the dialogue is open, and the dialogue with it.
    const QPointer<QFileDialog> dialog = MakeDialog(wanted, parent);
    dialog->setWindowTitle(wanted.title);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(wanted.isSeveral ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    dialog->setDirectory(wanted.folder);
    const int answer = dialog->exec();
    if (dialog.isNull())
        return {};
    const QStringList files = dialog->selectedFiles();
    delete dialog;
    return answer == QDialog::Accepted ? files : QStringList();
}

}  // namespace tintora
