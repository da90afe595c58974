#pragma once

#include <QStyledItemDelegate>

namespace tintora {

/// What a row of the list of statements holds besides its text, which is its selector on one line.
namespace selector_role {

/// The key of the node, a string.
inline constexpr int Key = Qt::UserRole;

/// The whole selector, a string.
inline constexpr int Selector = Qt::UserRole + 1;

/// The mark, the number of a `StatementMark`.
inline constexpr int Mark = Qt::UserRole + 2;

}  // namespace selector_role

/// Draws the rows of the list of statements: each has its mark in front, in the colour of its text, and tells its whole
/// selector in a tool tip where there isn't room for it.
class SelectorDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

/// A selector on one line, at most `most` units of it: every run of white space is one blank, and dots stand for what
/// is left out.
[[nodiscard]] QString OneLine(const QString& selector, qsizetype most);

}  // namespace tintora
