#include "properties/QuotesFields.h"

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
    {u"\"«\" \"»\" \"‹\" \"›\"", u"list", 2, u"\"«\" \"»\" \"‹\" \"›\""},
    {u"inherit", u"inherit", 0, u"inherit"},
    {u"none", u"none", 0, u"none"},
    {u"None !important", u"none", 0, u"none"},
    {u"\"a\" \"b\" \"c\"", u"list", 1, u"\"a\" \"b\""},
    {u"\"!important\" \"b\"", u"list", 1, u"\"!important\" \"b\""},
    {u"", u"list", 0, u""},
    {u"wrong", u"list", 0, u""},
});

TEST(QuotesFields, AValueIsAWordOrAListOfPairs) {
    for (const ValueCase& row : Values) {
        SCOPED_TRACE(Utf8FromText(row.value));
        QuotesFields quotes;
        quotes.SetValue(row.value);
        EXPECT_EQ(quotes.Type().GetValue(), row.type);
        EXPECT_EQ(quotes.Entries().size(), row.entries);
        EXPECT_EQ(quotes.GetValue(), row.given);
    }
}

TEST(QuotesFields, SelectingAPairFillsTheFieldsWithoutItsQuotes) {
    QuotesFields quotes;
    quotes.SetValue(u"\"«\" \"»\" '‹' '›'");
    quotes.SelectEntry(1);
    EXPECT_EQ(quotes.Opening(), u"‹");
    EXPECT_EQ(quotes.Closing(), u"›");
    quotes.SelectEntry(7);
    EXPECT_EQ(quotes.SelectedEntry(), QuotesFields::None);
    EXPECT_EQ(quotes.Opening(), u"‹");
    // A blank in the first string cuts it there.
    quotes.SetValue(u"\"a b\" \"c\"");
    quotes.SelectEntry(0);
    EXPECT_EQ(quotes.Opening(), u"");
    EXPECT_EQ(quotes.Closing(), u"\" \"c");
}

TEST(QuotesFields, OnlyAListTakesPairs) {
    QuotesFields quotes;
    quotes.EnterOpening(u"<");
    quotes.EnterClosing(u">");
    EXPECT_FALSE(quotes.IsList() || quotes.CanAdd() || quotes.CanChange() || quotes.CanRemove());
    quotes.Add();
    EXPECT_EQ(quotes.GetValue(), u"");
    quotes.ChooseType(u"list");
    EXPECT_TRUE(quotes.CanAdd());
    EXPECT_FALSE(quotes.CanChange() || quotes.CanRemove());
    quotes.EnterClosing(u"");
    EXPECT_FALSE(quotes.CanAdd());
    quotes.ChooseType(u"none");
    EXPECT_EQ(quotes.GetValue(), u"none");
}

TEST(QuotesFields, PairsAreAddedChangedAndRemoved) {
    QuotesFields quotes;
    quotes.ChooseType(u"list");
    quotes.EnterOpening(u"<");
    quotes.EnterClosing(u"\"");
    quotes.Add();
    EXPECT_EQ(quotes.GetValue(), u"\"<\" '\"'");
    quotes.EnterClosing(u">");
    quotes.Add();
    EXPECT_EQ(quotes.GetValue(), u"\"<\" '\"' \"<\" \">\"");
    quotes.Change();
    EXPECT_EQ(quotes.Entries().size(), 2U);
    quotes.SelectEntry(0);
    EXPECT_TRUE(quotes.CanChange() && quotes.CanRemove());
    quotes.EnterClosing(u"|");
    quotes.Change();
    EXPECT_EQ(quotes.GetValue(), u"\"<\" \"|\" \"<\" \">\"");
    quotes.Remove();
    EXPECT_EQ(quotes.GetValue(), u"\"<\" \">\"");
    EXPECT_FALSE(quotes.CanRemove());
    quotes.Remove();
    quotes.SelectEntry(0);
    quotes.Remove();
    EXPECT_EQ(quotes.GetValue(), u"");
    EXPECT_EQ(quotes.Type().GetValue(), u"list");
}

TEST(QuotesFields, ClearingClearsListAndFieldsToo) {
    QuotesFields quotes;
    quotes.SetValue(u"\"<\" \">\"");
    quotes.SelectEntry(0);
    quotes.Clear();
    EXPECT_EQ(quotes.GetValue(), u"");
    EXPECT_TRUE(quotes.Entries().empty());
    EXPECT_EQ(quotes.Opening(), u"");
    EXPECT_EQ(quotes.Closing(), u"");
    EXPECT_EQ(quotes.SelectedEntry(), QuotesFields::None);
}

TEST(QuotesFields, AnotherValueTakesThePlaceOfTheFirst) {
    QuotesFields quotes;
    quotes.SetValue(u"\"<\" \">\"");
    quotes.SetValue(u"'(' ')'");
    EXPECT_EQ(quotes.GetValue(), u"'(' ')'");
}

}  // namespace
}  // namespace tintora
