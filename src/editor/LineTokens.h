#pragma once

#include "editor/SourceView.h"
#include "language/LexClass.h"
#include "text/Text.h"

#include <functional>
#include <memory>
#include <vector>

namespace tintora {

/// The tokens of each row of a text, kept up to date with no more scanning than a change asks for: the rows that
/// changed, the row behind them, and further rows only while the flags at the end of a row differ from what they were.
class LineTokens {
  public:
    /// The scanner; every row is scanned anew.
    void SetLex(std::unique_ptr<LexClass> lex);

    /// The text has been replaced by one of `rows` rows.
    void Reset(int rows);

    /// Row `row` has changed, `removed` rows behind it have gone, and `added` rows have come in their place.
    void RowsChanged(int row, int removed, int added);

    [[nodiscard]] bool IsUpToDate() const noexcept { return staleCount_ == 0 || !lex_; }

    /// Scans what is stale. `textOf(row)` gives a row's text without its terminator; `onScanned(row)` hears of each row
    /// that was scanned. A row that is too long for the scanner gets no tokens; its failure is thrown when all else is
    /// done.
    void Scan(LexBuffer& buffer, const std::function<Text(int)>& textOf, const std::function<void(int)>& onScanned);

    /// The tokens of a row as of the last scan.
    [[nodiscard]] const std::vector<LexToken>& TokensOf(int row) const;

    /// The token that covers a position, as of the last scan.
    [[nodiscard]] TokenInfo TokenAt(int column, int row) const;

    /// How many rows have been scanned since the object was made.
    [[nodiscard]] long ScannedCount() const noexcept { return scannedCount_; }

  private:
    struct Row {
        std::vector<LexToken> tokens;
        bool isStale = true;
    };

    void MarkStale(int row);
    [[nodiscard]] bool ScanRow(LexBuffer& buffer, int row, TextView text);

    std::unique_ptr<LexClass> lex_;
    std::vector<Row> rows_ = std::vector<Row>(1);
    int staleCount_ = 1;
    int firstStale_ = 0;
    long scannedCount_ = 0;
};

}  // namespace tintora
