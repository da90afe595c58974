// Tokens and words around a position.

#include "editor/CSSEditorSrcView.h"
#include "editor/TypeAhead.h"
#include "language/ValueParsers.h"
#include "text/Narrowing.h"
#include "text/Whitespace.h"

#include <algorithm>

namespace tintora {

namespace {

bool EndsWord(char16_t unit) { return (IsCSSDelimiter(unit) && unit != u',') || IsWhitespaceUnit(unit); }

Text Slice(const Text& line, int start, int length) {
    const auto from = std::min(static_cast<std::size_t>(std::max(start, 0)), line.size());
    return line.substr(from, static_cast<std::size_t>(std::max(length, 0)));
}

}  // namespace

int CSSEditorSrcView::GetTokenType(int column, int row) const { return textEditor_.GetTokenInfo(column, row).type; }

TokenText CSSEditorSrcView::GetTokenAtCaret(int column, int row) const {
    const TokenInfo token = textEditor_.GetTokenInfo(column, row);
    return {Slice(textEditor_.Buffer().GetLine(row), token.startColumn, token.length), token.type, token.startColumn,
            token.length};
}

Text CSSEditorSrcView::GetTokenAtCharPosition(int offset) const {
    const Text text = GetText();
    NarrowLength(text);
    return TextBetweenDelimiters(text, Narrow(offset));
}

WordBoundaries CSSEditorSrcView::GetWordBoundaries(int column, int row) const {
    const Text line = textEditor_.Buffer().GetLine(row);
    const int length = NarrowLength(line);
    const auto endsWord = [&](int position) {
        return position >= 1 && position <= length && EndsWord(line[static_cast<std::size_t>(position - 1)]);
    };
    const int position = Narrow(column) + 1;
    int left = position;
    while (left > 0 && !endsWord(left))
        --left;
    int right = position;
    while (right <= length && !endsWord(right))
        ++right;
    // With no stopper on the right the end is the line's length, which leaves the last character out.
    const int start = std::max(left, 0);
    const int end = std::min(right, length) - 1;
    return {start, std::max(start, end)};
}

Text CSSEditorSrcView::GetWholeWord(int column, int row) const {
    const WordBoundaries word = GetWordBoundaries(column, row);
    return Slice(textEditor_.Buffer().GetLine(row), word.start, word.end - word.start);
}

void CSSEditorSrcView::SelectWholeWord(int column, int row) {
    const WordBoundaries word = GetWordBoundaries(column, row);
    textEditor_.SelectRange({word.start, row, word.end, row});
}

}  // namespace tintora
