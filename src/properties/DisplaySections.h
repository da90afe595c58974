#pragma once

#include "text/Text.h"

/// What the value of one property decides about the other controls of its editor.
namespace tintora {

/// The sub-editor that the display editor shows for a `display` value beside the one for blocks, which is always
/// there; "" for none.
[[nodiscard]] TextView SectionOfDisplay(TextView display) noexcept;

/// The `display` value that an element has by itself, for a rule with that selector and no value of its own: "block",
/// "list-item", "table", or "" for any other selector. The whole selector is the element's name, in whatever case.
[[nodiscard]] TextView DefaultDisplay(TextView selector);

/// Whether the four offsets of the page layout editor can be edited under a `position` value.
[[nodiscard]] bool TakesOffsets(TextView position) noexcept;

/// Whether a property is one of these offsets.
[[nodiscard]] constexpr bool IsOffset(int property) noexcept { return property >= 1030 && property <= 1033; }

/// The caption of a tab of the border editor, for the section of its row; a star in front marks a side that has a
/// declaration in the rule.
[[nodiscard]] Text BorderTabCaption(TextView section, bool hasDeclaration);

}  // namespace tintora
