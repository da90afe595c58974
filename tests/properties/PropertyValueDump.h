#pragma once

#include "document/DeclarationChange.h"
#include "properties/PropertyValues.h"
#include "text/Encoding.h"

#include <string>

namespace tintora::test {

/// "1001 [12px], 1011 [serif]".
inline std::string Dump(const PropertyValues& values) {
    std::string dump;
    for (const PropertyValue& value : values) {
        dump += dump.empty() ? "" : ", ";
        dump += std::to_string(value.number) + " [" + Utf8FromText(value.value) + "]";
    }
    return dump;
}

/// "font-size: | font: 12px serif"; a name with nothing behind it is removed.
inline std::string Dump(const DeclarationChanges& changes) {
    std::string dump;
    for (const DeclarationChange& change : changes) {
        dump += dump.empty() ? "" : " | ";
        dump += Utf8FromText(change.name) + ":" + (change.value.empty() ? "" : " " + Utf8FromText(change.value));
    }
    return dump;
}

/// What controls show that have exactly these values; of two values of a control the last.
inline ShownValue ShownBy(PropertyValues values) {
    return [values = std::move(values)](int number) {
        Text shown;
        for (const PropertyValue& value : values) {
            if (value.number == number)
                shown = value.value;
        }
        return shown;
    };
}

}  // namespace tintora::test
