#include "PlainScan.h"

namespace tintora::bench {

std::size_t CountBraces(TextView text) {
    std::size_t braces = 0;
    bool inComment = false;
    char16_t previous = 0;
    for (const char16_t unit : text) {
        if (inComment) {
            if (previous == u'*' && unit == u'/')
                inComment = false;
        } else if (previous == u'/' && unit == u'*') {
            inComment = true;
        } else if (unit == u'{' || unit == u'}') {
            ++braces;
        }
        // The compiler mustn't look at several characters together.
        benchmark::DoNotOptimize(previous = unit);
    }
    return braces;
}

void RunPlainScan(benchmark::State& state, TextView text) {
    for (auto _ : state)
        benchmark::DoNotOptimize(CountBraces(text));
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

}  // namespace tintora::bench
