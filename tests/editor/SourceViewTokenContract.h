#pragma once

#include "DrawnTokens.h"

/// The text control's contract: the tokens of the text, as it is now.
namespace tintora::test {

template <typename Maker>
class SourceViewTokens : public SourceViewTest<Maker> {
  protected:
    void SetUp() override { this->Buffer().SetLex(std::make_unique<LexClass>()); }

    [[nodiscard]] std::string DrawnTokensOf(TextView text) {
        this->View().SetText(text);
        return DrawnTokens(this->View());
    }
};

TYPED_TEST_SUITE_P(SourceViewTokens);

struct TokenCase {
    Text text;
    std::string tokens;
};

inline const std::vector<TokenCase>& TokenCases() {
    static const std::vector<TokenCase> cases = {
        {u"", ""},
        {u"h1 {color: red;}", "[h1 ]24[{]23[color]19[:]17[ red]21[;]17[}]23"},
        {u"h1 {colour: red;}", "[h1 ]24[{]23[colour]20[:]17[ red]27[;]17[}]23"},
        {u"h1 {color: rot;}", "[h1 ]24[{]23[color]19[:]17[ rot]27[;]17[}]23"},
        {u"a {color: red !important;}", "[a ]24[{]23[color]19[:]17[ red ]21[!important]26[;]17[}]23"},
        {u"a:hover {}", "[a]24[:]24[hover ]24[{]23[}]23"},
        {u"/* x */ a {}", "[/* x */]6[ a ]24[{]23[}]23"},
        {u"a { color : red }", "[a ]24[{]23[ color ]19[:]17[ red ]21[}]23"},
        {u"\U0001F600 {color: red}", "[\U0001F600 ]24[{]23[color]19[:]17[ red]21[}]23"},

        // Over rows.
        {u"/* x\ny */ a {}", "[/* x]6 / [y */]6[ a ]24[{]23[}]23"},
        {u"@media print {\na {}\n}", "[@media print {]25 / [a ]24[{]23[}]23 / [}]23"},
        {u"  @media print {", "[  @media print ]25[{]23"},
        {u"a {\n  \n\ncolor: red\n}", "[a ]24[{]23 / [  ]19 /  / [color]19[:]17[ red]21 / [}]23"},
        {u"a {color:\nred}\nb {}", "[a ]24[{]23[color]19[:]17 / [red]21[}]23 / [b ]24[{]23[}]23"},
        {u"a {}\r\nb {}\rc {}", "[a ]24[{]23[}]23 / [b ]24[{]23[}]23 / [c ]24[{]23[}]23"},
        {u"a\n", "[a]24 / "},
    };
    return cases;
}

TYPED_TEST_P(SourceViewTokens, ATextHasTheTokensOfItsScanner) {
    for (const TokenCase& row : TokenCases()) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(this->DrawnTokensOf(row.text), row.tokens);
    }
}

TYPED_TEST_P(SourceViewTokens, EachColumnOfATokenKnowsTheWholeOfIt) {
    this->View().SetText(u"a {}\nh1 {color: red}");
    for (const int column : {4, 5, 6, 7, 8})
        EXPECT_EQ(this->View().GetTokenInfo(column, 1), (TokenInfo{19, 4, 5})) << column;
    EXPECT_EQ(this->View().GetTokenInfo(9, 1), (TokenInfo{17, 9, 1}));
    EXPECT_EQ(this->View().GetTokenInfo(13, 1), (TokenInfo{21, 10, 4}));
    EXPECT_EQ(this->View().GetTokenInfo(0, 1), (TokenInfo{24, 0, 3}));
}

TYPED_TEST_P(SourceViewTokens, BehindTheLastTokenAndInAnEmptyRowThereIsNone) {
    this->View().SetText(u"a {}\n\nb");
    EXPECT_EQ(this->View().GetTokenInfo(4, 0).type, 0);
    EXPECT_EQ(this->View().GetTokenInfo(5, 0).type, 0);
    EXPECT_EQ(this->View().GetTokenInfo(500, 0).type, 0);
    EXPECT_EQ(this->View().GetTokenInfo(0, 1).type, 0);
    EXPECT_EQ(this->View().GetTokenInfo(3, 1).type, 0);
    EXPECT_EQ(this->View().GetTokenInfo(1, 2).type, 0);
    EXPECT_EQ(this->View().GetTokenInfo(0, 3).type, 0);
    this->View().SetText(u"");
    EXPECT_EQ(this->View().GetTokenInfo(0, 0).type, 0);
}

TYPED_TEST_P(SourceViewTokens, ACommentThatIsOpenedTakesAllThatFollowsUntilItIsClosed) {
    this->View().SetText(u"a {}\nb {}\nc {}");
    EXPECT_EQ(DrawnTokens(this->View(), 2), "[c ]24[{]23[}]23");
    this->Buffer().Insert(0, 0, u"/*");
    EXPECT_EQ(DrawnTokens(this->View()), "[/*a {}]6 / [b {}]6 / [c {}]6");
    this->Buffer().Insert(1, 1, u"*/");
    EXPECT_EQ(DrawnTokens(this->View()), "[/*a {}]6 / [b*/]6[ ]24[{]23[}]23 / [c ]24[{]23[}]23");
    this->Buffer().Delete(1, 1, 2, 1);
    EXPECT_EQ(DrawnTokens(this->View()), "[/*a {}]6 / [b/ {}]6 / [c {}]6");
    this->Buffer().Delete(0, 0, 1, 0);
    EXPECT_EQ(DrawnTokens(this->View()), "[*a ]24[{]23[}]23 / [b/ ]24[{]23[}]23 / [c ]24[{]23[}]23");
    this->Buffer().Undo();
    EXPECT_EQ(DrawnTokens(this->View()), "[/*a {}]6 / [b/ {}]6 / [c {}]6");
}

TYPED_TEST_P(SourceViewTokens, ARuleThatIsOpenedOrClosedChangesWhatFollows) {
    this->View().SetText(u"a {\ncolor: red;\n}\nb {}");
    EXPECT_EQ(DrawnTokens(this->View(), 1), "[color]19[:]17[ red]21[;]17");
    this->Buffer().Delete(2, 0, 3, 0);
    EXPECT_EQ(DrawnTokens(this->View()), "[a ]24 / [color]24[:]24[ red]24[;]24 / [}]23 / [b ]24[{]23[}]23");
    this->Buffer().Insert(2, 0, u"{");
    EXPECT_EQ(DrawnTokens(this->View(), 1), "[color]19[:]17[ red]21[;]17");
    this->Buffer().Delete(0, 2, 1, 2);
    EXPECT_EQ(DrawnTokens(this->View(), 3), "[b ]20[{]23[}]23") << "the next name in a rule that isn't closed";
}

TYPED_TEST_P(SourceViewTokens, RowsThatComeAndGoTakeTheirTokensWithThem) {
    this->View().SetText(u"a {\ncolor: red\n}\nb {}");
    EXPECT_EQ(DrawnTokens(this->View(), 3), "[b ]24[{]23[}]23");
    this->Buffer().Insert(0, 1, u"/*\n\n*/\n");
    EXPECT_EQ(DrawnTokens(this->View()),
              "[a ]24[{]23 / [/*]6 /  / [*/]6 / [color]19[:]17[ red]21 / [}]23 / [b ]24[{]23[}]23");
    this->Buffer().Delete(0, 1, 0, 5);
    EXPECT_EQ(DrawnTokens(this->View()), "[a ]24[{]23 / [}]23 / [b ]24[{]23[}]23");
    this->Buffer().Delete(2, 0, 0, 1);
    EXPECT_EQ(DrawnTokens(this->View()), "[a ]24[}]23 / [b ]24[{]23[}]23");
    this->Buffer().Undo();
    this->Buffer().Undo();
    this->Buffer().Undo();
    EXPECT_EQ(DrawnTokens(this->View()), "[a ]24[{]23 / [color]19[:]17[ red]21 / [}]23 / [b ]24[{]23[}]23");
}

TYPED_TEST_P(SourceViewTokens, ALoadedTextOwesNothingToTheOneBefore) {
    EXPECT_EQ(this->DrawnTokensOf(u"/* a\nb"), "[/* a]6 / [b]6");
    EXPECT_EQ(this->DrawnTokensOf(u"a {}\nb"), "[a ]24[{]23[}]23 / [b]24");
    EXPECT_EQ(this->DrawnTokensOf(u"@media x {\na {\n"), "[@media x {]25 / [a ]24[{]23 / ");
    EXPECT_EQ(this->DrawnTokensOf(u"a\nb: c"), "[a]24 / [b]24[:]24[ c]24");
}

TYPED_TEST_P(SourceViewTokens, ANewScannerAndARecolouringLeaveTheTokensAsTheyAre) {
    const std::string tokens = this->DrawnTokensOf(u"a {\ncolor: red} /*\n*/");
    this->View().Recolor();
    EXPECT_EQ(DrawnTokens(this->View()), tokens);
    this->Buffer().SetLex(std::make_unique<LexClass>());
    EXPECT_EQ(DrawnTokens(this->View()), tokens);
}

TYPED_TEST_P(SourceViewTokens, WhoeverIsToldOfAChangeFindsItsTokens) {
    this->Put(u"a {}");
    int typeThen = -1;
    this->events_.whenTextChanges = [&] { typeThen = this->View().GetTokenInfo(3, 0).type; };
    this->Listen();
    this->Buffer().Insert(0, 0, u"/*");
    EXPECT_EQ(typeThen, 6);
    this->Buffer().Undo();
    EXPECT_EQ(typeThen, 23);
}

TYPED_TEST_P(SourceViewTokens, AfterEachChangeTheyAreThoseOfTheTextLoadedAnew) {
    TypeParam fresh;
    RandomNumbers random(2003);
    this->View().SetText(u"h1 {\n  color: red;\n}\n\n/* x */\n@media print {\na {}\n}\n");
    this->Buffer().ClearUndoStack();
    for (int step = 0; step < 500; ++step) {
        const Text before = this->View().GetText();
        ChangeAtRandom(this->View(), random);
        fresh.View().SetText(this->View().GetText());
        fresh.View().Buffer().SetLex(std::make_unique<LexClass>());
        ASSERT_EQ(SettledTokens(this->View()), SettledTokens(fresh.View())) << step << "\n"
                                                                            << Utf8FromText(before) << "\n-----\n"
                                                                            << Utf8FromText(this->View().GetText());
    }
}

REGISTER_TYPED_TEST_SUITE_P(SourceViewTokens, ATextHasTheTokensOfItsScanner, EachColumnOfATokenKnowsTheWholeOfIt,
                            BehindTheLastTokenAndInAnEmptyRowThereIsNone,
                            ACommentThatIsOpenedTakesAllThatFollowsUntilItIsClosed,
                            ARuleThatIsOpenedOrClosedChangesWhatFollows, RowsThatComeAndGoTakeTheirTokensWithThem,
                            ALoadedTextOwesNothingToTheOneBefore, ANewScannerAndARecolouringLeaveTheTokensAsTheyAre,
                            WhoeverIsToldOfAChangeFindsItsTokens, AfterEachChangeTheyAreThoseOfTheTextLoadedAnew);

}  // namespace tintora::test
