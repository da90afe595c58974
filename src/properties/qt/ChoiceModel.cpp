#include "properties/qt/ChoiceModel.h"

#include "text/qt/QtText.h"

#include <algorithm>

namespace tintora {

bool ChoiceModel::Offer(const Texts& entries) {
    const auto differing = std::ranges::mismatch(entries_, entries);
    const auto kept = differing.in1 - entries_.begin();
    const auto count = static_cast<std::ptrdiff_t>(entries.size());
    if (kept == count && entries_.size() == entries.size())
        return false;
    if (differing.in1 != entries_.end()) {
        beginRemoveRows({}, static_cast<int>(kept), rowCount() - 1);
        entries_.erase(entries_.begin() + kept, entries_.end());
        endRemoveRows();
    }
    if (kept != count) {
        beginInsertRows({}, static_cast<int>(kept), static_cast<int>(count) - 1);
        entries_.insert(entries_.end(), entries.begin() + kept, entries.end());
        endInsertRows();
    }
    return true;
}

int ChoiceModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant ChoiceModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= entries_.size())
        return {};
    if (role == Qt::EditRole)
        return ToQString(entries_[row]);
    if (role == Qt::DisplayRole)
        return ToQString(TextView(entries_[row]).substr(0, DisplayedLength));
    return {};
}

}  // namespace tintora
