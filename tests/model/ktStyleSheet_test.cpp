#include "model/ktStyleSheet.h"

#include "TextHolder.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace tintora {
namespace {

using test::CachedSheet;
using test::TextHolder;

/// A window whose text can't be had.
class FailingHolder final : public StyleSheetTextSource {
  public:
    [[nodiscard]] Text GetText() const override { throw std::runtime_error("no text"); }
    void LoadContent(TextView) override {}
};

TEST(ktStyleSheet, ANewOneIsEmpty) {
    const ktStyleSheet sheet;
    EXPECT_EQ(sheet.File(), u"");
    EXPECT_EQ(sheet.GetStyleSheetText(), u"");
    EXPECT_TRUE(sheet.GetAllStatementsAsTextUnstripped().empty());
    EXPECT_TRUE(sheet.GetAllStatementsAsText().empty());
    EXPECT_EQ(sheet.GetStatementNumber(0), 0);
    EXPECT_EQ(sheet.getStatementFromSelection(0), u"");
}

TEST(ktStyleSheet, OpeningStoresThePathAndLoadsIntoTheWindowWithoutScanning) {
    TextHolder window(u"a {}");
    ktStyleSheet sheet;
    sheet.setWindow(&window);
    sheet.OpenStyleSheet(u"/site/a.css");
    EXPECT_EQ(sheet.File(), u"/site/a.css");
    EXPECT_EQ(window.LoadedFile(), u"/site/a.css");
    EXPECT_TRUE(sheet.GetAllStatementsAsTextUnstripped().empty());
}

TEST(ktStyleSheet, OpeningWithoutAWindowStoresThePath) {
    ktStyleSheet sheet;
    sheet.OpenStyleSheet(u"a.css");
    EXPECT_EQ(sheet.File(), u"a.css");
}

TEST(ktStyleSheet, AWindowThatFailsHasNoText) {
    FailingHolder window;
    ktStyleSheet sheet;
    sheet.setWindow(&window);
    EXPECT_EQ(sheet.GetStyleSheetText(), u"");
    sheet.CacheStatements();
    EXPECT_TRUE(sheet.GetAllStatementsAsTextUnstripped().empty());
}

TEST(ktStyleSheet, TheCacheIsASnapshot) {
    TextHolder window(u"a {}");
    ktStyleSheet sheet;
    sheet.setWindow(&window);
    sheet.CacheStatements();
    window.SetText(u"b {} c {}");
    EXPECT_EQ(sheet.GetAllStatementsAsTextUnstripped(), Texts{u"a {}"});
    sheet.CacheStatements();
    EXPECT_EQ(sheet.GetAllStatementsAsTextUnstripped(), (Texts{u"b {} ", u"c {}"}));
}

TEST(ktStyleSheet, AGivenTextGoesBeforeTheWindows) {
    TextHolder window(u"a {}");
    ktStyleSheet sheet;
    sheet.setWindow(&window);
    sheet.CacheStatements(u"x {}");
    EXPECT_EQ(sheet.GetAllStatementsAsTextUnstripped(), Texts{u"x {}"});
    sheet.CacheStatements(u"");
    EXPECT_EQ(sheet.GetAllStatementsAsTextUnstripped(), Texts{u"a {}"});
}

TEST(ktStyleSheet, AFailedScanLeavesTheCacheAsItWas) {
    ktStyleSheet sheet;
    sheet.CacheStatements(u"a {}");
    EXPECT_THROW(sheet.CacheStatements(Text(MaximumTextLength + 1, u'}')), OverflowFailure);
    EXPECT_EQ(sheet.GetAllStatementsAsTextUnstripped(), Texts{u"a {}"});
}

TEST(ktStyleSheet, EntriesByNumber) {
    CachedSheet sheet(u" a {} \n b {} ");
    EXPECT_EQ(sheet->GetAllStatementsAsText(), (Texts{u"a {}", u"b {}"}));
    EXPECT_EQ(sheet->getNthStatementAsTextUnstripped(0), u" a {} \n ");
    EXPECT_EQ(sheet->getNthStatementAsText(0), u"a {}");
    EXPECT_EQ(sheet->getNthStatementAsText(1), u"b {}");
    for (const int n : {-1, 2, 1000}) {
        EXPECT_EQ(sheet->getNthStatementAsText(n), u"");
        EXPECT_EQ(sheet->getNthStatementAsTextUnstripped(n), u"");
    }
    EXPECT_THROW(static_cast<void>(sheet->getNthStatementAsText(-2)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(sheet->getNthStatementAsTextUnstripped(-2)), std::out_of_range);
}

TEST(ktStyleSheet, TheStatementAtAPosition) {
    CachedSheet sheet(u" a {} \n b {} ");
    EXPECT_EQ(sheet->getStatementFromSelection(0), u"a {}");
    EXPECT_EQ(sheet->getStatementFromSelection(9), u"b {}");
    EXPECT_EQ(sheet->getStatementFromSelection(100), u"b {}");
}

TEST(ktStyleSheet, WhitespaceOfATextEnd) {
    const ktStyleSheet sheet;
    EXPECT_EQ(sheet.stripLeftWS(u" \t a b "), u"a b ");
    EXPECT_EQ(sheet.stripLeftWS(u" \n"), u"");
    EXPECT_EQ(sheet.stripRightWS(u" a b \f\r"), u" a b");
    EXPECT_EQ(sheet.stripRightWS(u" \n"), u"");
    EXPECT_EQ(sheet.GetLeadingWhitespace(u" \t\na "), u" \t\n");
    EXPECT_EQ(sheet.GetLeadingWhitespace(u"a "), u"");
    EXPECT_EQ(sheet.GetLeadingWhitespace(u" \t\n"), u"") << "a text of nothing else has none";
    const Text beyond(MaximumTextLength + 1, u' ');
    EXPECT_THROW(static_cast<void>(sheet.stripLeftWS(beyond)), OverflowFailure);
    EXPECT_THROW(static_cast<void>(sheet.stripRightWS(beyond)), OverflowFailure);
    EXPECT_THROW(static_cast<void>(sheet.GetLeadingWhitespace(beyond)), OverflowFailure);
}

TEST(ktStyleSheet, OneCharacterIsWhitespaceOrNot) {
    const ktStyleSheet sheet;
    for (const char16_t unit : {u'\t', u'\n', u'\f', u'\r', u' '})
        EXPECT_TRUE(sheet.isWhitespace(TextView(&unit, 1)));
    for (const char16_t unit : {u'\v', u'a', u'\0', u'\u00a0', u'\u2028'})
        EXPECT_FALSE(sheet.isWhitespace(TextView(&unit, 1)));
    EXPECT_THROW(static_cast<void>(sheet.isWhitespace(u"")), std::invalid_argument);
}

TEST(ktStyleSheet, TheVariantsScanTheWindowsTextAnew) {
    TextHolder window(u"a { b: \"\\\"}\"; } c {}");
    ktStyleSheet sheet;
    sheet.setWindow(&window);
    EXPECT_EQ(sheet.GetAllStatementsAsTextUnstripped1(), (Texts{u"a { b: \"\\\"}", u"\"; } ", u"c {}"}));
    EXPECT_EQ(sheet.GetAllStatementsAsTextUnstrippedLeading(), (Texts{u"a { b: \"\\\"}", u"\"; }", u" c {}"}));
    EXPECT_TRUE(sheet.GetAllStatementsAsTextUnstripped().empty());
    EXPECT_EQ(sheet.GetAtMediaStatements(u"@media p { a {} }"), Texts{u"a {} "});
    EXPECT_EQ(sheet.GetAtMediaStatements1(u"@media p { a {} }"), Texts{u" a {}"});
}

}  // namespace
}  // namespace tintora
