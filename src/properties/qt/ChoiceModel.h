#pragma once

#include "text/Text.h"

#include <QAbstractListModel>

namespace tintora {

/// The entries of a list, as a view shows them. What is common to the entries before and after stays untouched.
///
/// An entry of excessive length is displayed by its beginning; `Qt::EditRole` has all of it.
class ChoiceModel final : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    /// The length to which entries are displayed.
    static constexpr std::size_t DisplayedLength = 1000;

    /// Has exactly these entries. False if they are what it has.
    bool Offer(const Texts& entries);

    [[nodiscard]] const Texts& Entries() const noexcept { return entries_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

  private:
    Texts entries_;
};

}  // namespace tintora
