#include "editor/RowIndex.h"

#include <algorithm>

namespace tintora {

void RowIndex::Reset(std::vector<int> lengths) {
    lengths_ = std::move(lengths);
    starts_.assign(lengths_.size() + 1, 0);
    reckoned_ = 1;
}

void RowIndex::Replace(int first, int removed, const std::vector<int>& lengths) {
    const auto place = lengths_.begin() + first;
    if (static_cast<int>(lengths.size()) == removed + 1) {
        std::copy(lengths.begin(), lengths.end(), place);
    } else {
        lengths_.insert(lengths_.erase(place, place + removed + 1), lengths.begin(), lengths.end());
        starts_.resize(lengths_.size() + 1);
    }
    reckoned_ = std::min(reckoned_, first + 1);
}

void RowIndex::ReckonThrough(int row) const {
    for (; reckoned_ <= row; ++reckoned_) {
        const auto index = static_cast<std::size_t>(reckoned_);
        starts_[index] = starts_[index - 1] + lengths_[index - 1];
    }
}

int RowIndex::LengthOf(int row) const { return row >= 0 && row < Rows() ? lengths_[static_cast<std::size_t>(row)] : 0; }

int RowIndex::StartOf(int row) const {
    const int wanted = std::clamp(row, 0, Rows());
    ReckonThrough(wanted);
    return starts_[static_cast<std::size_t>(wanted)];
}

int RowIndex::RowAt(int offset) const {
    // Starts that are known answer most questions; only behind them the rest is reckoned.
    if (starts_[static_cast<std::size_t>(reckoned_ - 1)] <= offset)
        ReckonThrough(Rows());
    const auto behind = std::upper_bound(starts_.begin(), starts_.begin() + std::min(reckoned_, Rows()), offset);
    return std::max(static_cast<int>(behind - starts_.begin()) - 1, 0);
}

}  // namespace tintora
