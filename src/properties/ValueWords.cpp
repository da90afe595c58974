#include "properties/ValueWords.h"

#include "linking/Paths.h"
#include "text/LowerCase.h"
#include "text/Whitespace.h"

namespace tintora {

namespace {

/// The index behind the string that begins the argument of the "(" at `opening`; directly behind the "(" where there
/// is none, or no end of it.
std::size_t BehindArgumentString(TextView value, std::size_t opening) {
    const std::size_t start = FindNonWhitespace(value, opening + 1);
    if (start == value.size() || (value[start] != u'"' && value[start] != u'\''))
        return opening + 1;
    const std::size_t end = value.find(value[start], start + 1);
    return end == TextView::npos ? opening + 1 : end + 1;
}

/// The end of the word that begins at `index`.
std::size_t EndOfWord(TextView value, std::size_t index) {
    std::size_t depth = 0;
    while (index < value.size() && (depth > 0 || !IsWhitespaceUnit(value[index]))) {
        if (value[index] == u'(') {
            ++depth;
            index = BehindArgumentString(value, index);
            continue;
        }
        if (value[index] == u')' && depth > 0)
            --depth;
        ++index;
    }
    return index;
}

}  // namespace

Texts SplitAtBlanks(TextView value) {
    Texts words;
    std::size_t index = FindNonWhitespace(value, 0);
    while (index < value.size()) {
        const std::size_t end = EndOfWord(value, index);
        words.emplace_back(value.substr(index, end - index));
        index = FindNonWhitespace(value, end);
    }
    return words;
}

Text QuoteString(TextView text) {
    const char16_t quote = text.find(u'"') == TextView::npos ? u'"' : u'\'';
    return quote + Text(text) + quote;
}

TextView StripQuotes(TextView text) noexcept { return text.size() <= 2 ? TextView() : text.substr(1, text.size() - 2); }

Text StripURL(TextView text) {
    constexpr TextView Opening = u"url(";
    const std::size_t opening = FindLowered(text, Opening);
    if (opening != TextView::npos) {
        text.remove_prefix(opening + Opening.size());
        text = text.substr(0, text.rfind(u')'));
    }
    return UnquoteText(text);
}

}  // namespace tintora
