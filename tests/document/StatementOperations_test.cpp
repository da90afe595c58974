#include "DocumentRecorders.h"

#include <gtest/gtest.h>
#include <functional>

// Whole texts before and after, with the caret drawn as "|".

namespace tintora::test {
namespace {

using Operation = std::function<void(ktStyleSheetWindow&)>;

Operation New(TextView kind) {
    return [kind = Text(kind)](ktStyleSheetWindow& window) { window.NewStatement(kind); };
}

const Operation NewType = New(u"Type");
const Operation Edit = &ktStyleSheetWindow::EditStatement;
const Operation Delete = &ktStyleSheetWindow::DeleteStatement;
const Operation Duplicate = &ktStyleSheetWindow::DuplicateStatement;
const Operation CursorAfter = &ktStyleSheetWindow::InsertCursorAfterCurrentStatement;
const Operation CursorBefore = &ktStyleSheetWindow::InsertCursorBeforeCurrentStatement;
const Operation SelectSelector = &ktStyleSheetWindow::SelectCurrentSelector;
const Operation SelectStatement = &ktStyleSheetWindow::SelectCurrentStatement;

Operation Select(int number) {
    return [number](ktStyleSheetWindow& window) { window.StatementSelected(number); };
}

enum class LineEnds { LfAndCrLf, LfOnly };

struct OperationCase {
    Operation operation;
    Text answer;
    Text before;
    Text after;
    LineEnds lineEnds = LineEnds::LfAndCrLf;
};

const std::vector<OperationCase> NewCases = {
    {NewType, u"h1", u"|", u"h1 {|}\n\n"},
    {NewType, u"h2", u"  |\n", u"\n\nh2 {|}\n\n"},
    {NewType, u"h2", u"h1 {}|", u"h1 {}\n\nh2 {|}\n\n"},
    {NewType, u"h2", u"h1 {}\n  \n|", u"h1 {}\n\nh2 {|}\n\n"},
    {NewType, u"h2", u"h1 {|", u"h1 {\n\nh2 {|}\n\n"},
    {NewType, u"h2", u"a| {}b {}", u"a {}\n\nh2 {|}\n\nb {}"},
    {NewType, u"h2", u"a| {} b {}", u"a {}\n\nh2 {|}\n\nb {}"},
    {NewType, u"h2", u"a| {}\n\n\n\n  b {}\n", u"a {}\n\nh2 {|}\n\nb {}\n"},
    {NewType, u"h2", u"  a| {}  b {}", u"  a {}\n\nh2 {|}\n\nb {}"},
    {NewType, u"h2", u"a {} b| {} c {}", u"a {} b {}\n\nh2 {|}\n\nc {}"},
    {NewType, u"h2", u"a {} b| {}c {}", u"a {} b {}\n\nh2 {|}\n\nc {}"},
    {NewType, u"h2", u"a {}\nb| {}\nc {}\n", u"a {}\nb {}\n\nh2 {|}\n\nc {}\n"},
    {NewType, u"h2", u"/* c |*/", u"/* c */\n\nh2 {|}\n\n"},
    {NewType, u"h2", u"@import| url(a.css);\na {}", u"@import url(a.css);\n\nh2 {|}\n\na {}"},
    {NewType, u"h2", u"@page| {}", u"@page {}\n\nh2 {|}\n\n"},
    // In the head of a block it goes to the top, in a nested statement behind that.
    {NewType, u"h2", u"|@media print {\n  a {}\n}\n", u"h2 {|}\n\n@media print {\n  a {}\n}\n"},
    {NewType, u"h2", u"  \n@media| print { a {} }", u"h2 {|}\n\n@media print { a {} }"},
    {NewType, u"h2", u"b {}\n@media| print { a {} }", u"h2 {|}\n\nb {}\n@media print { a {} }"},
    {NewType, u"h2", u"@media print { a| {} }", u"@media print { a {}\n\nh2 {|}\n\n}"},
    {NewType, u"h2", u"@media print {\n  a {}\n}\n|", u"@media print {\n  a {}\n\nh2 {|}\n\n}\n"},
    // A comment has no braces to put the caret between.
    {New(u"Comment"), u"/* c */", u"|", u"/* c */\n\n|"},
    {New(u"Comment"), u"/* c */", u"h1| {}", u"h1 {}\n\n/* c */\n\n|"},
    {New(u"Comment"), u"/* c */", u"@media| print {}\nb {}", u"/* c */\n\n|@media print {}\nb {}"},
    {New(u"@ Media Rule"), u"@media print", u"a| {}", u"a {}\n\n@media print {|}\n\n"},
    // An import goes to the top wherever the caret is.
    {New(u"@ Import Rule"), u"@import 'x';", u"|", u"@import 'x';\n\n|"},
    {New(u"@ Import Rule"), u"@import 'x';", u"a {}\nb| {}", u"@import 'x';\n\n|a {}\nb {}"},
    {New(u"@ Import Rule"), u"@import 'x';", u"@media| print {}\n", u"@import 'x';\n\n|@media print {}\n"},
};

const std::vector<OperationCase> EditCases = {
    // The first statement counts from 1: a blank behind its selector goes, anything else stays.
    {Edit, u"h2", u"h1| {color: red}", u"h2|{color: red}"},
    {Edit, u"h2", u"h1|{color: red}", u"h2|{color: red}"},
    {Edit, u"h2", u"  h1|  {}", u"h2| {}"},
    {Edit, u"h2", u"a {}\n\nh1|  {  color: red }", u"a {}\n\nh2|  {  color: red }"},
    {Edit, u"x", u"a {}\np,\n  q| {}\n", u"a {}\nx| {}\n"},
    {Edit, u"x", u"a {}\np,\n  q|\n{}\n", u"a {}\nx|\n{}\n"},
    {Edit, u"h2", u"@media print { h1| {} }", u"@media print { h2| {} }"},
    {Edit, u"@media tv", u"@media| print { a {} }", u"@media tv|{ a {} }"},
    {Edit, u"@media tv", u"b {}\n@media| print { a {} }", u"b {}\n@media tv| { a {} }"},
    {Edit, u"@import 'b';", u"@import| 'a';\na {}", u"@import 'b';|\na {}"},
    {Edit, u"@import 'b';", u"a {} @import| 'a' print; c {}", u"a {} @import 'b';| c {}"},
    {Edit, u"/* c */", u"a {} /* A|b */ d {}", u"a {} /* c */| d {}"},
    {Edit, u"/* c */", u"a {}\n/* A\n  b|\n */\nd {}", u"a {}\n/* c */|\nd {}"},
    {Edit, u"/* c */", u"/* A|b */ d {}", u"/* c */|d {}"},
    {Edit, u"/* c */", u"/* A|b */d {}", u"/* c */|d {}"},
    {Edit, u"h2", u"a {} h1| {} h1 {}", u"a {} h2| {} h1 {}"},
    {Edit, u"h2", u"a {} h1 {} h1| {}", u"a {} h1 {} h2| {}"},
    {Edit, u"h2", u"@font-face| {}", u"h2|{}"},
};

const std::vector<OperationCase> DeleteCases = {
    {Delete, u"", u"|", u"|"},
    {Delete, u"", u"h1| {}", u"|"},
    {Delete, u"", u"h1| {}p {}", u"|p {}"},
    {Delete, u"", u"h1| {} p {}", u"|p {}"},
    {Delete, u"", u"h1| {}\n\np {}", u"|\np {}", LineEnds::LfOnly},
    {Delete, u"", u"  h1| {}", u"|"},
    {Delete, u"", u"h1 {}\n\np| {}\n\nq {}", u"h1 {}\n\n|\n\nq {}"},
    {Delete, u"", u"h1 {}\n\np| {}", u"h1 {}\n\n|"},
    {Delete, u"", u"a {} a| {} a {}", u"a {} | a {}"},
    {Delete, u"", u"@media print { a| {} b {} }", u"@media print { | b {} }"},
    {Delete, u"", u"@media| print { a {} } b {}", u"|b {}"},
    {Delete, u"", u"c {}\n@media| print {\n  a {}\n}\nb {}", u"c {}\n|\nb {}"},
    {Delete, u"", u"@import| 'a'; b {}", u"|b {}"},
    {Delete, u"", u"b {} /* a |*/", u"b {} |"},
    {Delete, u"", u"b {}\n@page| {}\nc {}", u"b {}\n|\nc {}"},
    {Delete, u"", u"b {}\nc| {", u"b {}\n|"},
};

const std::vector<OperationCase> DuplicateCases = {
    {Duplicate, u"", u"h1| {}", u"h1 {}\n\nh1 {}|"},
    {Duplicate, u"", u"h1| {}\n\np {}", u"h1 {}\n\nh1 {}|\n\np {}"},
    {Duplicate, u"", u"h1| {}p {}", u"h1 {}\n\nh1 {}|p {}"},
    {Duplicate, u"", u"h1| {} p {}", u"h1 {}\n\nh1 {}| p {}"},
    {Duplicate, u"", u" h1| {}", u" h1 {}\n\n h1 {}|"},
    {Duplicate, u"", u"h1 {}\n\np| {\n  a: b;\n}\n", u"h1 {}\n\np {\n  a: b;\n}\n\np {\n  a: b;\n}|\n"},
    {Duplicate, u"", u"@media print { a| {} }", u"@media print { a {}\n\na {}| }"},
    {Duplicate, u"", u"@media| print { a {} }", u"@media print { a {} }\n\n@media print { a {} }|"},
    {Duplicate, u"", u"a {}\n/* b |*/", u"a {}\n/* b */\n\n/* b */|"},
    {Duplicate, u"", u"a {} a| {} b {}", u"a {} a {}\n\na {}| b {}"},
};

const std::vector<OperationCase> CaretCases = {
    {CursorAfter, u"", u"|", u"|"},
    {CursorAfter, u"", u"h1| {}\n\np {}", u"h1 {}\n\n|p {}", LineEnds::LfOnly},
    {CursorAfter, u"", u"a| {}b {}", u"a {}|b {}"},
    {CursorAfter, u"", u"a| {} b {}", u"a {} |b {}"},
    {CursorAfter, u"", u"a {} b| {}   c {}", u"a {} b {} |  c {}"},
    {CursorAfter, u"", u"a {}\n\nb| {}\n\nc {}", u"a {}\n\nb {}\n|\nc {}", LineEnds::LfOnly},
    {CursorAfter, u"", u"a {} b| {}", u"a {} b {}|"},
    {CursorBefore, u"", u"|", u"|"},
    {CursorBefore, u"", u"h1| {}", u"h|1 {}"},
    {CursorBefore, u"", u"a {}\nb {}|", u"a {}\n|b {}"},
    {CursorBefore, u"", u"@media print {\n  a {|}\n}", u"@media print {\n  |a {}\n}"},
    {SelectSelector, u"", u"h1| {}", u"h|1 |{}"},
    {SelectSelector, u"", u"a {}\nh1 {|}", u"a {}\n|h1| {}"},
    {SelectSelector, u"", u"a {}\np,\n  q| {}", u"a {}\n|p,\n  q| {}"},
    {SelectSelector, u"", u"a {}\n/* X\n y |*/", u"a {}\n|/* X\n y */|"},
    {SelectSelector, u"", u"a {}\n@import| 'x';", u"a {}\n|@import| 'x';"},
    {SelectSelector, u"", u"a {}\n@page| :first {}", u"a {}\n|@page| :first {}"},
    {SelectSelector, u"", u"a {}\n@media| print { b {} }", u"a {}\n|@media print| { b {} }"},
    {SelectStatement, u"", u"h1| {} p {}", u"h|1 {} |p {}"},
    {SelectStatement, u"", u"a {}\nb|\n{\n}\nc {}", u"a {}\n|b\n{\n}|\nc {}"},
    {SelectStatement, u"", u"a {} a| {} a {}", u"a {} |a {}| a {}"},
    {SelectStatement, u"", u"@media print { a {} b| {} }", u"@media print { a {} |b {}| }"},
    // Behind the last character, and on a block's closing brace.
    {SelectStatement, u"", u"a {} b {}|", u"a {} |b {}|"},
    {SelectStatement, u"", u"a {} b {}\n\n|", u"a {} |b {}|\n\n"},
    {SelectStatement, u"", u"@media print { a {} b {} |}", u"@media print { a {} |b {}| }"},
    {SelectStatement, u"", u"@media print { a {} |}\nc {}", u"@media print { a {} }\n|c {}|"},
    // A choice in the palette selects the first place where the same text stands.
    {Select(1), u"", u"a {}\nb {}|", u"|a {}|\nb {}"},
    {Select(2), u"", u"|a {}\nb {}", u"a {}\n|b {}|"},
    {Select(3), u"", u"a {}\nb {}\na {}|", u"|a {}|\nb {}\na {}"},
    {Select(2), u"", u"|@media print {\n  a {}\n}", u"@media print {\n  |a {}|\n}"},
    {Select(0), u"", u"a {}\nb| {}", u"a {}\nb| {}"},
    {Select(3), u"", u"a {}\nb| {}", u"a {}\nb| {}"},
    {Select(-1), u"", u"a {}\nb| {}", u"a {}\nb| {}"},
    {Select(1), u"", u"|", u"|"},
};

class Statements : public DocumentTest {
  protected:
    static void RunCase(const OperationCase& row, bool withCrLf) {
        RecordedDocument document;
        document.Load(WithCrLfIf(withCrLf, row.before));
        SCOPED_TRACE(document.Drawn());
        document.dialogs.answer = WithCrLfIf(withCrLf, row.answer);
        row.operation(document.window);
        EXPECT_EQ(document.Drawn(), Utf8FromText(WithCrLfIf(withCrLf, row.after)));
    }

    static void RunCases(const std::vector<OperationCase>& rows) {
        for (const OperationCase& row : rows) {
            RunCase(row, false);
            if (HasLineEnd(row.before) && row.lineEnds == LineEnds::LfAndCrLf)
                RunCase(row, true);
        }
    }

    /// Back and forth again, in one step.
    static void CheckUndo(const OperationCase& row) {
        RecordedDocument document;
        document.Load(row.before);
        SCOPED_TRACE(document.Drawn());
        const Text before = document.window.GetText();
        document.dialogs.answer = row.answer;
        row.operation(document.window);
        const Text after = document.window.GetText();
        if (after == before) {
            EXPECT_FALSE(document.window.CSSEditor().CanUndo());
            return;
        }
        document.window.CSSEditor().Undo();
        EXPECT_EQ(document.window.GetText(), before);
        EXPECT_FALSE(document.window.CSSEditor().CanUndo());
        document.window.CSSEditor().Redo();
        EXPECT_EQ(document.window.GetText(), after);
    }
};

TEST_F(Statements, ANewStatementStandsBetweenSeparators) { RunCases(NewCases); }

TEST_F(Statements, AnEditedSelectorLeavesItsBodyAsItIs) { RunCases(EditCases); }

TEST_F(Statements, ADeletedStatementLeavesItsNeighboursWhole) { RunCases(DeleteCases); }

TEST_F(Statements, ACopyStandsBehindItsOriginal) { RunCases(DuplicateCases); }

TEST_F(Statements, CaretAndSelectionGoWhereTheStatementIs) { RunCases(CaretCases); }

TEST_F(Statements, EachCommandIsOneStepToUndo) {
    for (const auto* const rows : {&NewCases, &EditCases, &DeleteCases, &DuplicateCases}) {
        for (const OperationCase& row : *rows)
            CheckUndo(row);
    }
}

}  // namespace
}  // namespace tintora::test
