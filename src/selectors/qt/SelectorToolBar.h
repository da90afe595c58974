#pragma once

#include "text/Text.h"

#include <QSet>
#include <QToolBar>
#include <functional>

class QKeySequence;

namespace tintora {

struct SelectorItem;

/// The tool bar of the palette of statements: a button for new statements with a menu of their kinds, and one each to
/// edit, duplicate and remove the current statement. Its actions have the keys of the items as object names.
class SelectorToolBar : public QToolBar {
    Q_OBJECT

  public:
    /// Says whether the program has what an item needs.
    using IsAvailable = std::function<bool(TextView key)>;

    /// Items that aren't available don't exist: they have no button and no entry.
    SelectorToolBar(const IsAvailable& isAvailable, QWidget* parent);

    [[nodiscard]] bool HasItem(TextView key) const;

    /// Enables or disables an item; "miSNewStatement" stands for the button with the menu too. A key that no item has
    /// does nothing.
    void EnableItem(TextView key, bool enabled);

    /// Whether there is a document to work on; without one all items are disabled.
    void SetDocumentInFront(bool isThere);

    /// Names a shortcut in the tool tip of an item. It works elsewhere: the item doesn't take it.
    void NameShortcut(TextView key, const QKeySequence& shortcut);

  Q_SIGNALS:
    void ItemClicked(const QString& key);

  private:
    QAction* MakeAction(TextView key, const QString& text);
    QAction* AddButton(TextView key, const QString& text, const QString& iconName);
    void Announce(QAction* action);
    void AddNewButton(const IsAvailable& isAvailable);
    QMenu* MakeMenuOfKinds(const IsAvailable& isAvailable);
    void ShowEnabled();

    /// The keys that have been disabled.
    QSet<QString> disabled_;
    bool isDocumentInFront_ = false;
};

}  // namespace tintora
