#include "text/LineEnds.h"

namespace tintora {

namespace {

/// The length of the line end at `index`, 0 if there is none.
std::size_t LineEndLength(TextView text, std::size_t index) {
    if (text[index] == u'\n')
        return 1;
    if (text[index] != u'\r')
        return 0;
    return index + 1 < text.size() && text[index + 1] == u'\n' ? 2 : 1;
}

}  // namespace

TextView FirstLineEnd(TextView text) noexcept {
    const std::size_t index = text.find_first_of(u"\r\n");
    return index == TextView::npos ? TextView(u"\n") : text.substr(index, LineEndLength(text, index));
}

Text WithLineEnds(TextView text, TextView lineEnd) {
    Text result;
    result.reserve(text.size());
    for (std::size_t index = 0; index < text.size();) {
        const std::size_t length = LineEndLength(text, index);
        if (length == 0)
            result.push_back(text[index]);
        else
            result.append(lineEnd);
        index += length == 0 ? 1 : length;
    }
    return result;
}

std::vector<int> LineStarts(TextView text) {
    std::vector<int> starts = {0};
    for (std::size_t index = 0; index < text.size();) {
        const std::size_t length = LineEndLength(text, index);
        index += length == 0 ? 1 : length;
        if (length != 0)
            starts.push_back(static_cast<int>(index));
    }
    return starts;
}

}  // namespace tintora
