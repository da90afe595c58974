#pragma once

#include "text/Text.h"

/// Values cut into words, strings with their quotes, and URLs with what is around them.
namespace tintora {

/// The words of a value: what white space parts outside of parentheses. A string directly behind "(" hides the
/// parentheses in it; what stands behind a "(" that isn't closed is part of its word.
///
///     SplitAtBlanks(u"1px  rgb(1, 2, 3)")     // "1px", "rgb(1, 2, 3)"
///     SplitAtBlanks(u"url(a b.gif) fixed")    // "url(a b.gif)", "fixed"
[[nodiscard]] Texts SplitAtBlanks(TextView value);

/// `text` in double quotes if it holds none, else in single quotes.
[[nodiscard]] Text QuoteString(TextView text);

/// `text` without its first and its last character.
[[nodiscard]] TextView StripQuotes(TextView text) noexcept;

/// What a URL value points to: what follows the first "url(", in whatever case, up to the last ")", without double
/// quotes around it. A text with no "url(" is only unquoted.
///
///     StripURL(u"url(\"a/b.gif\")")           // "a/b.gif"
///     StripURL(u"a(1).gif")                   // "a(1).gif"
[[nodiscard]] Text StripURL(TextView text);

}  // namespace tintora
