#include "properties/URLField.h"

#include "language/FakeFrontDocument.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora {
namespace {

constexpr int BackgroundImage = 1003;
constexpr int ListStyleImage = 1093;
constexpr TextView StyleSheetFilter = u"Style Sheets (*.css)|*.css|All Files (*.*)|*.*";

struct ValueCase {
    int property;
    TextView value;
    TextView shown;
    TextView given;
};

constexpr auto Values = std::to_array<ValueCase>({
    {BackgroundImage, u"url(a.gif)", u"a.gif", u"url(a.gif)"},
    {BackgroundImage, u"url(\"a b.gif\")", u"a b.gif", u"url(a b.gif)"},
    {BackgroundImage, u"URL('a.gif')", u"'a.gif'", u"url('a.gif')"},
    {BackgroundImage, u"url(a.gif) !important", u"a.gif", u"url(a.gif)"},
    {BackgroundImage, u"none", u"none", u"none"},
    {BackgroundImage, u"NONE", u"NONE", u"none"},
    {BackgroundImage, u"inherit", u"inherit", u"inherit"},
    {BackgroundImage, u"Inherit", u"Inherit", u"url(Inherit)"},
    {BackgroundImage, u"", u"", u""},
    {BackgroundImage, u"url()", u"", u""},
    {BackgroundImage, u"linear-gradient(red)", u"linear-gradient(red)", u"url(linear-gradient(red))"},
    {ListStyleImage, u"none", u"none", u"none"},
    {ListStyleImage, u"inherit", u"inherit", u"inherit"},
    {PlainURL, u"url(a.css)", u"a.css", u"url(a.css)"},
    {PlainURL, u"inherit", u"inherit", u"url(inherit)"},
    {PlainURL, u"none", u"none", u"none"},
});

struct FilterCase {
    TextView filter;
    TextView path;
    bool isHeld;
};

constexpr auto Filters = std::to_array<FilterCase>({
    {ImageFilter, u"/a/b.gif", true},
    {ImageFilter, u"/a/b.GIF", true},
    {ImageFilter, u"/a/b.jpg", true},
    {ImageFilter, u"/a/b.jpeg", true},
    {ImageFilter, u"b.png", true},
    {ImageFilter, u"/a/b.css", false},
    {ImageFilter, u"/a/b.gi", false},
    {ImageFilter, u"/a/b", false},
    {ImageFilter, u"/a.gif/b", false},
    {ImageFilter, u"", false},
    {ImageFilter, u"/a/b.*", false},
    {StyleSheetFilter, u"/a/b.css", true},
    {StyleSheetFilter, u"/a/b.gif", false},
    {u"", u"/a/b.gif", false},
});

Text Joined(const URLField& field) {
    Text joined;
    for (const Text& entry : field.List().Entries())
        joined.append(entry).append(u"|");
    return joined;
}

TEST(URLField, TheListHasTheUrlsOfTheDocumentAndTheWords) {
    FakeFrontDocument front;
    front.urls = {u"none", u"url(a.gif)", u"url(\"b.gif\")"};
    URLField image(BackgroundImage);
    image.Clear(&front);
    EXPECT_EQ(Joined(image), u"|none|none|a.gif|b.gif|inherit|");
    URLField marker(ListStyleImage);
    marker.Clear(nullptr);
    EXPECT_EQ(Joined(marker), u"|none|inherit|none|");
    URLField import(PlainURL);
    import.Clear(&front);
    EXPECT_EQ(Joined(import), u"");
}

TEST(URLField, AValueIsShownWithoutWhatIsAroundIt) {
    for (const ValueCase& row : Values) {
        SCOPED_TRACE(Utf8FromText(row.value));
        URLField field(row.property);
        field.Clear();
        field.SetValue(row.value);
        EXPECT_EQ(field.FieldText(), row.shown);
        EXPECT_EQ(field.GetValue(), row.given);
        field.Clear();
        EXPECT_EQ(field.GetValue(), u"");
    }
}

TEST(URLField, WhatIsTypedIsTheValue) {
    URLField field(BackgroundImage);
    field.Clear();
    field.EnterText(u"a.gif");
    EXPECT_EQ(field.GetValue(), u"url(a.gif)");
    EXPECT_EQ(field.GetStrippedValue(), u"a.gif");
    field.EnterText(u"None");
    EXPECT_EQ(field.GetValue(), u"none");
    field.EnterText(u"");
    EXPECT_EQ(field.GetValue(), u"");
}

TEST(URLField, AFilterHoldsTheExtensionsThatItSpeaksOf) {
    for (const FilterCase& row : Filters)
        EXPECT_EQ(FilterHolds(row.filter, row.path), row.isHeld) << Utf8FromText(row.path);
}

TEST(URLField, ALocatedFileIsRelativeToTheDocument) {
    URLField field(BackgroundImage);
    field.Clear();
    field.SetParentURL(u"/elsewhere/x.css");
    field.Locate(u"/site/css/main.css", u"/site/images/a.gif");
    EXPECT_EQ(field.GetValue(), u"url(../images/a.gif)");
    EXPECT_TRUE(field.List().Has(u"../images/a.gif"));
    const std::size_t count = field.List().Entries().size();
    field.Locate(u"/site/css/main.css", u"/site/images/a.gif");
    EXPECT_EQ(field.List().Entries().size(), count);
    // Without a document's path it stays as it is.
    field.Locate(u"", u"/site/images/b.gif");
    EXPECT_EQ(field.GetValue(), u"url(/site/images/b.gif)");
    field.SetValue(u"none");
    EXPECT_FALSE(field.List().Has(u"../images/a.gif"));
}

TEST(URLField, ADroppedFileIsRelativeToTheStoredParent) {
    URLField field(BackgroundImage);
    field.Clear();
    EXPECT_FALSE(field.Drop(u"/site/a.gif"));
    field.SetFilter(ImageFilter);
    field.SetParentURL(u"/site/css/main.css");
    EXPECT_TRUE(field.Drop(u"/site/css/a (1).gif"));
    EXPECT_EQ(field.GetValue(), u"url(a (1).gif)");
    EXPECT_FALSE(field.Drop(u"/site/css/a.css"));
    EXPECT_FALSE(field.Drop(u""));
    EXPECT_EQ(field.GetValue(), u"url(a (1).gif)");
    field.SetParentURL(u"");
    EXPECT_TRUE(field.Drop(u"/site/b.png"));
    EXPECT_EQ(field.GetValue(), u"url(/site/b.png)");
    EXPECT_EQ(field.ParentURL(), u"");
    EXPECT_EQ(field.Filter(), ImageFilter);
}

TEST(URLField, AListOfItsOwnTakesThePlaceOfTheOther) {
    URLField field(PlainURL);
    field.SetURLs({u"a.css", u"b.css"});
    EXPECT_EQ(Joined(field), u"a.css|b.css|");
    field.SelectURL(u"@import url(\"b.css\") tv;");
    EXPECT_EQ(field.FieldText(), u"b.css");
    EXPECT_EQ(field.GetStrippedValue(), u"b.css");
}

}  // namespace
}  // namespace tintora
