#pragma once

#include "document/DocumentSurroundings.h"
#include "selectors/SelectorTree.h"
#include "selectors/qt/SelectorToolBar.h"
#include "text/Text.h"

#include <QWidget>

namespace tintora {

class FrontStyleSheet;
class SelectorList;

/// The palette that lists the statements of the style sheet in front: a table of its contents. To choose one selects it
/// in the text, a double click edits it, and its tool bar makes, edits, duplicates and removes statements.
///
/// It lives as long as the main window. Statement numbers are 1-based.
///
///     palette.SetFrontStyleSheet(&document);          // first, whenever another document comes to the front
///     palette.UpdateSelectors(statements, selector);  // by the document, while it is in front
///     palette.SelectStatement(3);
class ktSelectorPalette : public QWidget, public StatementsPalette {
    Q_OBJECT

  public:
    /// Only the items that are available exist; without `isAvailable` all do.
    explicit ktSelectorPalette(QWidget* parent = nullptr, const SelectorToolBar::IsAvailable& isAvailable = {});

    // The document in front. Every action needs one, and does nothing without.

    /// Another document has come to the front, `nullptr` if there is none. Its statements aren't known yet: the list is
    /// empty until it hands them over. The document must outlive its being in front. The one that is in front already
    /// changes nothing.
    void SetFrontStyleSheet(FrontStyleSheet* document);

    [[nodiscard]] FrontStyleSheet* GetFrontStyleSheet() const noexcept { return front_; }
    [[nodiscard]] bool HasFrontStyleSheet() const noexcept { return front_ != nullptr; }

    /// Stores the caption of a document's window; the other forgets it, whatever its argument.
    void RegisterStyleSheet(TextView caption) { styleSheetWindow_ = caption; }
    void UnRegisterStyleSheet(TextView caption);

    /// The caption that is stored; "" for none.
    [[nodiscard]] const Text& StyleSheetWindow() const noexcept { return styleSheetWindow_; }

    // The list. Scroll position, focus, and which blocks are folded stay when it is filled anew.

    /// There as long as it exists: it is kept up to date while it is hidden.
    [[nodiscard]] bool IsOpen() const override { return true; }

    /// Fills the list with these statements; nothing is selected then. Throws `OverflowFailure` for a statement beyond
    /// the length limit, and the list stays as it was.
    void SetSelectors(const Texts& statements);

    /// `SetSelectors` if there are more or fewer statements than nodes, else `UpdateCurrentSelector`. The texts aren't
    /// compared, so that one statement more and one less in one step leave a stale text.
    void UpdateSelectors(const Texts& statements, TextView currentSelector) override;

    /// Gives the selected node another selector. Does nothing if none is selected.
    void UpdateCurrentSelector(TextView selector);

    /// The selector of the selected node; "" if none is selected.
    [[nodiscard]] Text CurrentSelector() const;

    /// Selects the node of a statement and scrolls it into view. A number that no node has does nothing.
    void SelectStatement(int number) override;

    void ClearSelectorList();

    // The window.

    /// Asks the main window to show the palette.
    void ShowWindow();

    /// Does nothing: callers expect it.
    void MakeTopmost() {}

    /// Enables or disables an item of the tool bar by its key. A key that no item has does nothing.
    void UpdateMenuItemInSelectorTB(TextView key, bool enabled);

    /// Names the shortcut of a command of the main window in the tool tip of the item with the same key.
    void NameShortcut(TextView key, const QKeySequence& shortcut);

  Q_SIGNALS:
    /// The main window should show the pane with that key.
    void ShowFloatingWindow(const QString& pane);

  private:
    void ReportSelected(int number);
    void RunItem(const QString& key);
    void EditByDoubleClick();

    SelectorToolBar* toolBar_;
    SelectorList* list_;
    SelectorTree tree_;
    FrontStyleSheet* front_ = nullptr;
    Text styleSheetWindow_;
};

}  // namespace tintora
