#include "DocumentRecorders.h"

#include <gtest/gtest.h>

// The kinds of statements and their forms, and what follows a command.

namespace tintora::test {
namespace {

struct KindCase {
    Text kind;
    Text after;
};

const std::vector<KindCase> KindCases = {
    {u"Type", u"x {|}\n\n"},
    {u"Link", u"x {|}\n\n"},
    {u"Class", u"x {|}\n\n"},
    {u"ID", u"x {|}\n\n"},
    {u"Group", u"x {|}\n\n"},
    {u"Descendant", u"x {|}\n\n"},
    {u"Language", u"x {|}\n\n"},
    {u"Dynamic", u"x {|}\n\n"},
    {u"Typographical", u"x {|}\n\n"},
    {u"Generated Content", u"x {|}\n\n"},
    {u"First Child", u"x {|}\n\n"},
    {u"Child", u"x {|}\n\n"},
    {u"Adjacent Sibling", u"x {|}\n\n"},
    {u"Attribute", u"x {|}\n\n"},
    {u"Comment", u"x\n\n|"},
    {u"@ Import Rule", u"x\n\n|"},
    {u"@ Media Rule", u"x {|}\n\n"},
};

const std::vector<KindCase> RuleSetCases = {
    {u"All Link States", u"\r\n\r\na:link {} \r\n\r\na:visited {}\r\n\r\na:hover {}\r\n\r\na:active {}"},
    {u"All Heading Levels", u"\r\n\r\nh1 {}\r\n\r\nh2 {}\r\n\r\nh3 {}\r\n\r\nh4 {}\r\n\r\nh5{}\r\n\r\nh6{}"},
    {u"All Basic Text",
     u"\r\n\r\nbody {}\r\n\r\np {}\r\n\r\nh1 {}\r\n\r\nh2 {}\r\n\r\nh3 {}\r\n\r\nh4 {}\r\n\r\nh5 {}\r\n\r\nh6 {}"
     u"\r\n\r\n"},
    {u"All Table", u"\r\n\r\ntable {}\r\n\r\ntr {}\r\n\r\ntd {}\r\n\r\nth {}\r\n\r\ncaption {}\r\n\r\n"},
    {u"All Form",
     u"\r\n\r\nform {}\r\n\r\nbutton {}\r\n\r\ninput {}\r\n\r\nselect {}\r\n\r\noption {}\r\n\r\ntextarea {}"
     u"\r\n\r\nlabel {}\r\n\r\nfieldset {}\r\n\r\nlegend {}"},
};

struct FormCase {
    Text statement;
    std::string form;
    Text filledWith;
};

const std::vector<FormCase> FormCases = {
    {u"h1 {}", "Type", u"h1"},
    {u"a:link {}", "Link", u"a:link"},
    {u".X {}", "Class", u".X"},
    {u"#x {}", "ID", u"#x"},
    {u"p  q {}", "Descendant", u"p  q"},
    {u"p, q {}", "Group", u"p, q"},
    {u"p:hover {}", "Dynamic", u"p:hover"},
    {u"p:lang(en) {}", "Language", u"p:lang(en)"},
    {u"p:first-line {}", "Typographical", u"p:first-line"},
    {u"p:before {}", "Generated Content", u"p:before"},
    {u"p:first-child {}", "First Child", u"p:first-child"},
    {u"p > q {}", "Child", u"p > q"},
    {u"p + q {}", "Adjacent Sibling", u"p + q"},
    {u"p[x] {}", "Attribute", u"p[x]"},
    {u"/* Ab  c */", "Comment", u"/* Ab  c */"},
    {u"@import url(A.css) print;", "@ Import Rule", u"@import url(A.css) print;"},
    {u"@media Print { p {} }", "@ Media Rule", u"@media Print"},
};

class StatementForms : public DocumentTest {};

TEST_F(StatementForms, EachKindHasItsForm) {
    for (const KindCase& row : KindCases) {
        RecordedDocument document;
        document.Load(u"|");
        document.dialogs.answer = u"x";
        document.window.NewStatement(row.kind);
        EXPECT_EQ(document.calls.front(), "EditSelector " + Utf8FromText(row.kind));
        EXPECT_EQ(document.dialogs.givenValue, u"");
        EXPECT_EQ(document.Drawn(), Utf8FromText(row.after)) << Utf8FromText(row.kind);
    }
}

TEST_F(StatementForms, ARuleSetTakesTheLineEndsOfTheDocument) {
    for (const KindCase& row : RuleSetCases) {
        RecordedDocument document;
        document.Load(u"h1 {}|");
        document.window.NewStatement(row.kind);
        EXPECT_EQ(document.Drawn(), Utf8FromText(u"h1 {}" + WithLineEnds(row.after, u"\n") + u"|"));
        document.Load(u"h1 {}\r\n|");
        document.window.NewStatement(row.kind);
        EXPECT_EQ(document.Drawn(), Utf8FromText(u"h1 {}\r\n" + row.after + u"|"));
        EXPECT_TRUE(std::find(document.calls.begin(), document.calls.end(), "EditSelector") == document.calls.end());
    }
}

TEST_F(StatementForms, ARuleSetIsOneStepToUndo) {
    for (const KindCase& row : RuleSetCases) {
        RecordedDocument document;
        document.Load(u"a {}\nb| {}\nc {}");
        document.window.NewStatement(row.kind);
        document.window.CSSEditor().Undo();
        EXPECT_EQ(document.window.GetText(), u"a {}\nb {}\nc {}");
        EXPECT_FALSE(document.window.CSSEditor().CanUndo());
    }
}

TEST_F(StatementForms, ARuleSetGoesBehindTheCurrentStatement) {
    Load(u"a {}\nb| {}c {}");
    window.NewStatement(u"All Heading Levels");
    EXPECT_EQ(Drawn(), "a {}\nb {}\n\nh1 {}\n\nh2 {}\n\nh3 {}\n\nh4 {}\n\nh5{}\n\nh6{}|c {}");
    EXPECT_EQ(window.StyleSheet().GetAllStatementsAsText().size(), 9U);
    EXPECT_TRUE(IsRunning(u"PreviewDelay"));
}

TEST_F(StatementForms, EachTypeOfSelectorHasItsForm) {
    for (const FormCase& row : FormCases) {
        RecordedDocument document;
        document.Load(u"a {}\n|" + row.statement);
        document.window.EditStatement();
        EXPECT_EQ(document.calls.front(), "EditSelector " + row.form);
        EXPECT_EQ(document.dialogs.givenValue, row.filledWith);
        EXPECT_EQ(document.Drawn(), Utf8FromText(u"a {}\n|" + row.statement));
    }
}

TEST_F(StatementForms, ACommentGoesToItsFormWithItsLineEnds) {
    Load(u"a {}\r\n/* A\r\n  B |*/\r\n");
    window.EditStatement();
    EXPECT_EQ(dialogs.givenValue, u"/* A\r\n  B */");
}

TEST_F(StatementForms, ASelectorGoesToItsFormOnOneLine) {
    Load(u"a {}\r\np,\r\nq |{}");
    window.EditStatement();
    EXPECT_EQ(dialogs.givenValue, u"p, q");
}

TEST_F(StatementForms, APageRuleHasNoForm) {
    Load(u"a {}\n@page| {}");
    dialogs.answer = u"x";
    window.EditStatement();
    EXPECT_EQ(calls, Calls{});
    EXPECT_EQ(Drawn(), "a {}\n@page| {}");
    EXPECT_FALSE(IsRunning(u"PreviewDelay"));
}

TEST_F(StatementForms, AnEmptyDocumentHasNothingToEdit) {
    Load(u"|");
    dialogs.answer = u"x";
    window.EditStatement();
    EXPECT_EQ(calls, Calls{});
    EXPECT_EQ(Drawn(), "|");
}

const Calls ClosingCalls = {"CacheStatements", "Enable",          "SetProperties {}",
                            "EnableToolbar",   "SetUpToolbar {}", "UpdateSelectors b"};

TEST_F(StatementForms, ACancelledFormLeavesTheTextAndRunsTheClosingSequence) {
    Load(u"a {}\nb| {}");
    window.EditStatement();
    Calls expected = {"EditSelector Type"};
    expected.insert(expected.end(), ClosingCalls.begin(), ClosingCalls.end());
    EXPECT_EQ(TakeCalls(), expected);
    EXPECT_TRUE(IsRunning(u"PreviewDelay"));

    window.NewStatement(u"Type");
    expected.emplace_back("BringDocumentToFront");
    EXPECT_EQ(TakeCalls(), expected);

    window.NewStatement(u"@ Import Rule");
    expected.front() = "EditSelector @ Import Rule";
    expected.pop_back();
    EXPECT_EQ(TakeCalls(), expected);

    EXPECT_EQ(Drawn(), "a {}\nb| {}");
    EXPECT_FALSE(window.IsDirty());
}

TEST_F(StatementForms, ACancelledQuestionForTheKindDoesNothing) {
    Load(u"a {}\nb| {}");
    window.NewStatement(u"");
    EXPECT_EQ(TakeCalls(), Calls{"AskStatementKind"});
    EXPECT_FALSE(IsRunning(u"PreviewDelay"));
}

TEST_F(StatementForms, TheKindIsAskedForWhereItIsNotGiven) {
    Load(u"a {}|");
    dialogs.kind = u"Class";
    dialogs.answer = u".x";
    window.NewStatement(u"");
    EXPECT_EQ(calls[0], "AskStatementKind");
    EXPECT_EQ(calls[1], "EditSelector Class");
    EXPECT_EQ(Drawn(), "a {}\n\n.x {|}\n\n");
}

TEST_F(StatementForms, ANewCommentIsANewStatementOfThatKind) {
    Load(u"a {}|");
    dialogs.answer = u"/* x */";
    window.NewComment();
    EXPECT_EQ(calls.front(), "EditSelector Comment");
    EXPECT_EQ(Drawn(), "a {}\n\n/* x */\n\n|");
}

TEST_F(StatementForms, AChangeIsReadPreviewedAndShownAtOnce) {
    Load(u"a {}\nb| {}\nc {}");
    window.DeleteStatement();
    EXPECT_EQ(window.StyleSheet().GetAllStatementsAsText(), (Texts{u"a {}", u"c {}"}));
    EXPECT_EQ(statements.shown, (Texts{u"a {}", u"c {}"}));
    EXPECT_EQ(calls.front(), "Dirty");
    EXPECT_EQ(calls[1], "CacheStatements");
    calls.clear();
    Wait(1499);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "PreviewNow"), 0);
    Wait(1);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "PreviewNow"), 1);
}

TEST_F(StatementForms, OtherSeparatorsAreWrittenWhereTheyAreStored) {
    SetStatementSeparator(settings, u" ");
    Load(u"a {}|b {}");
    window.SetSelection(1, 1);
    Settle();
    dialogs.answer = u"x";
    window.NewStatement(u"Type");
    EXPECT_EQ(Drawn(), "a {} x {|} b {}");
    window.DuplicateStatement();
    EXPECT_EQ(window.GetText(), u"a {} x {} x {} b {}");
}

TEST_F(StatementForms, TheFirstStatementStartsAtOne) {
    Load(u"h1| {}\np {}");
    EXPECT_EQ(window.GetCurrentStatementStartChar(), 1);
    EXPECT_EQ(window.GetCurrentStatement(), u"h1 {}");
    window.SetSelection(8, 8);
    EXPECT_EQ(window.GetCurrentStatementStartChar(), 6);
    EXPECT_EQ(window.GetCurrentStatement(), u"p {}");
    EXPECT_EQ(window.GetCurrentStatementNumber(8), 2);
    EXPECT_EQ(window.GetCurrentStatementNumber(0), 1);
}

TEST_F(StatementForms, TheFirstSelectorKeepsTheWhitespaceInFrontOfIt) {
    Load(u"\n h1| {}\np {}");
    EXPECT_EQ(window.GetCurrentSelector(), u"\n h1");
    EXPECT_EQ(window.GetCurrentSelector1(), u"h1");
    EXPECT_EQ(window.GetCurrentStatement(), u"\n h1 {}");
    EXPECT_EQ(window.GetCurrentStatement1(), u"h1 {}");
}

TEST_F(StatementForms, TheCurrentSelectorLagsBehindTheCaret) {
    Load(u"a {}\n.b {}\n#c| {}");
    window.SetSelection(5, 5);
    EXPECT_EQ(window.GetCurrentSelector(), u"#c");
    EXPECT_EQ(window.GetCurrentSelectorType(), 8);
    EXPECT_EQ(window.GetCurrentSelector1(), u".b");
    Wait(500);
    EXPECT_EQ(window.GetCurrentSelector(), u".b");
    EXPECT_EQ(window.GetCurrentSelectorType(), 7);
}

TEST_F(StatementForms, AChosenNumberIsRememberedWhateverItIs) {
    Load(u"a {}\nb| {}");
    for (const int number : {1, 2, 0, 7, -1}) {
        window.StatementSelected(number);
        EXPECT_EQ(window.LastSelectedStatement(), number);
    }
}

}  // namespace
}  // namespace tintora::test
