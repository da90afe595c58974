#pragma once

#include "language/WordTable.h"
#include "text/Text.h"

#include <optional>
#include <utility>

/// Lists of words: cutting a text into them, joining them, asking for one.
namespace tintora {

/// `text` cut at each `separator`, which isn't empty.
///
/// A separator with nothing before it gives no piece and stays in front of the next one, so a double blank leaves a
/// blank in front of the next word. What stands behind the last separator is always a piece, also where it is "". An
/// empty text gives an empty list.
[[nodiscard]] Texts GetWordsFromText(TextView text, TextView separator);

/// The pieces that `GetWordsFromText` gives, one after another, as views into the text: for tests that are run often.
///
///     WordReader words(u"1px solid", u" ");
///     words.Next();                            // "1px"
///     words.Next();                            // "solid"
///     words.Next();                            // nothing
class WordReader {
  public:
    WordReader(TextView text, TextView separator) noexcept
        : rest_(text), separator_(separator), isAtEnd_(text.empty()) {}

    /// The next piece; nothing behind the last one.
    [[nodiscard]] std::optional<TextView> Next() noexcept;

  private:
    TextView rest_;
    TextView separator_;
    bool isAtEnd_;
};

/// Whether every piece of `text` passes the test; true for "", which has none.
template <typename Test>
[[nodiscard]] bool EveryWord(TextView text, TextView separator, Test passes) {
    WordReader words(text, separator);
    while (const std::optional<TextView> word = words.Next()) {
        if (!passes(*word))
            return false;
    }
    return true;
}

/// The items, each followed by `separator`, without the last separator; "" for an empty list.
[[nodiscard]] Text JoinItems(const Texts& items, TextView separator);

/// Whether `list` has an entry that equals `text` exactly.
[[nodiscard]] bool ListContains(const Texts& list, TextView text);

/// `list` without each entry that has an equal one behind it: of two equal entries the last stays, in its place.
[[nodiscard]] Texts RemoveDuplicateItems(const Texts& list);

/// An ordered list whose items are their own keys.
class KeyedList {
  public:
    explicit KeyedList(Texts items) : items_(std::move(items), WordTable::LetterCase::Ignored) {}

    [[nodiscard]] const Texts& Items() const noexcept { return items_.Words(); }

    /// Whether an item equals `key`, letter case aside.
    [[nodiscard]] bool HasKey(TextView key) const noexcept { return items_.Has(key); }

  private:
    WordTable items_;
};

/// Whether `list` has `key`, letter case aside.
[[nodiscard]] bool ListHasKey(const KeyedList& list, TextView key);

}  // namespace tintora
