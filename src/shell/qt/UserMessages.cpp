#include "shell/qt/UserMessages.h"

#include <QMessageBox>
#include <QPushButton>
#include <QWidget>

namespace tintora {

void MessageBoxes::Tell(const QString& text, const QString& details) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Tintora"), text, QMessageBox::Ok, &window_);
    box.setInformativeText(details);
    box.exec();
}

bool MessageBoxes::MayDiscardChanges(const QString& caption) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Tintora"),
                    QStringLiteral("\"%1\" has changes that aren't saved.").arg(caption), QMessageBox::NoButton,
                    &window_);
    box.setInformativeText(QStringLiteral("They are lost if the style sheet is closed now."));
    const QAbstractButton* const discard =
        box.addButton(QStringLiteral("Discard Changes"), QMessageBox::DestructiveRole);
    box.setDefaultButton(box.addButton(QStringLiteral("Keep Open"), QMessageBox::RejectRole));
    box.exec();
    return box.clickedButton() == discard;
}

}  // namespace tintora
