#include "model/StatementScan.h"

#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

struct ScanCase {
    Text text;
    Texts statements;
};

const std::vector<ScanCase> Cases = {
    // Nothing but white space is no statement.
    {u"", {}},
    {u"  \r\n \t\f\n", {}},

    // White space belongs to the statement in front of it, and at the start to the first.
    {u"  a {color: red}\r\n\r\nb {}", {u"  a {color: red}\r\n\r\n", u"b {}"}},
    {u"a {}\u00a0b {}", {u"a {}", u"\u00a0b {}"}},

    // What is being typed is a statement.
    {u"h1", {u"h1"}},
    {u"h1 { color: red", {u"h1 { color: red"}},
    {u"/* open", {u"/* open"}},

    // A brace closes whether one was opened or not, and nesting isn't counted.
    {u"}", {u"}"}},
    {u"a {} } b {}", {u"a {} ", u"} ", u"b {}"}},
    {u"a { b { c } d }", {u"a { b { c } ", u"d }"}},

    // Strings aren't tracked; a backslash and a double quote guard up to the next ";".
    {u"a { content: \"}\" }", {u"a { content: \"}", u"\" }"}},
    {u"a { content: \"\\\"}\"; } b {}", {u"a { content: \"\\\"}\"; } ", u"b {}"}},
    {u"a { content: \"\\\"\" } b {; } c {}", {u"a { content: \"\\\"\" } b {; } ", u"c {}"}},
    {u"a { content: '\\'}'; }", {u"a { content: '\\'}", u"'; }"}},

    // Of the at-rules only two have states of their own.
    {u"@import url(a.css);\r\nb {}", {u"@import url(a.css);\r\n", u"b {}"}},
    {u"@IMPORT url(a.css); b {}", {u"@IMPORT url(a.css); ", u"b {}"}},
    {u"@import url(a.css)\nb {c: d} e {f: g;} h {}", {u"@import url(a.css)\nb {c: d} e {f: g;", u"} ", u"h {}"}},
    {u"@charset \"x\";\r\nb {}", {u"@charset \"x\";\r\nb {}"}},
    {u"@font-face {a: b} @page {c: d}", {u"@font-face {a: b} ", u"@page {c: d}"}},
    {u"@keyframes k { from {a: b} to {c: d} }", {u"@keyframes k { from {a: b} ", u"to {c: d} ", u"}"}},

    // Comments are statements outside of rules, and text inside of them.
    {u"/* c */ b {}", {u"/* c */ ", u"b {}"}},
    {u"/*/ b {}", {u"/*/ ", u"b {}"}},
    {u"/**/b {}", {u"/**/", u"b {}"}},
    {u"/* } */ b {}", {u"/* } */ ", u"b {}"}},
    {u"h1 /* c */ {}", {u"h1 /* c */ ", u"{}"}},
    {u"a {/* } */ b: c}", {u"a {/* } ", u"*/ b: c}"}},
    {u"a {} */ b {}", {u"a {} ", u"*/ b {}"}},

    // The two words switch the scan wherever they stand.
    {u"/* @import */ a {b: c} d {e: f;}", {u"/* @import */ ", u"a {b: c} d {e: f;", u"}"}},
    {u"a { b: \"@import\"; } c {}", {u"a { b: \"@import\"; ", u"} ", u"c {}"}},
    {u"/* @media */ a {} b {}", {u"/* @media */ ", u"a {} ", u"b {}"}},
    {u"a {b: \"@media\"} c {}", {u"a {b: \"@media\"} c {}"}},

    // A block is one statement, and its nested ones follow it.
    {u"@media print {\r\n  a {b: c}\r\n  d {e: f}\r\n}\r\n\r\nh1 {}",
     {u"@media print {\r\n  a {b: c}\r\n  d {e: f}\r\n}\r\n\r\n", u"a {b: c}\r\n  ", u"d {e: f}\r\n", u"h1 {}"}},
    {u"@MEDIA print{a{}}b{}", {u"@MEDIA print{a{}}", u"a{}", u"b{}"}},
    {u"@media print {}", {u"@media print {}"}},
    {u"@media print { a {", {u"@media print { a {"}},
    {u"@media } { a {} }", {u"@media } { a {} ", u"a {} ", u"}"}},
    {u"@media } a {} b {}", {u"@media } a {} b {}"}},
    {u"@media a { @media b { c {} } } d {}", {u"@media a { @media b { c {} } } ", u"@media b { c {} ", u"d {}"}},
    {u"@media a { b {} /* c */ d {} } e {}",
     {u"@media a { b {} /* c */ d {} } ", u"b {} ", u"/* c */ ", u"d {} ", u"e {}"}},
    {u"@media a { /* } */ b {} } c {}", {u"@media a { /* } ", u"*/ b {} ", u"} ", u"c {}"}},

    // Comment delimiters of HTML close a statement, inside of a rule too.
    {u"<!-- a {} -->", {u"<!-- ", u"a {} ", u"-->"}},
    {u"a <!-- b {}", {u"a <!-- ", u"b {}"}},
    {u"a { b: c; --> d: e }", {u"a { b: c; --> ", u"d: e }"}},
    {u"a { <!-- /* } */ }", {u"a { <!-- ", u"/* } ", u"*/ }"}},
    {u"<!-->", {u"<!--", u">"}},
    {u"a { --b: c; }", {u"a { --b: c; }"}},

    // Units that aren't text are text.
    {Text(u"a {\0} b {}", 10), {Text(u"a {\0} ", 6), u"b {}"}},
    {u"\xd800 {} \xdc00 {}", {u"\xd800 {} ", u"\xdc00 {}"}},
};

TEST(StatementScan, CutsTheTextWhereTheCasesSay) {
    for (const ScanCase& row : Cases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(ScanStatements(row.text), row.statements);
    }
}

TEST(StatementScan, EachEntryRemembersWhereItStood) {
    for (const ScanCase& row : Cases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        const ScannedStatements scanned = ScanStatementsWithOrigins(row.text);
        ASSERT_EQ(scanned.origins.size(), scanned.statements.size());
        for (std::size_t index = 0; index < scanned.statements.size(); ++index) {
            const Text& statement = scanned.statements[index];
            EXPECT_EQ(row.text.substr(scanned.origins[index].start, statement.size()), statement);
        }
    }
    const ScannedStatements scanned = ScanStatementsWithOrigins(u"x {} @media p { a {} b {} } c {}");
    const std::vector<StatementOrigin> expected = {{0, false}, {5, false}, {16, true}, {21, true}, {28, false}};
    EXPECT_EQ(scanned.origins, expected);
}

TEST(StatementScan, AnEscapedQuoteGuardsNothingWhereItIsPlain) {
    EXPECT_EQ(ScanStatements(u"a { content: \"\\\"}\"; } b {}", EscapedQuote::IsPlain),
              (Texts{u"a { content: \"\\\"}", u"\"; } ", u"b {}"}));
}

TEST(StatementScan, WhitespaceCanLeadTheStatementBehindIt) {
    const auto scan = [](TextView text) {
        return ScanStatements(text, EscapedQuote::IsPlain, WhitespaceBetween::LeadsTheSecond);
    };
    EXPECT_EQ(scan(u" a {} \n b {}\n"), (Texts{u" a {}", u" \n b {}"}));
    EXPECT_EQ(scan(u"@import x; /* c */ a {}"), (Texts{u"@import x;", u" /* c */", u" a {}"}));
    EXPECT_EQ(scan(u"@media p { a {} } b {}"), (Texts{u"@media p { a {} }", u"a {} ", u" b {}"}));
}

TEST(StatementScan, ATextAtTheLimitPassesAndOneBeyondItFails) {
    for (const char16_t* const tail : {u"}", u";", u" ", u"a", u"*/"}) {
        SCOPED_TRACE(Utf8FromText(tail));
        Text text(MaximumTextLength, u' ');
        const TextView end(tail);
        text.replace(text.size() - end.size(), end.size(), end);
        EXPECT_NO_THROW(static_cast<void>(ScanStatements(text)));
        EXPECT_THROW(static_cast<void>(ScanStatements(u" " + text)), OverflowFailure);
    }
}

TEST(StatementScan, AllWhitespaceBeyondTheLimitFailsToo) {
    EXPECT_TRUE(ScanStatements(Text(MaximumTextLength, u'\n')).empty());
    EXPECT_THROW(static_cast<void>(ScanStatements(Text(MaximumTextLength + 1, u'\n'))), OverflowFailure);
}

}  // namespace
}  // namespace tintora
