#pragma once

#include "text/Text.h"

#include <cstddef>
#include <vector>

/// The links of a page to style sheets, found as a browser finds them: whatever the order and the quotes of their
/// attributes, and not in comments, scripts and the like.
namespace tintora {

/// A `link` element whose `rel` has the word "stylesheet" among its words.
struct StyleSheetLink {
    /// Where the element stands in the page, 0-based, and its length.
    std::size_t start = 0;
    std::size_t length = 0;
    /// Its address, with the character references of XML resolved; "" without one.
    Text href;
};

struct PageLinks {
    std::vector<StyleSheetLink> styleSheets;
    /// The address of the first `base` element that has one; "" if there is none.
    Text base;
};

/// The links of a page, in their order. An element that doesn't end is none. Takes time in proportion to the page.
[[nodiscard]] PageLinks FindPageLinks(TextView page);

}  // namespace tintora
