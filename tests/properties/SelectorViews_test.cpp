#include "properties/SelectorViews.h"

#include "language/Words.h"
#include "properties/EditorLookup.h"
#include "properties/GroupEditors.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <algorithm>
#include <array>

namespace tintora {
namespace {

struct TabCase {
    SelectorView view;
    TextView caption;
    TextView control;
};

constexpr auto Tabs = std::to_array<TabCase>({
    {SelectorView::Editors, u"Editors", u"EditorSelector"},
    {SelectorView::ByCategory, u"By Category", u"PropertySelector"},
    {SelectorView::Alphabetical, u"Alphabetical", u"PropertySelectorAlphabetical"},
    {SelectorView::CurrentProperties, u"Current Properties", u"PropertySelectorCurrent"},
});

struct CategoryCase {
    TextView key;
    TextView caption;
    int editor;
    TextView words;
};

constexpr auto Categories = std::to_array<CategoryCase>({
    {u"TextStyle", u"Text Style Editor", 0, u"color font-family font-size font-weight font-style text-decoration"},
    {u"Text", u"Text Editor", 1, u"letter-spacing word-spacing text-indent vertical-align line-height text-align"},
    {u"Background", u"Background Editor", 2,
     u"background-color background-image background-repeat background-attachment background-position"},
    {u"Border", u"Border Editor", 3,
     u"border-style border-width border-color border-top-style border-top-width border-top-color border-left-style "
     u"border-left-width border-left-color border-bottom-style border-bottom-width border-bottom-color "
     u"border-right-style border-right-width border-right-color"},
    {u"Margin", u"Margin Editor", 4, u"margin margin-top margin-left margin-bottom margin-right"},
    {u"Padding", u"Padding Editor", 4, u"padding padding-top padding-left padding-bottom padding-right"},
    {u"PageLayout", u"Page Layout Editor", 5,
     u"position top left bottom right width height min-width max-width min-height max-height z-index visibility"},
    {u"Display", u"Display Type Editor", 6,
     u"display white-space list-style-type list-style-position list-style-image border-spacing border-collapse "
     u"table-layout caption-side empty-cells"},
    {u"AdvancedText", u"Advanced Text Editor", 7, u"font-variant text-transform text-direction unicode-bidi"},
    {u"AdvancedLayout", u"Advanced Layout Editor", 8, u"overflow float clear clip"},
    {u"UI", u"User Interface Editor", 9, u"cursor outline outline-color outline-style outline-width"},
    {u"PageBreak", u"Page Break Editor", 10, u"page-break-before page-break-after page-break-inside"},
    {u"QuotesEditor", u"Quotes Editor", 12, u"quotes"},
    {u"Content", u"Content Editor", 14, u"content"},
});

constexpr auto Captions = std::to_array<TextView>(
    {u"Advanced Layout Editor", u"Advanced Text Editor", u"Background Editor", u"Border Editor", u"Content Editor",
     u"Display Type Editor", u"Margin Editor", u"Padding Editor", u"Page Break Editor", u"Page Layout Editor",
     u"Quotes Editor", u"Text Editor", u"Text Style Editor", u"User Interface Editor"});

constexpr auto WithoutNode =
    std::to_array<TextView>({u"font", u"background", u"border", u"widows", u"orphans", u"page", u"font-stretch",
                             u"font-size-adjust", u"marks", u"size", u"", u"Color", u"generic", u"list-style"});

struct CurrentCase {
    Texts declarations;
    Texts names;
};

const std::vector<CurrentCase> CurrentRules = {
    {{}, {}},
    {{u"color: red", u"top:0"}, {u"color", u"top"}},
    {{u"color: red", u"/* margin: 0 */", u"/* x */"}, {u"color"}},
    {{u"color: /* x */", u"red"}, {u"color"}},
    {{u" Color  : red", u"color: blue"}, {u"Color", u"color"}},
    {{u"; top: 0", u": 0", u"", u"x"}, {u"; top", u""}},
    {{u"background: url(http://x)"}, {u"background"}},
};

struct NumberCase {
    int property;
    TextView name;
};

constexpr auto Numbers = std::to_array<NumberCase>({
    {0, u""},
    {14, u""},
    {999, u""},
    {-1, u""},
    {1004, u"color"},
    {1083, u"margin"},
    {1098, u"table-layout"},
    // Names that no view has.
    {1000, u"generic"},
    {1071, u"border-rightcolor"},
    {1080, u"widows"},
});

struct ClassCase {
    TextView className;
    TextView caption;
};

constexpr auto Classes = std::to_array<ClassCase>({
    {u"TextStylePropertiesEditor", u"Text Style Editor"},
    {u"TextPropertiesEditor", u"Text Editor"},
    {u"BackgroundPropertiesEditor", u"Background Editor"},
    {u"BorderPropertiesEditor", u"Border Editor"},
    {u"MarginPaddingEditor", u"Margin Editor"},
    {u"PageLayoutPropertiesEditor", u"Page Layout Editor"},
    {u"DisplayTypeEditor", u"Display Type Editor"},
    {u"AdvancedTextEditor", u"Advanced Text Editor"},
    {u"AdvancedPageLayoutEditor", u"Advanced Layout Editor"},
    {u"UIPropertiesEditor", u"User Interface Editor"},
    {u"PageBreakPropertiesEditor", u"Page Break Editor"},
    {u"QuotesPropertyEditor", u"Quotes Editor"},
    {u"ContentPropertyEditor", u"Content Editor"},
    {u"CounterPropertiesEditor", u""},
    {u"", u""},
});

TEST(SelectorViews, TheTabsHaveTheirOrder) {
    ASSERT_EQ(SelectorTabs().size(), Tabs.size());
    for (std::size_t index = 0; index < Tabs.size(); ++index) {
        EXPECT_EQ(SelectorTabs()[index].view, Tabs[index].view);
        EXPECT_EQ(SelectorTabs()[index].caption, Tabs[index].caption);
        EXPECT_EQ(SelectorTabs()[index].control, Tabs[index].control);
    }
}

TEST(SelectorViews, EditorsAreListedByTheirCaptions) { EXPECT_TRUE(std::ranges::equal(EditorCaptions(), Captions)); }

TEST(SelectorViews, EachCategoryHasItsProperties) {
    ASSERT_EQ(PropertyCategories().size(), Categories.size());
    for (std::size_t index = 0; index < Categories.size(); ++index) {
        const PropertyCategory& category = PropertyCategories()[index];
        SCOPED_TRACE(Utf8FromText(category.key));
        EXPECT_EQ(category.key, Categories[index].key);
        EXPECT_EQ(category.caption, Categories[index].caption);
        EXPECT_EQ(PropertiesOfCategory(category), GetWordsFromText(Categories[index].words, u" "));
    }
}

TEST(SelectorViews, WhateverIsChosenLeadsToTheEditorOfItsCategory) {
    for (const CategoryCase& row : Categories) {
        EXPECT_EQ(PlaceToEdit(row.caption), (EditorPlace{row.editor, 0}));
        for (const Text& name : GetWordsFromText(row.words, u" ")) {
            SCOPED_TRACE(Utf8FromText(name));
            EXPECT_EQ(PlaceToEdit(name).editor, row.editor);
            EXPECT_GE(PlaceToEdit(name).property, 1000);
            ASSERT_NE(CategoryOfProperty(name), nullptr);
            EXPECT_EQ(CategoryOfProperty(name)->key, row.key);
        }
    }
    for (const TextView caption : Captions)
        EXPECT_TRUE(PlaceToEdit(caption).editor != 0 || caption == u"Text Style Editor") << Utf8FromText(caption);
}

TEST(SelectorViews, SomePropertiesHaveNoNode) {
    for (const TextView name : WithoutNode)
        EXPECT_EQ(CategoryOfProperty(name), nullptr) << Utf8FromText(name);
}

TEST(SelectorViews, AlphabeticalIsTheTreeSorted) {
    Texts names;
    for (const CategoryCase& row : Categories) {
        for (Text& name : GetWordsFromText(row.words, u" "))
            names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    EXPECT_EQ(AlphabeticalProperties(), names);
}

TEST(SelectorViews, CurrentPropertiesAreTheNamesInTheRule) {
    for (const CurrentCase& row : CurrentRules)
        EXPECT_EQ(CurrentPropertyNames(row.declarations), row.names);
}

TEST(SelectorViews, OnlyPropertiesAreSelected) {
    for (const NumberCase& row : Numbers)
        EXPECT_EQ(NameToSelect(row.property), row.name) << row.property;
}

TEST(SelectorViews, TheCurrentEditorIsSelectedByItsClass) {
    for (const ClassCase& row : Classes)
        EXPECT_EQ(CaptionToSelect(row.className), row.caption) << Utf8FromText(row.className);
    for (const GroupEditorEntry& editor : GroupEditors())
        EXPECT_NE(std::ranges::find(Captions, CaptionToSelect(editor.className)), Captions.end()) << editor.number;
}

}  // namespace
}  // namespace tintora
