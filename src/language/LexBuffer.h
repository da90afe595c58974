#pragma once

#include <cstdint>

namespace tintora {

/// What the scanner needs of the text control: the lengths of lines, and a number for each line that stays between
/// scans. Whoever holds the lines implements it.
///
/// Rows are 0-based. A line that was never scanned has the number 0. The scanner uses slot 0 only; of the number in it
/// the low 8 bits belong to the control, and the scanner leaves them as they are.
class LexBuffer {
  public:
    virtual ~LexBuffer() = default;

    /// The length of a line in code units, without its line end.
    [[nodiscard]] virtual std::int32_t GetLineLength(std::int32_t row) const = 0;

    [[nodiscard]] virtual std::int32_t GetLineData(std::int32_t row, int slot) const = 0;
    virtual void SetLineData(std::int32_t row, int slot, std::int32_t value) = 0;
};

}  // namespace tintora
