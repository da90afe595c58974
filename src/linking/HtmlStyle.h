#pragma once

#include "text/Text.h"

#include <optional>
#include <stdexcept>

/// Style sheets inside of HTML pages, found by plain searches in the page's text.
namespace tintora {

/// A page whose element doesn't end.
class UnclosedElementFailure : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

/// Whether the text, in whatever case, holds both "<html" and "</html>", wherever they stand.
[[nodiscard]] bool ContainsHTMLTags(TextView text);

/// Whether the file's text holds both tags. Throws `FileFailure` as `ReadTextFile` does.
[[nodiscard]] bool IsHTMLFile(TextView path);

/// The first `style` element with its tags, as a part of `text`; nothing if there is none.
///
/// Throws `UnclosedElementFailure` where no "/style>" follows (but an element that starts within the first seven
/// characters of the text is what precedes the seventh).
[[nodiscard]] std::optional<TextView> FindStyleElement(TextView text);

/// The text of the first `style` element with its tags, as it stands; "" if there is none.
///
/// Throws as `FindStyleElement` does, and `OverflowFailure` where the element ends beyond the limit of positions.
[[nodiscard]] Text GetStyleElement(TextView text);

/// The style sheet in a page: the content of its first `style` element, "" if it has none. A text that is no page comes
/// back unchanged. Throws as `GetStyleElement` does.
[[nodiscard]] Text ExtractStyleSheetText(TextView text);

}  // namespace tintora
