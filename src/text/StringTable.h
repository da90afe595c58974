#pragma once

#include "text/Text.h"

/// The numbered texts of the program: word lists, sentences about selectors, messages.
namespace tintora {

/// The text with `number`; "" if there is none.
[[nodiscard]] TextView LoadResourceString(int number) noexcept;

/// `text` with ^0, ^1, ^2 and ^3 replaced, all occurrences, in that order, by the arguments; one that is missing counts
/// as
/// "". A mark that an argument brings in is replaced too, if its turn is still to come.
[[nodiscard]] Text FormatMessage(TextView text, TextView first, TextView second = {}, TextView third = {},
                                 TextView fourth = {});

}  // namespace tintora
