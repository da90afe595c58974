#include "language/Declarations.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct DeclarationCase {
    TextView declaration;
    TextView name;
    TextView value;
};

constexpr auto DeclarationCases = std::to_array<DeclarationCase>({
    {u"", u"", u""},
    {u"color: red;", u"color", u"red"},
    {u"color : red;", u"color", u"red"},
    {u"color:red", u"color", u"red"},
    {u"\r\n\tcolor\f:\n red \t", u"color", u"red"},
    {u"Color: Red;", u"Color", u"Red"},
    {u"color", u"", u"color"},
    {u"color;", u"", u"color"},
    {u" color ;", u"", u"color"},
    {u":", u"", u""},
    {u": red", u"", u"red"},
    {u"color:", u"color", u""},
    {u"color:;", u"color", u""},
    {u";", u"", u""},
    {u"color: red;;", u"color", u"red"},
    {u"color: red; width: 1px", u"color", u"red"},
    {u"color: red !important;", u"color", u"red !important"},
    {u"background: url(http://x/a.png);", u"background", u"url(http://x/a.png)"},
    {u"background: url(a;b);", u"background", u"url(a"},
    {u"content: \":\"", u"content", u"\":\""},
    {u"margin:  20px", u"margin", u"20px"},
    {u"margin: 1px 2px", u"margin", u"1px 2px"},
    {u"color:\xA0red", u"color", u"\xA0red"},
    {u"\0:\0;"sv, u"\0"sv, u"\0"sv},
    {u"\xD800: \xDC00;", u"\xD800", u"\xDC00"},
});

struct ImportantCase {
    TextView value;
    TextView stripped;
};

constexpr auto ImportantCases = std::to_array<ImportantCase>({
    {u"", u""},
    {u"red", u"red"},
    {u" red ", u" red "},
    {u"red !important", u"red"},
    {u"red!important", u"red"},
    {u"red !IMPORTANT", u"red"},
    {u"red !Import", u"red"},
    {u"red !importance of colour", u"red"},
    {u"\t red \n!important", u"red"},
    {u"!important", u""},
    {u" !important", u""},
    {u"red !important blue", u"red"},
    {u"a !import b !important", u"a"},
    {u"red ! important", u"red ! important"},
    {u"red !impor", u"red !impor"},
    {u"red important", u"red important"},
    {u"red !\x0130mportant", u"red !\x0130mportant"},
    {u"\0 !important"sv, u"\0"sv},
    {u"\xD800 !important", u"\xD800"},
});

TEST(Declarations, TheNameStandsBeforeTheFirstColon) {
    for (const DeclarationCase& row : DeclarationCases) {
        SCOPED_TRACE(Utf8FromText(row.declaration));
        EXPECT_EQ(GetDeclarationName(row.declaration), row.name);
    }
}

TEST(Declarations, TheValueStandsBetweenTheFirstColonAndTheFirstSemicolon) {
    for (const DeclarationCase& row : DeclarationCases) {
        SCOPED_TRACE(Utf8FromText(row.declaration));
        EXPECT_EQ(GetDeclarationValue(row.declaration), row.value);
    }
}

TEST(Declarations, WhatFollowsTheMarkOfImportanceGoesWithIt) {
    for (const ImportantCase& row : ImportantCases) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EXPECT_EQ(StripImportant(row.value), row.stripped);
    }
}

TEST(Declarations, StrippingTwiceIsStrippingOnce) {
    for (const ImportantCase& row : ImportantCases)
        EXPECT_EQ(StripImportant(StripImportant(row.value)), row.stripped) << Utf8FromText(row.value);
}

}  // namespace
}  // namespace tintora
