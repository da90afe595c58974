#include "language/TextLines.h"

#include <algorithm>
#include <limits>

namespace tintora {

TextLines::TextLines(TextView text) {
    for (std::size_t end = text.find_first_of(u"\r\n"); end != TextView::npos; end = text.find_first_of(u"\r\n")) {
        lines_.push_back({text.substr(0, end)});
        const std::size_t endLength = text.substr(end, 2) == u"\r\n" ? 2 : 1;
        text.remove_prefix(end + endLength);
    }
    lines_.push_back({text});
}

std::int32_t TextLines::GetLineLength(std::int32_t row) const {
    constexpr auto Largest = static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max());
    return static_cast<std::int32_t>(std::min(Line(row).size(), Largest));
}

std::int32_t TextLines::GetLineData(std::int32_t row, int /*slot*/) const { return lines_[Index(row)].data; }

void TextLines::SetLineData(std::int32_t row, int /*slot*/, std::int32_t value) { lines_[Index(row)].data = value; }

}  // namespace tintora
