#pragma once

#include "text/Text.h"

#include <span>

/// The items of the palette's tool bar.
namespace tintora {

class FrontStyleSheet;

enum class StatementCommand { NewStatement, NewComment, EditStatement, DuplicateStatement, DeleteStatement };

/// An item: the key by which the program calls it, and what it does with the front style sheet.
struct SelectorItem {
    TextView key;
    StatementCommand command;

    /// The kind of the new statement; "" asks for it, and for the other commands.
    TextView kind;
};

/// All items, in the order in which they stand: `miSNew`, the head of the drop-down menu, first, then what is in the
/// menu, then the others.
[[nodiscard]] std::span<const SelectorItem> SelectorItems() noexcept;

/// Runs the item with that key. Without a document, or for a key that no item has, it does nothing.
void RunSelectorItem(TextView key, FrontStyleSheet* document);

}  // namespace tintora
