#include "shell/qt/UserMessages.h"

#include "linking/Paths.h"
#include "shell/qt/RecoveryDialog.h"
#include "text/qt/QtText.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QUrl>
#include <QWidget>

namespace tintora {

namespace {

constexpr auto SaveFilter = "Style Sheets (*.css);;Text (*.txt);;All Files (*)";
constexpr auto PageFilter = "HTML Documents (*.html *.htm);;Text (*.txt);;All Files (*)";

/// A box that shows how many pages are done, and can be cancelled.
class ProgressBox final : public PageProgress {
  public:
    ProgressBox(QWidget& window, int pageCount)
        : box_(QStringLiteral("Linking %1 pages…").arg(pageCount), QStringLiteral("Cancel"), 0, pageCount, &window) {
        box_.setWindowTitle(QStringLiteral("Tintora"));
        box_.setWindowModality(Qt::WindowModal);
        box_.setMinimumDuration(0);
        box_.setValue(0);
    }

    /// Showing the value lets the box hear of a click.
    [[nodiscard]] bool GoOn(int count) override {
        box_.setValue(count);
        return !box_.wasCanceled();
    }

  private:
    QProgressDialog box_;
};

}  // namespace

void MessageBoxes::Tell(const QString& text, const QString& details) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Tintora"), text, QMessageBox::Ok, &window_);
    box.setInformativeText(details);
    box.exec();
}

void MessageBoxes::OpenAddress(const QString& address) {
    if (!QDesktopServices::openUrl(QUrl(address)))
        Tell(QStringLiteral("No browser could be started."), address);
}

void MessageBoxes::ShowExclamation(TextView message) {
    QMessageBox::warning(&window_, QStringLiteral("Tintora"), ToQString(message));
}

void MessageBoxes::ShowWriteFailure(TextView message) {
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Tintora"), ToQString(message), QMessageBox::Ok, &window_);
    // The name of a file is no markup.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

std::optional<Text> MessageBoxes::AskSavePath(TextView title, TextView proposedName, TextView folder) {
    const QString lastFolder = folder_.isEmpty() ? QDir::currentPath() : folder_;
    const QString start = folder.empty() ? lastFolder : ToQString(folder);
    const QString chosen = QFileDialog::getSaveFileName(
        &window_, ToQString(title), start + QLatin1Char('/') + ToQString(proposedName), QString::fromUtf8(SaveFilter));
    if (chosen.isEmpty())
        return std::nullopt;
    folder_ = QFileInfo(chosen).absolutePath();
    return ToText(chosen);
}

FileDialogs::SaveAnswer MessageBoxes::AskSaveChanges(TextView title, TextView question) {
    switch (QMessageBox::question(&window_, ToQString(title), ToQString(question),
                                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::No)) {
        case QMessageBox::Yes: return SaveAnswer::Yes;
        case QMessageBox::No: return SaveAnswer::No;
        default: return SaveAnswer::Cancel;
    }
}

FileDialogs::ChangedFileAnswer MessageBoxes::AskAboutChangedFile(TextView path) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Tintora"),
                    QStringLiteral("%1 has changed on disk.").arg(ToQString(GetFileNamePart(path))),
                    QMessageBox::Cancel, &window_);
    box.setInformativeText(
        QStringLiteral("Overwriting loses what the other program wrote. Reloading loses your changes "
                       "since the last save."));
    const QAbstractButton* const overwrite = box.addButton(QStringLiteral("Overwrite"), QMessageBox::DestructiveRole);
    const QAbstractButton* const reload = box.addButton(QStringLiteral("Reload"), QMessageBox::ResetRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    if (box.clickedButton() == overwrite)
        return ChangedFileAnswer::Overwrite;
    return box.clickedButton() == reload ? ChangedFileAnswer::Reload : ChangedFileAnswer::Cancel;
}

void MessageBoxes::AskAboutCopies(const std::vector<LeftCopy>& copies,
                                  const std::function<void(std::size_t, RecoveryAnswer)>& handle) {
    RecoveryDialog(copies, handle, &window_).exec();
}

std::optional<Text> MessageBoxes::AskPage(TextView title) {
    const QString chosen =
        QFileDialog::getOpenFileName(&window_, ToQString(title), pageFolder_, QString::fromUtf8(PageFilter));
    if (chosen.isEmpty())
        return std::nullopt;
    pageFolder_ = QFileInfo(chosen).absolutePath();
    return ToText(chosen);
}

std::optional<Text> MessageBoxes::AskFolder(TextView prompt) {
    const QString chosen = QFileDialog::getExistingDirectory(&window_, ToQString(prompt), pageFolder_);
    if (chosen.isEmpty())
        return std::nullopt;
    pageFolder_ = chosen;
    return ToText(chosen);
}

bool MessageBoxes::Confirm(TextView question) {
    return QMessageBox::question(&window_, QStringLiteral("Tintora"), ToQString(question),
                                 QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Ok;
}

void MessageBoxes::ShowBusy(bool isBusy) {
    if (isBusy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

std::unique_ptr<PageProgress> MessageBoxes::ShowProgress(int pageCount) {
    return std::make_unique<ProgressBox>(window_, pageCount);
}

}  // namespace tintora
