#include "Sheets.h"
#include "preview/PreviewMaking.h"
#include "settings/MemorySettingsStore.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace tintora::bench {
namespace {

constexpr std::size_t SheetLength = 30'000;

/// A document of the usual size that has never been saved.
class UnsavedSheet final : public PreviewedDocument {
  public:
    [[nodiscard]] Text GetFile() const override { return {}; }
    [[nodiscard]] Text GetText() const override { return text_; }
    [[nodiscard]] Encoding FileEncoding() const override { return Encoding::Utf8; }
    [[nodiscard]] Texts GetCurrentStatementProperties() const override { return {u"color: red;"}; }

  private:
    Text text_ = VariedSheet(SheetLength);
};

/// A program's folder with a default page of `size` bytes, for as long as a benchmark runs.
class ProgramFolder {
  public:
    explicit ProgramFolder(std::size_t size)
        : path_(std::filesystem::temp_directory_path() / ("tintora-bench-" + std::to_string(::getpid()))) {
        std::filesystem::create_directories(path_ / "Help_Files/Preview");
        std::string page = "<html><head></head><body>\n";
        while (page.size() < size)
            page += "<p class=\"text\">Some words of a page, and <a href=\"x.html\">a link</a>.</p>\n";
        std::ofstream(path_ / "Help_Files/Preview/default.html") << page;
    }
    ~ProgramFolder() { std::filesystem::remove_all(path_); }
    ProgramFolder(const ProgramFolder&) = delete;
    ProgramFolder& operator=(const ProgramFolder&) = delete;

    [[nodiscard]] PreviewFolders Folders() const {
        const Text path = TextFromFileName(path_.native());
        return {path, path};
    }

  private:
    std::filesystem::path path_;
};

/// One round makes both files of a preview and deletes those of the one before.
void BM_MakePreview(benchmark::State& state) {
    const ProgramFolder folder(static_cast<std::size_t>(state.range(0)));
    MemorySettingsStore store;
    PreviewMaking making(store, folder.Folders(), std::chrono::system_clock::now);
    const UnsavedSheet sheet;
    for (auto _ : state) {
        benchmark::DoNotOptimize(making.MakePreview(sheet));
        making.ToDelete().PurgeFilesToDelete();
    }
}

BENCHMARK(BM_MakePreview)->Arg(20'000)->Arg(200'000)->Arg(10'000'000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace tintora::bench
