#pragma once

#include "language/FrontDocument.h"
#include "text/Text.h"

#include <optional>
#include <vector>

/// What the source editor calls outside of itself and its text control.
namespace tintora {

/// The document window that the editor is a part of. As long as somebody types in it, it is the document in front.
class EditorParent : public FrontDocument {
  public:
    virtual void TextChanged() = 0;
    virtual void SelectionChanged() = 0;
    virtual void DeleteKeyDown() = 0;
    virtual void SpecialKeyUp() = 0;

    /// Behind a cut, a paste or a clear; `text` is what was concerned.
    virtual void HandleCutPasteClear(TextView text) = 0;

    /// Behind an undo.
    virtual void Undo() = 0;
    virtual void SetNeedsUpdating(bool needsUpdating) = 0;

    /// Keeps the palettes from being updated until the next key comes up.
    virtual void DisableUpdates() = 0;

    virtual void NewStatement(TextView kind) = 0;
    virtual void EditStatement() = 0;
    virtual void DuplicateStatement() = 0;
    virtual void DeleteStatement() = 0;
    virtual void EditCurrentProperty() = 0;

    /// The name of the property at the caret; "" where there is none.
    [[nodiscard]] virtual Text GetCurrentPropertyName() = 0;
};

/// The main window, as the editor sees it.
class EditorFrame {
  public:
    virtual ~EditorFrame() = default;

    /// Whether the documents took the focus last, and not the palettes.
    [[nodiscard]] virtual bool IsDocumentInFront() const = 0;

    /// Enables or disables the tool with that key, where there is one.
    virtual void UpdateMenuItem(TextView key, bool enabled) = 0;

    /// Has the front document bring its own menu items up to date.
    virtual void UpdateMenus() = 0;

    /// The text of a pane of the status bar.
    virtual void SetStatusBarText(TextView pane, TextView text) = 0;
};

class Clipboard {
  public:
    virtual ~Clipboard() = default;

    /// Whether it holds text; "" counts as none.
    [[nodiscard]] virtual bool HasText() const = 0;
    [[nodiscard]] virtual Text GetText() const = 0;
    virtual void SetText(TextView text) = 0;
};

/// An entry of the contextual menu that is shown. A separator has no caption.
struct ContextMenuEntry {
    TextView key;
    TextView caption;

    [[nodiscard]] bool IsSeparator() const noexcept { return caption.empty(); }
    friend bool operator==(const ContextMenuEntry&, const ContextMenuEntry&) = default;
};

/// What the editor asks and shows by windows of their own.
class EditorDialogs {
  public:
    virtual ~EditorDialogs() = default;

    /// The line number that the user gives, 1-based; nothing if the question is cancelled.
    [[nodiscard]] virtual std::optional<int> AskLineNumber() = 0;

    /// Shows the entries at the pointer; gives the key of the chosen one, "" for none.
    [[nodiscard]] virtual Text ChooseFromMenu(const std::vector<ContextMenuEntry>& entries) = 0;

    virtual void ShowMessage(TextView title, TextView text) = 0;
};

/// The list of what may be typed, in a window of its own at the caret.
class TypeAheadPopup {
  public:
    virtual ~TypeAheadPopup() = default;

    /// Whether the text has the focus, so that a list may take it.
    [[nodiscard]] virtual bool CanOpen() const = 0;

    /// Shows a list that has the focus until it closes itself, and returns at once. `partial` is what is typed of an
    /// item; `top` and `left` are where the list goes, in pixels of the screen. Whoever made it hears of the choice.
    virtual void GetTypeAheadValue(const Texts& list, TextView partial, int top, int left) = 0;
};

}  // namespace tintora
