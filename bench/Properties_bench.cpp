#include "PlainScan.h"
#include "Sheets.h"
#include "cli/HeadlessDocument.h"
#include "model/DeclarationText.h"
#include "properties/EditedStyleSheet.h"
#include "properties/GroupEditor.h"
#include "properties/GroupEditors.h"
#include "settings/MemorySettingsStore.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>

// The palette of properties over controls that only remember, in a rule of forty declarations at the end of a style
// sheet of the usual size.

namespace tintora::bench {
namespace {

constexpr std::size_t SheetLength = 30'000;

constexpr TextView Rule =
    u"#page ul.menu li:before {\n"
    u"    color: #8c4a1f;\n    font: italic bold 12px/1.5 \"Times New Roman\", Georgia, serif;\n"
    u"    text-decoration: underline overline;\n    letter-spacing: 0.1em;\n    word-spacing: -1px;\n"
    u"    text-indent: 2em;\n    vertical-align: text-bottom;\n    text-align: justify;\n"
    u"    background: #fff url(images/corner.gif) no-repeat fixed 10px 20px;\n    margin: 0 auto 1.2em 4px;\n"
    u"    padding: 0.5em 1em;\n    padding-left: 3px;\n    border: 1px solid #d9a566;\n"
    u"    border-left-color: rgb(200, 100, 0);\n    border-bottom: thick double navy;\n    position: absolute;\n"
    u"    top: 10%;\n    left: -3px;\n    width: 40em;\n    height: auto;\n    min-width: 10em;\n"
    u"    max-width: 60em;\n    visibility: visible;\n    z-index: 3;\n    display: list-item;\n"
    u"    list-style-type: lower-roman;\n    list-style-image: url(images/dot.png);\n    white-space: nowrap;\n"
    u"    border-spacing: 1px 2px;\n    table-layout: fixed;\n    text-transform: capitalize;\n"
    u"    unicode-bidi: embed;\n    overflow: hidden;\n    float: left;\n    clip: rect(1px 2px 3px 4px);\n"
    u"    cursor: help;\n    outline: 2px dotted #000;\n    page-break-before: avoid;\n"
    u"    quotes: \"<\" \">\" '(' ')';\n    content: \"a b\" attr(title) open-quote;\n}\n";

Text SheetWithRule() { return VariedSheet(SheetLength - Rule.size()) + Text(Rule); }

/// Controls that remember the last value.
class RecordedControls final : public EditorControls {
  public:
    void Clear() override { values_.clear(); }
    void SetValue(int number, TextView value) override { values_[number] = value; }
    [[nodiscard]] Text GetValue(int number) const override {
        const auto found = values_.find(number);
        return found == values_.end() ? Text() : found->second;
    }
    void SetUsable(int, bool) override {}
    void ShowSection(TextView) override {}
    void MarkSection(TextView, bool) override {}

  private:
    std::map<int, Text> values_;
};

/// An open document without windows, which is there before anything is made of it.
class OpenDocument {
  protected:
    [[nodiscard]] ktStyleSheetWindow& Window() { return document_.Window(); }
    [[nodiscard]] const ktStyleSheetWindow& Window() const { return document_.Window(); }

    MemorySettingsStore settings_;
    cli::HeadlessDocument document_{settings_};
};

/// That document with its caret in the rule, as the palette edits it.
class EditedSheet final : private OpenDocument, public EditedStyleSheet, public EditedDocuments {
  public:
    EditedSheet() : EditedStyleSheet(Window()) {
        const Text sheet = SheetWithRule();
        document_.Open(sheet);
        const auto caret = static_cast<int>(sheet.rfind(u'{')) + 1;
        Window().SetSelection(caret, caret);
        Window().SelectionChangedEvent(caret);
        document_.SetPaletteWrites(true);
    }

    [[nodiscard]] EditedDocument* GetActiveDocument() override { return this; }
    [[nodiscard]] EditedDocument* FindStyleSheet(TextView) override { return this; }

    void ChangeCurrentProperty(TextView name, TextView value) override {
        EditedStyleSheet::ChangeCurrentProperty(name, value);
        static_cast<void>(document_.TakeCalls());
    }
    void ChangeCurrentProperties(const DeclarationChanges& changes) override {
        EditedStyleSheet::ChangeCurrentProperties(changes);
        static_cast<void>(document_.TakeCalls());
    }
    void PreviewNow() override {}
    void PreviewCurrentRule() override {}

    [[nodiscard]] Text Body() const {
        return Window().StyleSheet().GetPropertiesFromSelection(Window().GetSelectionStart());
    }
};

/// A group editor over that document, filled.
class OpenEditor {
  public:
    explicit OpenEditor(int number) : editor_(number, {flags_, controls_, sheet_, settings_}) { Refill(); }

    void Refill() { editor_.SetProperties(GetEditorDeclarations(sheet_.Body())); }

    void Enter(int number, TextView value) {
        controls_.SetValue(number, value);
        editor_.PropertyHasChanged(value, number);
    }

  private:
    EditedSheet sheet_;
    PaletteFlags flags_;
    MemorySettingsStore settings_;
    RecordedControls controls_;
    GroupEditor editor_;
};

void BM_PlainScanOfEditedSheet(benchmark::State& state) { RunPlainScan(state, SheetWithRule()); }

/// From the body of the rule to the controls.
void BM_RefillEditor(benchmark::State& state) {
    OpenEditor editor(static_cast<int>(state.range(0)));
    for (auto _ : state)
        editor.Refill();
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * SheetLength));
}

/// All editors read a body whose values are that long; the time is to grow as the length does.
void BM_ReadLongValues(benchmark::State& state, TextView piece) {
    Text value;
    while (value.size() < static_cast<std::size_t>(state.range(0)))
        value += piece;
    Text body = u"{";
    for (const TextView name : {u"font", u"background", u"margin"})
        body += Text(name) + u": " + value + u" !important;";
    const Texts declarations = GetEditorDeclarations(body + u"}");
    for (auto _ : state) {
        for (const GroupEditorEntry& editor : GroupEditors())
            benchmark::DoNotOptimize(ReadDeclarations(editor.number, declarations, true));
    }
    state.SetComplexityN(state.range(0));
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * body.size()));
}

/// From a control to the text, and whatever follows at once: one value, a part of `font`, and a part of `background`.
void BM_ChangeByEditor(benchmark::State& state, int number, int property, TextView even, TextView odd) {
    OpenEditor editor(number);
    bool isOdd = false;
    for (auto _ : state) {
        isOdd = !isOdd;
        editor.Enter(property, isOdd ? odd : even);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * SheetLength));
}

BENCHMARK(BM_PlainScanOfEditedSheet);
BENCHMARK(BM_RefillEditor)->DenseRange(0, 10)->Arg(12)->Arg(14);
BENCHMARK_CAPTURE(BM_ReadLongValues, word, u"x")->RangeMultiplier(2)->Range(1'250, 10'000)->Complexity();
BENCHMARK_CAPTURE(BM_ReadLongValues, words, u"wavy ")->RangeMultiplier(2)->Range(1'250, 10'000)->Complexity();
BENCHMARK_CAPTURE(BM_ReadLongValues, lengths, u"1px ")->RangeMultiplier(2)->Range(1'250, 10'000)->Complexity();
BENCHMARK_CAPTURE(BM_ReadLongValues, nested, u"(1 ")->RangeMultiplier(2)->Range(1'250, 10'000)->Complexity();
BENCHMARK_CAPTURE(BM_ChangeByEditor, value, group_editor::PageLayout, 1034, u"40em", u"41em");
BENCHMARK_CAPTURE(BM_ChangeByEditor, font, group_editor::TextStyle, 1001, u"12px", u"13px");
BENCHMARK_CAPTURE(BM_ChangeByEditor, background, group_editor::Background, 1016, u"repeat", u"repeat-x");
BENCHMARK_CAPTURE(BM_ChangeByEditor, sides, group_editor::MarginPadding, 1020, u"1px", u"2px");

}  // namespace
}  // namespace tintora::bench
