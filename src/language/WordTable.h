#pragma once

#include "text/Text.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tintora {

/// Words that don't change and are asked for often. A question costs the hash of three units and, mostly, one
/// comparison; a word that is longer than all in the table costs nothing.
class WordTable {
  public:
    enum class LetterCase { Matters, Ignored };

    static constexpr std::size_t NotFound = static_cast<std::size_t>(-1);

    /// At most 65,535 words.
    WordTable(Texts words, LetterCase letterCase);

    /// The 0-based index of the first word that equals `word`; `NotFound` if there is none.
    [[nodiscard]] std::size_t Find(TextView word) const noexcept;

    [[nodiscard]] bool Has(TextView word) const noexcept { return Find(word) != NotFound; }

    [[nodiscard]] const Texts& Words() const noexcept { return words_; }

  private:
    [[nodiscard]] std::size_t FirstSlot(TextView word) const noexcept;
    [[nodiscard]] bool Equals(TextView entry, TextView word) const noexcept;

    Texts words_;
    LetterCase letterCase_;
    std::size_t longest_ = 0;

    /// Index plus 1 of the word in each slot, 0 in an empty one. A word lies in the first slot from its own that was
    /// free. Their number is a power of two, and at least half of them stay empty.
    std::vector<std::uint16_t> slots_;
};

}  // namespace tintora
