#pragma once

#include "document/Clock.h"
#include "document/DocumentSurroundings.h"
#include "document/KeyRoad.h"
#include "document/Separators.h"
#include "editor/CSSEditorSrcView.h"
#include "model/StyleSheetTextSource.h"
#include "model/ktStyleSheet.h"
#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <memory>

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
        EditorDialogs& editorDialogs;
        Clipboard& clipboard;
        SettingsStore& settings;
        Clock& clock;
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

    /// Opens a file: its path is stored, its text loaded, and the palettes and the preview follow.
    void OpenStyleSheet(TextView path);

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
    void DisableUpdates();
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

    /// Brings the palettes to a new place of the caret.
    void SelectionChangedEvent(int offset);

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

    /// The selectors of the style sheet, each once.
    [[nodiscard]] Texts GetCurrentSelectors() const;

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

    void ChangeCurrentProperty(TextView name, TextView value);
    void RemovePropertyFromCurrentStatement(TextView name);
    void SelectPropertyInCurrentStatement(TextView name);

    /// Both are the same offset, that of the closing brace, for a property that isn't there.
    [[nodiscard]] int GetPropertyInCurrentStatementStart(TextView name) const;
    [[nodiscard]] int GetPropertyInCurrentStatementEnd(TextView name) const;
    [[nodiscard]] Texts GetCurrentStatementProperties() const;

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
    void FinishChange();
    void ReplaceWhitespaceBehindStatement(TextView block);
    void InsertAtTop(TextView block);
    void InsertRuleSet(int number);
    void InsertStatement(TextView kind, TextView value);
    void ChangeExistingProperty(const FoundProperty& found, TextView value);
    void AddProperty(const FoundProperty& place, TextView name, TextView value);

    DocumentFrame& frame_;
    StatementsPalette& statements_;
    PropertiesPalette& properties_;
    PreviewPanes& preview_;
    SupportWarnings& warnings_;
    StatementDialogs& statementDialogs_;
    SettingsStore& settings_;
    SourceView& textEditor_;
    ktStyleSheet styleSheet_;
    CSSEditorSrcView editor_;
    KeyRoad keyRoad_;
    std::unique_ptr<DelayTimer> cacheStatementsDelay_;
    std::unique_ptr<DelayTimer> selectionChangedDelay_;
    std::unique_ptr<DelayTimer> idleTimer_;
    std::unique_ptr<DelayTimer> previewDelay_;
    int lastSelectedStatement_ = 0;
    bool isDirty_ = false;
    bool needsUpdating_ = false;
    bool selectorsNeedUpdating_ = false;
    bool needsPreviewing_ = false;
};

}  // namespace tintora
