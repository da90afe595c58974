#include "properties/qt/KeptFocus.h"

#include "properties/ControlRows.h"
#include "properties/qt/ControlLayout.h"
#include "properties/qt/GroupEditorForm.h"
#include "properties/qt/ValueControl.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <utility>

namespace tintora {

namespace {

/// The names of a part and of all around it within the control; parts of one name are told apart by them.
QString PathOf(const QWidget* part, const QWidget& control) {
    QString path;
    for (; part != nullptr && part != &control; part = part->parentWidget())
        path += part->objectName() + u'/';
    return path;
}

QLineEdit* FieldOf(QWidget& part) {
    if (const auto* const list = qobject_cast<QComboBox*>(&part))
        return list->lineEdit();
    return qobject_cast<QLineEdit*>(&part);
}

}  // namespace

bool KeptFocus::Keep(const GroupEditorForm& form) {
    place_.reset();
    QWidget* const focus = QApplication::focusWidget();
    if (focus == nullptr || !form.isAncestorOf(focus))
        return false;
    for (const ControlRow& row : RowsOfEditor(form.Number())) {
        const ValueControl* const control = form.FindControl(row.number);
        if (control == nullptr || !control->isAncestorOf(focus))
            continue;
        const QLineEdit* const field = FieldOf(*focus);
        place_ =
            Place{form.Number(), row.number, PathOf(focus, *control), field == nullptr ? 0 : field->cursorPosition()};
    }
    return true;
}

void KeptFocus::GiveBack(const GroupEditorForm& form) {
    const std::optional<Place> place = std::exchange(place_, std::nullopt);
    const ValueControl* const control =
        place && place->editor == form.Number() ? form.FindControl(place->row) : nullptr;
    if (control == nullptr)
        return;
    for (QWidget* const part : control->findChildren<QWidget*>()) {
        if (part->focusPolicy() == Qt::NoFocus || PathOf(part, *control) != place->path)
            continue;
        FocusIfUsable(*part);
        if (QLineEdit* const field = FieldOf(*part))
            field->setCursorPosition(place->caret);
        return;
    }
}

}  // namespace tintora
