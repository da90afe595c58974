#pragma once

#include "shell/qt/Actions.h"

#include <span>

/// What the commands look like in the menus: their order, texts, icons, shortcuts and status tips. What they do is the
/// business of the table of commands.
namespace tintora {

/// Between two groups of a menu, in the place of a key.
inline constexpr auto MenuSeparator = "";

/// A menu of the menu bar.
struct MenuLook {
    /// The menu's key: "mnu" and its name.
    const char* key;
    const char* title;
    /// A separator has `MenuSeparator` for its key. An entry with no text stands for the submenu of that key, or for an
    /// action that exists already.
    std::span<const ActionLook> entries;
};

/// The menus in their order. A command that the program doesn't have yet is looked up in vain by whoever builds the
/// menus from this, and has no entry.
[[nodiscard]] std::span<const MenuLook> MenuLooks();

/// A submenu by its key, which must be one of those that the menus name. "mnuFOpenRecent" and "mnuHOnline" have no
/// entries here: the program fills them.
[[nodiscard]] MenuLook SubmenuLook(QLatin1String key);

}  // namespace tintora
