#include "properties/qt/EntryList.h"

#include "properties/qt/ChoiceModel.h"

#include <QScopedValueRollback>

namespace tintora {

namespace {

constexpr int VisibleRows = 4;
constexpr int LeastWidth = 100;

}  // namespace

EntryList::EntryList(const QString& name, QWidget* parent) : QListView(parent), model_(new ChoiceModel(this)) {
    setObjectName(name);
    setModel(model_);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (isShowing_)
            return;
        const QModelIndexList rows = selectionModel()->selectedIndexes();
        Q_EMIT EntrySelected(rows.isEmpty() ? None : static_cast<std::size_t>(rows.front().row()));
    });
}

void EntryList::ShowEntries(const Texts& entries, std::size_t selected) {
    const QScopedValueRollback showing(isShowing_, true);
    model_->Offer(entries);
    if (selected < entries.size()) {
        const QModelIndex index = model_->index(static_cast<int>(selected));
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        scrollTo(index);
    } else {
        selectionModel()->clear();
    }
}

QSize EntryList::sizeHint() const {
    ensurePolished();
    return {LeastWidth, VisibleRows * (fontMetrics().height() + 2) + 2 * frameWidth()};
}

void EntryList::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    Q_EMIT FocusHasCome();
}

}  // namespace tintora
