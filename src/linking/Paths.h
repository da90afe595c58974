#pragma once

#include "text/Text.h"

/// Paths as text. "/" and "\" both separate, whatever the platform's own separator is.
namespace tintora {

/// Everything before the last separator; "" if there is none.
[[nodiscard]] Text GetFolderPath(TextView path);

/// What stands behind the last separator; the whole path if there is none.
[[nodiscard]] Text GetFileNamePart(TextView path);

/// The file name's extension without its dot, in lower case; "" if there is none.
[[nodiscard]] Text GetExtension(TextView path);

/// `text` with a double quote at each end that has none; "" stays "".
[[nodiscard]] Text QuoteText(TextView text);

/// `text` without one double quote at its start and one at its end, each where it is there.
[[nodiscard]] Text UnquoteText(TextView text);

}  // namespace tintora
