#pragma once

#include <vector>

namespace tintora {

/// Where the rows of a text begin, for a control that counts in other units than the rest of the program. A row's
/// length includes its terminator.
///
/// A change of a row costs that row; the starts behind it are reckoned again when one of them is asked for.
class RowIndex {
  public:
    /// The text has these rows from now on; there is at least one.
    void Reset(std::vector<int> lengths);

    /// In the place of row `first` and the `removed` rows behind it come rows of these lengths, of which there is at
    /// least one.
    void Replace(int first, int removed, const std::vector<int>& lengths);

    [[nodiscard]] int Rows() const noexcept { return static_cast<int>(lengths_.size()); }

    /// The length of a row; 0 for one that isn't there.
    [[nodiscard]] int LengthOf(int row) const;

    /// The offset at which a row begins: 0 for a row below 0, the length of the text for one behind the last.
    [[nodiscard]] int StartOf(int row) const;

    /// The row in which an offset lies: the first for one below 0, the last for one beyond the text.
    [[nodiscard]] int RowAt(int offset) const;

  private:
    void ReckonThrough(int row) const;

    std::vector<int> lengths_ = {0};
    /// The starts of the rows, of which the first `reckoned_` hold, and behind them the length of the text.
    mutable std::vector<int> starts_ = {0, 0};
    mutable int reckoned_ = 1;
};

}  // namespace tintora
