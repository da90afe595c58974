#include "properties/QuotesFields.h"

#include "language/Declarations.h"
#include "language/Words.h"
#include "properties/GeneratedContent.h"
#include "properties/ValueWords.h"
#include "text/LowerCase.h"

namespace tintora {

namespace {

constexpr int QuotesProperty = 1101;
constexpr TextView List = u"list";

}  // namespace

QuotesFields::QuotesFields() : type_(QuotesProperty) {}

void QuotesFields::Clear() {
    type_.Clear();
    entries_.clear();
    selected_ = None;
    opening_.clear();
    closing_.clear();
}

void QuotesFields::SetValue(TextView value) {
    entries_.clear();
    selected_ = None;
    const Text word = LowerCase(StripImportant(value));
    if (word == u"inherit" || word == u"none") {
        type_.SetValue(word);
        return;
    }
    entries_ = GetQuotePairs(value);
    type_.SetValue(List);
}

Text QuotesFields::GetValue() const { return IsList() ? JoinItems(entries_, u" ") : type_.GetValue(); }

void QuotesFields::SelectEntry(std::size_t index) {
    selected_ = index < entries_.size() ? index : None;
    if (selected_ == None)
        return;
    const TextView pair = entries_[selected_];
    const std::size_t blank = pair.find(u' ');
    opening_ = StripQuotes(pair.substr(0, blank));
    closing_ = StripQuotes(pair.substr(blank + 1));
}

void QuotesFields::Add() {
    if (!CanAdd())
        return;
    entries_.push_back(PairInFields());
    type_.Choose(List);
}

void QuotesFields::Change() {
    if (!CanChange())
        return;
    entries_[selected_] = PairInFields();
    type_.Choose(List);
}

void QuotesFields::Remove() {
    if (!CanRemove())
        return;
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(selected_));
    selected_ = None;
    type_.Choose(List);
}

Text QuotesFields::PairInFields() const { return QuoteString(opening_) + u" " + QuoteString(closing_); }

}  // namespace tintora
