#pragma once

#include "text/Text.h"

#include <vector>

/// Line ends: CR LF, CR and LF, each of which is one.
namespace tintora {

/// The first line end of a text; LF for a text that has none.
[[nodiscard]] TextView FirstLineEnd(TextView text) noexcept;

/// `text` with each of its line ends replaced by `lineEnd`.
[[nodiscard]] Text WithLineEnds(TextView text, TextView lineEnd);

/// The 0-based offset of each row. A text has one row more than it has line ends.
[[nodiscard]] std::vector<int> LineStarts(TextView text);

}  // namespace tintora
