#pragma once

#include "text/Encoding.h"
#include "text/Text.h"

#include <string>
#include <string_view>

/// What the files of a preview hold.
namespace tintora {

/// A style sheet in the encoding of its document. Where that has no bytes for one of the characters it is UTF-8 with a
/// byte order mark, which counts for more than what the style sheet says of its encoding; a lone surrogate is U+FFFD
/// then. A sheet that `isMarked` has the mark in any case.
[[nodiscard]] std::string SheetBytes(TextView text, Encoding encoding, bool isMarked = false);

/// A copy of a page, linked to the style sheet in `sheetPath` by its file URL. Each link of the page that leads to
/// `documentPath` is replaced by that link, and all others stay. Where none leads there, or `documentPath` is "", it
/// goes in front of `</head>`, and a page without `</head>` stays as it is. The copy keeps the page's encoding.
///
/// `bytes` are the page's, and `pagePath` its absolute path. Throws `OverflowFailure` as `PageWithElementInHead` does.
[[nodiscard]] std::string LinkedPageBytes(std::string_view bytes, TextView pagePath, TextView documentPath,
                                          TextView sheetPath);

/// The page that shows a rule's declarations on a paragraph. They are joined by a blank. A "</" in them, which might
/// end the style sheet, and all characters beyond ASCII are escaped as CSS does, so that they mean the same whatever
/// encoding the page is taken for.
[[nodiscard]] std::string RulePageBytes(const Texts& declarations);

}  // namespace tintora
