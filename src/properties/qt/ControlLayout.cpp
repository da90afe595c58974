#include "properties/qt/ControlLayout.h"

#include "language/Vocabulary.h"
#include "text/qt/QtText.h"

#include <QWidget>
#include <algorithm>

namespace tintora {

void FocusIfUsable(QWidget& part) {
    if (part.isEnabled() && part.isVisible())
        part.setFocus(Qt::OtherFocusReason);
}

QString PropertyToolTip(int property) {
    const TextView name = PropertyNameFromNumber(property);
    if (PropertyNumberFromName(name) == property)
        return ToQString(name);
    // One number has a name that is misspelled.
    const Texts names = NamesOfProperties();
    const auto spelled =
        std::ranges::find_if(names, [=](const Text& other) { return PropertyNumberFromName(other) == property; });
    return spelled == names.end() ? QString() : ToQString(*spelled);
}

}  // namespace tintora
