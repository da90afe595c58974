#include "properties/FontShorthand.h"

#include "language/ValueParsers.h"
#include "language/Vocabulary.h"
#include "language/Words.h"
#include "text/LowerCase.h"
#include "text/Whitespace.h"

#include <array>

namespace tintora {

namespace {

using namespace font_part;

/// The parts that are told by their words, in the order in which they are asked.
constexpr std::array<int, 4> PartsWithWords = {Size, Weight, Style, Variant};

/// The words of the parts, each list as one text.
const std::array<Text, PartsWithWords.size()>& WordLists() {
    static const std::array<Text, PartsWithWords.size()> lists = [] {
        std::array<Text, PartsWithWords.size()> joined;
        for (std::size_t index = 0; index < joined.size(); ++index)
            joined[index] = LowerCase(JoinItems(GetPossibleValues(PartsWithWords[index]), u" "));
        return joined;
    }();
    return lists;
}

/// The text since the last part was found. It is tested at each white space behind it, so what a test needs to know of
/// it is noted while it grows.
class Candidate {
  public:
    void Append(char16_t unit) {
        if (IsWhitespaceUnit(unit) && firstBlank_ == Text::npos)
            firstBlank_ = text_.size();
        if (unit == u'/' && firstSlash_ == Text::npos)
            firstSlash_ = text_.size();
        text_.push_back(unit);
    }

    void Clear() {
        text_.clear();
        firstBlank_ = Text::npos;
        firstSlash_ = Text::npos;
    }

    [[nodiscard]] bool IsEmpty() const { return text_.empty(); }
    [[nodiscard]] const Text& Content() const { return text_; }

    /// The part that the text is, 0 for none that its words tell.
    [[nodiscard]] int PartByWords() const {
        if (IsIn(0) || IsLength())
            return Size;
        for (std::size_t index = 1; index < PartsWithWords.size(); ++index) {
            if (IsIn(index))
                return PartsWithWords[index];
        }
        return 0;
    }

    /// The place of its first "/"; `npos` if it has none.
    [[nodiscard]] std::size_t FirstSlash() const { return firstSlash_; }

  private:
    [[nodiscard]] bool IsIn(std::size_t list) const {
        const Text& words = WordLists()[list];
        return text_.size() <= words.size() && words.find(LowerCase(text_)) != Text::npos;
    }

    /// White space in front of the two characters of a unit makes it none.
    [[nodiscard]] bool IsLength() const {
        return (firstBlank_ == Text::npos || firstBlank_ + 2 >= text_.size()) && IsLengthValue(text_);
    }

    Text text_;
    std::size_t firstBlank_ = Text::npos;
    std::size_t firstSlash_ = Text::npos;
};

/// Takes the parts that the candidate is; false if it is none yet.
bool TakeParts(const Candidate& candidate, PropertyValues& parts) {
    const Text& text = candidate.Content();
    if (const int part = candidate.PartByWords(); part != 0) {
        parts.push_back({part, text});
        return true;
    }
    const std::size_t slash = candidate.FirstSlash();
    if (slash == Text::npos)
        return false;
    if (slash + 1 < text.size())
        parts.push_back({LineHeight, text.substr(slash + 1)});
    if (slash > 0)
        parts.push_back({Size, text.substr(0, slash)});
    return true;
}

}  // namespace

PropertyValues TakeFontApart(TextView value) {
    PropertyValues parts;
    Candidate candidate;
    for (std::size_t index = 0; index <= value.size(); ++index) {
        const bool isAtEnd = index == value.size();
        if (!isAtEnd && !IsWhitespaceUnit(value[index]))
            candidate.Append(value[index]);
        else if (candidate.IsEmpty())
            continue;
        else if (TakeParts(candidate, parts))
            candidate.Clear();
        else if (!isAtEnd)
            candidate.Append(value[index]);
    }
    parts.push_back({Family, candidate.Content()});
    return parts;
}

PropertyValues FontPartsToWrite(const ShownValue& valueOf) {
    PropertyValues parts;
    for (const int number : {Weight, Style, Size, LineHeight, Variant, Family}) {
        if (number == LineHeight && (parts.empty() || parts.back().number != Size))
            continue;
        if (Text value = valueOf(number); !value.empty())
            parts.push_back({number, std::move(value)});
    }
    return parts;
}

Text JoinFont(const PropertyValues& parts) {
    Text value;
    for (const PropertyValue& part : parts) {
        if (!value.empty())
            value.push_back(part.number == LineHeight ? u'/' : u' ');
        value.append(part.value);
    }
    return value;
}

}  // namespace tintora
