#include "properties/URLField.h"

#include "language/Declarations.h"
#include "language/Vocabulary.h"
#include "linking/Paths.h"
#include "properties/ValueWords.h"
#include "text/LowerCase.h"

namespace tintora {

namespace {

constexpr bool IsWordUnit(char16_t unit) {
    return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

}  // namespace

bool FilterHolds(TextView filter, TextView path) {
    const Text extension = GetExtension(path);
    if (extension.empty())
        return false;
    for (std::size_t start = 0; start < filter.size(); ++start) {
        std::size_t end = start;
        while (end < filter.size() && IsWordUnit(filter[end]))
            ++end;
        if (EqualsLowered(filter.substr(start, end - start), extension))
            return true;
        start = end;
    }
    return false;
}

Text URLOfFile(TextView parent, TextView path) { return parent.empty() ? Text(path) : GetRelativePath(parent, path); }

void URLField::Clear(const FrontDocument* front) {
    text_.clear();
    Texts entries;
    if (property_ != PlainURL) {
        entries = {u"", u"none"};
        for (const Text& url : GetCurrentURLList(front))
            entries.push_back(StripURL(url));
        for (Text& word : GetPossibleValues(property_))
            entries.push_back(std::move(word));
    }
    list_.Offer(std::move(entries));
}

void URLField::SetValue(TextView value) {
    list_.DropAdded();
    text_ = StripURL(StripImportant(value));
}

Text URLField::GetValue() const {
    if (text_.empty() || PossibleWords(property_).Has(text_))
        return text_;
    if (EqualsLowered(text_, u"none"))
        return u"none";
    return u"url(" + text_ + u")";
}

Text URLField::GetStrippedValue() const { return StripURL(GetValue()); }

void URLField::Locate(TextView parent, TextView path) {
    const Text url = URLOfFile(parent, path);
    if (!list_.Has(path) && !list_.Has(url))
        list_.Add(url);
    text_ = url;
}

bool URLField::Drop(TextView path) {
    if (!FilterHolds(filter_, path))
        return false;
    list_.DropAdded();
    text_ = URLOfFile(parentURL_, path);
    return true;
}

void URLField::SetURLs(const Texts& urls) {
    list_.Offer(urls);
    text_.clear();
}

void URLField::SelectURL(TextView text) { text_ = StripURL(text); }

}  // namespace tintora
