#pragma once

#include "text/Text.h"

/// The selector of a statement, and its type. A selector is whatever stands in front of the first "{", and its type
/// comes from the first cheap test that fits.
namespace tintora {

/// `text` with each CR LF pair replaced by one blank. A lone CR or LF stays.
[[nodiscard]] Text NewlinesToBlanks(TextView text);

/// The selector of a statement, on one line.
///
/// That of an `@page`, `@import` or `@font-face` statement is this word alone, in lower case; that of a comment is the
/// comment in lower case. A statement with no "{" is all selector.
[[nodiscard]] Text ExtractSelector(TextView statement);

/// The type of a selector (what `ExtractSelector` gives, not a statement), as `selector_type` numbers them.
///
/// The order of the tests decides: a "," in an attribute's value makes a group, `p.link:first-line` is a link, and
/// every element whose name begins with "a" is one when it is hovered over.
[[nodiscard]] int GetSelectorType(TextView selector);

}  // namespace tintora
