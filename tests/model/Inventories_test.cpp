#include "TextHolder.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

struct InventoryCase {
    Text text;
    Texts found;
};

using Inventory = Texts (ktStyleSheet::*)() const;

void ExpectFound(const std::vector<InventoryCase>& cases, Inventory inventory) {
    for (const InventoryCase& row : cases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        test::CachedSheet sheet(row.text);
        EXPECT_EQ((sheet.operator->()->*inventory)(), row.found);
    }
}

const std::vector<InventoryCase> Colors = {
    {u"", {}},
    {u"a {color: red; background-color: red}", {u"red"}},
    {u"a {color: red}", {u"red"}},
    {u"a {color: red", {}},
    {u"a {color:red; color : blue;}", {}},
    {u"a {COLOR: #FF0000;}", {u"#ff0000"}},
    {u"a {color: red ;}", {u"red "}},
    {u"a {color:  red;}", {u" red"}},
    {u"a {color: red; color: blue; color: red;}", {u"blue", u"red"}},
    {u"/* color: x; */", {u"x"}},
    {u"a {color: color: b; c}", {u"color: b"}},
};

TEST(Inventories, ColorsAreFoundInTheText) { ExpectFound(Colors, &ktStyleSheet::GetAllColors); }

const std::vector<InventoryCase> DeclaredColors = {
    {u"a {color: red; background-color: red;}", {u"red"}},
    {u"a {color: red}", {}},
    {u"a {color:red; x: #abc; y: rgb(1, 2, 3); z: window; w: pink;}", {u"red", u"#abc", u"rgb(1, 2, 3)", u"window"}},
    {u"@media p { a {color: blue;} }", {u"blue"}},
};

TEST(Inventories, DeclaredColorsAreFoundByTheirForm) { ExpectFound(DeclaredColors, &ktStyleSheet::GetAllColors1); }

const std::vector<InventoryCase> Fonts = {
    {u"a {font-family: Arial, serif;} b {FONT-FAMILY: Arial, serif;}", {u"Arial, serif"}},
    {u"a {font-family: Arial !important;} b {font-family: Arial !important;}", {u"Arial", u"Arial"}},
    {u"a {font-family: Arial;} b {font-family: Arial !important;}", {u"Arial", u"Arial"}},
    {u"a {font-family: Arial !important;} b {font-family: Arial;}", {u"Arial"}},
    {u"a {font: Arial;}", {}},
    {u"a {font-family: Arial}", {}},
};

TEST(Inventories, FontsLoseTheirImportance) { ExpectFound(Fonts, &ktStyleSheet::GetAllFonts); }

const std::vector<InventoryCase> Urls = {
    {u"a {background: url(a.gif) no-repeat;}", {u"url(a.gif) no-repeat"}},
    {u"a {background: no-repeat url(a.gif);}", {}},
    {u"a {b: URL(x); c: url(x); d: URL(x);}", {u"URL(x)", u"url(x)"}},
    {u"a {float: none; border: NONE; clear: none;}", {u"none", u"NONE"}},
    {u"a {b: url(open;}", {u"url(open"}},
};

TEST(Inventories, UrlsAreFoundByTheirForm) { ExpectFound(Urls, &ktStyleSheet::GetAllURLs); }

const std::vector<InventoryCase> Classes = {
    {u"p.a {} .a {}", {u"a", u"a"}},
    {u"p.a.b {} p.c:hover {} .d e {} #f {}", {u"a.b"}},
    {u"@media p { .x {} }", {u"x"}},
};

TEST(Inventories, ClassesOfClassSelectors) { ExpectFound(Classes, &ktStyleSheet::GetAllClasses); }

const std::vector<InventoryCase> Ids = {
    {u"div#a {} #b {} #a {}", {u"a", u"b", u"a"}},
    {u"#a.b {} #c d {}", {}},
};

TEST(Inventories, IdsOfIdSelectors) { ExpectFound(Ids, &ktStyleSheet::GetAllIDs); }

}  // namespace
}  // namespace tintora
