#include "properties/GroupEditors.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora {
namespace {

struct EditorCase {
    int number;
    TextView identifier;
    TextView name;
    TextView caption;
};

/// The names by which an editor counts as shown; numbers without a caption have no editor.
constexpr auto Editors = std::to_array<EditorCase>({
    {0, u"tintora3.TextStylePropertiesEditor", u"TextStylePropertiesEditor", u"Text Style Editor"},
    {1, u"tintora3.TextPropertiesEditor", u"TextPropertiesEditor", u"Text Editor"},
    {2, u"tintora3.BackgroundPropertiesEditor", u"BackgroundPropertiesEditor", u"Background Editor"},
    {3, u"tintora3.BorderPropertiesEditor", u"BorderPropertiesEditor", u"Border Editor"},
    {4, u"tintora3.MarginPaddingEditor", u"MarginPaddingEditor", u"Margin and Padding Editor"},
    {5, u"tintora3.PageLayoutPropertiesEditor", u"", u"Page Layout Editor"},
    {6, u"tintora3.DisplayTypeEditor", u"DisplayTypeEditor", u"Display Type Editor"},
    {7, u"tintora3.AdvancedTextEditor", u"AdvancedTextEditor", u"Advanced Text Editor"},
    {8, u"tintora3.AdvancedPageLayoutEditor", u"AdvancedPageLayoutEditor", u"Advanced Layout Editor"},
    {9, u"tintora3.UIPropertiesEditor", u"UIPropertiesEditor", u"User Interface Editor"},
    {10, u"tintora3.PageBreakPropertiesEditor", u"PageBreakPropertiesEditor", u"Page Break Editor"},
    {11, u"", u"CounterPropertiesEditor", u""},
    {12, u"tintora3.QuotesPropertyEditor", u"QuotesPropertyEditor", u"Quotes Editor"},
    {13, u"", u"TextShadowPropertyEditor", u""},
    {14, u"tintora3.ContentPropertyEditor", u"ContentPropertyEditor", u"Content Editor"},
    {15, u"", u"PrintPropertiesEditor", u""},
    {16, u"", u"", u""},
    {-1, u"", u"", u""},
    {1000, u"", u"", u""},
});

TEST(GroupEditors, EachNumberHasItsClassNameAndCaption) {
    std::size_t count = 0;
    for (const EditorCase& row : Editors) {
        SCOPED_TRACE(row.number);
        EXPECT_EQ(GetPropertiesEditorNameFromNumber(row.number), row.name);
        const GroupEditorEntry* const editor = FindGroupEditor(row.number);
        ASSERT_EQ(editor != nullptr, !row.caption.empty());
        if (editor == nullptr)
            continue;
        EXPECT_EQ(editor->number, row.number);
        EXPECT_EQ(GroupEditorIdentifier(*editor), row.identifier);
        EXPECT_EQ(editor->caption, row.caption);
        EXPECT_EQ(&GroupEditors()[count++], editor);
    }
    EXPECT_EQ(GroupEditors().size(), count);
}

TEST(GroupEditors, AllButThePageLayoutEditorStayOnTheSecondRequest) {
    for (const GroupEditorEntry& current : GroupEditors()) {
        for (const GroupEditorEntry& wanted : GroupEditors()) {
            const bool stays = current.number == wanted.number && wanted.number != group_editor::PageLayout;
            EXPECT_EQ(IsShownAlready(current.className, wanted.number), stays) << current.number << wanted.number;
        }
        for (const int none : {11, 13, 15, 16, -1})
            EXPECT_FALSE(IsShownAlready(current.className, none)) << none;
    }
    EXPECT_FALSE(IsShownAlready(u"", group_editor::PageLayout));
    EXPECT_FALSE(IsShownAlready(u"", 99));
}

}  // namespace
}  // namespace tintora
