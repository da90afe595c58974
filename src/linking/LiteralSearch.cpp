#include "linking/LiteralSearch.h"

#include <algorithm>

namespace tintora {

LiteralSearch::LiteralSearch(TextView literal) : literal_(literal), borders_(literal.size(), 0) {
    for (std::size_t index = 1; index < literal_.size(); ++index)
        borders_[index] = Advance(borders_[index - 1], literal_[index]);
}

std::size_t LiteralSearch::Advance(std::size_t matched, char16_t unit) const {
    if (matched == literal_.size())
        matched = borders_[matched - 1];
    while (matched > 0 && literal_[matched] != unit)
        matched = borders_[matched - 1];
    return literal_[matched] == unit ? matched + 1 : 0;
}

std::size_t LiteralSearch::Find(TextView text, std::size_t from) const {
    if (literal_.empty())
        return TextView::npos;
    std::size_t matched = 0;
    for (std::size_t index = from; index < text.size(); ++index) {
        if (matched == 0) {
            index = text.find(literal_.front(), index);
            if (index == TextView::npos)
                return TextView::npos;
        }
        matched = Advance(matched, text[index]);
        if (matched == literal_.size())
            return index + 1 - matched;
    }
    return TextView::npos;
}

std::size_t LiteralSearch::LongestPrefixIn(TextView text) const {
    std::size_t longest = 0;
    std::size_t matched = 0;
    for (std::size_t index = 0; index < text.size() && longest < literal_.size(); ++index) {
        matched = Advance(matched, text[index]);
        longest = std::max(longest, matched);
    }
    return longest;
}

Text ReplaceOccurrences(TextView text, TextView literal, TextView replacement) {
    const LiteralSearch search(literal);
    Text result;
    std::size_t from = 0;
    for (std::size_t found = search.Find(text, 0); found != TextView::npos; found = search.Find(text, from)) {
        result.append(text, from, found - from).append(replacement);
        from = found + literal.size();
    }
    return result.append(text, from);
}

}  // namespace tintora
