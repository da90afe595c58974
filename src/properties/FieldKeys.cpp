#include "properties/FieldKeys.h"

#include "language/Colors.h"

namespace tintora {

namespace {

constexpr bool IsPrintable(char16_t code) { return code >= u' ' && code != 0x7F; }

constexpr FieldKey PassesIf(bool isTaken, char16_t code) {
    return isTaken || !IsPrintable(code) ? FieldKey::Passes : FieldKey::IsDropped;
}

}  // namespace

FieldKey LengthFieldKey(char16_t code) noexcept {
    switch (code) {
        case 1: return FieldKey::SelectsAll;
        case 3: return FieldKey::Copies;
        case 22: return FieldKey::Pastes;
        case 24: return FieldKey::Cuts;
        default: return PassesIf((code >= u'0' && code <= u'9') || code == u'.', code);
    }
}

FieldKey HexFieldKey(char16_t code) noexcept { return PassesIf(IsHexDigit(code), code); }

FieldKey RGBFieldKey(char16_t code) noexcept { return PassesIf(IsRGBChar(code), code); }

}  // namespace tintora
