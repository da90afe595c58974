#include "language/WordTable.h"

#include "text/LowerCase.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace tintora {

namespace {

/// The share of the slots that are in use is one in so many at the most.
constexpr std::size_t SlotsForAWord = 4;

/// The same number for both cases of a letter. It may be the same for other units too: for all beyond ASCII it is.
constexpr std::size_t CaselessUnit(char16_t unit) { return unit < 0x80 ? unit | 0x20U : 0U; }

}  // namespace

WordTable::WordTable(Texts words, LetterCase letterCase)
    : words_(std::move(words)),
      letterCase_(letterCase),
      slots_(std::bit_ceil(SlotsForAWord * std::max<std::size_t>(words_.size(), 1))) {
    std::uint16_t number = 0;
    for (const Text& word : words_) {
        ++number;
        longest_ = std::max(longest_, word.size());
        std::size_t slot = FirstSlot(word);
        while (slots_[slot] != 0)
            slot = (slot + 1) % slots_.size();
        slots_[slot] = number;
    }
}

std::size_t WordTable::Find(TextView word) const noexcept {
    if (word.size() > longest_)
        return NotFound;
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t slot = FirstSlot(word); slots_[slot] != 0; slot = (slot + 1) & mask) {
        const std::size_t index = slots_[slot] - 1U;
        if (Equals(words_[index], word))
            return index;
    }
    return NotFound;
}

std::size_t WordTable::FirstSlot(TextView word) const noexcept {
    if (word.empty())
        return 0;
    // Words of one list mostly differ in these; what they don't tell apart, the comparison does.
    const std::size_t hash = word.size() * 7U + CaselessUnit(word.front()) * 31U +
                             CaselessUnit(word[word.size() / 2]) * 131U + CaselessUnit(word.back()) * 1031U;
    return (hash ^ (hash >> 7U)) & (slots_.size() - 1);
}

bool WordTable::Equals(TextView entry, TextView word) const noexcept {
    if (entry.size() != word.size())
        return false;
    if (std::equal(entry.begin(), entry.end(), word.begin()))
        return true;
    return letterCase_ == LetterCase::Ignored &&
           std::equal(entry.begin(), entry.end(), word.begin(),
                      [](char16_t one, char16_t other) { return LowerCaseUnit(one) == LowerCaseUnit(other); });
}

}  // namespace tintora
