#include "model/DeclarationText.h"

#include "TextHolder.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace tintora {
namespace {

struct BodyCase {
    Text statement;
    Text body;
};

const std::vector<BodyCase> Bodies = {
    {u"a {b: c}", u"{b: c}"},
    {u"a {b: c} \n", u"{b: c}"},
    {u"a {b: c", u"b: c"},
    {u"a { b: c ", u"b: c"},
    {u"a", u""},
    {u"", u""},
    {u"a {}", u"{}"},
    {u"/* x */", u"/* x */"},
    {u"/* { */ ", u"/* { */ "},
    {u"@import url(a.css);", u""},
    {u"@MEDIA print { a {} }", u""},
    {u" @media print { a {} }", u"{ a {} }"},
    {u"@page {margin: 0}", u"{margin: 0}"},
    {u"b: c}", u"b: c}"},
    {u" } ", u"}"},
    {u"a } {", u"{"},
};

TEST(DeclarationText, TheBodyOfAStatement) {
    for (const BodyCase& row : Bodies) {
        SCOPED_TRACE(Utf8FromText(row.statement));
        EXPECT_EQ(ExtractProperties(row.statement), row.body);
    }
}

struct SplitCase {
    Text text;
    Texts pieces;
};

const std::vector<SplitCase> Extracted = {
    {u"a {b: c; d: e;}", {u"b: c", u"d: e"}},
    {u"a {b: c; d: e}", {u"b: c"}},
    {u"a {}", {}},
    {u"a { }", {}},
    {u"a", {}},
    {u"a {b: c;", {u"b: c"}},
    {u"a { /* x */ b: c; }", {u"/* x */", u"b: c"}},
    {u"a { /* x; y */ }", {u"/* x; y */"}},
    {u"a { b: /* x */ c; }", {u"b: /* x */", u"c"}},
    {u"a { /*/ b: c; }", {u"/*/", u"b: c"}},
    {u"a { /* open; b: c; }", {}},
    {u"a {a:b;;c:d;}", {u"a:b", u";c:d"}},
    {u"a {;a:b;}", {u";a:b"}},
    {u"a { ; ; a:b;}", {u"; ", u"a:b"}},
    {u"a {b: c;} d: e; }", {u"b: c", u"} d: e"}},
    {u"/* x */", {u"/* x */"}},
    {u"@media p { a {b: c;} }", {}},
};

TEST(DeclarationText, ExtractedDeclarationsLoseTheirSemicolonsAndAnOpenEnd) {
    for (const SplitCase& row : Extracted) {
        SCOPED_TRACE(Utf8FromText(row.text));
        Texts trimmed = row.pieces;
        for (Text& piece : trimmed)
            piece = piece == u"; " ? Text(u";") : piece;
        EXPECT_EQ(ExtractPropertiesAsCollection(row.text), trimmed);
    }
}

const std::vector<SplitCase> Kept = {
    {u"", {}},
    {u"{b: c; d: e}", {u"b: c;", u"d: e"}},
    {u"b: c; d: e", {u"b: c;", u"d: e"}},
    {u"{ }", {}},
    {u"{}", {}},
    {u"{", {}},
    {u"}", {}},
    {u" } ", {}},
    {u"{/* x */ b: c;}", {u"/* x */", u"b: c;"}},
    {u"{/* x; */}", {u"/* x; */"}},
    {u"{b: c;; d: e;}", {u"b: c;", u";", u"d: e;"}},
    {u"{;}", {u";"}},
    {u"{b: c} d: e;}", {u"b: c", u"d: e;"}},
    {u"{b: c}; d: e;}", {u"b: c", u";", u"d: e;"}},
    {u"{a: b}}; c: d}", {u"a: b", u"};", u"c: d"}},
    {u"{b: c; /* open", {u"b: c;", u"/* open"}},
};

TEST(DeclarationText, KeptDeclarationsHaveTheirSemicolons) {
    for (const SplitCase& row : Kept) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(GetStatementProperties(row.text), row.pieces);
    }
}

const std::vector<SplitCase> Closed = {
    {u"", {}},
    {u"{", {}},
    {u";", {}},
    {u"{}", {}},
    {u"{ }", {}},
    {u"{b: c; d: e;}", {u"b: c", u"d: e"}},
    {u"{b: c; d: e}", {u"b: c"}},
    {u"{b: c}", {}},
    {u"b: c; d: e;", {u"b: c", u"d: e"}},
    {u"b: c;", {u"b: c"}},
    {u"{a:b;;c:d;}", {u"a:b", u"", u"c:d"}},
    {u"{;a:b;}", {u"", u"a:b"}},
    {u"{ ; }", {u""}},
    {u"{b: c} d: e;}", {u"b: c", u"d: e"}},
    {u"{b: c}}", {u"b: c"}},
    {u"{}}", {u""}},
    {u"{/* x; y */ b: c;}", {u"/* x; y */", u"b: c"}},
    {u"{b: /* x */ c;}", {u"b: /* x */", u"c"}},
    {u"{b: c /* x */; d: e;}", {u"b: c /* x */", u"", u"d: e"}},
    {u"{/*/ b: c;}", {u"/*/", u"b: c"}},
    {u"{/* open; b: c;}", {}},
    {u"/* x */", {u"/* x */"}},
};

TEST(DeclarationText, ClosedDeclarationsBeginBehindTheEndInFrontOfThem) {
    for (const SplitCase& row : Closed) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(GetClosedDeclarations(row.text), row.pieces);
    }
}

const std::vector<SplitCase> ForEditors = {
    {u"", {}},
    {u"{", {}},
    {u"}", {}},
    {u"{}", {}},
    {u"{ }", {}},
    {u"{color: red; margin: 0}", {u"color: red"}},
    {u"{color: red; margin: 0;}", {u"color: red", u"margin: 0"}},
    {u"color: red;", {u"color: red"}},
    {u"{a:b;;c:d;}", {u"a:b", u";c:d"}},
    {u"{a:b; ;c:d;}", {u"a:b", u"", u"c:d"}},
    {u"{;a:b;}", {u";a:b"}},
    {u"{a: b} c: d;}", {u"a: b", u"c: d"}},
    {u"{a: b}}} c: d;}", {u"a: b", u"}} c: d"}},
    {u"{a: b}}; c: d;}", {u"a: b", u"}; c: d"}},
    {u"{/* x; y */ a: b;}", {u"/* x; y */", u"a: b"}},
    {u"{a: b; /* x: y */ c: d;}", {u"a: b", u"/* x: y */", u"c: d"}},
    {u"{a: /* x */ b;}", {u"a: /* x */", u"b"}},
    {u"{a: b /* x */; c: d;}", {u"a: b /* x */", u"; c: d"}},
    {u"{/* open; a: b;}", {}},
    // No quote guards anything.
    {u"{content: \"a;b\"; quotes: '}';}", {u"content: \"a", u"b\"", u"quotes: '", u"'"}},
};

TEST(DeclarationText, TheEditorsTakeAnEndBehindAnEndIntoTheNextDeclaration) {
    for (const SplitCase& row : ForEditors) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(GetEditorDeclarations(row.text), row.pieces);
    }
}

struct PartsCase {
    Text declaration;
    Text name;
    Text value;
};

const std::vector<PartsCase> Declarations = {
    {u"color : red;", u"color", u"red;"},
    {u"color", u"color", u""},
    {u" color ", u" color ", u""},
    {u"background: url(http:x)", u"background", u"url(http:x)"},
    {u":", u"", u""},
    {u"", u"", u""},
};

TEST(DeclarationText, ADeclarationPartsAtItsFirstColon) {
    for (const PartsCase& row : Declarations) {
        SCOPED_TRACE(Utf8FromText(row.declaration));
        EXPECT_EQ(GetPropertyName(row.declaration), row.name);
        EXPECT_EQ(GetPropertyValue(row.declaration), row.value);
    }
}

struct PositionCase {
    Text text;
    int first;
    int last;
    Text declaration;
};

const std::vector<PositionCase> AtPosition = {
    {u"a {b: c; d: e}", 0, 2, u""},
    {u"a {b: c; d: e}", 3, 7, u"b: c"},
    {u"a {b: c; d: e}", 8, 13, u"d: e"},
    {u"a {b: c; d: e}", 14, 14, u""},
    {u"x {} a {b: c; d: e}", 5, 7, u""},
    {u"x {} a {b: c; d: e}", 8, 12, u"b: c"},
    {u"x {} a {b: c; d: e}", 13, 18, u"d: e"},
    {u"x {} a {b: c; d: e}", 19, 19, u""},
    {u"a {b: c", 3, 7, u""},
    {u"a {b: c;", 3, 7, u"b: c"},
    {u"a {b: c; }", 8, 9, u""},
    {u"a {b: c;}", 8, 8, u""},
    {u"h1", 0, 2, u""},
    {u"", 0, 0, u""},
    {u"@media p { a {b: c; d: e} }", 14, 18, u"b: c"},
    {u"@media p { a {b: c; d: e} }", 19, 24, u"d: e"},
};

TEST(DeclarationText, TheDeclarationAroundTheCaret) {
    for (const PositionCase& row : AtPosition) {
        test::CachedSheet sheet(row.text);
        for (int position = row.first; position <= row.last; ++position) {
            SCOPED_TRACE(Utf8FromText(row.text) + " at " + std::to_string(position));
            EXPECT_EQ(sheet->getPropertyFromSelection(position), row.declaration);
            EXPECT_EQ(sheet->GetPropertyAtSelection(position), row.declaration);
        }
    }
}

TEST(DeclarationText, APositionBehindAPassedBlockHasNoDeclaration) {
    // The comment seems to nest a statement, so the walk ends beyond the count.
    test::CachedSheet sheet(u"a {b: c} /* @media */ ");
    EXPECT_EQ(sheet->GetStatementNumber(100), 3);
    EXPECT_EQ(sheet->getPropertyFromSelection(100), u"");
    EXPECT_EQ(sheet->getStatementFromSelection(100), u"");
    EXPECT_EQ(sheet->GetSelectorFromSelection(100), u"");
}

TEST(DeclarationText, TheSheetGivesBodiesAndDeclarations) {
    test::CachedSheet sheet(u" a {b: c;} \n d {e: f; g: h;}");
    EXPECT_EQ(sheet->GetPropertiesFromSelection(3), u"{b: c;}");
    EXPECT_EQ(sheet->GetPropertiesFromNthStatementAsCollection(1), (Texts{u"b: c"}));
    EXPECT_EQ(sheet->GetPropertiesFromNthStatementAsCollection(2), (Texts{u"e: f", u"g: h"}));
    EXPECT_THROW(static_cast<void>(sheet->GetPropertiesFromNthStatementAsCollection(0)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(sheet->GetPropertiesFromNthStatementAsCollection(3)), std::out_of_range);
    EXPECT_EQ(sheet->ExtractProperties(u"a {b: c}"), u"{b: c}");
    EXPECT_EQ(sheet->ExtractPropertiesAsCollection(u"a {b: c;}"), (Texts{u"b: c"}));
    EXPECT_EQ(sheet->GetStatementProperties(u"{b: c;}"), (Texts{u"b: c;"}));
    EXPECT_EQ(sheet->GetPropertyName(u"b: c"), u"b");
    EXPECT_EQ(sheet->GetPropertyValue(u"b: c"), u"c");
}

TEST(DeclarationText, ABodyBeyondTheLimitFails) {
    const Text limit(MaximumTextLength, u';');
    EXPECT_EQ(GetStatementProperties(limit).size(), MaximumTextLength);
    EXPECT_THROW(static_cast<void>(GetStatementProperties(limit + u";")), OverflowFailure);
    EXPECT_THROW(static_cast<void>(ExtractProperties(limit + u";")), OverflowFailure);
    EXPECT_EQ(GetClosedDeclarations(limit).size(), MaximumTextLength);
    EXPECT_THROW(static_cast<void>(GetEditorDeclarations(limit + u";")), OverflowFailure);
    EXPECT_THROW(static_cast<void>(GetClosedDeclarations(limit + u";")), OverflowFailure);
}

}  // namespace
}  // namespace tintora
