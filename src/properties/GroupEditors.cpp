#include "properties/GroupEditors.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

using namespace group_editor;

constexpr auto Editors = std::to_array<GroupEditorEntry>({
    {TextStyle, u"TextStylePropertiesEditor", u"Text Style Editor"},
    {TextLayout, u"TextPropertiesEditor", u"Text Editor"},
    {Background, u"BackgroundPropertiesEditor", u"Background Editor"},
    {Border, u"BorderPropertiesEditor", u"Border Editor"},
    {MarginPadding, u"MarginPaddingEditor", u"Margin and Padding Editor"},
    {PageLayout, u"PageLayoutPropertiesEditor", u"Page Layout Editor"},
    {DisplayType, u"DisplayTypeEditor", u"Display Type Editor"},
    {AdvancedText, u"AdvancedTextEditor", u"Advanced Text Editor"},
    {AdvancedPageLayout, u"AdvancedPageLayoutEditor", u"Advanced Layout Editor"},
    {UserInterface, u"UIPropertiesEditor", u"User Interface Editor"},
    {PageBreak, u"PageBreakPropertiesEditor", u"Page Break Editor"},
    {Quotes, u"QuotesPropertyEditor", u"Quotes Editor"},
    {Content, u"ContentPropertyEditor", u"Content Editor"},
});

}  // namespace

std::span<const GroupEditorEntry> GroupEditors() noexcept { return Editors; }

const GroupEditorEntry* FindGroupEditor(int number) noexcept {
    const auto* const found =
        std::find_if(Editors.begin(), Editors.end(), [=](const GroupEditorEntry& row) { return row.number == number; });
    return found == Editors.end() ? nullptr : found;
}

Text GroupEditorIdentifier(const GroupEditorEntry& editor) { return u"tintora3." + Text(editor.className); }

TextView GetPropertiesEditorNameFromNumber(int number) noexcept {
    switch (number) {
        case PageLayout: return {};
        case Counter: return u"CounterPropertiesEditor";
        case TextShadow: return u"TextShadowPropertyEditor";
        case Print: return u"PrintPropertiesEditor";
        default: break;
    }
    const GroupEditorEntry* const editor = FindGroupEditor(number);
    return editor == nullptr ? TextView() : editor->className;
}

bool IsShownAlready(TextView currentName, int wanted) noexcept {
    return !currentName.empty() && currentName == GetPropertiesEditorNameFromNumber(wanted);
}

}  // namespace tintora
