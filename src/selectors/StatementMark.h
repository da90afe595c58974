#pragma once

#include "text/Text.h"

namespace tintora {

/// The marks of statements in the palette. Most are drawn as the sign by which CSS tells that kind of selector.
enum class StatementMark {
    None,         // a hollow dot
    Type,         // < >
    Class,        // .
    ID,           // #
    Group,        // two sheets, one over the other
    Combination,  // > for selectors that lead from one element to another
    PseudoClass,  // :
    Attribute,    // [ ]
    AtRule,       // @
    Comment,      // a balloon
};

/// The mark of a statement, by the type of its selector. Every selector that begins with "@" has that of an at-rule,
/// also where its type says otherwise (`@font-face`). An empty selector has none.
[[nodiscard]] StatementMark MarkOf(int selectorType, TextView selector) noexcept;

}  // namespace tintora
