#include "document/Formatter.h"

#include "DocumentRecorders.h"
#include "linking/TextFiles.h"

#include <gtest/gtest.h>
#include <filesystem>
#include <random>

namespace tintora::test {
namespace {

struct FormatCase {
    Text before;
    Text after;
};

const Separators Defaults = {u"\r\r", u"\r", u" ", u"", u""};
const Separators Wide = {u"\n\n\n", u"\n\t", u"\n", u"\n", u"\n\t"};

// One statement with the default separators.
const std::vector<FormatCase> OneStatement = {
    {u"h1{color:red;margin:0}", u"h1 {color:red;\rmargin:0}"},
    {u"h1   \n{  color: red;   margin: 0;  }", u"h1 {color: red;\rmargin: 0;}"},
    {u"h1{}", u"h1 {}"},
    {u"h1 { \n }", u"h1 {}"},
    {u"h1 {color: red", u"h1 {color: red"},
    {u"h1 {color: red; ", u"h1 {color: red;\r"},
    {u"h1", u"h1"},
    {u"p ,\n q{}", u"p ,\n q {}"},
    {u"a{content:\";  x\";b:c}", u"a {content:\";\rx\";\rb:c}"},
    {u"a{b:url(x;y)}", u"a {b:url(x;\ry)}"},
    {u"a{/* b;  c */ d: e}", u"a {/* b;\rc */ d: e}"},
    {u"/*  a{b:c;d:e}  */", u"/*  a{b:c;d:e}  */"},
    {u"@import   url(a.css)  ;", u"@import   url(a.css)  ;"},
    {u"@page   :first{a:b;c:d}", u"@page   :first{a:b;c:d}"},
    {u"@media  print{a{}}", u"@media  print{"},
    {u"@media print", u"@media print"},
    {u"@font-face{a:b;c:d}", u"@font-face {a:b;\rc:d}"},
    {u"", u""},
};

const std::vector<FormatCase> OneStatementWide = {
    {u"h1{color:red;margin:0}", u"h1\n{\n\tcolor:red;\n\tmargin:0\n}"},
    {u"h1 { color: red; }", u"h1\n{\n\tcolor: red;\n}"},
    {u"h1 { }", u"h1\n{\n\t\n}"},
    {u"h1{}", u"h1\n{\n\t\n}"},
};

// A whole sheet, as the document holds it afterwards.
const std::vector<FormatCase> WholeSheets = {
    {u"", u""},
    {u"  \n", u""},
    {u"\n\n a{b:c}\n", u"a {b:c}"},
    {u"a{b:c;d:e}f{}", u"a {b:c;\nd:e}\n\nf {}"},
    {u"@import 'x' ;/* a  b */c{}", u"@import 'x' ;\n\n/* a  b */\n\nc {}"},
    {u"@media print { h1 { color: red; } }", u"@media print {\n\nh1 {color: red;}\n\n}"},
    {u"@media print{a{}b{}}c{}", u"@media print{\n\na {}\n\nb {}\n\n}\n\nc {}"},
    {u"@media print{a{}}@media tv{b{}}", u"@media print{\n\na {}\n\n}\n\n@media tv{\n\nb {}\n\n}"},
    {u"@media print{a{}} a{} ", u"@media print{\n\na {}\n\n}\n\na {}"},
    {u"@media print { }", u"@media print {\n\n}"},
    {u"@MEDIA print{a{}}", u"@MEDIA print{\n\na {}\n\n}"},
    {u"@media print { /* x */ a{} }", u"@media print {\n\n/* x */\n\na {}\n\n}"},
    // What can't be parted is written as it stands.
    {u"@media print { @media tv { a{} } }", u"@media print { @media tv { a{} } }"},
    {u"@media print { a{} stray }\nb{}", u"@media print { a{} stray }\n\nb {}"},
    {u"a{} stray", u"a {}\n\nstray"},
    {u"a{b:c", u"a {b:c"},
};

const std::vector<FormatCase> SheetsNotAt = {
    {u"@media print{a{}b{c:d;e:f}}c{d:e;f:g}", u"@media print{a{}b{c:d;e:f}}\n\nc {d:e;\nf:g}"},
    {u" @media print {\n a{} }\n b{}", u"@media print {\n a{} }\n\nb {}"},
    {u"@import 'x';a{}", u"@import 'x';\n\na {}"},
};

// Sheets as they are written today.
const std::vector<Text> RealSheets = {
    uR"(@charset "utf-8";
@import url("theme.css") layer(theme) supports(display: grid) screen and (min-width: 40em);
@namespace svg url(http://www.w3.org/2000/svg);
@layer reset, base;
:root { --gap: 1rem; --brand: oklch(62% .2 250); }
@layer base {
  html { color-scheme: light dark; }
  body { margin: 0; font: 1rem/1.5 system-ui, sans-serif; }
}
@supports (display: grid) and (not (display: inline-grid)) {
  .grid { display: grid; gap: var(--gap); }
}
@font-face { font-family: "Body"; src: url(a.woff2) format("woff2"), local("Body"); }
@font-feature-values Body { @styleset { nice-style: 12; } }
@font-palette-values --cool { font-family: Body; base-palette: 1; }
)",
    uR"(@media screen and (min-width: 40em), print and (orientation: landscape) {
  nav > ul { display: flex; }
  nav a:hover { text-decoration: underline; }
}
@media (width >= 600px) { @supports (gap: 1px) { .a { gap: 1px; } } }
@container card (inline-size > 30em) { .card h2 { font-size: 1.5em; } }
@keyframes spin { from { rotate: 0deg; } 50% { opacity: .5 } to { rotate: 1turn; } }
@-webkit-keyframes spin { from { opacity: 0 } to { opacity: 1 } }
@page :first { margin: 2cm; @top-center { content: "Title"; } }
@counter-style thumbs { system: cyclic; symbols: "x"; suffix: " "; }
@property --angle { syntax: "<angle>"; inherits: false; initial-value: 0deg; }
@view-transition { navigation: auto; }
@starting-style { .dialog { opacity: 0; } }
@position-try --below { top: anchor(bottom); }
@scope (.card) to (.content) { img { border: 1px solid black; } }
)",
    uR"(/* The head: mentions @media print { and goes on } */
header { background: url("data:image/svg+xml;utf8,<svg xmlns='x'/>") no-repeat;; }
.parent { color: red; & .child { color: blue; } &:hover { color: green; } }
a::before { content: "}"; }
a::after { content: "\"; {"; }
<!-- p { color: red } -->
.a{color:red}.b{color:blue}/* end */
@media print { /* only @media here */ .c { d: e; f: g } }
@media tv{}
.mention { content: "@media"; color: red; }
.last { color : red ; margin : 0 auto ! important }
)",
};

Text AfterFormat(TextView text) {
    RecordedDocument document;
    document.Load(text);
    document.window.FormatStyleSheetText();
    return document.window.GetText();
}

Text Formatted(TextView text, const Separators& separators) {
    ktStyleSheet sheet;
    sheet.CacheStatements(text);
    return FormattedStyleSheet(sheet, separators, MediaBlockFormat::FormatNested);
}

void CheckFormatted(TextView text, const Separators& separators) {
    if (text.empty())
        return;
    const Text once = Formatted(text, separators);
    ASSERT_TRUE(AreEqualWithoutWhitespace(text, once)) << Utf8FromText(text) << "\n---\n" << Utf8FromText(once);
    if (text.find(u"*/*") != TextView::npos || text.find(u"<!-->") != TextView::npos || once.empty())
        return;
    ASSERT_EQ(Utf8FromText(Formatted(once, separators)), Utf8FromText(once)) << Utf8FromText(text);
}

TEST(Formatter, OneStatementHasTheSeparatorsInItsFivePlaces) {
    for (const FormatCase& row : OneStatement)
        EXPECT_EQ(FormatOneStatement(row.before, Defaults), row.after);
    for (const FormatCase& row : OneStatementWide)
        EXPECT_EQ(FormatOneStatement(row.before, Wide), row.after);
}

TEST(Formatter, AWholeSheetIsLaidOutAnew) {
    for (const FormatCase& row : WholeSheets)
        EXPECT_EQ(AfterFormat(row.before), row.after) << Utf8FromText(row.before);
}

TEST(Formatter, ASheetCanBeLaidOutWithoutItsBlocks) {
    for (const FormatCase& row : SheetsNotAt) {
        RecordedDocument document;
        document.Load(row.before);
        document.window.FormatStyleSheetTextNotAt();
        EXPECT_EQ(document.window.GetText(), row.after);
    }
}

TEST(Formatter, StoredSeparatorsAreTaken) {
    RecordedDocument document;
    SetStatementSeparator(document.settings, u"\r");
    SetSelectorDeclarationSeparator(document.settings, u"\r");
    SetFirstPropertySeparator(document.settings, u"\r\t");
    SetPropertySeparator(document.settings, u"\r\t");
    SetLastPropertySeparator(document.settings, u"\r");
    document.Load(u"a{b:c;d:e;}@media tv{f{}}");
    EXPECT_EQ(document.window.FormatOneStatement(u"a{b:c}"), u"a\r{\r\tb:c\r}");
    document.window.FormatStyleSheetText();
    EXPECT_EQ(document.window.GetText(), u"a\n{\n\tb:c;\n\td:e;\n}\n@media tv{\nf\n{\n\t\n}\n\n}");
}

TEST(Formatter, TheLineEndsAreThoseOfTheDocument) {
    EXPECT_EQ(AfterFormat(u"a{b:c;d:e}\r\nf{}"), u"a {b:c;\r\nd:e}\r\n\r\nf {}");
    EXPECT_EQ(AfterFormat(u"a{b:c;d:e}\rf{}"), u"a {b:c;\rd:e}\r\rf {}");
}

TEST(Formatter, FormattingIsOneStepToUndoAndAChangeLikeAnyOther) {
    RecordedDocument document;
    document.Load(u"a{b:c;d:e}f{}");
    document.window.FormatStyleSheetText();
    EXPECT_TRUE(document.window.IsDirty());
    EXPECT_TRUE(document.IsRunning(u"CacheStatementsDelay"));
    document.window.CSSEditor().Undo();
    EXPECT_EQ(document.window.GetText(), u"a{b:c;d:e}f{}");
    EXPECT_FALSE(document.window.CSSEditor().CanUndo());
}

TEST(Formatter, WhitespaceAloneDoesNotMakeTextsDiffer) {
    EXPECT_TRUE(AreEqualWithoutWhitespace(u"", u" \n"));
    EXPECT_TRUE(AreEqualWithoutWhitespace(u"a b", u" ab\t"));
    EXPECT_FALSE(AreEqualWithoutWhitespace(u"a b", u"a"));
    EXPECT_FALSE(AreEqualWithoutWhitespace(u"a", u"a b"));
    EXPECT_FALSE(AreEqualWithoutWhitespace(u"ab", u"ba"));
    EXPECT_FALSE(AreEqualWithoutWhitespace(u"a\u00A0b", u"ab"));
}

TEST(Formatter, RealSheetsKeepTheirCharactersAndTheirLayout) {
    for (const Text& sheet : RealSheets) {
        for (const Separators& separators : {Defaults, Wide})
            CheckFormatted(sheet, separators);
    }
}

TEST(Formatter, EverySampleKeepsItsCharactersAndItsLayout) {
    int count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(TINTORA_SAMPLES)) {
        if (entry.path().extension() != ".css")
            continue;
        SCOPED_TRACE(entry.path().string());
        CheckFormatted(ReadTextFile(TextFromFileName(entry.path().native())), Defaults);
        ++count;
    }
    EXPECT_GE(count, 10);
}

TEST(Formatter, RandomTextsKeepTheirCharactersAndTheirLayout) {
    const Texts alphabet = {u"{",    u"}",   u"{}", u"\"",     u"/*",      u"*/",    u";", u":",
                            u"\\\"", u" ",   u"\n", u"@media", u"@import", u"a",     u"b", u"a {",
                            u"<!--", u"-->", u"\t", u",",      u"@page",   u"a{b:c}"};
    std::mt19937 engine(20260215);
    for (int round = 0; round < 100'000; ++round) {
        Text text;
        for (std::size_t piece = engine() % 24; piece > 0; --piece)
            text += alphabet[engine() % alphabet.size()];
        CheckFormatted(text, round % 2 == 0 ? Defaults : Wide);
        if (HasFatalFailure())
            return;
    }
}

}  // namespace
}  // namespace tintora::test
