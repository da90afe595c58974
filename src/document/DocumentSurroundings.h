#pragma once

#include "editor/EditorSurroundings.h"
#include "linking/TextWriting.h"
#include "text/Text.h"

#include <memory>
#include <optional>

/// What a document window calls outside of itself: the main window, the palettes, the preview and its questions.
namespace tintora {

/// The main window, as a document sees it.
class DocumentFrame : public EditorFrame {
  public:
    /// Whether this document is the front one, to which the palettes and the menus belong.
    [[nodiscard]] virtual bool IsActiveDocument() const = 0;

    /// The document comes to the front of the list of open documents, or leaves the list.
    virtual void StyleSheetWindowActivated() = 0;
    virtual void StyleSheetWindowClosed() = 0;

    /// Enables or disables every command that acts on the front document, but for those that have rules of their own:
    /// saving, the new `@import`, and what the editor's `UpdateMenu` switches.
    virtual void EnableDocumentCommands(bool enabled) = 0;

    /// Enables the toolbar of core properties, or clears and disables it.
    virtual void EnableCorePropertiesToolbar(bool enabled) = 0;

    /// Shows the declarations of a rule's body on it.
    virtual void SetUpCorePropertiesToolbar(TextView body) = 0;

    /// The statements have been read again from the text.
    virtual void StatementsCached() = 0;

    /// The text has come to differ from the file, or has ceased to.
    virtual void DirtyChanged(bool isDirty) = 0;

    /// The caption of the document's pane.
    virtual void SetCaption(TextView caption) = 0;

    /// Brings the document's pane to the front, so that the focus is in the text.
    virtual void BringDocumentToFront() = 0;
};

/// What a document asks about its file.
class FileDialogs : public WriteMessages {
  public:
    enum class SaveAnswer { Yes, No, Cancel };
    enum class ChangedFileAnswer { Overwrite, Reload, Cancel };

    /// The path under which to save, by a dialog with that title that proposes a name and asks before it overwrites;
    /// nothing if it is cancelled. It opens in `folder`, or where files were saved last if that is "".
    [[nodiscard]] virtual std::optional<Text> AskSavePath(TextView title, TextView proposedName, TextView folder) = 0;

    /// Whether to save a document before it is closed.
    [[nodiscard]] virtual SaveAnswer AskSaveChanges(TextView title, TextView question) = 0;

    /// What to do about a file that another program has changed since it was read or written here.
    [[nodiscard]] virtual ChangedFileAnswer AskAboutChangedFile(TextView path) = 0;
};

/// What a link to a style sheet, or a style sheet that is embedded, says of itself, and in which pages.
struct PageOptions {
    Text rel;
    Text title;
    Text media;
    Texts targets;
};

/// Shows how a work on many pages goes on, for as long as it lives.
class PageProgress {
  public:
    PageProgress() = default;
    PageProgress(const PageProgress&) = delete;
    PageProgress& operator=(const PageProgress&) = delete;
    virtual ~PageProgress() = default;

    /// `count` pages are done; false if the user wants no more of it.
    [[nodiscard]] virtual bool GoOn(int count) = 0;
};

/// What a document asks about pages.
class PageDialogs {
  public:
    virtual ~PageDialogs() = default;

    /// A page, by a dialog with that title; nothing if it is cancelled.
    [[nodiscard]] virtual std::optional<Text> AskPage(TextView title) = 0;

    /// A folder, by a dialog with that prompt; nothing if it is cancelled.
    [[nodiscard]] virtual std::optional<Text> AskFolder(TextView prompt) = 0;

    /// The answer to a question with OK and Cancel.
    [[nodiscard]] virtual bool Confirm(TextView question) = 0;

    /// Nothing if it is cancelled.
    [[nodiscard]] virtual std::optional<PageOptions> AskLinkOptions() = 0;
    [[nodiscard]] virtual std::optional<PageOptions> AskEmbedOptions() = 0;

    /// The sign that something takes long, switched on and off.
    virtual void ShowBusy(bool isBusy) = 0;
    [[nodiscard]] virtual std::unique_ptr<PageProgress> ShowProgress(int pageCount) = 0;
};

/// The palette of statements. It must exist.
class StatementsPalette {
  public:
    virtual ~StatementsPalette() = default;

    [[nodiscard]] virtual bool IsOpen() const = 0;

    /// All statements, trimmed, and the selector of the current one.
    virtual void UpdateSelectors(const Texts& statements, TextView currentSelector) = 0;

    /// The statement at the caret, 1-based; 0 for none.
    virtual void SelectStatement(int number) = 0;
};

/// The palette of property editors.
class PropertiesPalette {
  public:
    virtual ~PropertiesPalette() = default;

    [[nodiscard]] virtual bool IsOpen() const = 0;
    virtual void Enable() = 0;
    virtual void Disable() = 0;

    /// The body of the current rule; "" for none.
    virtual void SetProperties(TextView body) = 0;
    virtual void SelectPropertyinText(TextView name) = 0;
    virtual void EditProperty(TextView name) = 0;

    /// The feature that was shown last: the type of the current selector.
    virtual void SetLastProperty(int feature) = 0;

    /// Whether the text is being changed by the palette: it shows that change already, and must not be filled from it.
    [[nodiscard]] virtual bool IsChangingProperty() const = 0;
};

/// The preview panes.
class PreviewPanes {
  public:
    virtual ~PreviewPanes() = default;

    virtual void PreviewNow() = 0;
    virtual void PreviewCurrentRule() = 0;
};

/// The warnings about what browsers don't support.
class SupportWarnings {
  public:
    virtual ~SupportWarnings() = default;

    virtual void SetUpWarnings(int feature) = 0;
};

/// The forms that make and edit statements.
class StatementDialogs {
  public:
    virtual ~StatementDialogs() = default;

    /// The kind of statement that the user wants to make; "" if the question is cancelled.
    [[nodiscard]] virtual Text AskStatementKind() = 0;

    /// The form for a kind, filled with `value`; gives the new text, "" if it is cancelled.
    [[nodiscard]] virtual Text EditSelector(TextView kind, TextView value) = 0;
};

}  // namespace tintora
