#include "properties/qt/LabeledRows.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>

namespace tintora {

namespace {

constexpr int Gap = 6;
constexpr int GapBelowLabel = 2;

enum Column : int { Labels, Controls, Besides };

/// The largest of several groups.
struct Extents {
    int label = 0;
    int control = 0;
    int line = 0;
};

Extents LargestOf(const QList<LabeledRows*>& groups) {
    Extents extents;
    for (const LabeledRows* const rows : groups) {
        extents.label = std::max(extents.label, rows->LabelWidth());
        extents.control = std::max(extents.control, rows->ControlWidth());
        extents.line = std::max(extents.line, rows->LineHeight());
    }
    return extents;
}

/// The widest label in the first column of a grid; 0 for none.
int LabelWidthOf(const QGridLayout& grid) {
    int width = 0;
    for (int row = 0; row < grid.rowCount(); ++row) {
        const QLayoutItem* const item = grid.itemAtPosition(row, Labels);
        if (item != nullptr && qobject_cast<QLabel*>(item->widget()) != nullptr)
            width = std::max(width, item->sizeHint().width());
    }
    return width;
}

/// The height of the first line of a control that has several.
int FirstLineOf(const QWidget& control) {
    const QLayoutItem* const first = control.layout() == nullptr ? nullptr : control.layout()->itemAt(0);
    return first == nullptr ? 0 : first->sizeHint().height();
}

void SetColumnWidth(QGridLayout& grid, int width) {
    // Whatever is set lays the rows out anew.
    if (grid.columnMinimumWidth(Labels) != width)
        grid.setColumnMinimumWidth(Labels, width);
}

}  // namespace

LabeledRows::LabeledRows(QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setSpacing(Gap);
    grid_->setColumnStretch(Controls, 1);
}

void LabeledRows::AddRow(const QString& label, const QString& toolTip, QWidget* control, QWidget* besides) {
    auto* const text = new QLabel(label, this);
    text->setToolTip(toolTip);
    text->setBuddy(control);
    auto* const parts = qobject_cast<QGridLayout*>(control->layout());
    rows_.append({text, control, besides, parts != nullptr && LabelWidthOf(*parts) > 0 ? parts : nullptr, 0});
    Place(rows_.back());
}

void LabeledRows::Place(Row& row) {
    row.label->setMinimumHeight(0);
    if (isStacked_ || row.parts != nullptr)
        PlaceAbove(row);
    else
        PlaceInFront(row);
}

void LabeledRows::PlaceAbove(Row& row) {
    // It is nearer to its control than to the one above it.
    row.label->setContentsMargins(0, line_ == 0 ? 0 : Gap, 0, 0);
    grid_->addWidget(row.label, line_++, Labels, 1, 3);
    grid_->addWidget(row.control, line_, Labels, 1, row.besides == nullptr ? 3 : 2);
    if (row.besides != nullptr)
        grid_->addWidget(row.besides, line_, Besides);
    row.line = line_++;
}

void LabeledRows::PlaceInFront(Row& row) {
    row.label->setContentsMargins(0, 0, 0, 0);
    // In front of a control of several lines the label stands at the first one.
    if (row.IsHigh())
        row.label->setMinimumHeight(FirstLineOf(*row.control));
    grid_->addWidget(row.label, line_, Labels, row.IsHigh() ? Qt::AlignTop : Qt::AlignVCenter);
    grid_->addWidget(row.control, line_, Controls, 1, row.besides == nullptr ? 2 : 1);
    if (row.besides != nullptr)
        grid_->addWidget(row.besides, line_, Besides);
    row.line = line_++;
}

void LabeledRows::SetStacked(bool isStacked) {
    if (isStacked_ == isStacked)
        return;
    isStacked_ = isStacked;
    while (QLayoutItem* const item = grid_->takeAt(0))
        delete item;
    grid_->setVerticalSpacing(isStacked ? GapBelowLabel : Gap);
    for (int line = 0; line < grid_->rowCount(); ++line)
        grid_->setRowMinimumHeight(line, 0);
    line_ = 0;
    for (Row& row : rows_)
        Place(row);
}

int LabeledRows::LabelWidth() const {
    int width = 0;
    for (const Row& row : rows_)
        width = std::max({width, row.label->sizeHint().width(), row.parts == nullptr ? 0 : LabelWidthOf(*row.parts)});
    return width;
}

int LabeledRows::ControlWidth() const {
    int width = 0;
    for (const Row& row : rows_)
        width = std::max(width, row.LeastWidth() - (row.parts == nullptr ? 0 : LabelWidthOf(*row.parts) + Gap));
    return width;
}

int LabeledRows::StackedWidth() const {
    int width = LabelWidth();
    for (const Row& row : rows_)
        width = std::max(width, row.LeastWidth());
    return width;
}

int LabeledRows::LineHeight() const {
    int height = 0;
    for (const Row& row : rows_)
        height = row.IsHigh() ? height : std::max(height, row.control->sizeHint().height());
    return height;
}

bool LabeledRows::Row::IsHigh() const { return control->sizeHint().height() > 2 * label->fontMetrics().height(); }

/// Without what its labels take only to be in line with the others.
int LabeledRows::Row::LeastWidth() const {
    const int besidesWidth = besides == nullptr ? 0 : Gap + besides->minimumSizeHint().width();
    const int inLine = parts == nullptr ? 0 : std::max(0, parts->columnMinimumWidth(Labels) - LabelWidthOf(*parts));
    return control->minimumSizeHint().width() + besidesWidth - inLine;
}

void LabeledRows::SetLabelWidth(int width) {
    SetColumnWidth(*grid_, width);
    for (const Row& row : rows_) {
        if (row.parts != nullptr)
            SetColumnWidth(*row.parts, width);
    }
}

void LabeledRows::SetLineHeight(int height) {
    for (const Row& row : rows_) {
        if (!row.IsHigh() && grid_->rowMinimumHeight(row.line) != height)
            grid_->setRowMinimumHeight(row.line, height);
    }
}

void AlignRows(const QList<LabeledRows*>& groups, int width) {
    const Extents extents = LargestOf(groups);
    const bool isStacked = extents.label + Gap + extents.control > width;
    for (LabeledRows* const rows : groups) {
        rows->SetLabelWidth(isStacked ? 0 : extents.label);
        rows->SetStacked(isStacked);
        rows->SetLineHeight(extents.line);
    }
}

int LeastWidthOfRows(const QList<LabeledRows*>& groups) {
    int width = 0;
    for (const LabeledRows* const rows : groups)
        width = std::max(width, rows->StackedWidth());
    return width;
}

}  // namespace tintora
