#include "properties/PropertyValues.h"

#include "language/Words.h"

namespace tintora {

Text JoinValues(const PropertyValues& parts) {
    Texts values;
    for (const PropertyValue& part : parts)
        values.push_back(part.value);
    return JoinItems(values, u" ");
}

}  // namespace tintora
