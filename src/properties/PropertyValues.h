#pragma once

#include "text/Text.h"

#include <functional>
#include <vector>

namespace tintora {

/// A value for the control, or the part of a shorthand, with a property's number.
struct PropertyValue {
    int number = 0;
    Text value;

    friend bool operator==(const PropertyValue&, const PropertyValue&) = default;
};

/// In the order in which they are to be set.
using PropertyValues = std::vector<PropertyValue>;

/// What the control with a number shows now; "" for nothing, and for a number that has no control.
using ShownValue = std::function<Text(int number)>;

/// The parts as one value: their values with a blank between.
[[nodiscard]] Text JoinValues(const PropertyValues& parts);

}  // namespace tintora
