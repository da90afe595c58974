#pragma once

#include "text/Text.h"

/// Style sheets for the benchmarks, each cut or filled up to exactly `length` units.
namespace tintora::bench {

/// Rules, comments and selectors of the kinds that people write.
[[nodiscard]] Text VariedSheet(std::size_t length);

/// Rules of 13 units each: 2,500 of them in the longest style sheet.
[[nodiscard]] Text SmallRules(std::size_t length);

/// `@media` blocks with two rules each: 300 of them in the longest style sheet.
[[nodiscard]] Text MediaBlocks(std::size_t length);

}  // namespace tintora::bench
