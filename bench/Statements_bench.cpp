#include "PlainScan.h"
#include "Sheets.h"
#include "model/ktStyleSheet.h"
#include "text/Narrowing.h"

#include <benchmark/benchmark.h>

namespace tintora::bench {
namespace {

using MakeSheet = Text (*)(std::size_t);

void BM_PlainScan(benchmark::State& state, MakeSheet make) {
    RunPlainScan(state, make(static_cast<std::size_t>(state.range(0))));
}

void BM_CacheStatements(benchmark::State& state, MakeSheet make) {
    const Text text = make(static_cast<std::size_t>(state.range(0)));
    ktStyleSheet sheet;
    for (auto _ : state)
        sheet.CacheStatements(text);
    state.counters["statements"] = static_cast<double>(sheet.GetAllStatementsAsTextUnstripped().size());
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void BM_GetStatementNumber(benchmark::State& state, MakeSheet make) {
    const Text text = make(static_cast<std::size_t>(state.range(0)));
    ktStyleSheet sheet;
    sheet.CacheStatements(text);
    const int last = static_cast<int>(text.rfind(u'{'));
    for (auto _ : state)
        benchmark::DoNotOptimize(sheet.GetStatementNumber(last));
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

constexpr auto Longest = static_cast<std::int64_t>(MaximumTextLength);

#define TINTORA_ON_EACH_SHEET(operation)                                        \
    BENCHMARK_CAPTURE(operation, varied, VariedSheet)->Arg(4096)->Arg(Longest); \
    BENCHMARK_CAPTURE(operation, small, SmallRules)->Arg(4096)->Arg(Longest);   \
    BENCHMARK_CAPTURE(operation, media, MediaBlocks)->Arg(4096)->Arg(Longest)

TINTORA_ON_EACH_SHEET(BM_PlainScan);
TINTORA_ON_EACH_SHEET(BM_CacheStatements);
TINTORA_ON_EACH_SHEET(BM_GetStatementNumber);

}  // namespace
}  // namespace tintora::bench
