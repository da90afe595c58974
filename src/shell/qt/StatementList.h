#pragma once

#include <QTreeWidget>

namespace tintora {

class StyleSheetPane;

/// The statements of the front style sheet by their selectors, those of an `@media` block below it. A click on one
/// selects it in the text.
class StatementList : public QTreeWidget {
    Q_OBJECT

  public:
    explicit StatementList(QWidget* parent = nullptr);

    /// Follows another pane, `nullptr` for none; it keeps following until it is told otherwise or the pane is
    /// destroyed.
    void Follow(StyleSheetPane* pane);

  private:
    void Fill();
    void SelectInText(const QTreeWidgetItem* item);
    void ShowCurrent(int number);

    StyleSheetPane* pane_ = nullptr;
    int currentNumber_ = 0;
};

}  // namespace tintora
