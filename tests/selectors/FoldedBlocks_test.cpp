#include "selectors/FoldedBlocks.h"

#include "TreeDump.h"

#include <gtest/gtest.h>

namespace tintora::test {
namespace {

using Numbers = std::vector<int>;

struct FoldCase {
    TextView before;
    Numbers folded;
    TextView now;
    Numbers found;
};

const std::vector<FoldCase> Folds = {
    {u"", {}, u"", {}},
    {u"", {1}, u"@media print { a {} }", {}},
    {u"@media print { a {} }", {}, u"@media print { a {} }", {}},
    {u"@media print { a {} }", {1}, u"@media print { a {} }", {1}},
    // It is found where it stands now, with what it holds now.
    {u"@media print { a {} }", {1}, u"h1 {} @media print { b {} c {} }", {2}},
    {u"@media print { a {} } @media screen { a {} }", {3}, u"@media screen { a {} } @media print { a {} }", {1}},
    // One that is gone or has another text isn't found.
    {u"@media print { a {} }", {1}, u"h1 {}", {}},
    {u"@media print { a {} }", {1}, u"@media screen { a {} }", {}},
    // Among equal texts the place tells.
    {u"@media print { a {} } @media print { b {} }", {3}, u"h1 {} @media print { a {} } @media print { b {} }", {4}},
    {u"@media print { a {} } @media print { b {} }", {3}, u"@media print { b {} }", {}},
    {u"@media print { a {} } @media print { b {} }", {3, 1}, u"@media print { a {} } @media print { b {} }", {1, 3}},
    // What is no block isn't folded.
    {u"h1 {} @media print { a {} }", {1, 3, 9}, u"h1 {} @media print { a {} }", {}},
};

TEST(FoldedBlocks, AreFoundAgainByTheirTextsAndPlaces) {
    for (const FoldCase& row : Folds) {
        SCOPED_TRACE(Utf8FromText(row.before) + " -> " + Utf8FromText(row.now));
        EXPECT_EQ(FindBlocksAgain(TreeOf(row.before), row.folded, TreeOf(row.now)), row.found);
    }
}

}  // namespace
}  // namespace tintora::test
