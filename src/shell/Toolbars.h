#pragma once

#include "text/Text.h"

#include <span>

/// The toolbars of the main window and the tools on them.
namespace tintora {

/// Stands between two groups of tools, in the place of a key.
inline constexpr TextView ToolbarSeparator = u"";

struct Toolbar {
    TextView caption;
    /// The keys of the tools, which are commands, with `ToolbarSeparator` between the groups.
    std::span<const TextView> keys;
};

/// All toolbars in their order. The menu bar, whose caption is "Menu", isn't among them: it is always shown.
[[nodiscard]] std::span<const Toolbar> Toolbars() noexcept;

}  // namespace tintora
