#include "language/Words.h"

#include "text/LowerCase.h"

#include <algorithm>
#include <unordered_set>

namespace tintora {

Texts GetWordsFromText(TextView text, TextView separator) {
    Texts words;
    if (text.empty())
        return words;
    std::size_t start = 0;
    // A separator directly at the start gives no piece, so the search begins one unit behind it.
    for (std::size_t at = text.find(separator, 1); at != TextView::npos; at = text.find(separator, start + 1)) {
        words.emplace_back(text.substr(start, at - start));
        start = at + separator.size();
    }
    words.emplace_back(text.substr(start));
    return words;
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

KeyedList::KeyedList(Texts items) : items_(std::move(items)) {
    for (const Text& item : items_)
        keys_.insert(LowerCase(item));
}

bool KeyedList::HasKey(TextView key) const { return keys_.contains(LowerCase(key)); }

bool ListHasKey(const KeyedList& list, TextView key) { return list.HasKey(key); }

}  // namespace tintora
