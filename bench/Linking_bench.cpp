#include "linking/HtmlRewriting.h"
#include "linking/SiteWalk.h"
#include "text/Encoding.h"

#include <benchmark/benchmark.h>
#include <unistd.h>
#include <filesystem>
#include <fstream>
#include <string>

namespace tintora::bench {
namespace {

Text Page(std::size_t size) {
    Text page = u"<html>\n<head>\n<title>A page</title>\n</head>\n<body>\n";
    while (page.size() < size)
        page += u"<p class=\"text\">Some words of a page, and \u00e9 few others.</p>\n";
    return page + u"</body>\n</html>\n";
}

/// A site of pages that link nowhere, for as long as a benchmark runs.
class Site {
  public:
    explicit Site(int pages)
        : folder_(std::filesystem::temp_directory_path() / ("tintora-bench-" + std::to_string(::getpid()))) {
        std::filesystem::create_directory(folder_);
        const std::string bytes = EncodeText(Page(20'000), Encoding::Utf8).value();
        for (int number = 0; number < pages; ++number)
            std::ofstream(folder_ / (std::to_string(number) + ".html"), std::ios::binary) << bytes;
    }
    ~Site() { std::filesystem::remove_all(folder_); }
    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;

    [[nodiscard]] Text Path() const { return TextFromFileName(folder_.native()); }

  private:
    std::filesystem::path folder_;
};

void BM_PageWithLink(benchmark::State& state) {
    const Text page = Page(static_cast<std::size_t>(state.range(0)));
    const Text element = LinkElement(u"stylesheet", u"../main.css", u"");
    for (auto _ : state)
        benchmark::DoNotOptimize(PageWithLink(page, element));
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(page.size()));
}

/// One round links a site of 1,000 pages of 20 KB, each of them flushed to the disk.
void BM_LinkSite(benchmark::State& state) {
    const Site site(1000);
    const Text sheet = site.Path() + u"/main.css";
    for (auto _ : state) {
        Texts files;
        CollectFilesInFolder(files, site.Path());
        for (const Text& page : KeepHTMLFiles(files))
            LinkStyleSheetInHTMLFile(page, sheet, u"stylesheet", u"");
    }
}

BENCHMARK(BM_PageWithLink)->Arg(20'000)->Arg(200'000)->Arg(2'000'000);
BENCHMARK(BM_LinkSite)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace tintora::bench
