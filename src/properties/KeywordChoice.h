#pragma once

#include "language/FrontDocument.h"
#include "properties/ChoiceList.h"
#include "text/Text.h"

namespace tintora {

/// The entries of a keyword list: "", then the words of the property in their order. A "+" in a word stands for a
/// blank, so that `marks` has the entry "crop cross". The fonts of the front document count among the words.
[[nodiscard]] Texts KeywordEntries(int property, const FrontDocument* front = nullptr);

/// What a `KeywordEditor` holds: a list of the words that a property may take, and the one that is chosen.
///
/// A value that the list doesn't have is shown, not lost: it is added and chosen, and marked as bad unless it is valid
/// for the property. It leaves the list when a valid value takes its place, or on `Clear`.
///
///     KeywordChoice weight(1002);
///     weight.SetValue(u"heavy");          // shown, and bad
///     weight.Choose(u"bold");             // "heavy" is gone
class KeywordChoice {
  public:
    explicit KeywordChoice(int property);

    [[nodiscard]] int Property() const noexcept { return property_; }

    /// Makes the list anew and chooses "", its first entry.
    void Clear(const FrontDocument* front = nullptr);

    /// Shows a value of the text. An "!important" in it is put aside.
    void SetValue(TextView value);

    /// Shows a text as it stands: what the user has chosen in the list, or typed and confirmed.
    void Choose(TextView text);

    /// The text of the list; "" for nothing chosen.
    [[nodiscard]] Text GetValue() const { return Text(list_.ChosenText()); }

    [[nodiscard]] const ChoiceList& List() const noexcept { return list_; }

    /// Whether the value is to be marked.
    [[nodiscard]] bool IsBad() const noexcept { return isBad_; }

  private:
    [[nodiscard]] bool IsValid() const;

    int property_;
    ChoiceList list_;
    bool isBad_ = false;
};

}  // namespace tintora
