#include "text/LowerCase.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr bool IsWithin(char16_t unit, char16_t first, char16_t last) { return unit >= first && unit <= last; }

constexpr char16_t Shifted(char16_t unit, int distance) { return static_cast<char16_t>(unit + distance); }

/// In the pairs of these blocks a capital stands directly before its small letter.
constexpr char16_t AfterEven(char16_t unit) { return unit % 2 == 0 ? Shifted(unit, 1) : unit; }
constexpr char16_t AfterOdd(char16_t unit) { return unit % 2 == 1 ? Shifted(unit, 1) : unit; }

char16_t LowerLatin(char16_t unit) {
    if (unit <= 0x00FF)
        return IsWithin(unit, 0x00C0, 0x00DE) && unit != 0x00D7 ? Shifted(unit, 32) : unit;
    if (unit == 0x0130)
        return unit;
    if (unit == 0x0178)
        return 0x00FF;
    if (IsWithin(unit, 0x0139, 0x0148) || IsWithin(unit, 0x0179, 0x017E))
        return AfterOdd(unit);
    if (IsWithin(unit, 0x0100, 0x0137) || IsWithin(unit, 0x014A, 0x0177))
        return AfterEven(unit);
    return unit;
}

char16_t LowerGreek(char16_t unit) {
    if (IsWithin(unit, 0x0391, 0x03AB) && unit != 0x03A2)
        return Shifted(unit, 32);
    if (IsWithin(unit, 0x0388, 0x038A))
        return Shifted(unit, 37);
    if (IsWithin(unit, 0x03D8, 0x03EF))
        return AfterEven(unit);
    if (IsWithin(unit, 0x03FD, 0x03FF))
        return Shifted(unit, -130);
    switch (unit) {
        case 0x0370:
        case 0x0372:
        case 0x0376:
        case 0x03F7:
        case 0x03FA: return Shifted(unit, 1);
        case 0x037F: return 0x03F3;
        case 0x0386: return 0x03AC;
        case 0x038C: return 0x03CC;
        case 0x038E: return 0x03CD;
        case 0x038F: return 0x03CE;
        case 0x03CF: return 0x03D7;
        case 0x03F4: return 0x03B8;
        case 0x03F9: return 0x03F2;
        default: return unit;
    }
}

char16_t LowerCyrillic(char16_t unit) {
    if (unit <= 0x040F)
        return Shifted(unit, 80);
    if (unit <= 0x042F)
        return Shifted(unit, 32);
    if (unit == 0x04C0)
        return 0x04CF;
    if (IsWithin(unit, 0x04C1, 0x04CE))
        return AfterOdd(unit);
    if (IsWithin(unit, 0x0460, 0x0481) || IsWithin(unit, 0x048A, 0x04BF) || IsWithin(unit, 0x04D0, 0x04FF))
        return AfterEven(unit);
    return unit;
}

}  // namespace

char16_t LowerCaseUnitBeyondASCII(char16_t unit) noexcept {
    if (unit <= 0x017F)
        return LowerLatin(unit);
    if (IsWithin(unit, 0x0370, 0x03FF))
        return LowerGreek(unit);
    if (IsWithin(unit, 0x0400, 0x04FF))
        return LowerCyrillic(unit);
    return unit;
}

Text LowerCase(TextView text) {
    Text result(text);
    TurnIntoLowerCase(result);
    return result;
}

void TurnIntoLowerCase(Text& text) noexcept {
    // Nearly all text is ASCII, and a loop without calls runs over many units at once.
    char16_t bits = 0;
    for (char16_t& unit : text) {
        bits = static_cast<char16_t>(bits | unit);
        unit = IsWithin(unit, u'A', u'Z') ? Shifted(unit, 32) : unit;
    }
    if (bits >= 0x80)
        std::transform(text.begin(), text.end(), text.begin(), LowerCaseUnit);
}

bool EqualsLowered(TextView text, TextView lowered) noexcept {
    return text.size() == lowered.size() && HasLoweredAt(text, 0, lowered);
}

bool HasLoweredAt(TextView text, std::size_t index, TextView lowered) noexcept {
    if (index > text.size() || text.size() - index < lowered.size())
        return false;
    return std::equal(lowered.begin(), lowered.end(), text.begin() + static_cast<std::ptrdiff_t>(index),
                      [](char16_t wanted, char16_t found) { return LowerCaseUnit(found) == wanted; });
}

std::size_t FindLowered(TextView text, TextView lowered, std::size_t from) noexcept {
    if (text.size() < lowered.size())
        return TextView::npos;
    const std::size_t last = text.size() - lowered.size();
    for (std::size_t index = from; index <= last; ++index) {
        if (LowerCaseUnit(text[index]) == lowered.front() && HasLoweredAt(text, index, lowered))
            return index;
    }
    return TextView::npos;
}

}  // namespace tintora
