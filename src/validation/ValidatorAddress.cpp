#include "validation/ValidatorAddress.h"

namespace tintora {

namespace {

constexpr TextView Endpoint = u"https://jigsaw.w3.org/css-validator/validator";
constexpr TextView QueryHead = u"?text=";
constexpr TextView QueryTail = u"&warning=1&profile=css2&usermedium=all";

/// What stands in the address for a character of the style sheet; "" for one that stands for itself.
constexpr TextView Replacement(char16_t unit) {
    switch (unit) {
        case u'%': return u"%25";
        case u'#': return u"%23";
        case u'{': return u"%7B";
        case u'}': return u"%7D";
        case u':': return u"%3A";
        case u';': return u"%3B";
        case u'/': return u"%2F";
        case u'*': return u"%2A";
        case u' ': return u"%20";
        default: return {};
    }
}

}  // namespace

Text EncodeForURL(TextView text) {
    Text encoded;
    encoded.reserve(text.size());
    for (const char16_t unit : text) {
        const TextView replacement = Replacement(unit);
        if (replacement.empty())
            encoded.push_back(unit);
        else
            encoded.append(replacement);
    }
    return encoded;
}

Text ValidatorAddress(TextView styleSheet) {
    Text address(Endpoint);
    address.append(QueryHead).append(EncodeForURL(styleSheet)).append(QueryTail);
    return address;
}

}  // namespace tintora
