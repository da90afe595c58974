#pragma once

#include "selectors/SelectorTree.h"

#include <vector>

namespace tintora {

/// The blocks of `now` that are those of `before` with the numbers `folded`, in order, so that a list that is filled
/// anew keeps them folded.
///
/// A block is known by its text, and among blocks of one text by its place among them: the second `@media print` is the
/// second again. One that is gone, or whose text has changed, isn't found. Numbers that no block has are passed over.
[[nodiscard]] std::vector<int> FindBlocksAgain(const SelectorTree& before, const std::vector<int>& folded,
                                               const SelectorTree& now);

}  // namespace tintora
