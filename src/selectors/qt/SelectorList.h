#pragma once

#include "selectors/SelectorTree.h"

#include <QTreeWidget>
#include <vector>

namespace tintora {

/// The list of statements in the palette, those of an `@media` block below it.
///
/// Its signals mean the user: neither filling nor selecting by the program raises any.
class SelectorList : public QTreeWidget {
    Q_OBJECT

  public:
    explicit SelectorList(QWidget* parent = nullptr);

    /// Shows these nodes and no others, with nothing selected, and all blocks unfolded but those with the numbers
    /// `folded`. The list keeps its focus, and its scroll position as far as it has the rows for it.
    void Fill(const SelectorTree& tree, const std::vector<int>& folded);

    /// Shows a node as it is now. A number that no row has does nothing.
    void ShowNode(const SelectorNode& node);

    /// Selects the node of a statement and scrolls it into view, which unfolds its block. A number that no row has does
    /// nothing.
    void Select(int number);

    /// The number of the selected statement; 0 if none is.
    [[nodiscard]] int SelectedNumber() const;

    /// The numbers of the blocks that are folded, in order.
    [[nodiscard]] std::vector<int> FoldedBlocks() const;

  Q_SIGNALS:
    /// The user has come to a statement: by a click, also one on the statement that was selected, or by a key.
    void StatementChosen(int number);

    /// The user has double-clicked a statement, which is selected.
    void StatementDoubleClicked();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    [[nodiscard]] QTreeWidgetItem* RowOf(int number) const;
    void Choose(QTreeWidgetItem* row);
    void SelectionMoved();
    void RowClicked(QTreeWidgetItem* row);

    /// By the numbers: the row of statement n stands at n - 1.
    std::vector<QTreeWidgetItem*> rows_;
    /// Whether the press that goes on has chosen a statement already.
    bool isPressReported_ = false;
};

}  // namespace tintora
