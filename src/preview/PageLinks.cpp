#include "preview/PageLinks.h"

#include "preview/TagReader.h"
#include "text/LowerCase.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string>

namespace tintora {

namespace {

struct NamedCharacter {
    TextView name;
    char16_t unit;
};

constexpr auto NamedCharacters =
    std::to_array<NamedCharacter>({{u"amp", u'&'}, {u"lt", u'<'}, {u"gt", u'>'}, {u"quot", u'"'}, {u"apos", u'\''}});

Text TextOfCodePoint(unsigned codePoint) {
    constexpr unsigned FirstBeyondUnits = 0x10000;
    if (codePoint < FirstBeyondUnits)
        return Text(1, static_cast<char16_t>(codePoint));
    const unsigned rest = codePoint - FirstBeyondUnits;
    return {static_cast<char16_t>(0xD800U + rest / 0x400U), static_cast<char16_t>(0xDC00U + rest % 0x400U)};
}

/// What "#38" and "#x26" stand for; nothing for any other text.
std::optional<Text> NumberedCharacter(TextView name) {
    std::string digits;
    for (const char16_t unit : name)
        digits.push_back(unit < 0x80 ? static_cast<char>(unit) : '?');
    const bool isHexadecimal = digits.starts_with("#x") || digits.starts_with("#X");
    const std::size_t start = isHexadecimal ? 2 : 1;
    unsigned codePoint = 0;
    if (digits.size() <= start || digits.front() != '#')
        return std::nullopt;
    const auto result =
        std::from_chars(digits.data() + start, digits.data() + digits.size(), codePoint, isHexadecimal ? 16 : 10);
    constexpr unsigned LastCodePoint = 0x10FFFF;
    if (result.ec != std::errc() || result.ptr != digits.data() + digits.size() || codePoint > LastCodePoint)
        return std::nullopt;
    return TextOfCodePoint(codePoint);
}

std::optional<Text> ReferredCharacter(TextView name) {
    const auto found = std::ranges::find(NamedCharacters, name, &NamedCharacter::name);
    return found == NamedCharacters.end() ? NumberedCharacter(name) : Text(1, found->unit);
}

/// The value of an attribute; a reference to a character that isn't known stays as it stands.
Text ResolvedValue(TextView value) {
    constexpr std::size_t LongestName = 8;
    Text resolved;
    for (std::size_t index = 0; index < value.size();) {
        std::optional<Text> character;
        std::size_t end = TextView::npos;
        if (value[index] == u'&')
            end = value.substr(index + 1, LongestName + 1).find(u';');
        if (end != TextView::npos)
            character = ReferredCharacter(value.substr(index + 1, end));
        resolved += character ? *character : Text(1, value[index]);
        index += character ? end + 2 : 1;
    }
    return resolved;
}

/// Whether the white-space separated list has the word, which is in lower case.
bool HasWord(TextView list, TextView word) {
    std::size_t start = FindNonWhitespace(list, 0);
    while (start < list.size()) {
        const auto rest = list.substr(start);
        const auto end = static_cast<std::size_t>(std::ranges::find_if(rest, IsWhitespaceUnit) - rest.begin());
        if (EqualsLowered(rest.substr(0, end), word))
            return true;
        start = FindNonWhitespace(list, start + end);
    }
    return false;
}

}  // namespace

PageLinks FindPageLinks(TextView page) {
    PageLinks links;
    TagReader reader(page);
    while (const std::optional<Tag> tag = reader.Next()) {
        const TextView href = tag->Attribute(u"href").value_or(u"");
        if (tag->name == u"base" && links.base.empty())
            links.base = ResolvedValue(href);
        else if (tag->name == u"link" && HasWord(tag->Attribute(u"rel").value_or(u""), u"stylesheet"))
            links.styleSheets.push_back({tag->start, tag->length, ResolvedValue(href)});
    }
    return links;
}

}  // namespace tintora
