#include "language/LexClass.h"

#include "PlainScan.h"
#include "language/TextLines.h"
#include "language/TextTokens.h"
#include "text/Narrowing.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>

namespace tintora {
namespace {

using bench::CountBraces;

/// What a hand-written sheet is made of.
constexpr TextView VariedRules =
    u"/* The page */\n"
    u"body {\n\tmargin: 0;\n\tpadding: 0 1em;\n\tfont-family: Verdana, Helvetica, \"Times New Roman\", serif;\n"
    u"\tfont-size: 90%;\n\tcolor: #333366;\n\tbackground: url(images/paper.gif) repeat-x top left;\n}\n\n"
    u"h1, h2, h3 { font: bold 14px/1.5 Arial, sans-serif; color: Navy; border-bottom: 1px solid silver; }\n"
    u"a:link, a:visited { text-decoration: none; color: rgb(0, 51, 153) }\n"
    u"a:hover { text-decoration: underline overline !important; cursor: pointer; }\n\n"
    u"#menu ul li { display: inline; list-style-type: none; float: left; width: 12.5em; }\n"
    u"#menu ul li a {\n  display: block;\n  line-height: 1.4;\n  colour: red;\n  width: -10px;\n"
    u"  border: thin dotted threedshadow;\n  z-index: 5;\n}\n"
    u"td.total { text-align: right; vertical-align: 2px; white-space: nowrap; margin: 1px 2em -3px auto; }\n"
    u"p.note { quotes: none; content: \"see also\"; clip: rect(0px 10px 10px 0px); outline: 1px solid red }\n"
    u"@media print {\n  body { color: black; background-color: transparent }\n}\n\n";

/// Six rules, one of them faulty.
constexpr TextView TinyRules = u"a{color:red}\nb{top:-2px}\nc{width:4x}\np{clear:all}\nq{left:auto}\nu{color:#fff}\n";

constexpr TextView OneLine = u"  background: url(images/paper.gif) no-repeat top left; color: #336699; margin: 1px;";

Text Repeated(TextView text, std::size_t length) {
    Text result;
    while (result.size() < length)
        result.append(text.substr(0, length - result.size()));
    return result;
}

enum Sheet : std::int64_t { Varied, VariedInOneLine, Tiny };

Text SheetText(std::int64_t sheet) {
    if (sheet == Tiny)
        return Repeated(TinyRules, std::min<std::size_t>(MaximumTextLength, TinyRules.size() * 2500 / 6));
    Text text = Repeated(VariedRules, MaximumTextLength);
    if (sheet == VariedInOneLine)
        std::replace(text.begin(), text.end(), u'\n', u' ');
    return text;
}

std::int32_t ScanLine(LexClass& lexer, TextLines& lines, std::int32_t row) {
    std::int32_t types = 0;
    lexer.ISourceLex4_BeginLineScan(lines, row, lines.Line(row));
    for (LexToken token = lexer.ISourceLex4_ScanToken(); token.type != token_type::EndOfLine;
         token = lexer.ISourceLex4_ScanToken())
        types += token.type;
    return types + static_cast<std::int32_t>(lexer.ISourceLex4_EndLineScan(lines));
}

void CountUnits(benchmark::State& state, TextView text) {
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void BM_PlainScan(benchmark::State& state) {
    const Text text = SheetText(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(CountBraces(text));
    CountUnits(state, text);
}

void BM_ScanAndJudge(benchmark::State& state) {
    const Text text = SheetText(state.range(0));
    TextLines lines(text);
    LexClass lexer;
    for (auto _ : state) {
        for (std::int32_t row = 0; row < lines.Count(); ++row)
            benchmark::DoNotOptimize(ScanLine(lexer, lines, row));
    }
    CountUnits(state, text);
}

void BM_ScanLines(benchmark::State& state) {
    const Text text = SheetText(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(ScanLines(text));
    CountUnits(state, text);
}

void BM_ScanOneLine(benchmark::State& state) {
    static_assert(OneLine.size() >= 80);
    const Text text(OneLine.substr(0, 80));
    const Text sheet = u"a {\n" + text;
    TextLines lines(sheet);
    LexClass lexer;
    benchmark::DoNotOptimize(ScanLine(lexer, lines, 0));
    for (auto _ : state)
        benchmark::DoNotOptimize(ScanLine(lexer, lines, 1));
    CountUnits(state, text);
}

BENCHMARK(BM_PlainScan)->ArgName("sheet")->Arg(Varied)->Arg(VariedInOneLine)->Arg(Tiny)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_ScanAndJudge)
    ->ArgName("sheet")
    ->Arg(Varied)
    ->Arg(VariedInOneLine)
    ->Arg(Tiny)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_ScanLines)->ArgName("sheet")->Arg(Varied)->Arg(VariedInOneLine)->Arg(Tiny)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_ScanOneLine);

}  // namespace
}  // namespace tintora
