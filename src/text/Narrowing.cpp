#include "text/Narrowing.h"

#include <limits>
#include <string>

namespace tintora {

OverflowFailure::OverflowFailure(long long value)
    : std::overflow_error(std::to_string(value) + " doesn't fit a position in a style sheet"), value_(value) {}

std::int16_t Narrow(long long value) {
    if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max())
        throw OverflowFailure(value);
    return static_cast<std::int16_t>(value);
}

}  // namespace tintora
