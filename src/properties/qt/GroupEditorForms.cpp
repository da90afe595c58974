#include "properties/qt/GroupEditorForms.h"

#include "properties/GroupEditors.h"
#include "properties/qt/BorderPropertiesEditor.h"
#include "properties/qt/DisplayTypeEditor.h"
#include "properties/qt/ListPropertiesEditor.h"
#include "properties/qt/PlainPropertiesEditor.h"
#include "properties/qt/TextStylePropertiesEditor.h"

namespace tintora {

GroupEditorForm* MakeGroupEditorForm(int number, const ControlSurroundings& surroundings, QWidget* parent) {
    if (FindGroupEditor(number) == nullptr)
        return nullptr;
    switch (number) {
        case group_editor::TextStyle: return new TextStylePropertiesEditor(surroundings, parent);
        case group_editor::Border: return new BorderPropertiesEditor(surroundings, parent);
        case group_editor::DisplayType: return new DisplayTypeEditor(surroundings, parent);
        case group_editor::Quotes:
        case group_editor::Content: return new ListPropertiesEditor(number, surroundings, parent);
        default: return new PlainPropertiesEditor(number, surroundings, parent);
    }
}

}  // namespace tintora
