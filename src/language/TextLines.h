#pragma once

#include "language/LexBuffer.h"
#include "text/Text.h"

#include <cstddef>
#include <vector>

namespace tintora {

/// The lines of a text that doesn't change, as the scanner takes them. A line ends at CR LF, LF or CR, or at the end of
/// the text: a text that ends with a line end has an empty line behind it, and "" is one empty line.
///
/// Rows are 0-based and must exist. There is one slot of line data, whichever is named.
class TextLines final : public LexBuffer {
  public:
    /// `text` must outlive this object.
    explicit TextLines(TextView text);

    /// The number of lines, at least 1.
    [[nodiscard]] std::int32_t Count() const noexcept { return static_cast<std::int32_t>(lines_.size()); }

    /// The line without its line end.
    [[nodiscard]] TextView Line(std::int32_t row) const { return lines_[Index(row)].text; }

    [[nodiscard]] std::int32_t GetLineLength(std::int32_t row) const override;
    [[nodiscard]] std::int32_t GetLineData(std::int32_t row, int slot) const override;
    void SetLineData(std::int32_t row, int slot, std::int32_t value) override;

  private:
    struct DataLine {
        TextView text;
        std::int32_t data = 0;
    };

    static std::size_t Index(std::int32_t row) noexcept { return static_cast<std::size_t>(row); }

    std::vector<DataLine> lines_;
};

}  // namespace tintora
