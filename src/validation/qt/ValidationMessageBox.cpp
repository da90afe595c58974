#include "validation/qt/ValidationMessageBox.h"

#include "text/qt/QtText.h"

#include <QMessageBox>

namespace tintora {

void ValidationMessageBox::ShowExclamation(TextView message) {
    QMessageBox::warning(&window_, QStringLiteral("Tintora"), ToQString(message), QMessageBox::Ok);
}

}  // namespace tintora
