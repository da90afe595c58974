#pragma once

#include "text/Text.h"

#include <cstddef>
#include <unordered_map>

namespace tintora {

/// The entries of a drop-down list and the chosen one: what the list offers, and behind it what was added because a
/// text was to be shown that the list didn't have. Entries are compared exactly, and the first of equal ones counts.
class ChoiceList {
  public:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    /// Makes the list anew, with nothing added and nothing chosen.
    void Offer(Texts entries);

    [[nodiscard]] const Texts& Entries() const noexcept { return entries_; }
    [[nodiscard]] std::size_t OfferedCount() const noexcept { return offeredCount_; }

    /// The 0-based index of an entry; `None` for a text that is none.
    [[nodiscard]] std::size_t Find(TextView text) const;
    [[nodiscard]] bool Has(TextView text) const { return Find(text) != None; }

    /// The index of the chosen entry, `None` if there is none, and its text, "" if there is none.
    [[nodiscard]] std::size_t Chosen() const noexcept { return chosen_; }
    [[nodiscard]] TextView ChosenText() const noexcept;
    [[nodiscard]] bool IsAddedChosen() const noexcept { return chosen_ != None && chosen_ >= offeredCount_; }

    /// Chooses an entry by its index; one that isn't there chooses nothing.
    void ChooseAt(std::size_t index) noexcept { chosen_ = index < entries_.size() ? index : None; }

    /// Chooses the entry that equals `text`, and tells whether there is one; the choice stays if there is none.
    bool ChooseExisting(TextView text);

    /// Chooses `text`, which is added if no entry equals it.
    void Choose(TextView text);

    /// Adds an entry at the end and chooses nothing else.
    void Add(TextView text);

    /// Removes what was added, but for the chosen entry.
    void DropAdded();

  private:
    Texts entries_;
    std::size_t offeredCount_ = 0;
    std::size_t chosen_ = None;

    /// The first place of each entry.
    std::unordered_map<Text, std::size_t> places_;
};

}  // namespace tintora
