#pragma once

#include "language/LexClass.h"
#include "text/Text.h"

#include <cstdint>
#include <memory>

/// The text control, as the source editor uses it.
///
/// Positions are pairs of a column and a row, both 0-based and in code units; a row ends at CR LF, CR or LF, and its
/// terminator belongs to it. Text that is put in gets the document's own line end (the first of the loaded text, LF
/// where it has none) for each CR LF, CR and LF in it; text that is loaded stays as it is.
namespace tintora {

/// A selection as its user made it: from its anchor to the caret, which may lie before the anchor.
struct SelectionRange {
    int startColumn = 0;
    int startRow = 0;
    int endColumn = 0;
    int endRow = 0;

    friend bool operator==(const SelectionRange&, const SelectionRange&) = default;
};

/// The token that covers a position: its type, as the scanner numbers them, and its place in the row. In a row without
/// tokens, and behind the last token of a row, the type is 0.
struct TokenInfo {
    int type = 0;
    int startColumn = 0;
    int length = 0;

    friend bool operator==(const TokenInfo&, const TokenInfo&) = default;
};

/// Pixels of the control's own area, where nothing else is said.
struct PixelPosition {
    int x = 0;
    int y = 0;
};

/// The document of a text control.
///
/// A position beyond a row's text is taken for its end, one beyond the last row for the end of the text. After each
/// change the caret stands behind what was put in, with nothing selected; after an undo or a redo behind what came
/// (back), or where what went stood.
class SourceBuffer : public LexBuffer {
  public:
    /// The text of a row without its terminator; "" for a row that isn't there.
    [[nodiscard]] virtual Text GetLine(int row) const = 0;

    /// The length of a row with its terminator; 0 for a row that isn't there.
    [[nodiscard]] virtual int GetTrueLineLength(int row) const = 0;

    /// The number of rows, which is at least 1: a terminator at the end of the text begins another row.
    [[nodiscard]] virtual int NumLines() const = 0;

    /// The 0-based offset at which a row begins: that of the first for a row below 0, the length of the text for one
    /// behind the last.
    [[nodiscard]] virtual int GetLineStart(int row) const = 0;

    /// The row in which a 0-based offset lies; the last row for one beyond the text, the first for one below 0.
    [[nodiscard]] virtual int GetRowAt(int offset) const = 0;

    /// Each of these is one undoable step. The ends of a range may come in either order.
    virtual void Insert(int column, int row, TextView text) = 0;
    virtual void Delete(int startColumn, int startRow, int endColumn, int endRow) = 0;
    virtual void InsertOverwrite(int startColumn, int startRow, int endColumn, int endRow, TextView text) = 0;

    /// The changes between the two are one undoable step together. They nest; without a change there is no step.
    virtual void BeginUndoStep() = 0;
    virtual void EndUndoStep() = 0;

    [[nodiscard]] virtual bool CanUndo() const = 0;
    [[nodiscard]] virtual bool CanRedo() const = 0;
    virtual void Undo() = 0;
    virtual void Redo() = 0;
    virtual void ClearUndoStack() = 0;

    /// Gives the text to another scanner; all of it is scanned anew.
    virtual void SetLex(std::unique_ptr<LexClass> lex) = 0;
};

/// How tokens look. Colours have red in their lowest byte.
class SourceStyles {
  public:
    virtual ~SourceStyles() = default;

    enum class Use { ThisColor, DefaultColor };

    virtual void SetForegroundColor(int tokenType, std::int32_t color, Use use) = 0;
    virtual void SetBackgroundColor(int tokenType, std::int32_t color, Use use) = 0;

    static constexpr int Bold = 1;
    static constexpr int Italic = 2;

    /// `bits` is the sum of `Bold` and `Italic`.
    virtual void SetFontStyle(int tokenType, int bits) = 0;
};

/// Makes one undoable step of all changes while it lives.
class UndoStep {
  public:
    explicit UndoStep(SourceBuffer& buffer) : buffer_(buffer) { buffer_.BeginUndoStep(); }
    ~UndoStep() { buffer_.EndUndoStep(); }
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;

  private:
    SourceBuffer& buffer_;
};

enum class MouseButton { Left, Middle, Right };

/// The state of the shift keys in events: the sum of these.
namespace shift_state {
inline constexpr int Shift = 1;
inline constexpr int Control = 2;
inline constexpr int Alt = 4;
}  // namespace shift_state

/// Codes of keys in events. A letter or digit has the code of its upper-case form; the code of a key that gives one of
/// the four marks comes from the mark, whatever the keyboard's layout.
namespace key_code {
inline constexpr int Backspace = 8;
inline constexpr int Control = 17;
inline constexpr int Space = 32;
inline constexpr int Delete = 46;
inline constexpr int SemicolonOrColon = 186;
inline constexpr int ClosingBracketOrBrace = 221;
}  // namespace key_code

/// What the control tells. The events come inside of the call or the key press that causes them.
class SourceViewEvents {
  public:
    virtual ~SourceViewEvents() = default;

    /// The control can be used; told once.
    virtual void Ready() = 0;

    /// The selection or the caret has changed; the position is the caret's.
    virtual void SelectionChanged(int column, int row) = 0;
    virtual void TextChanged() = 0;

    /// The text has changed by other means than typed characters and the calls of this port: a drop, a paste by the
    /// middle button, an input method, the control's own replacing.
    virtual void ChangedOtherwise() = 0;

    virtual void KeyPressedDown(int code, int shift) = 0;
    virtual void CharacterTyped(char16_t character) = 0;
    virtual void KeyReleased(int code, int shift) = 0;
    virtual void MousePressed(MouseButton button, int shift, PixelPosition position) = 0;
    virtual void MouseReleased(MouseButton button, int shift, PixelPosition position) = 0;
};

/// Commands of `ExecuteCommand`.
enum class SourceCommand { Indent = 43, Outdent = 44 };

/// The text control itself.
class SourceView {
  public:
    virtual ~SourceView() = default;

    /// Who hears of what happens; it must outlive the control. `nullptr` for nobody.
    virtual void SetEvents(SourceViewEvents* events) = 0;

    [[nodiscard]] virtual SourceBuffer& Buffer() = 0;
    [[nodiscard]] virtual const SourceBuffer& Buffer() const = 0;
    [[nodiscard]] virtual SourceStyles& Styles() = 0;

    [[nodiscard]] virtual Text GetText() const = 0;

    /// Loads a text in the place of the whole text. Its first line end is the document's own from now on.
    virtual void SetText(TextView text) = 0;

    /// The document's own line end: CR LF, CR or LF.
    [[nodiscard]] virtual TextView LineEnd() const = 0;

    /// In pixels.
    [[nodiscard]] virtual int CharWidth() const = 0;
    [[nodiscard]] virtual int LineHeight() const = 0;

    [[nodiscard]] virtual int CaretColumn() const = 0;
    [[nodiscard]] virtual int CaretRow() const = 0;
    [[nodiscard]] virtual bool HasSelection() const = 0;
    [[nodiscard]] virtual SelectionRange GetSelectionRange() const = 0;
    virtual void SelectRange(const SelectionRange& range) = 0;
    virtual void ScrollToPosition(int row, int column) = 0;
    [[nodiscard]] virtual PixelPosition PositionToPixels(int column, int row) const = 0;

    /// The same place in pixels of the screen.
    [[nodiscard]] virtual PixelPosition ClientToScreen(PixelPosition position) const = 0;
    [[nodiscard]] virtual TokenInfo GetTokenInfo(int column, int row) = 0;

    virtual void CutSelection() = 0;
    virtual void CopySelection() = 0;
    virtual void ClearSelection() = 0;
    virtual void PasteClipboard() = 0;

    virtual void FindDialog() = 0;
    virtual void ReplaceDialog() = 0;
    virtual void FindNext() = 0;
    virtual void ExecuteCommand(SourceCommand command) = 0;
    virtual void PrintBuffer() = 0;

    /// Scans the whole text anew and draws it.
    virtual void Recolor() = 0;

    /// Between the two nothing is drawn. They nest.
    virtual void FreezeRedraw() = 0;
    virtual void ThawRedraw() = 0;
};

}  // namespace tintora
