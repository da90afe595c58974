#pragma once

#include "text/Text.h"

#include <vector>

namespace tintora {

/// One statement in the palette.
struct SelectorNode {
    /// The statement's place in the style sheet, 1-based.
    int number = 0;

    /// The number of the `@media` statement that the node is a child of; 0 for a node at the top.
    int parent = 0;

    /// The type of the selector, as `selector_type` numbers them.
    int type = 0;

    /// The selector, as `ExtractSelector` gives it.
    Text text;
};

/// The statements of a style sheet as the palette lists them: one node for each, those in an `@media` block below it.
///
///     SelectorTree tree;
///     tree.SetSelectors({u"h1 {}", u"@media print { p {} }", u"p {}"});
///     KeyOf(tree.Nodes()[2]);             // "3statement", a child of "2Statement"
///     tree.NeedsRebuild(3);               // false: the texts aren't compared
class SelectorTree {
  public:
    /// Makes the nodes anew from the texts of the statements, in order.
    ///
    /// A statement whose selector has "@media" in it, in lower case and wherever it stands, opens a block. Those behind
    /// it are its children as long as their texts occur in its own, so that one right behind the block with the text of
    /// one in it counts as inside too. The first that doesn't occur ends the block. "" occurs in everything.
    ///
    /// Throws `OverflowFailure` for a statement beyond the length limit; the tree stays as it was.
    void SetSelectors(const Texts& statements);

    void Clear() noexcept { nodes_.clear(); }

    /// The nodes by their numbers: node n stands at n - 1.
    [[nodiscard]] const std::vector<SelectorNode>& Nodes() const noexcept { return nodes_; }

    /// The node of a statement; `nullptr` for a number that none has.
    [[nodiscard]] const SelectorNode* FindNode(int number) const noexcept;

    /// Whether so many statements need the tree to be made anew. For as many as it has it goes on, and its one current
    /// node is renamed.
    [[nodiscard]] bool NeedsRebuild(std::size_t statementCount) const noexcept {
        return statementCount != nodes_.size();
    }

    /// Gives the node of a statement another selector, and the type of that. A number that none has does nothing.
    void Rename(int number, TextView selector);

  private:
    std::vector<SelectorNode> nodes_;
};

/// Whether a selector opens a block.
[[nodiscard]] bool IsMediaSelector(TextView selector) noexcept;

/// The key of a node: its number and "Statement", or "statement" for a child ("12Statement", "13statement").
[[nodiscard]] Text KeyOf(const SelectorNode& node);

/// The number out of a key; 0 for what is no key.
[[nodiscard]] int NumberOfKey(TextView key) noexcept;

}  // namespace tintora
