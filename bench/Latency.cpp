#include "Latency.h"

#include <algorithm>
#include <cstdio>

namespace tintora::bench {

void PrintFigures(const char* what, std::vector<double> milliseconds) {
    std::sort(milliseconds.begin(), milliseconds.end());
    const std::size_t last = milliseconds.size() - 1;
    std::printf("%-44s median %6.2f   99th percentile %6.2f   worst %6.2f\n", what, milliseconds[last / 2],
                milliseconds[last * 99 / 100], milliseconds[last]);
}

}  // namespace tintora::bench
