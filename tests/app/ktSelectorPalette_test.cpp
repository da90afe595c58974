#include "selectors/qt/ktSelectorPalette.h"

#include "SelectorPaletteFixture.h"
#include "selectors/SelectorCommands.h"
#include "selectors/StatementMark.h"

#include <gtest/gtest.h>
#include <QScrollBar>
#include <QSignalSpy>
#include <algorithm>
#include <ctime>
#include <limits>

namespace tintora::test {
namespace {

struct ListCase {
    TextView css;
    /// The rows with their keys, children in brackets.
    const char* rows;
};

const std::vector<ListCase> Lists = {
    {u"", ""},
    {u"h1 {} /* The End */", "1Statement h1, 2Statement /* the end */"},
    {u"h1,\n  h2 {}", "1Statement h1, h2"},
    {u"@media print { a {} b {} } c {}", "1Statement @media print (2statement a, 3statement b), 4Statement c"},
    {u"@media print { a {} } @media screen { b {} }",
     "1Statement @media print (2statement a), 3Statement @media screen (4statement b)"},
};

class ktSelectorPaletteTest : public SelectorPaletteTest {};

TEST_F(ktSelectorPaletteTest, ListsTheStatementsWithThoseOfABlockBelowIt) {
    for (const ListCase& row : Lists) {
        Fill(row.css);
        EXPECT_EQ(Rows(), QString::fromUtf8(row.rows));
        EXPECT_EQ(palette->CurrentSelector(), u"") << "nothing is selected";
    }
}

TEST_F(ktSelectorPaletteTest, ADoubleClickDoesNothingMoreWhereThereIsNothingToEditWith) {
    MakePalette([](TextView key) { return key != u"miSEdit"; });
    Fill(Sheet);
    DoubleClick(2);
    EXPECT_EQ(document.TakeCalls(), Calls{"StatementSelected 2"});
}

TEST_F(ktSelectorPaletteTest, WithoutADocumentNothingIsDone) {
    palette->SetFrontStyleSheet(nullptr);
    EXPECT_FALSE(palette->HasFrontStyleSheet());
    EXPECT_EQ(palette->GetFrontStyleSheet(), nullptr);
    Fill(Sheet);
    DoubleClick(2);
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(List().SelectedNumber(), 3);
    for (const SelectorItem& item : SelectorItems()) {
        EXPECT_FALSE(Item(Utf8FromText(item.key).c_str())->isEnabled());
        Item(Utf8FromText(item.key).c_str())->trigger();
    }
    EXPECT_EQ(document.calls, Calls{});
}

// Filling anew.

/// Counts what happens to the rows.
struct RowChanges {
    explicit RowChanges(const SelectorList& list)
        : changed(list.model(), &QAbstractItemModel::dataChanged),
          reset(list.model(), &QAbstractItemModel::modelReset),
          inserted(list.model(), &QAbstractItemModel::rowsInserted) {}

    QSignalSpy changed;
    QSignalSpy reset;
    QSignalSpy inserted;
};

TEST_F(ktSelectorPaletteTest, TypingInASelectorTouchesOneNode) {
    Fill(Sheet);
    palette->SelectStatement(5);
    RowChanges changes(List());
    Update(u"h1 {} p {} @media print { a {} b:hover {} } ul {}", u"b:hover");
    EXPECT_EQ(palette->CurrentSelector(), u"b:hover");
    EXPECT_EQ(Rows(),
              "1Statement h1, 2Statement p, 3Statement @media print (4statement a, 5statement b:hover), "
              "6Statement ul");
    EXPECT_EQ(changes.reset.count() + changes.inserted.count(), 0);
    EXPECT_GT(changes.changed.count(), 0);
    for (const QList<QVariant>& change : changes.changed) {
        EXPECT_EQ(change[0].toModelIndex().data(), QVariant("b:hover"));
        EXPECT_EQ(change[0], change[1]);
    }
}

TEST_F(ktSelectorPaletteTest, ARenamedNodeGetsTheMarkOfItsSelector) {
    Fill(u"h1 {} p {}");
    palette->SelectStatement(2);
    palette->UpdateCurrentSelector(u"p, \r\nh2");
    EXPECT_EQ(Row(2)->data(0, selector_role::Mark).toInt(), static_cast<int>(StatementMark::Group));
    EXPECT_EQ(Row(2)->text(0), "p, h2");
    EXPECT_EQ(palette->CurrentSelector(), u"p, \r\nh2");
}

TEST_F(ktSelectorPaletteTest, WithNothingSelectedNoNodeIsRenamed) {
    Fill(u"h1 {} p {}");
    palette->UpdateCurrentSelector(u"x");
    Update(u"h2 {} p {}", u"h2");
    EXPECT_EQ(Rows(), "1Statement h1, 2Statement p");
}

TEST_F(ktSelectorPaletteTest, AnotherNumberOfStatementsRenumbersTheKeys) {
    Update(u"h1 {} @media print { a {} }", u"h1");
    EXPECT_EQ(Rows(), "1Statement h1, 2Statement @media print (3statement a)");
    palette->SelectStatement(3);
    Update(u"h1 {} h2 {} @media print { a {} }", u"a");
    EXPECT_EQ(Rows(), "1Statement h1, 2Statement h2, 3Statement @media print (4statement a)");
    EXPECT_EQ(List().SelectedNumber(), 0) << "the document selects it again";
    Update(u"", u"");
    EXPECT_EQ(Rows(), QString());
}

TEST_F(ktSelectorPaletteTest, OneStatementMoreAndOneLessLeaveAStaleText) {
    Update(u"h1 {} p {}", u"h1");
    Update(u"p {} ul {}", u"p");
    EXPECT_EQ(Rows(), "1Statement h1, 2Statement p");
    palette->SelectStatement(1);
    Update(u"p {} ul {}", u"p");
    EXPECT_EQ(Rows(), "1Statement p, 2Statement p") << "the selected node is mended";
}

TEST_F(ktSelectorPaletteTest, AnotherDocumentFillsTheListAnew) {
    Update(u"h1 {} p {}", u"h1");
    palette->SelectStatement(1);
    RecordingStyleSheet other;
    palette->SetFrontStyleSheet(&other);
    EXPECT_EQ(palette->GetFrontStyleSheet(), &other);
    EXPECT_EQ(Rows(), QString()) << "no list of one document over another";
    Update(u"ul {} li {}", u"ul");
    EXPECT_EQ(Rows(), "1Statement ul, 2Statement li");
    Click(2);
    EXPECT_EQ(other.calls, Calls{"StatementSelected 2"});
    palette->SetFrontStyleSheet(&other);
    EXPECT_EQ(Rows(), "1Statement ul, 2Statement li") << "the same one changes nothing";
    EXPECT_EQ(palette->CurrentSelector(), u"li");
    EXPECT_EQ(document.calls, Calls{});
}

TEST_F(ktSelectorPaletteTest, AListFilledAnewStaysWhereItIsScrolled) {
    Fill(ManyRules(100));
    List().verticalScrollBar()->setValue(333);
    ASSERT_EQ(List().verticalScrollBar()->value(), 333);
    Fill(ManyRules(101));
    QApplication::processEvents();
    EXPECT_EQ(List().verticalScrollBar()->value(), 333);
    Fill(ManyRules(2));
    QApplication::processEvents();
    EXPECT_EQ(List().verticalScrollBar()->value(), 0);
    Fill(ManyRules(100));
    List().verticalScrollBar()->setValue(333);
    RecordingStyleSheet other;
    palette->SetFrontStyleSheet(&other);
    Fill(ManyRules(100));
    QApplication::processEvents();
    EXPECT_EQ(List().verticalScrollBar()->value(), 0) << "that of another document begins at its top";
}

TEST_F(ktSelectorPaletteTest, AListFilledAnewKeepsItsFocus) {
    Fill(Sheet);
    List().setFocus();
    Fill(ManyRules(3));
    EXPECT_TRUE(List().hasFocus());
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(document.calls, Calls{"StatementSelected 1"});
}

TEST_F(ktSelectorPaletteTest, AListFilledAnewKeepsItsBlocksFolded) {
    Fill(u"@media print { a {} } @media screen { b {} } @media print { c {} }");
    EXPECT_TRUE(Row(1)->isExpanded() && Row(3)->isExpanded() && Row(5)->isExpanded());
    Row(1)->setExpanded(false);
    Row(5)->setExpanded(false);
    palette->UpdateCurrentSelector(u"x");
    Fill(u"h1 {} @media print { a {} } @media screen { b {} d {} } @media print { c {} }");
    EXPECT_EQ(List().FoldedBlocks(), (std::vector<int>{2, 7}));
    EXPECT_TRUE(Row(4)->isExpanded());
}

TEST_F(ktSelectorPaletteTest, ASelectedStatementComesIntoView) {
    Fill(ManyRules(100));
    palette->SelectStatement(90);
    EXPECT_TRUE(IsInView(90));
    EXPECT_FALSE(IsInView(1));
    palette->SelectStatement(1);
    EXPECT_TRUE(IsInView(1));
    Fill(Sheet);
    Row(3)->setExpanded(false);
    palette->SelectStatement(5);
    EXPECT_TRUE(Row(3)->isExpanded());
    EXPECT_TRUE(IsInView(5));
}

// The window.

TEST_F(ktSelectorPaletteTest, RemembersTheCaptionOfItsDocument) {
    EXPECT_EQ(palette->StyleSheetWindow(), u"");
    palette->RegisterStyleSheet(u"a.css");
    palette->RegisterStyleSheet(u"b.css");
    EXPECT_EQ(palette->StyleSheetWindow(), u"b.css");
    palette->UnRegisterStyleSheet(u"a.css");
    EXPECT_EQ(palette->StyleSheetWindow(), u"");
}

TEST_F(ktSelectorPaletteTest, AsksTheMainWindowToShowItsPane) {
    const QSignalSpy asked(palette.get(), &ktSelectorPalette::ShowFloatingWindow);
    palette->MakeTopmost();
    EXPECT_EQ(asked.count(), 0);
    palette->ShowWindow();
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked[0][0].toString(), "dwSelectorsEditor");
    palette->hide();
    EXPECT_TRUE(palette->IsOpen()) << "it is kept up to date while it is hidden";
}

// Speed.

/// The processor's time of the quickest of some rounds, in milliseconds.
template <typename Work>
double MillisecondsOf(Work work) {
    auto shortest = std::numeric_limits<std::clock_t>::max();
    for (int round = 0; round < 3; ++round) {
        const std::clock_t start = std::clock();
        work();
        shortest = std::min(shortest, std::clock() - start);
    }
    return 1000.0 * static_cast<double>(shortest) / CLOCKS_PER_SEC;
}

TEST_F(ktSelectorPaletteTest, AFullStyleSheetIsListedQuickly) {
    const Text rules = ManyRules(2500);
    for (const Text& css : {rules, u"@media print {\n" + rules + u"}"}) {
        const Texts statements = StatementsOf(css);
        ASSERT_GE(statements.size(), 2500U);
        EXPECT_LT(MillisecondsOf([&] { palette->SetSelectors(statements); }), 100);
        const auto selectEach = [&] {
            for (int number = 1; number <= 2500; ++number)
                palette->SelectStatement(number);
        };
        EXPECT_LT(MillisecondsOf(selectEach), 250);
    }
}

}  // namespace
}  // namespace tintora::test
