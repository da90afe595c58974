#pragma once

#include "model/StatementScan.h"
#include "text/Text.h"

#include <vector>

/// Where a 0-based offset into the text lies in terms of the cached statements.
///
/// The walks add up the lengths of the entries. An `@media` block counts with its header only, and its nested
/// statements follow it; so the block's closing brace and the white space behind it belong to no entry, and an offset
/// there is answered with the entry behind the block.
namespace tintora {

/// Where a walk over the entries ended.
struct StatementPlace {
    /// The 1-based number at which the walk stopped; beyond the count if it didn't.
    int number = 1;
    /// The sum of the lengths in front of that entry, but 1 where the walk stopped in the first pass.
    int start = 1;
    bool stopped = false;
};

/// Passes over each block that ends at or before `position`, with as many entries as it has nested statements.
[[nodiscard]] StatementPlace WalkToPosition(const std::vector<StatementExtent>& extents, int position);

/// How much of a block counts as its header.
enum class HeaderWhitespace { Counts, DoesNotCount };

/// Enters each block, wherever `position` lies.
[[nodiscard]] StatementPlace WalkIntoBlocks(const Texts& statements, int position, HeaderWhitespace whitespace);

/// The statement around a 1-based position, found in the text itself: from behind the nearest "}", "*/" or the "@" of
/// an
/// "@import" in front, through the next "}" or "*/". Where none follows, the last character of the text is left out.
[[nodiscard]] Text StatementAround(TextView text, int position);

}  // namespace tintora
