#pragma once

#include "text/Text.h"

#include <cstddef>
#include <vector>

namespace tintora {

/// Search for a literal that takes time in proportion to the text, whatever repeats in the text or in the literal.
///
///     LiteralSearch search(u"ab");
///     search.Find(u"xxab", 0);            // 2
///     search.LongestPrefixIn(u"xxa");     // 1: "a" stands in the text, "ab" doesn't
class LiteralSearch {
  public:
    /// `literal` must outlive the search.
    explicit LiteralSearch(TextView literal);

    /// The 0-based index of the first occurrence that starts at or after `from`; `TextView::npos` if there is none. An
    /// empty literal occurs nowhere.
    [[nodiscard]] std::size_t Find(TextView text, std::size_t from) const;

    /// The length of the longest beginning of the literal that stands anywhere in `text`.
    [[nodiscard]] std::size_t LongestPrefixIn(TextView text) const;

  private:
    /// How much of the literal ends with `unit`, where `matched` units of it ended before.
    [[nodiscard]] std::size_t Advance(std::size_t matched, char16_t unit) const;

    TextView literal_;
    /// For each beginning of the literal, by its length less 1: the length of its longest part that is both a shorter
    /// beginning and its end.
    std::vector<std::size_t> borders_;
};

/// `text` with every occurrence of `literal` replaced, from the front, without overlaps; as it is if `literal` is "".
[[nodiscard]] Text ReplaceOccurrences(TextView text, TextView literal, TextView replacement);

}  // namespace tintora
