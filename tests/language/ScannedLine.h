#pragma once

#include "language/LexClass.h"

#include <vector>

namespace tintora {

/// The tokens of one line, as the control asks for them, without the end of the line.
inline std::vector<LexToken> TokensOfRow(LexClass& lexer, LexBuffer& buffer, std::int32_t row, TextView line,
                                         bool* hasChanged = nullptr) {
    std::vector<LexToken> tokens;
    lexer.ISourceLex4_BeginLineScan(buffer, row, line);
    for (LexToken token = lexer.ISourceLex4_ScanToken(); token.type != token_type::EndOfLine;
         token = lexer.ISourceLex4_ScanToken())
        tokens.push_back(token);
    const bool answer = lexer.ISourceLex4_EndLineScan(buffer);
    if (hasChanged != nullptr)
        *hasChanged = answer;
    return tokens;
}

}  // namespace tintora
