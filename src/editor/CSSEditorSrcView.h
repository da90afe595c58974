#pragma once

#include "editor/Clock.h"
#include "editor/EditorSurroundings.h"
#include "editor/SourceView.h"
#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace tintora {

/// Where a word lies in its row: from `start` to before `end`, 0-based columns.
struct WordBoundaries {
    int start = 0;
    int end = 0;

    friend bool operator==(const WordBoundaries&, const WordBoundaries&) = default;
};

/// A token with its text.
struct TokenText {
    Text text;
    int type = 0;
    int startColumn = 0;
    int length = 0;
};

/// The source editor of one document: a small interface by character offsets over the text control, and the road by
/// which what the user does in the text reaches the document.
///
/// It holds no copy of the text. Offsets are 0-based, count code units over the whole text, line ends included, and fit
/// 16 bits; one that doesn't throws `OverflowFailure`. Programmatic edits go through `ReplaceText`, `ReplaceAllText`,
/// `SetSelectionText` and `InsertText`, so that they can be undone; `SetText` alone forgets what could be.
class CSSEditorSrcView final : public SourceViewEvents {
  public:
    /// What the editor works with. All of it must outlive the editor.
    struct Surroundings {
        SourceView& textEditor;
        EditorParent& parent;
        EditorFrame& frame;
        Clipboard& clipboard;
        EditorDialogs& dialogs;
        SettingsStore& settings;
        Clock& clock;
        TypeAheadPopup& typeAheadPopup;
    };

    /// Sets the control up and listens to it.
    explicit CSSEditorSrcView(const Surroundings& surroundings);
    ~CSSEditorSrcView() override;
    CSSEditorSrcView(const CSSEditorSrcView&) = delete;
    CSSEditorSrcView& operator=(const CSSEditorSrcView&) = delete;

    // The text.

    [[nodiscard]] Text GetText() const;

    /// Loads a text: nothing that could be undone stays, and the document isn't told of a change. The caret goes to the
    /// start, but for "", which leaves the selection alone.
    void SetText(TextView text);

    void ReplaceAllText(TextView text);

    /// Puts `text` in the place of what stands from `start` to before `end`. Where `start` isn't below `end` it is
    /// inserted at `start` and nothing goes. An offset on a line terminator means the end of its line's text.
    void ReplaceText(TextView text, int start, int end);
    void InsertText(TextView text, int offset) { ReplaceText(text, offset, offset); }

    // The selection.

    /// The offset of the caret; with a selection that of its anchor, as of the last change that was reported.
    [[nodiscard]] int GetSelectionStart() const noexcept { return CurrentSelectionStart; }
    [[nodiscard]] int GetSelectionLength() const;

    /// As many characters as are selected, from `GetSelectionStart` on: for a selection made backwards these aren't the
    /// selected ones.
    [[nodiscard]] Text GetSelectedText() const;
    void SetSelection(int start, int end);
    void SetSelectionStart(int offset);

    /// Does nothing: the selection that a caller means to widen stays as it is.
    void SetSelectionLength(int length) noexcept;

    /// Puts `text` in the place of the selection, as two undoable steps.
    void SetSelectionText(TextView text);

    // Offsets, columns and rows.

    [[nodiscard]] int XYToCharOffset(int column, int row) const;
    [[nodiscard]] int CharOffsetToRow(int offset) const;

    /// Beyond the line's length for an offset on its terminator.
    [[nodiscard]] int CharOffsetToColumn(int offset) const;

    // Tokens and words.

    [[nodiscard]] int GetTokenType(int column, int row) const;
    [[nodiscard]] TokenText GetTokenAtCaret(int column, int row) const;

    /// What stands between the delimiters around an offset, trimmed.
    [[nodiscard]] Text GetTokenAtCharPosition(int offset) const;

    /// The word around a column. A word that runs to the end of its line is one character short.
    [[nodiscard]] WordBoundaries GetWordBoundaries(int column, int row) const;
    [[nodiscard]] Text GetWholeWord(int column, int row) const;
    void SelectWholeWord(int column, int row);

    // Commands.

    void Cut();
    void Copy();
    void Paste();
    void Clear();
    void SelectAll();
    void Undo();
    void Redo();
    [[nodiscard]] bool CanUndo() const;
    [[nodiscard]] bool CanRedo() const;
    void Find();
    void Replace();
    void FindAgain();
    void PrintStyleSheet();
    void Indent();
    void Outdent();

    /// Makes a comment of the selection; without one it changes nothing.
    void CommentOut();

    /// Asks for a line and goes there. A number beyond the lines by more than one is ignored.
    void GotoLine();

    // Type-ahead: a list of what may be typed comes up a second after a key at a place where there is something to
    // offer, and at once when it is asked for.

    /// For a typed character; the key 0 without Control is the request for a list at once, which is granted also where
    /// type-ahead is switched off.
    void StartTypeAhead(std::int16_t key, bool isControlHeld);

    /// Offers what the place of the caret takes.
    void TypeAhead();

    /// Offers names (`type` 19) that begin with `first`, or values (21) of the property `first` that begin with
    /// `second`. Nothing happens where there is none, or just the one that is typed already. `top` and `left` are
    /// pixels of the screen.
    void GetTypeAheadValue(int type, TextView first, TextView second, int top, int left);

    /// Writes a choice from the list that `TypeAheadReturnType` stands for, as one step to undo; "" changes nothing.
    void SetTypeAheadChoice(TextView choice);

    // Menus and status bar.

    void UpdateMenu();
    void UpdateStatusBar();

    /// The entries that the contextual menu shows now.
    [[nodiscard]] std::vector<ContextMenuEntry> UpdateContextualMenu();

    /// Does what an entry of the contextual menu says; an unknown key does nothing.
    void RunContextMenuEntry(TextView key);

    // Colours.

    /// Gives the control a new scanner and all token styles.
    void SetupColorCoding();

    /// Gives the control the style of one type of tokens, if it has one.
    void SetupTokenStyle(int tokenType);

    /// After a change of the stored styles.
    void UpdateColorCoding();

    /// Do nothing: the font is chosen when the control is made, and clicks belong to it.
    void SetFont(TextView name) noexcept;
    void EyedropperClick(int x, int y) noexcept;

    /// Shows "Error(number): description" in a box.
    void ShowError(int number, TextView description);

    // What the control tells.

    void Ready() override;
    void SelectionChanged(int column, int row) override;
    void TextChanged() override;
    void ChangedOtherwise() override;
    void KeyPressedDown(int code, int shift) override;
    void CharacterTyped(char16_t character) override;
    void KeyReleased(int code, int shift) override;
    void MousePressed(MouseButton button, int shift, PixelPosition position) override;
    void MouseReleased(MouseButton button, int shift, PixelPosition position) override;

    // The state of the editor, open to the rest of the program under these names.

    std::int16_t LastCaretX = 0;
    std::int16_t LastCaretY = 0;

    /// The type of token, 19 or 21, that an open type-ahead list stands for.
    std::int16_t TypeAheadReturnType = 0;
    std::int32_t LastTokenType = 0;
    std::int16_t CurrentSelectionStart = 0;

    /// Written by `SetSelection`, and read by nobody.
    std::int16_t CurrentSelectionEnd = 0;
    bool Initialized = false;

    /// Never set; a set one would keep the selection event from doing its work.
    bool KeyDown = false;
    bool CtrlKeyDown = false;

    /// While it is set the selection event updates the menus only.
    bool MouseDown = false;

    /// While it is set no change of the text reaches the document.
    bool Loading = false;

  private:
    /// A position in the text, on a line's text and not on its terminator.
    struct Position {
        int column = 0;
        int row = 0;
    };

    [[nodiscard]] Position PositionInLine(int offset) const;
    [[nodiscard]] bool IsTextEmpty() const;
    void StoreSelectionStart();
    void StoreCaret(int column, int row);

    SourceView& textEditor_;
    EditorParent& parent_;
    EditorFrame& frame_;
    Clipboard& clipboard_;
    EditorDialogs& dialogs_;
    SettingsStore& settings_;
    TypeAheadPopup& typeAheadPopup_;
    std::unique_ptr<DelayTimer> typeAheadDelay_;
};

}  // namespace tintora
