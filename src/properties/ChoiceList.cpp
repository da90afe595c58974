#include "properties/ChoiceList.h"

#include <utility>

namespace tintora {

void ChoiceList::Offer(Texts entries) {
    entries_ = std::move(entries);
    offeredCount_ = entries_.size();
    chosen_ = None;
    places_.clear();
    for (std::size_t index = 0; index < entries_.size(); ++index)
        places_.emplace(entries_[index], index);
}

std::size_t ChoiceList::Find(TextView text) const {
    const auto found = places_.find(Text(text));
    return found == places_.end() ? None : found->second;
}

TextView ChoiceList::ChosenText() const noexcept { return chosen_ == None ? TextView() : TextView(entries_[chosen_]); }

bool ChoiceList::ChooseExisting(TextView text) {
    const std::size_t found = Find(text);
    if (found == None)
        return false;
    chosen_ = found;
    return true;
}

void ChoiceList::Choose(TextView text) {
    if (ChooseExisting(text))
        return;
    Add(text);
    chosen_ = entries_.size() - 1;
}

void ChoiceList::Add(TextView text) {
    entries_.emplace_back(text);
    places_.emplace(entries_.back(), entries_.size() - 1);
}

void ChoiceList::DropAdded() {
    const bool sparesOne = IsAddedChosen();
    if (entries_.size() == offeredCount_ + (sparesOne ? 1 : 0))
        return;
    Text spared(sparesOne ? ChosenText() : TextView());
    while (entries_.size() > offeredCount_) {
        const auto place = places_.find(entries_.back());
        if (place != places_.end() && place->second >= offeredCount_)
            places_.erase(place);
        entries_.pop_back();
    }
    if (sparesOne)
        Choose(spared);
}

}  // namespace tintora
