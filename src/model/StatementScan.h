#pragma once

#include "text/Text.h"

/// The scan that cuts the text of a style sheet into statements.
///
/// It is one forgiving pass that rejects nothing, and it isn't the grammar of CSS: a "}" ends a statement whether a "{"
/// came before it or not, strings aren't tracked, and "@import" and "@media" switch the scan wherever they stand. Where
/// a statement ends decides which rule the caret is in and which characters an edit replaces, so every quirk of it
/// counts.
///
///     ScanStatements(u"a {b: c} d {}", ...)    "a {b: c} " and "d {}"
///     ScanStatements(u"a { content: \"}\" }")  "a { content: \"}" and "\" }"
namespace tintora {

/// Whether a backslash before a double quote keeps the next "}" from ending its statement, up to the next ";".
enum class EscapedQuote { Guards, IsPlain };

/// Which statement the white space between two statements belongs to.
enum class WhitespaceBetween { TrailsTheFirst, LeadsTheSecond };

/// The statements of `text` in their order. An `@media` block is one statement, directly followed by those that are
/// nested in it. Leaving these out, the statements joined give the text; only white space at the end of a text may be
/// missing then, where it would be a statement of its own.
///
/// Throws `OverflowFailure` for a text beyond the length limit.
[[nodiscard]] Texts ScanStatements(TextView text, EscapedQuote escapedQuote = EscapedQuote::Guards,
                                   WhitespaceBetween whitespace = WhitespaceBetween::TrailsTheFirst);

}  // namespace tintora
