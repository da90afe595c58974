#include "properties/qt/ValueControls.h"

#include "properties/qt/ClipEditor.h"
#include "properties/qt/ColorEditor.h"
#include "properties/qt/ContentControl.h"
#include "properties/qt/ControlLayout.h"
#include "properties/qt/EdgeEditor.h"
#include "properties/qt/KeywordEditor.h"
#include "properties/qt/LengthEditor.h"
#include "properties/qt/LengthPairEditor.h"
#include "properties/qt/QuotesControl.h"
#include "properties/qt/TextDecorationEditor.h"
#include "properties/qt/URLEditor.h"
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
        case ControlKind::Color:
            return new ColorEditor(row.number, std::make_shared<ColorFields>(), surroundings, parent);
        case ControlKind::URL: return new URLEditor(row.number, surroundings, parent);
        case ControlKind::TextDecoration: return new TextDecorationEditor(row.number, surroundings, parent);
        case ControlKind::Pair: return new LengthPairEditor(row.number, row.showSign, surroundings, parent);
        case ControlKind::Clip: return new ClipEditor(row.number, surroundings, parent);
        case ControlKind::Edge: return new EdgeEditor(row.number, surroundings, parent);
        case ControlKind::Quotes: return new QuotesControl(row.number, surroundings, parent);
        case ControlKind::Content: break;
    }
    return new ContentControl(row.number, surroundings, parent);
}

}  // namespace

ValueControl* MakeValueControl(const ControlRow& row, const ControlSurroundings& surroundings, QWidget* parent) {
    ValueControl* const control = MakeControl(row, surroundings, parent);
    control->setObjectName(ToQString(row.control));
    control->SetLabel(ToQString(row.label));
    control->setToolTip(PropertyToolTip(row.number));
    return control;
}

}  // namespace tintora
