#pragma once

#include "text/Text.h"

#include <cstdint>
#include <vector>

namespace tintora {

/// A token of a whole text.
struct TextToken {
    /// The 0-based line.
    std::int32_t line = 0;
    /// The 0-based offset in the line, and the length, in code units.
    std::int32_t start = 0;
    std::int32_t length = 0;
    /// One of `token_type`, never the end of a line.
    std::int32_t type = 0;
    /// Of a value that was judged, valid or not: the lower-case name of the property that it was judged against. "" for
    /// any other token.
    Text propertyName;

    friend bool operator==(const TextToken&, const TextToken&) = default;
};

/// The tokens of `text`, scanned once from its top. Lines end at CR LF, LF or CR, which are part of no token.
///
/// Throws `OverflowFailure` for a line beyond 32,767 units; the text itself may be of any length.
[[nodiscard]] std::vector<TextToken> ScanLines(TextView text);

}  // namespace tintora
