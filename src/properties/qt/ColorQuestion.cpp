#include "properties/qt/ColorQuestion.h"

#include <QColorDialog>
#include <QPointer>

namespace tintora {

namespace {

/// The custom colours are the process's own: what an earlier question has left goes.
void SetCustomColors(const QList<QColor>& colors) {
    for (int index = 0; index < QColorDialog::customCount(); ++index)
        QColorDialog::setCustomColor(index, index < colors.size() ? colors[index] : QColor(Qt::white));
}

}  // namespace

std::optional<QColor> AskColorByDialog(const ColorQuestion& question, QWidget* parent) {
    SetCustomColors(question.customColors);
    // The parent may go while the dialogue is open, and the dialogue with it.
    const QPointer<QColorDialog> dialog = new QColorDialog(parent);
    // The dialogues of desktops don't show custom colours.
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->setWindowTitle(question.title);
    if (question.present)
        dialog->setCurrentColor(*question.present);
    const int answer = dialog->exec();
    if (dialog.isNull())
        return std::nullopt;
    const QColor color = dialog->selectedColor();
    delete dialog;
    if (answer != QDialog::Accepted)
        return std::nullopt;
    return color;
}

}  // namespace tintora
