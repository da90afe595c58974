#include "properties/ContentFields.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora {
namespace {

struct ValueCase {
    TextView value;
    TextView type;
    std::size_t entries;
    TextView given;
};

constexpr auto Values = std::to_array<ValueCase>({
    {u"\"a\" attr(title) open-quote", u"list", 3, u"\"a\" attr(title) open-quote"},
    {u"\"a b\"   attr(x)", u"list", 2, u"\"a b\" attr(x)"},
    {u"inherit", u"inherit", 0, u"inherit"},
    {u"INHERIT!important", u"inherit", 0, u"inherit"},
    {u"none", u"list", 1, u"none"},
    {u"\"a\" !important", u"list", 2, u"\"a\" !important"},
    {u"", u"list", 0, u""},
});

struct AddCase {
    ContentFields::Tab tab;
    TextView text;
    TextView part;
};

constexpr auto Added = std::to_array<AddCase>({
    {ContentFields::Tab::String, u"a b", u"\"a b\""},
    {ContentFields::Tab::String, u"\"a\"", u"\"a\""},
    {ContentFields::Tab::String, u"\"a", u"\"a\""},
    {ContentFields::Tab::String, u"", u""},
    {ContentFields::Tab::Attribute, u"title", u"attr(title)"},
    {ContentFields::Tab::Attribute, u"", u""},
    {ContentFields::Tab::Keyword, u"close-quote", u"close-quote"},
    {ContentFields::Tab::Keyword, u"", u""},
});

TEST(ContentFields, AValueIsAWordOrAListOfParts) {
    for (const ValueCase& row : Values) {
        SCOPED_TRACE(Utf8FromText(row.value));
        ContentFields content;
        content.SetValue(row.value);
        EXPECT_EQ(content.Type().GetValue(), row.type);
        EXPECT_EQ(content.Entries().size(), row.entries);
        EXPECT_EQ(content.GetValue(), row.given);
    }
}

TEST(ContentFields, EachTabAddsItsKindOfPart) {
    for (const AddCase& row : Added) {
        SCOPED_TRACE(Utf8FromText(row.text));
        ContentFields content;
        content.ChooseTab(row.tab);
        content.EnterString(row.tab == ContentFields::Tab::String ? row.text : TextView(u"s"));
        content.EnterAttribute(row.tab == ContentFields::Tab::Attribute ? row.text : TextView(u"t"));
        content.ChooseKeyword(row.tab == ContentFields::Tab::Keyword ? row.text : TextView(u"open-quote"));
        EXPECT_EQ(content.GetValue(), u"");
        EXPECT_EQ(content.CanAdd(), !row.part.empty());
        content.Add();
        EXPECT_EQ(content.GetValue(), row.part);
        EXPECT_EQ(content.Type().GetValue(), row.part.empty() ? u"" : u"list");
    }
}

TEST(ContentFields, ThePartInTheMiddleIsRemoved) {
    ContentFields content;
    content.SetValue(u"\"a\" attr(title) open-quote");
    content.Remove();
    EXPECT_EQ(content.Entries().size(), 3U);
    content.SelectEntry(1);
    EXPECT_TRUE(content.CanRemove());
    content.Remove();
    EXPECT_EQ(content.GetValue(), u"\"a\" open-quote");
    EXPECT_FALSE(content.CanRemove());
    content.SelectEntry(2);
    EXPECT_FALSE(content.CanRemove());
}

TEST(ContentFields, AWordOutranksTheListUntilListIsChosen) {
    ContentFields content;
    content.SetValue(u"\"a\"");
    content.ChooseType(u"inherit");
    EXPECT_EQ(content.GetValue(), u"inherit");
    content.ChooseType(u"list");
    EXPECT_EQ(content.GetValue(), u"\"a\"");
    content.ChooseType(u"");
    EXPECT_EQ(content.GetValue(), u"");
}

TEST(ContentFields, ClearingClearsAllButTheTab) {
    ContentFields content;
    content.SetValue(u"\"a\"");
    content.SelectEntry(0);
    content.ChooseTab(ContentFields::Tab::Keyword);
    content.EnterString(u"s");
    content.EnterAttribute(u"t");
    content.ChooseKeyword(u"open-quote");
    content.Clear();
    EXPECT_EQ(content.GetValue(), u"");
    EXPECT_TRUE(content.Entries().empty());
    EXPECT_EQ(content.String(), u"");
    EXPECT_EQ(content.Attribute(), u"");
    EXPECT_EQ(content.Keyword().GetValue(), u"");
    EXPECT_FALSE(content.CanRemove());
    EXPECT_EQ(content.CurrentTab(), ContentFields::Tab::Keyword);
}

TEST(ContentFields, TheTabsHaveTheirTexts) {
    EXPECT_EQ(ContentFields::Tabs[0].caption, u"String");
    EXPECT_EQ(ContentFields::Tabs[0].prompt, u"Enter the string then click Add");
    EXPECT_EQ(ContentFields::Tabs[1].caption, u"Attribute");
    EXPECT_EQ(ContentFields::Tabs[1].prompt, u"Enter the name of the attribute then click Add");
    EXPECT_EQ(ContentFields::Tabs[2].caption, u"Keyword");
    EXPECT_EQ(ContentFields::Tabs[2].prompt, u"Select a keyword value then click Add");
}

TEST(ContentFields, OnlyOneKindOfSelectorHasGeneratedContent) {
    for (int type = -1; type < 20; ++type)
        EXPECT_EQ(StatementIsContent(type), type == 14);
}

}  // namespace
}  // namespace tintora
