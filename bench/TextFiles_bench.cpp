#include "PlainScan.h"
#include "Sheets.h"
#include "linking/TextFiles.h"
#include "text/Narrowing.h"

#include <benchmark/benchmark.h>
#include <unistd.h>
#include <filesystem>
#include <fstream>

namespace tintora::bench {
namespace {

/// A file with a text, in UTF-8 or windows-1252, for as long as a benchmark runs.
class BenchFile {
  public:
    BenchFile(TextView text, Encoding encoding)
        : path_(std::filesystem::temp_directory_path() / ("tintora-bench-" + std::to_string(::getpid()) + ".css")) {
        std::ofstream(path_, std::ios::binary) << EncodeText(text, encoding).value();
    }
    ~BenchFile() { std::filesystem::remove(path_); }
    BenchFile(const BenchFile&) = delete;
    BenchFile& operator=(const BenchFile&) = delete;

    [[nodiscard]] Text Path() const { return TextFromFileName(path_.native()); }

  private:
    std::filesystem::path path_;
};

void BM_ReadTextFile(benchmark::State& state, Encoding encoding) {
    Text text = VariedSheet(MaximumTextLength);
    for (std::size_t index = 0; index < text.size(); index += 50)
        text[index] = u'\u00e9';
    const BenchFile file(text, encoding);
    const Text path = file.Path();
    for (auto _ : state)
        benchmark::DoNotOptimize(ReadTextFile(path));
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

BENCHMARK_CAPTURE(BM_ReadTextFile, utf8, Encoding::Utf8);
BENCHMARK_CAPTURE(BM_ReadTextFile, windows1252, Encoding::Windows1252);

}  // namespace
}  // namespace tintora::bench
