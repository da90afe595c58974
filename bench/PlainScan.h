#pragma once

#include "text/Text.h"

#include <benchmark/benchmark.h>

namespace tintora::bench {

/// What all figures are ratios of: one pass over the text, a character at a time, that counts braces outside of
/// comments.
[[nodiscard]] std::size_t CountBraces(TextView text);

/// Runs `CountBraces` over `text` as the body of a benchmark.
void RunPlainScan(benchmark::State& state, TextView text);

}  // namespace tintora::bench
