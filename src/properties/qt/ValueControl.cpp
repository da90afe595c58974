#include "properties/qt/ValueControl.h"

namespace tintora {

ValueControl::ValueControl(int number, const ControlSurroundings& surroundings, QWidget* parent)
    : QWidget(parent), number_(number), surroundings_(surroundings) {}

void ValueControl::ReportChange() {
    Q_EMIT PropertyHasChanged(GetValue(), number_);
    isDirty_ = true;
}

}  // namespace tintora
