#include "editor/SourceViewContract.h"
#include "editor/qt/QtClipboard.h"
#include "editor/qt/ScintillaSourceView.h"
#include "language/TextTokens.h"

// The contract of the text control, with the control of the window, and its colours after many edits.

namespace tintora::test {
namespace {

class ScintillaMaker {
  public:
    ScintillaMaker() { clipboard_.SetText({}); }

    [[nodiscard]] SourceView& View() { return view_; }
    [[nodiscard]] Clipboard& Clip() { return clipboard_; }

  private:
    QtClipboard clipboard_;
    ScintillaSourceView view_;
};

TINTORA_TEST_SOURCE_VIEW(Scintilla, ScintillaMaker);

/// A value on a row without its name is judged by the name that was scanned last, whichever row that was on.
int ComparableType(int type) { return type == token_type::InvalidValue ? token_type::ValidValue : type; }

void ExpectTokensOfFullScan(ScintillaSourceView& view) {
    for (const TextToken& token : ScanLines(view.GetText())) {
        const TokenInfo info = static_cast<SourceView&>(view).GetTokenInfo(token.start, token.line);
        ASSERT_EQ(info.startColumn, token.start);
        ASSERT_EQ(info.length, token.length);
        ASSERT_EQ(ComparableType(info.type), ComparableType(token.type));
    }
}

TEST(ScintillaTokens, TwentyThousandEditsKeepThemThoseOfAFullScan) {
    const Texts pieces = {u"{",  u"}",  u"/*", u"*/",   u";",     u":",         u"\n",  u"\r", u"\r\n",
                          u"\"", u"\\", u"a ", u"top ", u"color", u"@media p ", u"1px", u"!",  u"\u4e2d"};
    RandomNumbers random(31);
    ScintillaSourceView view;
    SourceView& port = view;
    port.Buffer().SetLex(std::make_unique<LexClass>());
    for (int round = 0; round < 20'000; ++round) {
        if (round % 200 == 0)
            port.SetText({});
        SourceBuffer& buffer = port.Buffer();
        const int row = random.UpTo(static_cast<std::size_t>(buffer.NumLines() - 1));
        const int column = random.UpTo(static_cast<std::size_t>(buffer.GetLineLength(row)));
        if (random.UpTo(2) == 0)
            buffer.Delete(column, row, column + random.UpTo(3), row + random.UpTo(1));
        else
            buffer.Insert(column, row, random.OneOf(pieces));
        ASSERT_NO_FATAL_FAILURE(ExpectTokensOfFullScan(view)) << Utf8FromText(view.GetText());
    }
}

}  // namespace
}  // namespace tintora::test
