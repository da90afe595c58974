#include "language/ValueParsers.h"

#include "language/Words.h"
#include "text/LowerCase.h"
#include "text/NumberText.h"
#include "text/Whitespace.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr TextView LengthUnits = u"em ex px pc pt in mm cm % number";

/// The text without the units that it ends with; nothing numeric remains where it ends with none.
TextView WithoutUnit(TextView text) {
    if (text.ends_with(u'%'))
        return text.substr(0, text.size() - 1);
    const std::size_t taken = std::min<std::size_t>(text.size(), 2);
    const std::size_t rest = text.size() - taken;
    return IsLengthUnit(text.substr(rest)) ? text.substr(0, rest) : TextView();
}

}  // namespace

bool IsLengthUnit(TextView twoCharacters) noexcept { return LengthUnits.find(twoCharacters) != TextView::npos; }

bool IsLengthValue(TextView text) noexcept {
    if (text == u"0")
        return true;
    if (text.size() < 2)
        return false;
    if (text.front() == u'+' || text.front() == u'-')
        text.remove_prefix(1);
    return IsNumeric(WithoutUnit(text));
}

bool IsPositiveLengthValue(TextView text) noexcept { return !text.starts_with(u'-') && IsLengthValue(text); }

bool IsURLValue(TextView text) noexcept { return HasLoweredAt(text, 0, u"url(") || EqualsLowered(text, u"none"); }

bool IsRectValue(TextView text) {
    if (EqualsLowered(text, u"inherit") || EqualsLowered(text, u"auto"))
        return true;
    const std::size_t close = text.find(u')');
    constexpr TextView Opening = u"rect(";
    if (close == TextView::npos || !HasLoweredAt(text, 0, Opening))
        return false;
    return GetWordsFromText(text.substr(Opening.size(), close - Opening.size()), u" ").size() == 4;
}

int FindWordEnd(TextView text, int position) noexcept {
    auto index = static_cast<std::size_t>(std::max(position, 1) - 1);
    while (index < text.size() && !IsWhitespaceUnit(text[index]) && !IsCSSDelimiter(text[index]))
        ++index;
    return static_cast<int>(std::min(index, text.size())) + 1;
}

}  // namespace tintora
