#include "editor/qt/EditorDialogBoxes.h"

#include "text/Narrowing.h"
#include "text/qt/QtText.h"

#include <QCursor>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>

namespace tintora {

std::optional<int> EditorDialogBoxes::AskLineNumber() {
    const QString caption = QStringLiteral("Go to line number");
    bool isGiven = false;
    const int number =
        QInputDialog::getInt(&window_, caption, caption, 1, 1, static_cast<int>(MaximumTextLength) + 1, 1, &isGiven);
    return isGiven ? std::optional(number) : std::nullopt;
}

Text EditorDialogBoxes::ChooseFromMenu(const std::vector<ContextMenuEntry>& entries) {
    QMenu menu(&window_);
    for (const ContextMenuEntry& entry : entries) {
        if (entry.IsSeparator())
            menu.addSeparator();
        else if (isOffered_(entry))
            menu.addAction(ToQString(entry.caption))->setData(ToQString(entry.key));
    }
    const QAction* const chosen = menu.exec(QCursor::pos());
    return chosen == nullptr ? Text() : ToText(chosen->data().toString());
}

void EditorDialogBoxes::ShowMessage(TextView title, TextView text) {
    QMessageBox::warning(&window_, ToQString(title), ToQString(text));
}

}  // namespace tintora
