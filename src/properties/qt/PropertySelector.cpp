#include "properties/qt/PropertySelector.h"

#include "properties/qt/NarrowTabBar.h"
#include "text/qt/QtText.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tintora {

namespace {

/// Rows with room between them.
class RoomyRows : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        constexpr int Room = 4;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, Room);
    }
};

void Fill(QListWidget& list, const Texts& texts) {
    for (const Text& text : texts)
        list.addItem(ToQString(text));
}

}  // namespace

PropertySelector::PropertySelector(QWidget* parent)
    : QWidget(parent), modes_(new NarrowTabBar(this)), views_(new QStackedWidget(this)) {
    setObjectName(QStringLiteral("PropertySelectorPane"));
    modes_->setObjectName(QStringLiteral("PropertySelectorMode"));
    modes_->setAccessibleName(QStringLiteral("Views of the properties"));
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(modes_);
    rows->addWidget(views_, 1);
    const auto tabs = SelectorTabs();
    editors_ = AddList(tabs[0]);
    tree_ = AddTree(tabs[1]);
    alphabetical_ = AddList(tabs[2]);
    current_ = AddList(tabs[3]);
    connect(modes_, &QTabBar::currentChanged, this, &PropertySelector::ShowView);
    ShowView(0);
}

QListWidget* PropertySelector::AddList(const SelectorTab& tab) {
    auto* const list = new QListWidget(views_);
    list->setUniformItemSizes(true);
    connect(list, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { Q_EMIT ItemChosen(item->text()); });
    AddView(list, tab);
    return list;
}

QTreeWidget* PropertySelector::AddTree(const SelectorTab& tab) {
    auto* const tree = new QTreeWidget(views_);
    tree->setHeaderHidden(true);
    tree->setUniformRowHeights(true);
    // A double click opens the editor, as a click does.
    tree->setExpandsOnDoubleClick(false);
    connect(tree, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem* item) { Q_EMIT ItemChosen(item->text(0)); });
    AddView(tree, tab);
    return tree;
}

void PropertySelector::AddView(QAbstractItemView* view, const SelectorTab& tab) {
    const QString caption = ToQString(tab.caption);
    view->setObjectName(ToQString(tab.control));
    view->setAccessibleName(caption);
    view->setFrameShape(QFrame::NoFrame);
    view->setItemDelegate(new RoomyRows(view));
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->installEventFilter(this);
    views_->addWidget(view);
    modes_->setTabToolTip(modes_->addTab(caption), caption);
}

void PropertySelector::SetUpPropertySelector() {
    editors_->clear();
    for (const TextView caption : EditorCaptions())
        editors_->addItem(ToQString(caption));
    SetUpTree();
    alphabetical_->clear();
    Fill(*alphabetical_, AlphabeticalProperties());
}

void PropertySelector::SetUpTree() {
    tree_->clear();
    for (const PropertyCategory& category : PropertyCategories()) {
        auto* const top = new QTreeWidgetItem(tree_, {ToQString(category.caption)});
        top->setData(0, Qt::UserRole, ToQString(category.key));
        for (const Text& name : PropertiesOfCategory(category)) {
            auto* const node = new QTreeWidgetItem(top, {ToQString(name)});
            node->setData(0, Qt::UserRole, ToQString(name));
        }
    }
}

void PropertySelector::SelectPropertyInPropertySelector(int property, TextView editorClass) {
    const TextView name = NameToSelect(property);
    if (name.empty())
        return;
    property_ = property;
    editorClass_ = editorClass;
    SelectInTree(name);
    SelectInView();
}

void PropertySelector::SelectInTree(TextView name) {
    const QString key = ToQString(name);
    for (QTreeWidgetItemIterator node(tree_); *node != nullptr; ++node) {
        if ((*node)->data(0, Qt::UserRole).toString() != key)
            continue;
        const QSignalBlocker silence(tree_);
        tree_->setCurrentItem(*node);
        tree_->scrollToItem(*node);
        return;
    }
}

void PropertySelector::SelectInView() {
    const TextView name = NameToSelect(property_);
    switch (Mode()) {
        case SelectorView::Editors: SelectInList(*editors_, CaptionToSelect(editorClass_)); break;
        case SelectorView::ByCategory: SelectInTree(name); break;
        case SelectorView::Alphabetical: SelectInList(*alphabetical_, name); break;
        case SelectorView::CurrentProperties: isPropertyMissing_ = !SelectInList(*current_, name); break;
    }
}

bool PropertySelector::SelectInList(QListWidget& list, TextView text) {
    const QString wanted = ToQString(text);
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->text() != wanted)
            continue;
        const QSignalBlocker silence(list);
        // Of several equal ones the one that is selected stays.
        if (list.currentItem() == nullptr || list.currentItem()->text() != wanted)
            list.setCurrentRow(row);
        list.scrollToItem(list.currentItem());
        return true;
    }
    return false;
}

void PropertySelector::SetUpCurrentProperties(const Texts& declarations) {
    Texts names = CurrentPropertyNames(declarations);
    if (names == currentNames_)
        return;
    currentNames_ = std::move(names);
    const QSignalBlocker silence(current_);
    const QString selected = current_->currentItem() == nullptr ? QString() : current_->currentItem()->text();
    const int row = current_->currentRow();
    const int scrolled = current_->verticalScrollBar()->value();
    current_->clear();
    Fill(*current_, currentNames_);
    if (row >= 0 && row < current_->count() && current_->item(row)->text() == selected)
        current_->setCurrentRow(row);
    else if (!selected.isEmpty())
        SelectInList(*current_, ToText(selected));
    // This lays the rows out too, so that the scroll bar has its range.
    current_->doItemsLayout();
    current_->verticalScrollBar()->setValue(scrolled);
    if (isPropertyMissing_ && Mode() == SelectorView::CurrentProperties && !NameToSelect(property_).empty())
        SelectInView();
}

SelectorView PropertySelector::Mode() const {
    return SelectorTabs()[static_cast<std::size_t>(modes_->currentIndex())].view;
}

void PropertySelector::ShowView(int index) {
    views_->setCurrentIndex(index);
    setFocusProxy(views_->currentWidget());
    // What a view was told while it was hidden, it hasn't followed.
    SelectInView();
}

bool PropertySelector::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const auto* const view = static_cast<QAbstractItemView*>(views_->currentWidget());
    if ((key != Qt::Key_Return && key != Qt::Key_Enter) || watched != view || !view->currentIndex().isValid())
        return QWidget::eventFilter(watched, event);
    Q_EMIT ItemChosen(view->currentIndex().data().toString());
    return true;
}

}  // namespace tintora
