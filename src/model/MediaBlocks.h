#pragma once

#include "text/Text.h"

#include <cstddef>
#include <vector>

/// The statements that are nested in an `@media` block. What counts as a block's text is whatever the scan of
/// statements closed as one; it may hold no "{" at all.
namespace tintora {

/// The nested statements of a block, each with the white space behind it. The white space behind the block's "{"
/// belongs to the header, the block's own "}" to nothing, and text behind the last "}" is left out.
[[nodiscard]] Texts GetAtMediaStatements(TextView block);

/// Where a nested statement stands in its block.
struct NestedPlace {
    std::size_t start = 0;
    std::size_t length = 0;
};

/// The places of what `GetAtMediaStatements` gives.
[[nodiscard]] std::vector<NestedPlace> FindAtMediaStatements(TextView block);

/// As `GetAtMediaStatements`, but a statement begins directly behind the "{" or the statement before it, and ends with
/// its closing token.
[[nodiscard]] Texts GetAtMediaStatements1(TextView block);

/// The number of characters in front of the first nested statement, the white space behind the "{" included. With no
/// "{" it is the number of white space characters that the text begins with.
[[nodiscard]] int MediaHeaderLength(TextView block);

/// Whether the text mentions "@media", in whatever case, anywhere.
[[nodiscard]] bool MentionsMedia(TextView statement) noexcept;

}  // namespace tintora
