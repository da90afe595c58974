#include "text/Whitespace.h"

#include "text/Narrowing.h"

#include <algorithm>

namespace tintora {

bool IsWhitespaceChar(TextView character) noexcept { return !character.empty() && IsWhitespaceUnit(character.front()); }

bool IsAllWhitespace(TextView text) {
    static_cast<void>(NarrowLength(text));
    return !text.empty() && FindNonWhitespace(text, 0) == text.size();
}

Text StripLeftWhitespace(TextView text) {
    static_cast<void>(NarrowLength(text));
    return Text(text.substr(FindNonWhitespace(text, 0)));
}

Text StripRightWhitespace(TextView text) {
    return Text(text.substr(0, static_cast<std::size_t>(SkipWhitespaceBackward(text, NarrowLength(text)))));
}

Text TrimWhitespace(TextView text) {
    static_cast<void>(NarrowLength(text));
    return Text(TrimmedView(text));
}

TextView TrimmedView(TextView text) noexcept {
    while (!text.empty() && IsWhitespaceUnit(text.back()))
        text.remove_suffix(1);
    return text.substr(FindNonWhitespace(text, 0));
}

int SkipWhitespaceForward(TextView text, int position) {
    const int length = NarrowLength(text);
    if (position > length)
        return length + 1;
    return static_cast<int>(FindNonWhitespace(text, static_cast<std::size_t>(std::max(position, 1) - 1))) + 1;
}

int SkipWhitespaceBackward(TextView text, int position) {
    const int length = NarrowLength(text);
    int at = std::min(position, length);
    while (at > 0 && IsWhitespaceUnit(text[static_cast<std::size_t>(at - 1)]))
        --at;
    return std::max(at, 0);
}

std::size_t FindNonWhitespace(TextView text, std::size_t index) noexcept {
    while (index < text.size() && IsWhitespaceUnit(text[index]))
        ++index;
    return std::min(index, text.size());
}

}  // namespace tintora
