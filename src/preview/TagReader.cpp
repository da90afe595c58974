#include "preview/TagReader.h"

#include "text/LowerCase.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

/// The elements between whose tags a page has plain text. The last is one where scripts run.
constexpr auto PlainTextElements = std::to_array<TextView>(
    {u"script", u"style", u"title", u"textarea", u"iframe", u"noembed", u"noframes", u"xmp", u"noscript"});

bool EndsName(char16_t unit) { return IsWhitespaceUnit(unit) || unit == u'/' || unit == u'>'; }

/// The 0-based index at or after `from` of the first unit that passes the test; the length of the text if none does.
template <typename Test>
std::size_t FindUnit(TextView text, std::size_t from, Test passes) {
    const auto rest = text.substr(std::min(from, text.size()));
    return text.size() - rest.size() + static_cast<std::size_t>(std::ranges::find_if(rest, passes) - rest.begin());
}

}  // namespace

std::optional<TextView> Tag::Attribute(TextView attributeName) const {
    const auto found =
        std::ranges::find_if(attributes, [&](const auto& attribute) { return attribute.first == attributeName; });
    return found == attributes.end() ? std::nullopt : std::optional(found->second);
}

bool TagReader::HasLetterAt(std::size_t index) const {
    if (index >= page_.size())
        return false;
    const char16_t unit = LowerCaseUnit(page_[index]);
    return unit >= u'a' && unit <= u'z';
}

std::optional<Tag> TagReader::Next() {
    for (;;) {
        place_ = page_.find(u'<', place_);
        if (place_ == TextView::npos) {
            place_ = page_.size();
            return std::nullopt;
        }
        const std::size_t start = place_++;
        const bool isEndTag = page_.substr(place_).starts_with(u'/') && HasLetterAt(place_ + 1);
        if (isEndTag)
            ++place_;
        if (!HasLetterAt(place_)) {
            SkipComment();
            continue;
        }
        Tag tag{.start = start, .length = 0, .name = {}, .attributes = {}};
        if (!ReadTag(tag))
            return std::nullopt;
        if (isEndTag)
            continue;
        tag.length = place_ - start;
        SkipPlainText(tag.name);
        return tag;
    }
}

void TagReader::SkipComment() {
    const TextView rest = page_.substr(place_);
    if (rest.starts_with(u"!--")) {
        // "<!-->" and "<!--->" are whole comments.
        const TextView::size_type end = page_.find(u"-->", place_ + 1);
        place_ = end == TextView::npos ? page_.size() : end + 3;
    } else if (rest.starts_with(u'!') || rest.starts_with(u'?') || rest.starts_with(u'/')) {
        place_ = FindUnit(page_, place_, [](char16_t unit) { return unit == u'>'; });
    }
}

bool TagReader::ReadTag(Tag& tag) {
    const std::size_t nameEnd = FindUnit(page_, place_, EndsName);
    tag.name = LowerCase(page_.substr(place_, nameEnd - place_));
    place_ = nameEnd;
    for (;;) {
        place_ = FindUnit(page_, place_, [](char16_t unit) { return !IsWhitespaceUnit(unit) && unit != u'/'; });
        if (place_ == page_.size())
            return false;
        if (page_[place_] == u'>') {
            ++place_;
            return true;
        }
        // A "=" in front of any name belongs to the name.
        const std::size_t end =
            FindUnit(page_, place_ + 1, [](char16_t unit) { return EndsName(unit) || unit == u'='; });
        Text name = LowerCase(page_.substr(place_, end - place_));
        place_ = FindNonWhitespace(page_, end);
        const bool hasValue = page_.substr(place_).starts_with(u'=');
        if (hasValue)
            ++place_;
        tag.attributes.emplace_back(std::move(name), hasValue ? ReadValue() : TextView());
    }
}

TextView TagReader::ReadValue() {
    place_ = FindNonWhitespace(page_, place_);
    if (place_ == page_.size())
        return {};
    const char16_t quote = page_[place_];
    const bool isQuoted = quote == u'"' || quote == u'\'';
    const std::size_t start = isQuoted ? place_ + 1 : place_;
    const std::size_t end = FindUnit(
        page_, start, [&](char16_t unit) { return isQuoted ? unit == quote : IsWhitespaceUnit(unit) || unit == u'>'; });
    place_ = isQuoted ? std::min(end + 1, page_.size()) : end;
    return page_.substr(start, end - start);
}

void TagReader::SkipPlainText(TextView name) {
    if (std::ranges::find(PlainTextElements, name) == PlainTextElements.end())
        return;
    const Text closing = Text(u"</").append(name);
    do {
        place_ = FindLowered(page_, closing, place_);
        if (place_ == TextView::npos) {
            place_ = page_.size();
            return;
        }
        place_ += closing.size();
    } while (place_ < page_.size() && !EndsName(page_[place_]));
    // The rest of the end tag has no "<" to begin with.
}

}  // namespace tintora
