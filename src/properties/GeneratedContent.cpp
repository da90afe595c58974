#include "properties/GeneratedContent.h"

#include "text/Whitespace.h"

namespace tintora {

namespace {

/// The strings of a text, with their quotes.
Texts StringsIn(TextView text) {
    Texts strings;
    std::size_t opening = text.find_first_of(u"\"'");
    while (opening != TextView::npos) {
        const std::size_t closing = text.find(text[opening], opening + 1);
        if (closing == TextView::npos)
            break;
        strings.emplace_back(text.substr(opening, closing + 1 - opening));
        opening = text.find_first_of(u"\"'", closing + 1);
    }
    return strings;
}

}  // namespace

Texts GetQuotePairs(TextView value) {
    const Texts strings = StringsIn(value);
    Texts pairs;
    for (std::size_t index = 1; index < strings.size(); index += 2)
        pairs.push_back(strings[index - 1] + u" " + strings[index]);
    return pairs;
}

Texts GetContentValues(TextView value) {
    Texts parts;
    std::size_t start = 0;
    const auto take = [&](std::size_t end) {
        const TextView part = TrimmedView(value.substr(start, end - start));
        if (!part.empty())
            parts.emplace_back(part);
        start = end;
    };
    bool isInString = false;
    for (std::size_t index = 0; index < value.size(); ++index) {
        if (value[index] == u'"')
            isInString = !isInString;
        else if (!isInString && IsWhitespaceUnit(value[index]))
            take(index);
    }
    // Only the white space in front goes; a string that isn't closed keeps what stands at its end.
    const TextView rest = value.substr(FindNonWhitespace(value, start));
    if (!rest.empty())
        parts.emplace_back(rest);
    return parts;
}

}  // namespace tintora
