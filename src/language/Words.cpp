#include "language/Words.h"

#include <algorithm>
#include <unordered_set>

namespace tintora {

Texts GetWordsFromText(TextView text, TextView separator) {
    Texts words;
    WordReader reader(text, separator);
    while (const std::optional<TextView> word = reader.Next())
        words.emplace_back(*word);
    return words;
}

std::optional<TextView> WordReader::Next() noexcept {
    if (isAtEnd_)
        return std::nullopt;
    // A separator directly at the start gives no piece, so the search begins one unit behind it.
    const std::size_t at = rest_.find(separator_, 1);
    const TextView word = rest_.substr(0, at);
    isAtEnd_ = at == TextView::npos;
    if (!isAtEnd_)
        rest_.remove_prefix(at + separator_.size());
    return word;
}

Text JoinItems(const Texts& items, TextView separator) {
    Text joined;
    for (const Text& item : items)
        joined.append(item).append(separator);
    if (!items.empty())
        joined.resize(joined.size() - separator.size());
    return joined;
}

bool ListContains(const Texts& list, TextView text) { return std::find(list.begin(), list.end(), text) != list.end(); }

Texts RemoveDuplicateItems(const Texts& list) {
    std::unordered_set<TextView> seen;
    Texts result;
    for (auto item = list.rbegin(); item != list.rend(); ++item) {
        if (seen.insert(*item).second)
            result.push_back(*item);
    }
    std::reverse(result.begin(), result.end());
    return result;
}

bool ListHasKey(const KeyedList& list, TextView key) { return list.HasKey(key); }

}  // namespace tintora
