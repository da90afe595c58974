#pragma once

#include "properties/SelectorViews.h"

#include <QWidget>

class QAbstractItemView;
class QListWidget;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace tintora {

class NarrowTabBar;

/// The list of all properties, in one of four views. Its name is `PropertySelectorPane`; `PropertySelector` is the
/// tree in it.
///
///     selector.SetUpPropertySelector();
///     selector.SelectPropertyInPropertySelector(1020, u"MarginPaddingEditor");    // and no signal
class PropertySelector : public QWidget {
    Q_OBJECT

  public:
    explicit PropertySelector(QWidget* parent);

    /// Fills the views that don't depend on the text.
    void SetUpPropertySelector();

    /// The property that gets the focus is selected in the tree, and in the view that is shown, which lists editors by
    /// the class of the current one ("" for none). What a view doesn't have leaves its selection; a number that is no
    /// property leaves all.
    void SelectPropertyInPropertySelector(int property, TextView editorClass);

    /// "Current Properties" lists the names of these declaration texts. As far as they are the same as before, the
    /// selection stays, and so does the scroll position. The property that has the focus is selected when it comes.
    void SetUpCurrentProperties(const Texts& declarations);

    /// Does nothing: callers expect it.
    void PreviewNow() {}

    [[nodiscard]] SelectorView Mode() const;

  Q_SIGNALS:
    /// The user has clicked an item with this text, or pressed Enter on it.
    void ItemChosen(const QString& text);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QListWidget* AddList(const SelectorTab& tab);
    QTreeWidget* AddTree(const SelectorTab& tab);
    void AddView(QAbstractItemView* view, const SelectorTab& tab);
    void SetUpTree();
    void SelectInTree(TextView name);
    /// False if the list doesn't have it.
    static bool SelectInList(QListWidget& list, TextView text);
    void ShowView(int index);
    void SelectInView();

    NarrowTabBar* modes_;
    QStackedWidget* views_;
    QListWidget* editors_ = nullptr;
    QTreeWidget* tree_ = nullptr;
    QListWidget* alphabetical_ = nullptr;
    QListWidget* current_ = nullptr;

    Texts currentNames_;
    /// The property that is edited isn't in the rule yet.
    bool isPropertyMissing_ = false;
    int property_ = 0;
    Text editorClass_;
};

}  // namespace tintora
