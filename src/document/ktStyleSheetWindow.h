#pragma once

#include "document/DeclarationChange.h"
#include "document/DocumentSurroundings.h"
#include "document/KeyRoad.h"
#include "document/KnownFile.h"
#include "document/RecoveryCopies.h"
#include "document/UnsavedCopy.h"
#include "editor/CSSEditorSrcView.h"
#include "editor/Clock.h"
#include "model/StyleSheetTextSource.h"
#include "model/ktStyleSheet.h"
#include "settings/Separators.h"
#include "settings/SettingsStore.h"
#include "text/Encoding.h"
#include "text/Text.h"

#include <functional>
#include <memory>
#include <string>

namespace tintora {

/// The controller of one open style sheet: the only way by which the palettes, the statement cache and the preview hear
/// of what happens in the text, and by which commands and palettes change it.
///
/// The text in the editor is the single truth. The cache is read off it, the palettes show what the cache says, and the
/// preview shows the text. Whatever is expensive waits for one of four timers:
///
///     300 ms   after a change of the text: the cache
///     500 ms   after the caret has come to another token: the palettes
///     1000 ms  after a key that mattered: palettes and live preview
///     1500 ms  after a change by a palette: live preview
///
/// Offsets are 0-based, statement numbers 1-based. Each operation that changes statements or properties is one step to
/// undo.
class ktStyleSheetWindow final : public StyleSheetTextSource, public EditorParent {
  public:
    /// What the window works with. All of it must outlive the window.
    struct Surroundings {
        SourceView& textEditor;
        DocumentFrame& frame;
        StatementsPalette& statements;
        PropertiesPalette& properties;
        PreviewPanes& preview;
        SupportWarnings& warnings;
        StatementDialogs& statementDialogs;
        FileDialogs& fileDialogs;
        PageDialogs& pageDialogs;
        RecoveryCopies& recovery;
        EditorDialogs& editorDialogs;
        Clipboard& clipboard;
        SettingsStore& settings;
        Clock& clock;
        TypeAheadPopup& typeAheadPopup;
    };

    explicit ktStyleSheetWindow(const Surroundings& surroundings);
    ~ktStyleSheetWindow() override;
    ktStyleSheetWindow(const ktStyleSheetWindow&) = delete;
    ktStyleSheetWindow& operator=(const ktStyleSheetWindow&) = delete;

    [[nodiscard]] ktStyleSheet& StyleSheet() noexcept { return styleSheet_; }
    [[nodiscard]] const ktStyleSheet& StyleSheet() const noexcept { return styleSheet_; }
    [[nodiscard]] CSSEditorSrcView& CSSEditor() noexcept { return editor_; }

    // The text and the selection, as the editor has them.

    [[nodiscard]] Text GetText() const override { return editor_.GetText(); }

    // Files. A document is a style sheet, or a page whose embedded style sheet is edited: that is told from the content
    // of the file, not from its name.

    /// Opens a file: its path is stored, its text loaded, and the palettes and the preview follow. Throws as
    /// `LoadStyleSheet` does.
    void OpenStyleSheet(TextView path);

    /// Opens the style sheet to which a page links.
    void OpenLinkedStyleSheet(TextView htmlPath);

    /// Opens a copy of a file: without a path, and dirty from the start.
    void NewStyleSheetFromTemplate(TextView path);

    /// Loads a file's style sheet into the editor, with nothing to undo. Throws `FileFailure` for a file that can't be
    /// read, `UnclosedElementFailure` for a page whose style element doesn't end, and `OverflowFailure` beyond the
    /// length limit.
    void LoadStyleSheet(TextView path);

    /// Saves under the document's path, or asks for one. A page gets the text into its style element, and the document
    /// stays dirty then: the page isn't the style sheet's own file.
    void Save();

    /// Saves under a path that it asks for, which is overwritten whatever it holds. The document counts as clean
    /// afterwards, also if that failed.
    void SaveAs();

    /// Asks whether to save, and does what is answered. "No" makes the document clean.
    void SaveBeforeClosing();

    /// Whether the window may go: true for a clean document, and for a dirty one that is clean after the question.
    [[nodiscard]] bool DoHide();

    /// The window stays though it might have gone: what "No" has given up is unsaved again.
    void StayAfterAll();

    /// The window goes. What the user has saved or given up has no recovery copy afterwards.
    void Unload();

    /// Whether another program has changed the document's file since it was read or written here.
    [[nodiscard]] bool HasFileChanged() { return !GetFile().empty() && knownFile_.HasChanged(GetFile()); }

    /// Loads the file again, with the caret where it was.
    void Reload();

    /// The document keeps its own text; only saving asks about the change.
    void IgnoreFileChange() { knownFile_.IgnoreChange(GetFile()); }

    // What a crash leaves.

    /// Puts the text of a recovery copy into this document, which is a new one: it is dirty, has the copy's path, and
    /// keeps the copy of that name. Where the file isn't the one that the text comes from, saving asks.
    void Recover(const std::string& name, const RecoveryRecord& copy);

    /// Keeps the recovery copy of a text that is unsaved, now.
    void KeepRecoveryCopy();

    // Pages. What goes wrong with a page ends a command quietly and leaves the page as it was. A document without a
    // file is saved first; where it has none afterwards, nothing is linked.

    /// Links a page, which it asks for, to the style sheet.
    void LinkPage();

    /// Links every page in a folder, which it asks for, and below it, after a question.
    void LinkSite();

    /// Embeds the text in a page, which it asks for. From here on the document is the style sheet of that page.
    void EmbedInPage();

    /// Links or embeds by the choices of a dialog.
    void LinkStyleSheet();
    void Embed();

    /// Do nothing.
    void LinkPageAdvanced() noexcept {}
    void LinkSiteAdvanced() noexcept {}
    void EmbedInPageAdvanced() noexcept {}

    /// The path of the document; "" for one that was never saved.
    [[nodiscard]] const Text& GetFile() const noexcept { return styleSheet_.File(); }

    /// The encoding of the file as it was read last; UTF-8 before that.
    [[nodiscard]] Encoding FileEncoding() const noexcept { return fileEncoding_; }

    /// The caption: a file's name without its folder, or the name of a new document.
    [[nodiscard]] const Text& Caption() const noexcept { return caption_; }
    void SetCaption(TextView path);

    /// Enables what depends on the document itself: saving while it is dirty, an `@import` while it has a file.
    void UpdateMenus();

    /// Switch the commands that act on the front document.
    void EnableMenus();
    void DisableMenus();

    // Many documents. The palettes, the menus and the preview belong to the front one; the others only read their
    // statements, and catch up when they are activated.

    /// The document comes to the front: palettes, menus, preview and status bar become its own.
    void Activate();
    void Deactivate() noexcept {}
    void RegisterWithEditors() noexcept {}

    /// Loads a text into the editor and reads its statements.
    void SetText(TextView text);
    [[nodiscard]] int GetSelectionStart() const noexcept { return editor_.GetSelectionStart(); }
    [[nodiscard]] int GetSelectionLength() const { return editor_.GetSelectionLength(); }
    void SetSelection(int start, int end) { editor_.SetSelection(start, end); }
    void ReplaceText(TextView text, int start, int end) { editor_.ReplaceText(text, start, end); }
    void InsertText(TextView text, int offset) { editor_.InsertText(text, offset); }
    void SetSelectionText(TextView text) { editor_.SetSelectionText(text); }

    // The flags. `NeedsUpdating` says that palettes, toolbar and preview are stale, `SelectorsNeedUpdating` that the
    // palette of statements alone is, `NeedsPreviewing` that the preview alone is. Setting one of the first two
    // restarts the idle timer if it is set true, and stops it if it is set false, whatever the other says.

    [[nodiscard]] bool IsDirty() const noexcept { return isDirty_; }
    void SetDirty(bool isDirty);
    [[nodiscard]] bool NeedsUpdating() const noexcept { return needsUpdating_; }
    void SetNeedsUpdating(bool needsUpdating) override;
    [[nodiscard]] bool SelectorsNeedUpdating() const noexcept { return selectorsNeedUpdating_; }
    void SetSelectorsNeedUpdating(bool needUpdating);
    [[nodiscard]] bool NeedsPreviewing() const noexcept { return needsPreviewing_; }
    [[nodiscard]] int LastSelectedStatement() const noexcept { return lastSelectedStatement_; }

    /// The names of the timers that run, in the order of the alphabet.
    [[nodiscard]] Texts RunningTimers() const;

    // The update cycle.

    void CacheStatements();
    void UpdateOnIdle();

    /// For operations that can't wait for the timers. The palette of statements is neither served nor forgotten.
    void UpdateNow();
    void DisableUpdates() override;
    void EnableUpdates() { ResetIdleTimer(); }
    void ResetIdleTimer();
    void LivePreview();
    void DisableNextPreview();

    /// Previews, if live preview is on.
    void DoLivePreview();
    void UpdateEditors();
    void UpdateEditorsOnStyleSheetChange();
    void UpdateSelectorsPalette();
    void ClearSelectorsPalette();
    void UpdatePropertiesEditor();
    void ClearPropertiesEditor();
    void DisablePropertiesEditors();
    void UpdateCorePropertiesToolbar();

    /// Brings the palettes to a new place of the caret. The palette of properties is left alone while it changes the
    /// text itself, and the preview then waits for its time.
    void SelectionChangedEvent(int offset);

    /// The same for a move of the caret that still waits for its timer: whoever changes the current rule must not
    /// change the one that the caret has left.
    void FollowCaretNow();

    /// Previews whether live preview is on or not.
    void PreviewNow();
    void PreviewCurrentRule();

    /// Before and after the editor has dealt with a key of the text.
    void KeyDown(int code);
    void KeyUp(int code);

    /// Whether the selected text holds a brace, a comment's end or "@media".
    [[nodiscard]] bool WholeStatementSelected() const;

    // Statements.

    [[nodiscard]] Text GetCurrentSelector() const;
    [[nodiscard]] Text GetCurrentSelector1() const;
    [[nodiscard]] Text GetCurrentStatement() const;
    [[nodiscard]] Text GetCurrentStatement1() const;

    /// Where the statement at the caret starts; 1 for the first.
    [[nodiscard]] int GetCurrentStatementStartChar() const;
    [[nodiscard]] int GetCurrentStatementNumber(int offset) const;
    [[nodiscard]] int GetCurrentSelectorType() const;

    /// The selectors of the style sheet, in order.
    [[nodiscard]] Texts GetCurrentSelectors() const override;

    // What the style sheet uses.

    [[nodiscard]] Texts GetCurrentColors() const override { return styleSheet_.GetAllColors(); }
    [[nodiscard]] Texts GetCurrentFonts() const override { return styleSheet_.GetAllFonts(); }
    [[nodiscard]] Texts GetCurrentURLs() const override { return styleSheet_.GetAllURLs(); }
    [[nodiscard]] Texts GetAllClasses() const { return styleSheet_.GetAllClasses(); }
    [[nodiscard]] Texts GetAllIDs() const { return styleSheet_.GetAllIDs(); }

    /// The palette reports a choice, 1-based: selects the first place where that statement's text stands.
    void StatementSelected(int number);
    void SelectCurrentSelector();
    void SelectCurrentStatement();
    void InsertCursorAfterCurrentStatement();
    void InsertCursorBeforeCurrentStatement();

    /// Makes a statement of a kind, "" to ask for it.
    void NewStatement(TextView kind) override;
    void NewComment() { NewStatement(u"Comment"); }
    void EditStatement() override;
    void DuplicateStatement() override;
    void DeleteStatement() override;

    // Properties of the current statement.

    /// Throws `OverflowFailure` if the text would grow beyond the length limit, and it isn't changed then.
    void ChangeCurrentProperty(TextView name, TextView value);

    /// Several changes, one after another, as one: one step to undo, and one preview. No changes do nothing.
    void ChangeCurrentProperties(const DeclarationChanges& changes);
    void RemovePropertyFromCurrentStatement(TextView name);
    void SelectPropertyInCurrentStatement(TextView name);

    /// Both are the same offset, that of the closing brace, for a property that isn't there.
    [[nodiscard]] int GetPropertyInCurrentStatementStart(TextView name) const;
    [[nodiscard]] int GetPropertyInCurrentStatementEnd(TextView name) const;
    [[nodiscard]] Texts GetCurrentStatementProperties() const;
    [[nodiscard]] Texts GetStatementProperties(TextView body) const { return styleSheet_.GetStatementProperties(body); }

    // The declaration at the caret as of the last scan, and as the text has it now.

    [[nodiscard]] Text GetCurrentProperty() const;
    [[nodiscard]] Text GetCurrentPropertyName() override;
    [[nodiscard]] Text GetCurrentPropertyValue() const;
    [[nodiscard]] Text GetCurrentPropertyFromText() const;
    [[nodiscard]] Text GetCurrentPropertyNameFromText() const;
    [[nodiscard]] Text GetCurrentPropertyValueFromText() const;
    [[nodiscard]] Text GetCurrentPropertyFromChar(int offset) const;
    [[nodiscard]] Text GetCurrentPropertyNameFromChar(int offset) const;
    [[nodiscard]] Text GetCurrentPropertyValueFromChar(int offset) const;
    void EditCurrentProperty() override;
    [[nodiscard]] bool CursorInSelector() const;

    // The formatter.

    void FormatStyleSheetText();
    void FormatStyleSheetTextNotAt();
    [[nodiscard]] Text FormatOneStatement(TextView statement) const;

    // What the editor and the model call.

    void TextChanged() override;
    void SelectionChanged() override;
    void DeleteKeyDown() override;
    void SpecialKeyUp() override {}

    /// Writes a choice from the list of type-ahead, and brings the palettes up to date at once.
    void SetTypeAheadChoice(TextView choice) {
        editor_.SetTypeAheadChoice(choice);
        UpdateNow();
    }
    void HandleCutPasteClear(TextView text) override;
    void Undo() override;
    void LoadContent(TextView file) override;

  private:
    /// A declaration of the current statement, in its place in the text.
    struct FoundProperty {
        int start = 0;
        int end = 0;
        bool isFound = false;
    };

    [[nodiscard]] FoundProperty FindProperty(TextView name) const;
    [[nodiscard]] int StatementCount() const;
    [[nodiscard]] int CurrentNumber() const;
    [[nodiscard]] bool IsFirstStatementCurrent() const;

    /// The offset at which the current statement really starts.
    [[nodiscard]] int CurrentTrueStart() const;

    /// How long the current selector is where it stands in the text.
    [[nodiscard]] int CurrentSelectorLength() const;

    /// The offset behind the current statement and the white space behind that.
    [[nodiscard]] int EndOfCurrentWhitespace() const;

    /// An end that is reckoned from the start of the first statement, without the character too much unless that is
    /// white space; any other end as it is.
    [[nodiscard]] int ReachOfFirst(int end) const;

    /// The length that a separator has in the text, in its line ends.
    [[nodiscard]] int LengthInText(TextView separator) const;
    /// Reads the statements again if the text has changed since, so that a command never reckons with old places.
    void CatchUpWithText();

    /// The selector of the statement at the caret, which `GetCurrentSelector` may lag behind.
    [[nodiscard]] Text SelectorAtCaret() const;
    void FinishChange();
    void BringPalettesTo(int offset, int number);
    void ShowPropertyAtCaret(TextView name);

    /// What the palette of properties has changed has moved the caret: the others follow at once, so that nothing comes
    /// later that would fill the controls in the user's hands.
    void FollowChangeOfPalette();
    [[nodiscard]] bool IsInFront() const { return frame_.IsActiveDocument(); }
    [[nodiscard]] bool MayOverwrite(TextView path, TextView present);
    void SaveInto(const Text& path);
    void SaveIntoPage(const Text& path);
    void TextIsSaved();
    [[nodiscard]] RecoveryRecord MakeRecoveryRecord() const;
    void RememberFileOf(const RecoveryRecord& copy);
    [[nodiscard]] FileWriter WriterOfPages() const;
    [[nodiscard]] bool HasFileToLink();
    bool ChangePage(TextView path, const std::function<void()>& change);
    void LinkOnePage(TextView path, TextView relValue, TextView extraAttributes);
    void LinkPages(const Texts& pages);
    void ReplaceWhitespaceBehindStatement(TextView block);
    [[nodiscard]] Text TextForForm(int type, TextView selector) const;
    void InsertAtTop(TextView block);
    void InsertRuleSet(int number);
    void InsertStatement(TextView kind, TextView value);
    void WriteProperty(TextView name, TextView value);
    void ChangeExistingProperty(const FoundProperty& found, TextView value);
    void AddProperty(const FoundProperty& place, TextView name, TextView value);
    void RemoveProperty(const FoundProperty& found);

    DocumentFrame& frame_;
    StatementsPalette& statements_;
    PropertiesPalette& properties_;
    PreviewPanes& preview_;
    SupportWarnings& warnings_;
    StatementDialogs& statementDialogs_;
    FileDialogs& fileDialogs_;
    PageDialogs& pageDialogs_;
    RecoveryCopies& recovery_;
    SettingsStore& settings_;
    SourceView& textEditor_;
    ktStyleSheet styleSheet_;
    CSSEditorSrcView editor_;
    KeyRoad keyRoad_;
    std::unique_ptr<DelayTimer> cacheStatementsDelay_;
    std::unique_ptr<DelayTimer> selectionChangedDelay_;
    std::unique_ptr<DelayTimer> idleTimer_;
    std::unique_ptr<DelayTimer> previewDelay_;
    Text caption_;
    KnownFile knownFile_;
    UnsavedCopy unsavedCopy_;
    Encoding fileEncoding_ = Encoding::Utf8;
    int lastSelectedStatement_ = 0;
    bool isDirty_ = false;
    /// The text has changed since its statements were read.
    bool isCacheStale_ = false;
    /// The document is clean because the user doesn't want to save it.
    bool isGivenUp_ = false;
    /// The document is clean, and yet its text is in no file.
    bool isUnwritten_ = false;
    bool needsUpdating_ = false;
    bool selectorsNeedUpdating_ = false;
    bool needsPreviewing_ = false;
};

}  // namespace tintora
