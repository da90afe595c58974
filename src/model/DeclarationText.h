#pragma once

#include "text/Text.h"

#include <cstddef>
#include <vector>

/// The body of a statement and its declarations.
///
/// A body is what `ExtractProperties` gives, with its braces where the statement has a closing one. A declaration text
/// is one piece of a body, trimmed; a comment in a body is one too. The four ways to split a body differ, and their
/// callers rely on it.
namespace tintora {

/// The body of a statement: "" for `@media` and `@import`, a comment itself, from the first "{" on where there is a
/// "}", else what follows the "{".
[[nodiscard]] Text ExtractProperties(TextView statement);

/// The declaration texts of a statement without their ";". A last declaration with no ";" isn't among them.
[[nodiscard]] Texts ExtractPropertiesAsCollection(TextView statement);

/// The declaration texts of a body, or of any text between braces, with their ";". A last declaration may have none.
[[nodiscard]] Texts GetStatementProperties(TextView body);

/// The declaration texts of a body that a ";" or "}" ends, without it; a last declaration with no ";" isn't among
/// them. Nothing between two ends is an entry "", so that the next declaration doesn't begin with a ";".
[[nodiscard]] Texts GetClosedDeclarations(TextView body);

/// The declaration texts of a body as the property editors see it. They are those of `GetClosedDeclarations`, but that
/// a
/// ";" or "}" directly behind another one begins the next declaration text, and "}" alone is none:
///
///     GetEditorDeclarations(u"{a: b;; c: d; e: f}")       // "a: b", "; c: d"
[[nodiscard]] Texts GetEditorDeclarations(TextView body);

/// Where a declaration text stands in its body, trimmed: 0-based.
struct DeclarationPlace {
    std::size_t start = 0;
    std::size_t length = 0;
};

/// The places of what `GetStatementProperties` gives.
[[nodiscard]] std::vector<DeclarationPlace> FindStatementProperties(TextView body);

/// The trimmed text before the first ":"; a text without one unchanged.
[[nodiscard]] Text GetPropertyName(TextView declaration);

/// The trimmed text after the first ":", with any ";" that is on it; "" for a text without a ":".
[[nodiscard]] Text GetPropertyValue(TextView declaration);

}  // namespace tintora
