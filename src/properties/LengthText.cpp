#include "properties/LengthText.h"

#include "language/ValueParsers.h"

#include <algorithm>

namespace tintora {

TextView GetPropertySign(TextView text) noexcept {
    for (const TextView sign : {TextView(u"+"), TextView(u"-")}) {
        if (text.find(sign) != TextView::npos)
            return sign;
    }
    return {};
}

TextView GetPropertyUnits(TextView text) noexcept {
    if (text.find(u'%') != TextView::npos)
        return u"%";
    // Without anything but blanks the end is the start.
    text = text.substr(0, text.find_last_not_of(u' ') + 1);
    const TextView end = text.substr(text.size() - std::min<std::size_t>(text.size(), 2));
    return IsLengthUnit(end) ? end : TextView();
}

TextView GetPropertyValue(TextView text) noexcept {
    const TextView unit = GetPropertyUnits(text);
    const TextView sign = GetPropertySign(text);
    if (!sign.empty())
        text.remove_prefix(text.find(sign) + 1);
    return unit.empty() ? text : text.substr(0, text.find(unit));
}

Text JoinLength(TextView sign, TextView number, TextView unit) {
    if (!IsLengthUnit(unit))
        return Text(unit);
    if (number.empty())
        return {};
    return Text(sign).append(number).append(unit == u"number" ? TextView() : unit);
}

}  // namespace tintora
