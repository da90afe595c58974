#pragma once

#include "text/Text.h"

#include <set>

/// Lists of words: cutting a text into them, joining them, asking for one.
namespace tintora {

/// `text` cut at each `separator`, which isn't empty.
///
/// A separator with nothing before it gives no piece and stays in front of the next one, so a double blank leaves a
/// blank in front of the next word. What stands behind the last separator is always a piece, also where it is "". An
/// empty text gives an empty list.
[[nodiscard]] Texts GetWordsFromText(TextView text, TextView separator);

/// The items, each followed by `separator`, without the last separator; "" for an empty list.
[[nodiscard]] Text JoinItems(const Texts& items, TextView separator);

/// Whether `list` has an entry that equals `text` exactly.
[[nodiscard]] bool ListContains(const Texts& list, TextView text);

/// `list` without each entry that has an equal one behind it: of two equal entries the last stays, in its place.
[[nodiscard]] Texts RemoveDuplicateItems(const Texts& list);

/// An ordered list whose items are their own keys.
class KeyedList {
  public:
    explicit KeyedList(Texts items);

    [[nodiscard]] const Texts& Items() const noexcept { return items_; }

    /// Whether an item equals `key`, letter case aside.
    [[nodiscard]] bool HasKey(TextView key) const;

  private:
    Texts items_;
    std::set<Text, std::less<>> keys_;
};

/// Whether `list` has `key`, letter case aside.
[[nodiscard]] bool ListHasKey(const KeyedList& list, TextView key);

}  // namespace tintora
