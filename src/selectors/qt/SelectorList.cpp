#include "selectors/qt/SelectorList.h"

#include "selectors/StatementMark.h"
#include "selectors/qt/SelectorDelegate.h"
#include "text/qt/QtText.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalBlocker>

namespace tintora {

namespace {

constexpr int Indentation = 16;

/// More than any palette is wide; the rest of a long comment needn't be laid out for each paint.
constexpr qsizetype MostOfRow = 300;

int NumberOfRow(const QTreeWidgetItem& row) { return NumberOfKey(ToText(row.data(0, selector_role::Key).toString())); }

void ShowIn(QTreeWidgetItem& row, const SelectorNode& node) {
    const QString selector = ToQString(node.text);
    row.setText(0, OneLine(selector, MostOfRow));
    row.setData(0, selector_role::Selector, selector);
    row.setData(0, selector_role::Mark, static_cast<int>(MarkOf(node.type, node.text)));
}

}  // namespace

SelectorList::SelectorList(QWidget* parent) : QTreeWidget(parent) {
    setObjectName(QStringLiteral("SelectorList"));
    setAccessibleName(QStringLiteral("Statements of the style sheet"));
    setHeaderHidden(true);
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(0);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideRight);
    setIndentation(Indentation);
    setFrameShape(QFrame::NoFrame);
    setExpandsOnDoubleClick(false);
    setItemDelegate(new SelectorDelegate(this));
    connect(this, &QTreeWidget::itemSelectionChanged, this, &SelectorList::SelectionMoved);
    connect(this, &QTreeWidget::itemClicked, this, &SelectorList::RowClicked);
    connect(this, &QTreeWidget::itemDoubleClicked, this, &SelectorList::StatementDoubleClicked);
}

void SelectorList::Fill(const SelectorTree& tree, const std::vector<int>& folded) {
    const QSignalBlocker silence(this);
    const int scrolled = verticalScrollBar()->value();
    rows_.clear();
    clear();
    rows_.reserve(tree.Nodes().size());
    QList<QTreeWidgetItem*> top;
    for (const SelectorNode& node : tree.Nodes()) {
        auto* const row = new QTreeWidgetItem;
        ShowIn(*row, node);
        row->setData(0, selector_role::Key, ToQString(KeyOf(node)));
        if (QTreeWidgetItem* const block = RowOf(node.parent))
            block->addChild(row);
        else
            top.append(row);
        rows_.push_back(row);
    }
    addTopLevelItems(top);
    // This lays the rows out too, so that the scroll bar has its range.
    expandAll();
    for (const int number : folded) {
        if (QTreeWidgetItem* const block = RowOf(number))
            block->setExpanded(false);
    }
    verticalScrollBar()->setValue(scrolled);
}

void SelectorList::ShowNode(const SelectorNode& node) {
    if (QTreeWidgetItem* const row = RowOf(node.number))
        ShowIn(*row, node);
}

void SelectorList::Select(int number) {
    QTreeWidgetItem* const row = RowOf(number);
    if (row == nullptr)
        return;
    const QSignalBlocker silence(this);
    setCurrentItem(row, 0, QItemSelectionModel::ClearAndSelect);
    scrollToItem(row);
}

int SelectorList::SelectedNumber() const {
    const QList<QTreeWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? 0 : NumberOfRow(*selected.first());
}

std::vector<int> SelectorList::FoldedBlocks() const {
    std::vector<int> folded;
    for (std::size_t index = 0; index < rows_.size(); ++index) {
        if (rows_[index]->childCount() > 0 && !rows_[index]->isExpanded())
            folded.push_back(static_cast<int>(index) + 1);
    }
    return folded;
}

QTreeWidgetItem* SelectorList::RowOf(int number) const {
    const bool exists = number >= 1 && number <= static_cast<int>(rows_.size());
    return exists ? rows_[static_cast<std::size_t>(number - 1)] : nullptr;
}

void SelectorList::Choose(QTreeWidgetItem* row) {
    const int number = NumberOfRow(*row);
    {
        const QSignalBlocker silence(this);
        setCurrentItem(row, 0, QItemSelectionModel::ClearAndSelect);
    }
    Q_EMIT StatementChosen(number);
}

void SelectorList::SelectionMoved() {
    const int number = SelectedNumber();
    if (number == 0)
        return;
    isPressReported_ = true;
    Q_EMIT StatementChosen(number);
}

void SelectorList::RowClicked(QTreeWidgetItem* row) {
    if (!isPressReported_)
        Choose(row);
}

void SelectorList::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentItem() != nullptr)
        Choose(currentItem());
    else
        QTreeWidget::keyPressEvent(event);
}

// The selection is where the caret is. So only a press of the left button on a row moves it: neither another button,
// which nothing follows, nor a press beside the rows, nor moving on with the button down.

void SelectorList::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || itemAt(event->position().toPoint()) == nullptr)
        return;
    isPressReported_ = false;
    QTreeWidget::mousePressEvent(event);
}

void SelectorList::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton)
        QTreeWidget::mouseMoveEvent(event);
}

void SelectorList::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        QTreeWidget::mouseReleaseEvent(event);
}

void SelectorList::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        QTreeWidget::mouseDoubleClickEvent(event);
}

}  // namespace tintora
