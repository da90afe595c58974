#pragma once

#include "properties/KeywordChoice.h"
#include "text/Text.h"

#include <cstddef>

namespace tintora {

/// What the quotes editor holds: a word, "list" among them, and the list of pairs with a field for each half.
///
///     QuotesFields quotes;
///     quotes.SetValue(u"\"<\" \">\"");    // "list", with one pair
///     quotes.SelectEntry(0);              // the fields have < and >
///     quotes.EnterClosing(u"|");
///     quotes.Change();
///     quotes.GetValue();                  // "\"<\" \"|\""
class QuotesFields {
  public:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    QuotesFields();

    /// Empties the list and the fields too.
    void Clear();

    /// Shows a value of the text: "inherit" or "none", or its pairs, which take the place of those in the list.
    void SetValue(TextView value);

    /// The word, or the pairs where it is "list"; "" for an empty list.
    [[nodiscard]] Text GetValue() const;

    // What the user does. All but `SelectEntry` and the fields change the value.

    void ChooseType(TextView word) { type_.Choose(word); }
    void EnterOpening(TextView text) { opening_ = text; }
    void EnterClosing(TextView text) { closing_ = text; }

    /// Selects a pair by its 0-based index and puts its halves into the fields; an index that isn't there selects none.
    /// The pair is cut at its first blank, also where that stands in the opening string.
    void SelectEntry(std::size_t index);

    /// Add the pair in the fields, put it in the place of the selected one, and remove that one; each where it can be
    /// done. The word becomes "list".
    void Add();
    void Change();
    void Remove();

    // What is shown.

    [[nodiscard]] const KeywordChoice& Type() const noexcept { return type_; }
    [[nodiscard]] KeywordChoice& Type() noexcept { return type_; }
    [[nodiscard]] const Texts& Entries() const noexcept { return entries_; }
    [[nodiscard]] std::size_t SelectedEntry() const noexcept { return selected_; }
    [[nodiscard]] const Text& Opening() const noexcept { return opening_; }
    [[nodiscard]] const Text& Closing() const noexcept { return closing_; }

    /// Whether the list and the fields can be used, and the buttons, given that the whole editor is enabled.
    [[nodiscard]] bool IsList() const noexcept { return type_.List().ChosenText() == u"list"; }
    [[nodiscard]] bool CanAdd() const noexcept { return IsList() && !opening_.empty() && !closing_.empty(); }
    [[nodiscard]] bool CanChange() const noexcept { return CanAdd() && selected_ != None; }
    [[nodiscard]] bool CanRemove() const noexcept { return IsList() && selected_ != None; }

  private:
    [[nodiscard]] Text PairInFields() const;

    KeywordChoice type_;
    Texts entries_;
    std::size_t selected_ = None;
    Text opening_;
    Text closing_;
};

}  // namespace tintora
