#pragma once

#include "text/Text.h"

#include <cstddef>
#include <vector>

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

/// Where an entry stood in the text, and whether it is nested in the block in front of it.
struct StatementOrigin {
    std::size_t start = 0;
    bool isNested = false;

    friend bool operator==(const StatementOrigin&, const StatementOrigin&) = default;
};

/// How much of the text an entry stands for when places in the text are looked for.
struct StatementExtent {
    /// The number of characters of the entry.
    int length = 0;
    /// Whether it mentions "@media", in whatever case, anywhere. The next two are 0 if it doesn't.
    bool mentionsMedia = false;
    /// `MediaHeaderLength` of the entry.
    int headerLength = 0;
    /// How many statements `FindAtMediaStatements` finds in the entry.
    int nestedCount = 0;

    friend bool operator==(const StatementExtent&, const StatementExtent&) = default;
};

/// Statements with their origins and their extents, one for each.
struct ScannedStatements {
    Texts statements;
    std::vector<StatementOrigin> origins;
    std::vector<StatementExtent> extents;
};

/// The statements of `text` in their order. An `@media` block is one statement, directly followed by those that are
/// nested in it. Leaving these out, the statements joined give the text; a text of white space has no statement.
///
/// Throws `OverflowFailure` for a text beyond the length limit.
[[nodiscard]] ScannedStatements ScanStatementsWithOrigins(
    TextView text, EscapedQuote escapedQuote = EscapedQuote::Guards,
    WhitespaceBetween whitespace = WhitespaceBetween::TrailsTheFirst);

/// The statements alone.
[[nodiscard]] Texts ScanStatements(TextView text, EscapedQuote escapedQuote = EscapedQuote::Guards,
                                   WhitespaceBetween whitespace = WhitespaceBetween::TrailsTheFirst);

}  // namespace tintora
