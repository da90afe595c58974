#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class QGridLayout;
class QLabel;

namespace tintora {

/// Controls below each other with their labels: a column of labels and a column of controls, or, where that is too
/// wide, each label above its control. Several of them that stand in one form are kept in line by `AlignRows`.
///
/// A control that consists of labeled rows itself, in a grid, stands below its label, and its columns are the others'.
class LabeledRows : public QWidget {
    Q_OBJECT

  public:
    explicit LabeledRows(QWidget* parent);

    /// Adds a row at the end. `besides` stands behind the control, and may be `nullptr`. Both must be children.
    void AddRow(const QString& label, const QString& toolTip, QWidget* control, QWidget* besides = nullptr);

    /// What the widest label and the widest control take at least.
    [[nodiscard]] int LabelWidth() const;
    [[nodiscard]] int ControlWidth() const;

    /// What it takes with the labels above.
    [[nodiscard]] int StackedWidth() const;

    /// The height of the highest control of one line.
    [[nodiscard]] int LineHeight() const;

    /// What the column of labels takes at least, and each line.
    void SetLabelWidth(int width);
    void SetLineHeight(int height);

    /// Whether the labels stand above their controls.
    void SetStacked(bool isStacked);

  private:
    struct Row {
        QLabel* label;
        QWidget* control;
        QWidget* besides;
        /// The rows that the control itself consists of; `nullptr` for a control of one piece.
        QGridLayout* parts;
        /// Where the control is in the grid.
        int line;

        [[nodiscard]] bool IsHigh() const;
        [[nodiscard]] int LeastWidth() const;
    };

    void Place(Row& row);
    void PlaceAbove(Row& row);
    void PlaceInFront(Row& row);

    QGridLayout* grid_;
    QList<Row> rows_;
    /// Where the next row goes.
    int line_ = 0;
    bool isStacked_ = false;
};

/// Gives all of them the same columns within `width`, with the labels above the controls if the columns don't fit.
void AlignRows(const QList<LabeledRows*>& groups, int width);

/// The width that `AlignRows` can do with.
[[nodiscard]] int LeastWidthOfRows(const QList<LabeledRows*>& groups);

}  // namespace tintora
