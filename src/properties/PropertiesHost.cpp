#include "properties/PropertiesHost.h"

#include "language/Vocabulary.h"
#include "model/DeclarationText.h"
#include "properties/EditorLookup.h"
#include "properties/GroupEditors.h"
#include "settings/Settings.h"

namespace tintora {

void PropertiesHost::Load() {
    ShowEditor(group_editor::TextStyle);
    lastProperty_ = 0;
    surroundings_.parts.SetAutoSelectEditors(AutoSelectsEditors());
}

EditedDocument* PropertiesHost::GetFrontStyleSheet() const {
    return styleSheetWindow_.empty() ? nullptr : surroundings_.documents.FindStyleSheet(styleSheetWindow_);
}

void PropertiesHost::SetProperties(TextView body) {
    const Texts declarations = GetEditorDeclarations(body);
    SetUpPropertiesEditors(declarations);
    surroundings_.parts.SetUpCurrentProperties(declarations);
}

void PropertiesHost::SetUpPropertiesEditors(const Texts& declarations) {
    if (current_)
        surroundings_.parts.SetEditorProperties(declarations);
}

void PropertiesHost::SelectPropertyinText(TextView name) {
    if (AutoSelectsEditors())
        OpenPropertyEditor(name);
    PropertyHasFocus(PropertyNumberFromName(name));
}

void PropertiesHost::ShowEditor(int number) {
    if (surroundings_.flags.ChangingProperty || surroundings_.flags.IsDialogOpen())
        return;
    if (current_) {
        if (IsShownAlready(FindGroupEditor(*current_)->className, number))
            return;
        current_.reset();
        surroundings_.parts.RemoveEditor();
    }
    if (const GroupEditorEntry* const editor = FindGroupEditor(number)) {
        surroundings_.parts.CreateEditor(number);
        current_ = number;
        surroundings_.parts.SetCaption(editor->caption);
    }
    if (EditedDocument* const document = surroundings_.documents.GetActiveDocument())
        document->UpdatePropertiesEditor();
}

void PropertiesHost::EditProperty(TextView name) {
    const EditorPlace place = PlaceToEdit(name);
    ShowEditor(place.editor);
    if (current_)
        surroundings_.parts.EditEditorProperty(place.property);
}

void PropertiesHost::OpenPropertyEditor(TextView name) {
    if (const std::optional<int> editor = EditorToOpen(name))
        ShowEditor(*editor);
}

void PropertiesHost::PropertyHasFocus(int property) {
    if (surroundings_.flags.ChangingProperty)
        return;
    if (property != UnknownProperty)
        surroundings_.parts.SetUpWarnings(property);
    lastProperty_ = property;
    SelectPropertyInPropertySelector(property);
}

void PropertiesHost::SelectPropertyInPropertySelector(int property) {
    if (AutoSelectsEditors())
        surroundings_.parts.SelectPropertyInPropertySelector(property);
}

void PropertiesHost::PropertyHasChanged(TextView value, int property) {
    if (EditedDocument* const document = surroundings_.documents.GetActiveDocument())
        document->ChangeCurrentProperty(PropertyNameFromNumber(property), value);
}

void PropertiesHost::SaveAutoSelectEditors(bool isOn) {
    Settings(surroundings_.settings).SaveAutoSelectEditors(isOn ? 1 : 0);
}

bool PropertiesHost::AutoSelectsEditors() const { return Settings(surroundings_.settings).GetAutoSelectEditors() == 1; }

void PropertiesHost::EnableCurrent(bool isEnabled) {
    if (current_)
        surroundings_.parts.EnableEditor(isEnabled);
}

}  // namespace tintora
