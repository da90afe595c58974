#include "properties/GroupEditor.h"

#include "language/Declarations.h"
#include "language/Vocabulary.h"
#include "properties/ChangesOfText.h"
#include "properties/ContentFields.h"
#include "properties/ControlRows.h"
#include "properties/DisplaySections.h"
#include "properties/GroupEditors.h"
#include "settings/Settings.h"
#include "text/LowerCase.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr int Position = 1029;
constexpr int Display = 1090;

void WriteChanges(EditedDocument& document, const DeclarationChanges& changes) {
    if (changes.empty())
        return;
    if (changes.size() == 1) {
        document.ChangeCurrentProperty(changes.front().name, changes.front().value);
        return;
    }
    // The preview that waits would show the rule as it was.
    document.DisableNextPreview();
    document.ChangeCurrentProperties(changes);
}

/// The numbers of the borders of which single parts are declared.
std::set<int> BordersWithLonghands(const Texts& declarations) {
    std::set<int> borders;
    for (const Text& declaration : declarations) {
        const Text name = LowerCase(GetDeclarationName(declaration));
        const ControlRow* const row = RowOfDeclaration(group_editor::Border, name);
        if (row != nullptr && PropertyNameFromNumber(row->number) != name)
            borders.insert(row->number);
    }
    return borders;
}

}  // namespace

GroupEditor::GroupEditor(int number, const Surroundings& surroundings) : number_(number), surroundings_(surroundings) {}

void GroupEditor::SetProperties(const Texts& declarations) {
    if (surroundings_.flags.ChangingProperty)
        return;
    {
        const FlagScope settingUp(surroundings_.flags.SettingUp);
        surroundings_.controls.Clear();
        EditorReading reading =
            ReadDeclarations(number_, declarations, Settings(surroundings_.settings).GetUseShorthands());
        state_ = std::move(reading.state);
        for (const PropertyValue& value : reading.values)
            surroundings_.controls.SetValue(value.number, value.value);
        if (number_ == group_editor::Border) {
            bordersWithLonghands_ = BordersWithLonghands(declarations);
            ShowBorderSections(reading.values);
        }
    }
    UpdateEditors();
}

void GroupEditor::PropertyHasChanged(TextView value, int number) {
    if (surroundings_.flags.SettingUp || surroundings_.flags.ChangingProperty)
        return;
    {
        FlagScope changing(surroundings_.flags.ChangingProperty);
        EditedDocument* const document = surroundings_.documents.GetActiveDocument();
        if (document == nullptr) {
            changing.Keep();
            return;
        }
        const auto valueOf = [this](int asked) { return surroundings_.controls.GetValue(asked); };
        WriteChanges(*document, ChangesOfText(number_, state_, number, value, valueOf));
    }
    UpdateAfterChange(value, number);
}

void GroupEditor::UpdateAfterChange(TextView value, int number) {
    if (number_ != group_editor::DisplayType || number == Display)
        UpdateEditors();
    const ControlRow* const row = PlaceOfFocus(number_, number).row;
    if (number_ == group_editor::Border && row != nullptr)
        surroundings_.controls.MarkSection(row->section, !value.empty() || bordersWithLonghands_.contains(number));
}

void GroupEditor::UpdateEditors() {
    if (number_ == group_editor::DisplayType)
        ShowDisplaySection();
    if (number_ != group_editor::PageLayout)
        return;
    const bool takesOffsets = TakesOffsets(surroundings_.controls.GetValue(Position));
    for (const ControlRow& row : RowsOfEditor(number_)) {
        if (IsOffset(row.number))
            surroundings_.controls.SetUsable(row.number, takesOffsets);
    }
}

bool GroupEditor::CanBeEnabled() const {
    if (number_ != group_editor::Content)
        return true;
    EditedDocument* const document = surroundings_.documents.GetActiveDocument();
    return document != nullptr && StatementIsContent(document->GetCurrentSelectorType());
}

void GroupEditor::ListHasDroppedDown() {
    if (EditedDocument* const document = surroundings_.documents.GetActiveDocument())
        document->DisableNextPreview();
}

void GroupEditor::PreviewNow() {
    if (surroundings_.flags.SettingUp || surroundings_.flags.ChangingProperty)
        return;
    EditedDocument* const document = surroundings_.documents.GetActiveDocument();
    if (document == nullptr)
        return;
    document->PreviewNow();
    document->PreviewCurrentRule();
}

void GroupEditor::ShowBorderSections(const PropertyValues& values) {
    const ControlRow* last = nullptr;
    for (const ControlRow& row : RowsOfEditor(number_)) {
        const bool hasDeclaration =
            std::ranges::any_of(values, [&](const PropertyValue& value) { return value.number == row.number; });
        surroundings_.controls.MarkSection(row.section, hasDeclaration);
        if (hasDeclaration && values.back().number == row.number)
            last = &row;
    }
    // Where the rule has no border, the tab stays.
    if (last != nullptr)
        surroundings_.controls.ShowSection(last->section);
}

void GroupEditor::ShowDisplaySection() {
    EditorControls& controls = surroundings_.controls;
    if (controls.GetValue(Display).empty()) {
        EditedDocument* const document = surroundings_.documents.GetActiveDocument();
        const TextView own = document == nullptr ? TextView() : DefaultDisplay(document->GetCurrentSelector());
        if (!own.empty()) {
            const FlagScope changing(surroundings_.flags.ChangingProperty);
            controls.SetValue(Display, own);
        }
    }
    controls.ShowSection(SectionOfDisplay(controls.GetValue(Display)));
}

}  // namespace tintora
