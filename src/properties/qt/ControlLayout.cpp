#include "properties/qt/ControlLayout.h"

#include "language/Vocabulary.h"
#include "text/qt/QtText.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <algorithm>

namespace tintora {

void FocusIfUsable(QWidget& part) {
    if (part.isEnabled() && part.isVisible())
        part.setFocus(Qt::OtherFocusReason);
}

void ShowFieldText(QLineEdit& field, TextView text) {
    const QString shown = ToQString(text);
    if (shown == field.text())
        return;
    field.setText(shown);
    // The beginning of a long text says more than its end.
    field.home(false);
}

void WidenList(QComboBox& box) {
    QAbstractItemView& list = *box.view();
    const int margins = 2 * list.frameWidth() + list.verticalScrollBar()->sizeHint().width();
    list.setMinimumWidth(std::max(box.width(), list.sizeHintForColumn(0) + margins));
}

QPushButton* MakeNarrowButton(const QString& name, QWidget* parent) {
    auto* const button = new QPushButton(name, parent);
    button->setObjectName(name);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    constexpr int Margins = 16;
    button->setMinimumWidth(button->fontMetrics().horizontalAdvance(name) + Margins);
    return button;
}

QString PropertyToolTip(int property) {
    const TextView name = PropertyNameFromNumber(property);
    // Of the names that no number has, one is misspelled.
    const int unknown = PropertyNumberFromName({});
    if (PropertyNumberFromName(name) != unknown)
        return ToQString(name);
    const Texts names = NamesOfProperties();
    const auto spelled =
        std::ranges::find_if(names, [=](const Text& other) { return PropertyNumberFromName(other) == property; });
    if (spelled != names.end())
        return ToQString(*spelled);
    return name == PropertyNameFromNumber(unknown) ? QString() : ToQString(name);
}

}  // namespace tintora
