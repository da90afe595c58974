#include "editor/TypeAhead.h"

#include "language/TokenTypes.h"
#include "language/ValueParsers.h"
#include "text/Whitespace.h"

#include <algorithm>

namespace tintora {

namespace {

int LengthOf(TextView text) noexcept { return static_cast<int>(text.size()); }

/// The character at a position; NUL where there is none.
char16_t CharacterAt(TextView text, int position) noexcept {
    return position >= 1 && position <= LengthOf(text) ? text[static_cast<std::size_t>(position - 1)] : u'\0';
}

bool IsWithin(char16_t character, char16_t first, char16_t last) noexcept {
    return character >= first && character <= last;
}

/// The offset behind what a choice replaces, of which the delimiter `closing` is a part.
int EndOfReplaced(TextView text, int caret, char16_t closing) noexcept {
    const int before = LastDelimiterBefore(text, caret);
    const int next = NextDelimiterAfter(text, caret);
    if (CharacterAt(text, next) == closing)
        return next;
    if (CharacterAt(text, next) == u'{' && next > before)
        return FindWordEnd(text, caret + 1) - 1;
    return std::max(next - 1, before);
}

}  // namespace

int LastDelimiterBefore(TextView text, int position) noexcept {
    int found = std::min(position, LengthOf(text));
    while (found > 0 && !IsCSSDelimiter(CharacterAt(text, found)))
        --found;
    return std::max(found, 0);
}

int NextDelimiterAfter(TextView text, int position) noexcept {
    int found = std::max(position, 1);
    while (found <= LengthOf(text) && !IsCSSDelimiter(CharacterAt(text, found)))
        ++found;
    return std::min(found, LengthOf(text) + 1);
}

Text TextBetweenDelimiters(TextView text, int position) {
    const int start = LastDelimiterBefore(text, position) + 1;
    const int end = NextDelimiterAfter(text, position);
    if (start >= end)
        return {};
    return Text(TrimmedView(text.substr(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(end - start))));
}

TypeAheadKey TypeAheadKeyOf(char16_t character) noexcept {
    constexpr char16_t Backspace = 8;
    constexpr char16_t Delete = 127;
    if (character == u'{')
        return TypeAheadKey::Starts;
    if (character == u';' || character == u':' || character == Backspace || character == Delete)
        return TypeAheadKey::Stops;
    const bool isAccepted = IsWhitespaceUnit(character) || IsWithin(character, u'A', u'Z') ||
                            IsWithin(character, u'a', u'z') || IsWithin(character, u'1', u'9');
    return isAccepted ? TypeAheadKey::Restarts : TypeAheadKey::LeavesAlone;
}

int TypeAheadTypeAt(TextView text, int caret) noexcept {
    switch (CharacterAt(text, LastDelimiterBefore(text, caret))) {
        case u';':
        case u'{': return token_type::PropertyName;
        case u':': return token_type::ValidValue;
        default: return 0;
    }
}

std::optional<TypeAheadRequest> TypeAheadRequestAt(TextView text, int caret) {
    const int type = TypeAheadTypeAt(text, caret);
    if (type == token_type::PropertyName)
        return TypeAheadRequest{type, TextBetweenDelimiters(text, caret), {}};
    if (type == token_type::ValidValue)
        return TypeAheadRequest{type, TextBetweenDelimiters(text, LastDelimiterBefore(text, caret) - 1),
                                TextBetweenDelimiters(text, caret)};
    return std::nullopt;
}

std::optional<TypeAheadEdit> EditOfTypeAheadChoice(TextView text, int caret, int type, TextView choice,
                                                   TextView propertySeparator, TextView lastPropertySeparator) {
    // The position of a delimiter is the offset behind it.
    const int start = LastDelimiterBefore(text, caret);
    if (choice.empty())
        return std::nullopt;
    if (choice == u"}")
        return TypeAheadEdit{start, start, Text(lastPropertySeparator).append(choice)};
    if (type == token_type::PropertyName)
        return TypeAheadEdit{start, EndOfReplaced(text, caret, u':'),
                             Text(propertySeparator).append(choice).append(u":")};
    if (type == token_type::ValidValue)
        return TypeAheadEdit{start, EndOfReplaced(text, caret, u';'),
                             Text(u" ").append(choice).append(u";").append(propertySeparator)};
    return std::nullopt;
}

}  // namespace tintora
