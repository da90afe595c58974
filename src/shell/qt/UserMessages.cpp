#include "shell/qt/UserMessages.h"

#include "linking/Paths.h"
#include "text/qt/QtText.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QWidget>

namespace tintora {

namespace {

constexpr auto SaveFilter = "Style Sheets (*.css);;Text (*.txt);;All Files (*)";

}  // namespace

void MessageBoxes::Tell(const QString& text, const QString& details) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Tintora"), text, QMessageBox::Ok, &window_);
    box.setInformativeText(details);
    box.exec();
}

void MessageBoxes::ShowWriteFailure(TextView message) {
    QMessageBox::critical(&window_, QStringLiteral("Tintora"), ToQString(message));
}

std::optional<Text> MessageBoxes::AskSavePath(TextView title, TextView proposedName) {
    const QString folder = folder_.isEmpty() ? QDir::currentPath() : folder_;
    const QString chosen = QFileDialog::getSaveFileName(
        &window_, ToQString(title), folder + QLatin1Char('/') + ToQString(proposedName), QString::fromUtf8(SaveFilter));
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

}  // namespace tintora
