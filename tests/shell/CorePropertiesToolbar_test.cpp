#include "shell/CorePropertiesToolbar.h"

#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

struct CheckCase {
    Text body;
    std::set<TextView> checked;
};

const std::vector<CheckCase> CheckCases = {
    {u"", {}},
    {u"{", {}},
    {u"{}", {}},
    {u"{ }", {}},
    {u"{color: red;}", {}},
    {u"{color: red; background-color: blue;}", {}},

    {u"{text-align: left;}", {u"miFoLeft"}},
    {u"{text-align: right;}", {u"miFoRight"}},
    {u"{text-align: center;}", {u"miFoCenter"}},
    {u"{text-align: justify;}", {u"miFoJustify"}},
    {u"{TEXT-ALIGN: Left;}", {u"miFoLeft"}},
    {u"{text-align: start;}", {}},
    {u"{text-align: left right;}", {}},
    {u"{text-align: ;}", {}},
    {u"{text-align;}", {}},
    {u"{text-align: left /* x */;}", {}},
    {u"{text-align: left; text-align: right;}", {u"miFoLeft", u"miFoRight"}},
    {u"{text-align: left; text-align: start;}", {u"miFoLeft"}},

    {u"{font-weight: bold;}", {u"miFoBold"}},
    {u"{Font-Weight:bold ;}", {u"miFoBold"}},
    {u"{font-weight: Bold;}", {}},
    {u"{font-weight: bolder;}", {}},
    {u"{font-weight: 700;}", {}},
    {u"{font-weight: bold; font-weight: normal;}", {u"miFoBold"}},

    {u"{font-style: italic;}", {u"miFoItalic"}},
    {u"{font-style: ITALIC;}", {}},
    {u"{font-style: oblique;}", {}},

    {u"{text-decoration: underline;}", {u"miFoUnderline"}},
    {u"{text-decoration: line-through;}", {u"miFoStrikeThrough"}},
    {u"{text-decoration: underline line-through;}", {u"miFoUnderline", u"miFoStrikeThrough"}},
    {u"{text-decoration: overline underlined;}", {u"miFoUnderline"}},
    {u"{text-decoration: Underline;}", {}},
    {u"{text-decoration: none;}", {}},
    {u"{text-decoration: underline; text-decoration: line-through;}", {u"miFoUnderline", u"miFoStrikeThrough"}},

    {u"{font-weight: bold !important;}", {u"miFoBold"}},
    {u"{font-weight: bold!IMPORTANT;}", {u"miFoBold"}},
    {u"{text-align: left !important; font-style: italic ! important;}", {u"miFoLeft"}},
    {u"{!important text-align: left;}", {}},

    // What ends a declaration, and what doesn't.
    {u"{font-weight: bold}", {}},
    {u"{font-style: italic; font-weight: bold}", {u"miFoItalic"}},
    {u"{font-weight: bold} font-style: italic;}", {u"miFoBold", u"miFoItalic"}},
    {u"{;;font-weight: bold;}", {u"miFoBold"}},
    {u"{color: red;; font-weight: bold;}", {u"miFoBold"}},
    {u"{\r\n\tfont-weight:\r\n\tbold\r\n;\r\n}", {u"miFoBold"}},
    {u"font-weight: bold;", {u"miFoBold"}},
    {u"font-weight: bold", {}},
    {u"{/* font-weight: bold; */}", {}},
    {u"{/* x */ font-weight: bold;}", {u"miFoBold"}},
    {u"{/* x */font-weight: bold;/* y */}", {u"miFoBold"}},
    {u"{font-weight: /* x */ bold;}", {}},
    {u"{/* open font-weight: bold;}", {}},
    {u"/* font-weight: bold; */", {}},
};

TEST(CorePropertiesToolbar, ARuleChecksTheToolsThatItsDeclarationsStandFor) {
    for (const CheckCase& row : CheckCases) {
        SCOPED_TRACE(Utf8FromText(row.body));
        EXPECT_EQ(SetUpCorePropertiesToolbar(row.body).checked, row.checked);
    }
}

const Texts Keywords = {u"xx-small", u"x-small",  u"small",   u"medium", u"large",
                        u"x-large",  u"xx-large", u"smaller", u"larger"};
const Texts Points = {u"8pt",  u"9pt",  u"10pt", u"11pt", u"12pt", u"13pt", u"14pt",
                      u"15pt", u"16pt", u"18pt", u"20pt", u"22pt", u"24pt"};
const Texts PixelSizes = {u"8px",  u"9px",  u"10px", u"11px", u"12px", u"13px", u"14px",
                          u"15px", u"16px", u"18px", u"20px", u"22px", u"24px"};
const Texts Percentages = {u"60%",  u"70%",  u"80%",  u"90%",  u"100%", u"110%",
                           u"120%", u"130%", u"140%", u"150%", u"200%"};
const Texts Ems = {u".6em",  u".7em",  u".8em",  u".9em",  u"1em", u"1.1em",
                   u"1.2em", u"1.3em", u"1.4em", u"1.5em", u"2em"};

struct SizeCase {
    Text value;
    const Texts& sizes;
};

const std::vector<SizeCase> SizeCases = {
    {u"12pt", Points},
    {u"-1.5pt", Points},
    {u".5pt", Points},
    {u"12px", PixelSizes},
    {u"+12px", PixelSizes},
    {u"80%", Percentages},
    {u"1.2em", Ems},
    {u"1ex", Ems},
    {u"1in", Ems},
    {u"1cm", Ems},
    {u"1mm", Ems},
    {u"1pc", Ems},
    {u"0", Ems},
    {u"large", Keywords},
    {u"Large", Keywords},
    {u"", Keywords},
    {u"12", Keywords},
    {u"pt", Keywords},
    {u"12PT", Keywords},
    {u"12 pt", Keywords},
    {u"1rem", Keywords},
    {u"inherit", Keywords},
    {u"%", Keywords},
    {u"calc(1px)", Keywords},
};

TEST(CorePropertiesToolbar, SizesAreOfferedInTheUnitOfThePresentOne) {
    for (const SizeCase& row : SizeCases) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EXPECT_EQ(SetupFontSizeSelector(row.value), row.sizes);
    }
}

struct FontCase {
    Text body;
    Text family;
    Text size;
    Texts sizes;
};

const std::vector<FontCase> FontCases = {
    {u"{color: red;}", u"", u"", {}},
    {u"{font-family: Georgia, \"Times New Roman\", serif;}", u"Georgia, \"Times New Roman\", serif", u"", {}},
    {u"{FONT-FAMILY: Arial;}", u"Arial", u"", {}},
    {u"{font-family: a; font-family: b;}", u"b", u"", {}},
    {u"{font-family: a; font-family: ;}", u"", u"", {}},
    {u"{font-family: a !important;}", u"a", u"", {}},
    {u"{font-family: \"!Important\", serif;}", u"\"", u"", {}},
    {u"{font-family: \"a;b\";}", u"\"a", u"", {}},
    {u"{font-family: url(x:y);}", u"url(x:y)", u"", {}},
    {u"{font-family: a}", u"", u"", {}},
    {u"{font-size: 12pt;}", u"", u"12pt", Points},
    {u"{font-size: Large;}", u"", u"Large", Keywords},
    {u"{font-size: 12px !important;}", u"", u"12px", PixelSizes},
    {u"{font-size: 1em; font-size: 80%;}", u"", u"80%", Percentages},
    {u"{font-size: ;}", u"", u"", Keywords},
    {u"{font-family: a; font-size: 1.2em;}", u"a", u"1.2em", Ems},
    {u"{font: bold 12pt a;}", u"", u"", {}},
};

TEST(CorePropertiesToolbar, ARuleShowsItsFont) {
    for (const FontCase& row : FontCases) {
        SCOPED_TRACE(Utf8FromText(row.body));
        const CorePropertiesToolbar toolbar = SetUpCorePropertiesToolbar(row.body);
        EXPECT_EQ(toolbar.fontFamily, row.family);
        EXPECT_EQ(toolbar.fontSize, row.size);
        EXPECT_EQ(toolbar.fontSizes, row.sizes);
    }
}

TEST(CorePropertiesToolbar, ARuleThatSaysNothingClearsIt) {
    EXPECT_EQ(SetUpCorePropertiesToolbar(u"{}"), CorePropertiesToolbar());
    EXPECT_EQ(SetUpPropertiesEditors({}), CorePropertiesToolbar());
    EXPECT_EQ(SetUpPropertiesEditors({u"", u"/* x */", u"color: red"}), CorePropertiesToolbar());
}

TEST(CorePropertiesToolbar, DeclarationsMayHaveTheirSemicolons) {
    const CorePropertiesToolbar toolbar = SetUpPropertiesEditors({u"font-weight: bold;", u"font-size: 1em;"});
    EXPECT_TRUE(toolbar.IsChecked(u"miFoBold"));
    EXPECT_FALSE(toolbar.IsChecked(u"miFoItalic"));
    EXPECT_EQ(toolbar.fontSize, u"1em");
}

TEST(CorePropertiesToolbar, WhatIsCheckedIsATool) {
    const CorePropertiesToolbar toolbar = SetUpCorePropertiesToolbar(
        u"{text-align: left; text-align: right; text-align: center; text-align: justify; font-weight: bold; "
        u"font-style: "
        u"italic; text-decoration: underline line-through;}");
    EXPECT_EQ(toolbar.checked, std::set<TextView>(CorePropertyTools.begin() + 2, CorePropertyTools.begin() + 10));
}

TEST(CorePropertiesToolbar, ABodyBeyondTheLimitFails) {
    const Text filling(MaximumTextLength - 18, u' ');
    EXPECT_TRUE(SetUpCorePropertiesToolbar(filling + u"font-weight: bold;").IsChecked(u"miFoBold"));
    EXPECT_THROW(static_cast<void>(SetUpCorePropertiesToolbar(filling + u"font-weight: bold; ")), OverflowFailure);
}

}  // namespace
}  // namespace tintora
