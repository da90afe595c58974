#include "editor/qt/PageLayout.h"

#include <QPageSetupDialog>
#include <QPrinter>

namespace tintora {

namespace {

QPageLayout& Chosen() {
    static QPageLayout layout = QPrinter(QPrinter::HighResolution).pageLayout();
    return layout;
}

}  // namespace

const QPageLayout& ChosenPageLayout() { return Chosen(); }

void AskPageLayout(QWidget* window) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(Chosen());
    QPageSetupDialog dialog(&printer, window);
    dialog.setWindowTitle(QStringLiteral("Page Setup"));
    if (dialog.exec() == QDialog::Accepted)
        Chosen() = printer.pageLayout();
}

}  // namespace tintora
