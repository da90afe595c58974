// Type-ahead, as the document sees it: an open list holds its updates back, a choice brings them at once.

#include "DocumentRecorders.h"

#include <gtest/gtest.h>

namespace tintora::test {
namespace {

class TypeAheadChoiceTest : public DocumentTest {
  protected:
    void Choose(int type, TextView choice) {
        window.CSSEditor().TypeAheadReturnType = static_cast<std::int16_t>(type);
        window.SetTypeAheadChoice(choice);
    }
};

TEST_F(TypeAheadChoiceTest, AChoiceIsInTheCacheAndOnThePalettesAtOnce) {
    Load(u"h1 {color: r|}\n");
    Choose(21, u"red");
    EXPECT_EQ(Drawn(), "h1 {color: red;\n|}\n");
    EXPECT_EQ(Utf8FromText(window.StyleSheet().getNthStatementAsText(0)), "h1 {color: red;\n}");
    EXPECT_TRUE(Has(calls, "SetProperties {color: red;\n}"));
    EXPECT_TRUE(PalettesWereUpdated());
    EXPECT_TRUE(StatementsWereUpdated());
    EXPECT_TRUE(WasPreviewed());
    EXPECT_TRUE(window.IsDirty());
    EXPECT_FALSE(window.NeedsUpdating());
    EXPECT_FALSE(IsRunning(u"IdleTimer"));
}

TEST_F(TypeAheadChoiceTest, AChoiceIsOneStepToUndo) {
    Load(u"h1 {top: 0; col|or: red}\n");
    Choose(19, u"background-color");
    EXPECT_EQ(Drawn(), "h1 {top: 0;\nbackground-color:| red}\n");
    window.CSSEditor().Undo();
    EXPECT_EQ(window.GetText(), u"h1 {top: 0; color: red}\n");
    EXPECT_FALSE(window.CSSEditor().CanUndo());
}

TEST_F(TypeAheadChoiceTest, AnEmptyChoiceScansAndChangesNothing) {
    Load(u"h1 {col|or: red}\n");
    Choose(19, u"");
    EXPECT_EQ(Drawn(), "h1 {col|or: red}\n");
    EXPECT_EQ(TakeCalls(), Calls({"CacheStatements"}));
    EXPECT_FALSE(window.IsDirty());
}

TEST_F(TypeAheadChoiceTest, AnOpenListHoldsTheUpdatesBackUntilTheNextKey) {
    Load(u"@import 'a.css'; |");
    window.CSSEditor().CharacterTyped(u'h');
    Type(u"h");
    calls.clear();
    EXPECT_TRUE(IsRunning(u"IdleTimer"));
    Wait(5000);
    EXPECT_TRUE(Has(calls, "TypeAhead h"));
    EXPECT_FALSE(IsRunning(u"IdleTimer"));
    EXPECT_TRUE(window.SelectorsNeedUpdating()) << "what is stale stays so";
    EXPECT_FALSE(StatementsWereUpdated());
    KeyUp('H');
    EXPECT_TRUE(IsRunning(u"IdleTimer"));
    Wait(1000);
    EXPECT_TRUE(StatementsWereUpdated());
}

TEST_F(TypeAheadChoiceTest, TheListOffersWhatTheStyleSheetUses) {
    const Text sheet = u"h1 {color: #abc; background-image: url(a.gif); font-family: Gill Sans;}\n";
    const std::vector<std::pair<Text, Text>> lastOf = {
        {u"color", u"#abc"}, {u"background-image", u"url(a.gif)"}, {u"font-family", u"Gill Sans"}};
    for (const auto& [property, last] : lastOf) {
        Load(sheet + u"p {" + property + u": |}");
        window.CSSEditor().TypeAhead();
        ASSERT_FALSE(popup.list.empty()) << Utf8FromText(property);
        EXPECT_EQ(popup.list.back(), last);
    }
}

}  // namespace
}  // namespace tintora::test
