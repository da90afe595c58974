#include "selectors/SelectorTree.h"

#include "TreeDump.h"
#include "language/FeatureNames.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>
#include <array>
#include <random>

namespace tintora::test {
namespace {

struct StyleSheetCase {
    TextView css;
    const char* dump;
};

constexpr auto StyleSheets = std::to_array<StyleSheetCase>({
    {u"", ""},
    {u" \n ", ""},
    {u"h1 {} p {}", "1Statement h1 | 2Statement p"},
    {u"h1", "1Statement h1"},
    {u"{ top: 0 }", "1Statement "},
    // An at-rule goes by its word, and a comment by its text in lower case.
    {u"@import url(a.css);\n@page { top: 0 }\n@font-face { top: 0 }",
     "1Statement @import | 2Statement @page | "
     "3Statement @font-face"},
    {u"/* The Page */ h1 {}", "1Statement /* the page */ | 2Statement h1"},
    {u"h1,\r\nh2 {}", "1Statement h1, h2"},
    // What stands in a block is below it.
    {u"@media print { a {} b {} } h1 {}",
     "1Statement @media print | 2statement<1Statement a | 3statement<1Statement b | 4Statement h1"},
    {u"h1 {} @media print { a {} }", "1Statement h1 | 2Statement @media print | 3statement<2Statement a"},
    {u"@media print { /* Ink */ a {} }",
     "1Statement @media print | 2statement<1Statement /* ink */ | 3statement<1Statement a"},
    {u"@media print {}", "1Statement @media print"},
    {u"@media print { a {", "1Statement @media print"},
    // The second block starts its own parent, and what stands in both is found in its own.
    {u"@media print { a {} } @media screen { a {} } b {}",
     "1Statement @media print | 2statement<1Statement a | 3Statement @media screen | 4statement<3Statement a | "
     "5Statement b"},
    // Right behind a block, what has the text of one in it counts as inside; once the block has ended, it doesn't.
    {u"@media print { a {} } a {} b {} a {}",
     "1Statement @media print | 2statement<1Statement a | 3statement<1Statement a | 4Statement b | 5Statement a"},
    {u"@media print { li a {} } a {} b {}",
     "1Statement @media print | 2statement<1Statement li a | 3statement<1Statement a | 4Statement b"},
    {u"@media print { a {} b {} } b {} a {} c {}",
     "1Statement @media print | 2statement<1Statement a | 3statement<1Statement b | 4statement<1Statement b | "
     "5statement<1Statement a | 6Statement c"},
    // The word opens a block wherever it stands in the selector, in a comment too, but only in lower case.
    {u"/* @media */ a {} b {}", "1Statement /* @media */ | 2Statement a | 3Statement b"},
    {u"/* @MEDIA */ a {} b {}", "1Statement /* @media */ | 2Statement a | 3Statement b"},
    {u"h1 @media { a {} } b {}", "1Statement h1 @media | 2statement<1Statement a | 3Statement b"},
    {u"@MEDIA print { a {} } b {}", "1Statement @MEDIA print | 2Statement a | 3Statement b"},
    {u"@media print { @media screen { a {} } b {} } c {}",
     "1Statement @media print | 2Statement @media screen | 3Statement b | 4Statement c"},
});

struct StatementsCase {
    Texts statements;
    const char* dump;
};

const std::vector<StatementsCase> StatementLists = {
    {{}, ""},
    {{u""}, "1Statement "},
    {{u"@media print { a {} }", u"", u"b {}"}, "1Statement @media print | 2statement<1Statement  | 3Statement b"},
    {{u"/* @media a {} */", u"a {}", u"b {}"}, "1Statement /* @media a {} */ | 2statement<1Statement a | 3Statement b"},
    {{u"@import url(@media);", u"@media"}, "1Statement @import | 2Statement @media"},
    {{u"@media x { b {} a {} }", u"a {}", u"b {}", u"a {}"},
     "1Statement @media x | 2statement<1Statement a | 3statement<1Statement b | 4statement<1Statement a"},
    {{u"@media x", u"@media x { y {} }", u"media", u"@media x"},
     "1Statement @media x | 2Statement @media x | 3statement<2Statement media | 4Statement @media x"},
};

struct KeyCase {
    TextView key;
    int number;
};

constexpr auto Keys = std::to_array<KeyCase>({
    {u"12Statement", 12},
    {u"13statement", 13},
    {u"1Statement", 1},
    {u"32767statement", 32767},
    {u"0Statement", 0},
    {u"Statement", 0},
    {u"", 0},
    {u"12", 0},
    {u" 12Statement", 0},
    {u"-1Statement", 0},
    {u"12STATEMENT", 0},
    {u"12Statements", 0},
    {u"99999999999999999999Statement", 0},
});

struct RebuildCase {
    TextView shown;
    std::size_t statementCount;
    bool needsRebuild;
};

constexpr auto Rebuilds = std::to_array<RebuildCase>({
    {u"", 0, false},
    {u"", 1, true},
    {u"a {} b {}", 2, false},
    {u"a {} b {}", 3, true},
    {u"a {} b {}", 1, true},
    {u"a {} b {}", 0, true},
    {u"@media print { a {} b {} }", 3, false},
    {u"@media print { a {} b {} }", 1, true},
});

TEST(SelectorTree, ListsEachStatementAndThoseOfABlockBelowIt) {
    for (const StyleSheetCase& row : StyleSheets) {
        SCOPED_TRACE(Utf8FromText(row.css));
        EXPECT_EQ(Dump(TreeOf(row.css)), row.dump);
    }
}

TEST(SelectorTree, GoesByTheTextsOfTheStatementsAlone) {
    for (const StatementsCase& row : StatementLists) {
        SelectorTree tree;
        tree.SetSelectors(row.statements);
        EXPECT_EQ(Dump(tree), row.dump);
    }
}

TEST(SelectorTree, AKeyBeginsWithTheNumberOfItsStatement) {
    for (const KeyCase& row : Keys) {
        SCOPED_TRACE(Utf8FromText(row.key));
        EXPECT_EQ(NumberOfKey(row.key), row.number);
    }
}

TEST(SelectorTree, EveryNodeIsFoundByTheNumberInItsKey) {
    const SelectorTree tree = TreeOf(u"h1 {} @media print { a {} b {} } p {}");
    for (const SelectorNode& node : tree.Nodes())
        EXPECT_EQ(tree.FindNode(NumberOfKey(KeyOf(node))), &node);
    for (const int number : {-1, 0, 6, 32767})
        EXPECT_EQ(tree.FindNode(number), nullptr) << number;
}

TEST(SelectorTree, IsMadeAnewForAnotherNumberOfStatements) {
    for (const RebuildCase& row : Rebuilds) {
        SCOPED_TRACE(Utf8FromText(row.shown) + " and " + std::to_string(row.statementCount));
        EXPECT_EQ(TreeOf(row.shown).NeedsRebuild(row.statementCount), row.needsRebuild);
    }
}

TEST(SelectorTree, OneStatementMoreAndOneLessAreNotSeen) {
    EXPECT_FALSE(TreeOf(u"a {} b {}").NeedsRebuild(StatementsOf(u"b {} c {}").size()));
}

TEST(SelectorTree, ANodeKnowsTheTypeOfItsSelector) {
    SelectorTree tree = TreeOf(u"h1 {} @media print { .x {} #y {} }");
    EXPECT_EQ(tree.Nodes()[0].type, selector_type::Type);
    EXPECT_EQ(tree.Nodes()[1].type, selector_type::AtMedia);
    EXPECT_EQ(tree.Nodes()[2].type, selector_type::Class);
    EXPECT_EQ(tree.Nodes()[3].type, selector_type::ID);
    tree.Rename(3, u".x, .z");
    EXPECT_EQ(tree.Nodes()[2].type, selector_type::Group);
}

TEST(SelectorTree, RenamingChangesOneNodeAndNoKey) {
    SelectorTree tree = TreeOf(u"h1 {} @media print { a {} }");
    tree.Rename(3, u"a:hover");
    EXPECT_EQ(Dump(tree), "1Statement h1 | 2Statement @media print | 3statement<2Statement a:hover");
    tree.Rename(2, u"p");
    EXPECT_EQ(Dump(tree), "1Statement h1 | 2Statement p | 3statement<2Statement a:hover");
    for (const int number : {-1, 0, 4})
        tree.Rename(number, u"x");
    EXPECT_EQ(Dump(tree), "1Statement h1 | 2Statement p | 3statement<2Statement a:hover");
}

TEST(SelectorTree, AnAddedStatementRenumbersTheKeys) {
    SelectorTree tree = TreeOf(u"@media print { a {} } b {}");
    EXPECT_EQ(Dump(tree), "1Statement @media print | 2statement<1Statement a | 3Statement b");
    tree.SetSelectors(StatementsOf(u"h1 {} @media print { a {} } b {}"));
    EXPECT_EQ(Dump(tree), "1Statement h1 | 2Statement @media print | 3statement<2Statement a | 4Statement b");
    tree.Clear();
    EXPECT_EQ(Dump(tree), "");
}

TEST(SelectorTree, AStatementBeyondTheLengthLimitLeavesTheTreeAsItWas) {
    SelectorTree tree = TreeOf(u"h1 {}");
    EXPECT_THROW(tree.SetSelectors({u"p {}", Text(MaximumTextLength + 1, u'a')}), OverflowFailure);
    EXPECT_EQ(Dump(tree), "1Statement h1");
    tree.SetSelectors({Text(MaximumTextLength, u'a')});
    EXPECT_EQ(tree.Nodes().size(), 1U);
}

TEST(SelectorTree, TheTextTestFindsWhatAPlainSearchFinds) {
    std::mt19937 random(72);
    const auto piece = [&](std::size_t longest) {
        Text text(random() % (longest + 1), u' ');
        for (char16_t& unit : text)
            unit = static_cast<char16_t>(u'a' + static_cast<char16_t>(random() % 2U));
        return text;
    };
    for (int round = 0; round < 3000; ++round) {
        Texts statements = {u"@media " + piece(30)};
        for (int count = 0; count < 8; ++count)
            statements.push_back(piece(4));
        SelectorTree tree;
        tree.SetSelectors(statements);
        bool isInside = true;
        for (std::size_t index = 1; index < statements.size(); ++index) {
            isInside = isInside && statements[0].find(statements[index]) != Text::npos;
            ASSERT_EQ(tree.Nodes()[index].parent, isInside ? 1 : 0) << Utf8FromText(statements[0]) << " " << index;
        }
    }
}

TEST(SelectorTree, TheTextTestTakesNoLongerWhereEverythingRepeats) {
    // A plain search would compare some 25,000 million units here.
    constexpr std::size_t Half = MaximumTextLength / 2;
    SelectorTree tree;
    for (int round = 0; round < 100; ++round) {
        tree.SetSelectors({u"@media " + Text(MaximumTextLength - 7, u'a'), Text(Half, u'a') + u"b"});
        ASSERT_EQ(tree.Nodes()[1].parent, 0);
    }
}

}  // namespace
}  // namespace tintora::test
