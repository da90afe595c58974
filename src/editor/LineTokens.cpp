#include "editor/LineTokens.h"

#include "text/Narrowing.h"

#include <algorithm>
#include <exception>
#include <iterator>

namespace tintora {

void LineTokens::SetLex(std::unique_ptr<LexClass> lex) {
    lex_ = std::move(lex);
    Reset(static_cast<int>(rows_.size()));
}

void LineTokens::Reset(int rows) {
    rows_.assign(static_cast<std::size_t>(rows), Row());
    staleCount_ = rows;
    firstStale_ = 0;
}

void LineTokens::MarkStale(int row) {
    if (row < 0 || row >= std::ssize(rows_) || rows_[static_cast<std::size_t>(row)].isStale)
        return;
    rows_[static_cast<std::size_t>(row)].isStale = true;
    ++staleCount_;
    firstStale_ = std::min(firstStale_, row);
}

void LineTokens::RowsChanged(int row, int removed, int added) {
    const auto behind = rows_.begin() + row + 1;
    staleCount_ -=
        static_cast<int>(std::count_if(behind, behind + removed, [](const Row& gone) { return gone.isStale; }));
    const auto place = rows_.erase(behind, behind + removed);
    rows_.insert(place, static_cast<std::size_t>(added), Row());
    staleCount_ += added;
    MarkStale(row);
    // The row behind began with the flags of a row that may not be in front of it any longer.
    if (removed > 0 || added > 0)
        MarkStale(row + added + 1);
}

bool LineTokens::ScanRow(LexBuffer& buffer, int row, TextView text) {
    Row& scanned = rows_[static_cast<std::size_t>(row)];
    scanned.tokens.clear();
    scanned.isStale = false;
    --staleCount_;
    ++scannedCount_;
    lex_->ISourceLex4_BeginLineScan(buffer, row, text);
    for (LexToken token = lex_->ISourceLex4_ScanToken(); token.type != token_type::EndOfLine;
         token = lex_->ISourceLex4_ScanToken())
        scanned.tokens.push_back(token);
    return lex_->ISourceLex4_EndLineScan(buffer);
}

void LineTokens::Scan(LexBuffer& buffer, const std::function<Text(int)>& textOf,
                      const std::function<void(int)>& onScanned) {
    if (!lex_)
        return;
    std::exception_ptr failure;
    for (int row = firstStale_; staleCount_ > 0 && row < std::ssize(rows_); ++row) {
        if (!rows_[static_cast<std::size_t>(row)].isStale)
            continue;
        try {
            if (ScanRow(buffer, row, textOf(row)))
                MarkStale(row + 1);
        } catch (const OverflowFailure&) {
            failure = std::current_exception();
        }
        onScanned(row);
    }
    firstStale_ = static_cast<int>(rows_.size());
    if (failure)
        std::rethrow_exception(failure);
}

const std::vector<LexToken>& LineTokens::TokensOf(int row) const {
    return rows_.at(static_cast<std::size_t>(row)).tokens;
}

TokenInfo LineTokens::TokenAt(int column, int row) const {
    if (row < 0 || row >= std::ssize(rows_))
        return {};
    const std::vector<LexToken>& tokens = TokensOf(row);
    const auto behind = std::upper_bound(tokens.begin(), tokens.end(), column,
                                         [](int wanted, const LexToken& token) { return wanted < token.start; });
    if (behind == tokens.begin())
        return {};
    const LexToken& token = *std::prev(behind);
    if (column >= token.start + token.length)
        return {};
    return {token.type, token.start, token.length};
}

}  // namespace tintora
