#include "language/TextTokens.h"

#include "language/LexClass.h"
#include "language/TextLines.h"
#include "text/Narrowing.h"

#include <algorithm>

namespace tintora {

namespace {

bool IsJudged(std::int32_t type) { return type == token_type::ValidValue || type == token_type::InvalidValue; }

}  // namespace

std::vector<TextToken> ScanLines(TextView text) {
    std::vector<TextToken> tokens;
    // Enough for most style sheets; what isn't needed costs nothing but addresses.
    tokens.reserve(std::min(text.size(), MaximumTextLength) / 2);
    TextLines lines(text);
    LexClass lexer;
    for (std::int32_t row = 0; row < lines.Count(); ++row) {
        lexer.ISourceLex4_BeginLineScan(lines, row, lines.Line(row));
        for (LexToken token = lexer.ISourceLex4_ScanToken(); token.type != token_type::EndOfLine;
             token = lexer.ISourceLex4_ScanToken()) {
            tokens.push_back(
                {row, token.start, token.length, token.type, IsJudged(token.type) ? lexer.LastPropertyName() : Text()});
        }
        static_cast<void>(lexer.ISourceLex4_EndLineScan(lines));
    }
    return tokens;
}

}  // namespace tintora
