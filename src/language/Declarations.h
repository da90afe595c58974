#pragma once

#include "text/Text.h"

/// A declaration text such as `color: red;`, taken apart at its first colon.
namespace tintora {

/// The trimmed text before the first ":"; "" where there is none.
[[nodiscard]] Text GetDeclarationName(TextView declaration);

/// The trimmed text between the first ":" and the first ";". Without a ":" it is the whole text, cut at its ";".
[[nodiscard]] Text GetDeclarationValue(TextView declaration);

/// The text before the first "!import", in whatever case, trimmed; the text unchanged where there is none.
[[nodiscard]] Text StripImportant(TextView value);

}  // namespace tintora
