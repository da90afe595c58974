#pragma once

#include "text/Text.h"

#include <cstddef>

/// How much a program can be told by one argument.
namespace tintora {

/// The most bytes that this platform takes in one argument of a program, without the NUL at its end.
[[nodiscard]] std::size_t LongestArgument() noexcept;

/// Whether a text is longer, as the UTF-8 that an argument is made of, than `LongestArgument`.
[[nodiscard]] bool IsTooLongForOneArgument(TextView text);

}  // namespace tintora
