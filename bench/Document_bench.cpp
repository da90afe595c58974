#include "PlainScan.h"
#include "Sheets.h"
#include "cli/HeadlessDocument.h"
#include "document/Formatter.h"
#include "settings/MemorySettingsStore.h"
#include "text/Narrowing.h"

#include <benchmark/benchmark.h>

// A document with no window, over the text control in memory.

namespace tintora::bench {
namespace {

using MakeSheet = Text (*)(std::size_t);

constexpr auto Longest = static_cast<std::int64_t>(MaximumTextLength);
constexpr std::size_t RoomToGrow = 64;

class OpenDocument {
  public:
    OpenDocument(MakeSheet make, benchmark::State& state)
        : text_(make(static_cast<std::size_t>(state.range(0)) - RoomToGrow)) {
        document_.Open(text_);
        // In the last rule, where everything has to be walked.
        const auto caret = static_cast<int>(text_.rfind(u'{')) + 1;
        document_.Window().SetSelection(caret, caret);
        document_.Window().SelectionChangedEvent(caret);
        static_cast<void>(document_.TakeCalls());
    }

    [[nodiscard]] cli::HeadlessDocument& Document() { return document_; }
    [[nodiscard]] ktStyleSheetWindow& Window() { return document_.Window(); }
    [[nodiscard]] const Text& SheetText() const { return text_; }

  private:
    MemorySettingsStore settings_;
    cli::HeadlessDocument document_{settings_};
    Text text_;
};

void BM_ChangeCurrentProperty(benchmark::State& state, MakeSheet make) {
    OpenDocument open(make, state);
    bool isRed = false;
    for (auto _ : state) {
        isRed = !isRed;
        open.Window().ChangeCurrentProperty(u"color", isRed ? u"red" : u"tan");
        static_cast<void>(open.Document().TakeCalls());
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * open.SheetText().size()));
}

void BM_SelectionChangedEvent(benchmark::State& state, MakeSheet make) {
    OpenDocument open(make, state);
    const int last = open.Window().GetSelectionStart();
    for (auto _ : state) {
        // Of the last statement everything is brought up to date each time.
        open.Window().SelectionChangedEvent(last);
        static_cast<void>(open.Document().TakeCalls());
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * open.SheetText().size()));
}

void BM_FormatStyleSheetText(benchmark::State& state, MakeSheet make) {
    const Text text = make(static_cast<std::size_t>(state.range(0)));
    ktStyleSheet sheet;
    sheet.CacheStatements(text);
    const Separators separators{u"\r\r", u"\r", u" ", u"", u""};
    for (auto _ : state)
        benchmark::DoNotOptimize(FormattedStyleSheet(sheet, separators, MediaBlockFormat::FormatNested));
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

#define TINTORA_ON_EACH_SHEET(operation)                             \
    BENCHMARK_CAPTURE(operation, varied, VariedSheet)->Arg(Longest); \
    BENCHMARK_CAPTURE(operation, small, SmallRules)->Arg(Longest);   \
    BENCHMARK_CAPTURE(operation, media, MediaBlocks)->Arg(Longest)

TINTORA_ON_EACH_SHEET(BM_ChangeCurrentProperty);
TINTORA_ON_EACH_SHEET(BM_SelectionChangedEvent);
TINTORA_ON_EACH_SHEET(BM_FormatStyleSheetText);

}  // namespace
}  // namespace tintora::bench
