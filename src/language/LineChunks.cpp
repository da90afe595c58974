#include "language/LineChunks.h"

#include "language/ValueParsers.h"
#include "text/LowerCase.h"
#include "text/Whitespace.h"

#include <algorithm>

namespace tintora {

LineChunks::LineChunks(TextView line)
    : line_(line), behindLastSemicolon_(line.rfind(u';') + 1), beginsWithMedia_(HasLoweredAt(line, 0, u"@media")) {}

std::size_t LineChunks::EndOfChunk(std::size_t index, ChunkForm form) const {
    // The unit behind the ";" goes with it, whatever it is. To know that there is a ";" spares a search to the line's
    // end for each of many quotes.
    if (form != ChunkForm::PlainQuotes && HasEscapedQuoteAt(index) && index < behindLastSemicolon_)
        return std::min(line_.find(u';', index) + 2, line_.size());
    if (index == 0 && beginsWithMedia_)
        return EndOfMediaHead();
    switch (line_[index]) {
        case u':':
        case u';':
        case u'{':
        case u'}': return index + 1;
        case u'!': return static_cast<std::size_t>(FindWordEnd(line_, static_cast<int>(index) + 1)) - 1;
        default: return EndOfText(index, form);
    }
}

bool LineChunks::HasEscapedQuoteAt(std::size_t index) const {
    return line_[index] == u'\\' && index + 1 < line_.size() && line_[index + 1] == u'"';
}

std::size_t LineChunks::EndOfMediaHead() const {
    const std::size_t brace = line_.find(u'{');
    return brace == TextView::npos ? line_.size() : brace + 1;
}

std::size_t LineChunks::EndOfText(std::size_t index, ChunkForm form) const {
    // What stands at the index itself ends nothing: neither a backslash before a quote that no ";" follows, nor "/*".
    std::size_t end = index + 1;
    while (end < line_.size() && !EndsTextAt(end, form))
        ++end;
    return end;
}

bool LineChunks::EndsTextAt(std::size_t index, ChunkForm form) const {
    switch (line_[index]) {
        case u':':
        case u';':
        case u'{':
        case u'}':
        case u'!': return true;
        case u'\\': return form != ChunkForm::PlainQuotes && HasEscapedQuoteAt(index);
        case u'/': return index + 1 < line_.size() && line_[index + 1] == u'*';
        default:
            return form == ChunkForm::Words && IsWhitespaceUnit(line_[index]) && !IsWhitespaceUnit(line_[index - 1]);
    }
}

}  // namespace tintora
