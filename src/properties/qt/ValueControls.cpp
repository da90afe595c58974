#include "properties/qt/ValueControls.h"

#include "properties/qt/ControlLayout.h"
#include "properties/qt/KeywordEditor.h"
#include "properties/qt/LengthEditor.h"
#include "text/qt/QtText.h"

namespace tintora {

namespace {

ValueControl* MakeControl(const ControlRow& row, const ControlSurroundings& surroundings, QWidget* parent) {
    switch (row.kind) {
        case ControlKind::Keyword:
            return new KeywordEditor(row.number, std::make_shared<KeywordChoice>(row.number), surroundings, parent);
        case ControlKind::Length:
            return new LengthEditor(row.number, std::make_shared<LengthFields>(row.number, row.showSign), row.showSign,
                                    surroundings, parent);
        default: break;
    }
    return nullptr;
}

}  // namespace

ValueControl* MakeValueControl(const ControlRow& row, const ControlSurroundings& surroundings, QWidget* parent) {
    ValueControl* const control = MakeControl(row, surroundings, parent);
    if (control == nullptr)
        return nullptr;
    control->setObjectName(ToQString(row.control));
    control->SetLabel(ToQString(row.label));
    control->setToolTip(PropertyToolTip(row.number));
    return control;
}

}  // namespace tintora
