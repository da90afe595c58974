#include "properties/qt/FieldSelection.h"

#include "text/qt/QtText.h"

#include <QLineEdit>

namespace tintora {

void CopySelection(const QLineEdit& field, Clipboard& clipboard) {
    if (field.hasSelectedText())
        clipboard.SetText(ToText(field.selectedText()));
}

void ClearSelectionOf(QLineEdit& field) {
    if (field.hasSelectedText())
        field.del();
}

void CutSelection(QLineEdit& field, Clipboard& clipboard) {
    CopySelection(field, clipboard);
    ClearSelectionOf(field);
}

void PutIntoSelection(QLineEdit& field, TextView text) {
    if (!text.empty())
        field.insert(ToQString(text.substr(0, static_cast<std::size_t>(field.maxLength()))));
}

}  // namespace tintora
