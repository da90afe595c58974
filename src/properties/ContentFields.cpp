#include "properties/ContentFields.h"

#include "language/Declarations.h"
#include "language/FeatureNames.h"
#include "language/Words.h"
#include "linking/Paths.h"
#include "properties/GeneratedContent.h"
#include "text/LowerCase.h"

namespace tintora {

namespace {

constexpr int ContentProperty = 1106;
constexpr int ContentKeywords = 1107;
constexpr TextView List = u"list";

}  // namespace

ContentFields::ContentFields() : type_(ContentProperty), keyword_(ContentKeywords) {}

void ContentFields::Clear() {
    type_.Clear();
    keyword_.Clear();
    entries_.clear();
    selected_ = None;
    string_.clear();
    attribute_.clear();
}

void ContentFields::SetValue(TextView value) {
    entries_.clear();
    selected_ = None;
    const bool isInherited = EqualsLowered(StripImportant(value), u"inherit");
    if (!isInherited)
        entries_ = GetContentValues(value);
    type_.SetValue(isInherited ? TextView(u"inherit") : List);
}

Text ContentFields::GetValue() const {
    return type_.List().ChosenText() == List ? JoinItems(entries_, u" ") : type_.GetValue();
}

void ContentFields::Add() {
    Text part = PartOfTab();
    if (part.empty())
        return;
    entries_.push_back(std::move(part));
    type_.Choose(List);
}

void ContentFields::Remove() {
    if (!CanRemove())
        return;
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(selected_));
    selected_ = None;
    type_.Choose(List);
}

Text ContentFields::PartOfTab() const {
    switch (tab_) {
        case Tab::String: return QuoteText(string_);
        case Tab::Attribute: return attribute_.empty() ? Text() : u"attr(" + attribute_ + u")";
        case Tab::Keyword: break;
    }
    return keyword_.GetValue();
}

bool StatementIsContent(int selectorType) noexcept { return selectorType == selector_type::GeneratedContent; }

}  // namespace tintora
