#include "document/TextDifference.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace tintora {

namespace {

using Lines = std::vector<TextView>;
using Kind = DifferenceLine::Kind;

/// The table of the comparison has a cell for each pair of lines.
constexpr std::size_t MostCells = 4'000'000;

Lines LinesOf(TextView text) {
    Lines lines;
    std::size_t start = 0;
    for (std::size_t end = text.find_first_of(u"\r\n"); end != TextView::npos;
         end = text.find_first_of(u"\r\n", start)) {
        lines.push_back(text.substr(start, end - start));
        const bool isPair = text.substr(end).starts_with(u"\r\n");
        start = end + (isPair ? 2 : 1);
    }
    if (start < text.size())
        lines.push_back(text.substr(start));
    return lines;
}

/// The lengths of the longest common subsequences of all pairs of endings of two lists of lines.
class CommonLengths {
  public:
    CommonLengths(const Lines& old, const Lines& now) : width_(now.size() + 1), cells_((old.size() + 1) * width_) {
        for (std::size_t row = old.size(); row-- > 0;) {
            for (std::size_t column = now.size(); column-- > 0;) {
                cells_[row * width_ + column] = old[row] == now[column]
                                                    ? static_cast<std::uint16_t>(At(row + 1, column + 1) + 1)
                                                    : std::max(At(row + 1, column), At(row, column + 1));
            }
        }
    }

    [[nodiscard]] std::uint16_t At(std::size_t row, std::size_t column) const { return cells_[row * width_ + column]; }

  private:
    std::size_t width_;
    std::vector<std::uint16_t> cells_;
};

void Append(std::vector<DifferenceLine>& result, Kind kind, Lines::const_iterator begin, Lines::const_iterator end) {
    std::transform(begin, end, std::back_inserter(result), [=](TextView line) {
        return DifferenceLine{kind, Text(line)};
    });
}

/// The part between the lines that both texts begin and end with.
void AppendMiddle(std::vector<DifferenceLine>& result, const Lines& old, const Lines& now) {
    if ((old.size() + 1) * (now.size() + 1) > MostCells) {
        Append(result, Kind::Removed, old.begin(), old.end());
        Append(result, Kind::Added, now.begin(), now.end());
        return;
    }
    const CommonLengths common(old, now);
    std::size_t row = 0;
    std::size_t column = 0;
    while (row < old.size() || column < now.size()) {
        if (row < old.size() && column < now.size() && old[row] == now[column]) {
            result.push_back({Kind::Same, Text(old[row])});
            ++row;
            ++column;
        } else if (column == now.size() ||
                   (row < old.size() && common.At(row + 1, column) >= common.At(row, column + 1))) {
            result.push_back({Kind::Removed, Text(old[row++])});
        } else {
            result.push_back({Kind::Added, Text(now[column++])});
        }
    }
}

std::vector<DifferenceLine> WithoutFarLines(const std::vector<DifferenceLine>& lines, std::size_t context) {
    std::vector<bool> isNear(lines.size());
    for (std::size_t at = 0; at < lines.size(); ++at) {
        if (lines[at].kind == Kind::Same)
            continue;
        const std::size_t first = at - std::min(at, context);
        const std::size_t last = std::min(at + context + 1, lines.size());
        for (std::size_t near = first; near < last; ++near)
            isNear[near] = true;
    }
    std::vector<DifferenceLine> result;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        if (isNear[at])
            result.push_back(lines[at]);
        else if (result.empty() || result.back().kind != Kind::Omitted)
            result.push_back({Kind::Omitted, {}});
    }
    return result;
}

}  // namespace

std::vector<DifferenceLine> DifferenceOfLines(TextView old, TextView now, std::size_t context) {
    const Lines oldLines = LinesOf(old);
    const Lines nowLines = LinesOf(now);
    const auto [oldMiddle, nowMiddle] =
        std::mismatch(oldLines.begin(), oldLines.end(), nowLines.begin(), nowLines.end());
    if (oldMiddle == oldLines.end() && nowMiddle == nowLines.end())
        return {};
    const auto [oldEnd, nowEnd] = std::mismatch(oldLines.rbegin(), std::make_reverse_iterator(oldMiddle),
                                                nowLines.rbegin(), std::make_reverse_iterator(nowMiddle));
    std::vector<DifferenceLine> result;
    Append(result, Kind::Same, oldLines.begin(), oldMiddle);
    AppendMiddle(result, Lines(oldMiddle, oldEnd.base()), Lines(nowMiddle, nowEnd.base()));
    Append(result, Kind::Same, oldEnd.base(), oldLines.end());
    return WithoutFarLines(result, context);
}

}  // namespace tintora
