#pragma once

#include "model/ktStyleSheet.h"
#include "settings/Separators.h"
#include "text/Text.h"

/// The formatter. It rewrites white space and nothing else, at five places of a statement.
namespace tintora {

/// One statement, trimmed, with the separators in its five places. At-rules and comments stay as they are, but of an
/// `@media` block only its head is given, through the "{". A ";" in a value is followed by a separator like any other.
[[nodiscard]] Text FormatOneStatement(TextView statement, const Separators& separators);

/// What `FormatStyleSheetText` does with `@media` blocks.
enum class MediaBlockFormat { FormatNested, KeepAsTheyStand };

/// The whole text of a style sheet, laid out anew. White space outside of statements goes. A block whose text would
/// come out as another, white space apart (blocks in blocks, stray text before its last brace), is written as it
/// stands.
[[nodiscard]] Text FormattedStyleSheet(const ktStyleSheet& sheet, const Separators& separators,
                                       MediaBlockFormat blocks);

/// Whether two texts are the same but for white space.
[[nodiscard]] bool AreEqualWithoutWhitespace(TextView one, TextView other) noexcept;

}  // namespace tintora
