#include "selectors/StatementMark.h"

#include "model/SelectorText.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <array>

namespace tintora {
namespace {

struct MarkCase {
    TextView selector;
    StatementMark mark;
};

constexpr auto Marks = std::to_array<MarkCase>({
    {u"", StatementMark::None},
    {u"  ", StatementMark::None},
    {u"h1", StatementMark::Type},
    {u"*", StatementMark::Type},
    {u"h1:unknown", StatementMark::Type},
    {u".note", StatementMark::Class},
    {u"p.note", StatementMark::Class},
    {u"#nav", StatementMark::ID},
    {u"h1, h2", StatementMark::Group},
    {u"ul li", StatementMark::Combination},
    {u"ul > li", StatementMark::Combination},
    {u"h1 + p", StatementMark::Combination},
    {u"a:visited", StatementMark::PseudoClass},
    {u"p:hover", StatementMark::PseudoClass},
    {u"q:lang(fr)", StatementMark::PseudoClass},
    {u"p:first-line", StatementMark::PseudoClass},
    {u"p:before", StatementMark::PseudoClass},
    {u"li:first-child", StatementMark::PseudoClass},
    {u"a[title]", StatementMark::Attribute},
    {u"@import", StatementMark::AtRule},
    {u"@media print", StatementMark::AtRule},
    {u"@media print, screen", StatementMark::AtRule},
    {u"@page", StatementMark::AtRule},
    {u"@font-face", StatementMark::AtRule},
    {u"\n@charset \"x\";\nh1, h2", StatementMark::AtRule},
    {u"/* note */", StatementMark::Comment},
    {u"/* a, b */", StatementMark::Comment},
});

TEST(StatementMark, SaysTheKindOfAStatement) {
    for (const MarkCase& row : Marks)
        EXPECT_EQ(MarkOf(GetSelectorType(row.selector), row.selector), row.mark) << Utf8FromText(row.selector);
}

TEST(StatementMark, ATypeThatDoesNotExistHasNone) {
    for (const int type : {-1, 19, 1000})
        EXPECT_EQ(MarkOf(type, u"h1"), StatementMark::None) << type;
}

}  // namespace
}  // namespace tintora
