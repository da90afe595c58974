#pragma once

#include "model/StatementScan.h"
#include "model/StyleSheetTextSource.h"
#include "text/Text.h"

namespace tintora {

/// The model of one style sheet: a cache of its statements, and the answers to all questions about them.
///
/// There is no tree. `CacheStatements` cuts the text into statements; everything else is read off these strings and
/// thrown away. The cache is a snapshot: nothing here watches the text, and between two calls of `CacheStatements` it
/// may be stale.
///
///     ktStyleSheet sheet;
///     sheet.CacheStatements(u"h1 {color: red} p {}");
///     sheet.GetStatementNumber(3);                        // 1
///     sheet.getPropertyFromSelection(8);                  // "color: red"
///     sheet.getNthStatementAsText(1);                     // "p {}"
///
/// Numbers and positions: a selection position is a 0-based offset into the whole text; a statement number is 1-based,
/// 0 where the cache is empty; the n of an Nth operation is 0-based but for
/// `GetPropertiesFromNthStatementAsCollection`.
///
/// What isn't found is "", 0 or an empty list. A text beyond 32,767 units, or a position that doesn't fit 16 bits,
/// throws `OverflowFailure`. An n below -1, or any n that `GetPropertiesFromNthStatementAsCollection` can't find,
/// throws `std::out_of_range`.
class ktStyleSheet {
  public:
    // The text and its cache.

    /// The path of the file; "" until it is set.
    [[nodiscard]] const Text& File() const noexcept { return file_; }
    void SetFile(TextView file) { file_ = file; }

    /// The window that holds the text; it must outlive its use. `nullptr` for a style sheet without one.
    void setWindow(StyleSheetTextSource* window) noexcept { window_ = window; }

    /// Stores the path and has the window load it. It doesn't scan: the window does, when it has loaded.
    void OpenStyleSheet(TextView file);

    /// The window's text; "" where there is no window, or where it fails for any reason.
    [[nodiscard]] Text GetStyleSheetText() const;

    /// Replaces the cache by the statements of `text`, or of `GetStyleSheetText()` if `text` is "". On a failure the
    /// cache stays as it was.
    void CacheStatements(TextView text = {});

    /// The cache itself. Each statement keeps the white space behind it; the first also keeps what is in front of it.
    /// An `@media` block is followed by its nested statements, as entries of their own.
    [[nodiscard]] const Texts& GetAllStatementsAsTextUnstripped() const noexcept {
        return cachedStatements_.statements;
    }

    /// Where statement `number` (1-based) stood in the text at the last scan; throws `std::out_of_range` for a number
    /// that no entry has.
    [[nodiscard]] StatementOrigin GetStatementOrigin(int number) const;

    /// The entries, each trimmed.
    [[nodiscard]] Texts GetAllStatementsAsText() const;

    /// Entry n (0-based) as it stands, or trimmed; "" for -1 and for an n beyond the cache.
    [[nodiscard]] Text getNthStatementAsTextUnstripped(int n) const;
    [[nodiscard]] Text getNthStatementAsText(int n) const;

    /// The nested statements of one `@media` block.
    [[nodiscard]] Texts GetAtMediaStatements(TextView block) const;

    // Positions.

    /// The number of the statement that holds the position. A position behind the end belongs to the last entry; where
    /// a block was passed over, the answer can lie beyond the count.
    [[nodiscard]] int GetStatementNumber(int position) const;

    /// The offset at which the statement that holds the position starts. It is 1, not 0, for the first statement, and 0
    /// for a position behind the end.
    [[nodiscard]] int GetStatementStartChar(int position) const;

    /// Always 0; callers take it as the place for what has no place of its own.
    [[nodiscard]] int GetNthStatementStartChar(int n) const noexcept;

    /// The trimmed statement that holds the position.
    [[nodiscard]] Text getStatementFromSelection(int position) const;

    /// Whether the position lies before the first "{" of its statement; true if it has none.
    [[nodiscard]] bool CursorInSelector(int position) const;

    // Selectors.

    [[nodiscard]] Text ExtractSelector(TextView statement) const;
    [[nodiscard]] Texts GetAllSelectorsAsText() const;
    [[nodiscard]] Text GetNthSelector(int n) const;

    /// The selector of entry n (0-based) with the white space in front of it.
    [[nodiscard]] Text GetNthSelectorUnstripped(int n) const;
    [[nodiscard]] Text GetSelectorFromSelection(int position) const;
    [[nodiscard]] int GetSelectorType(TextView selector) const;

    // Declarations.

    [[nodiscard]] Text ExtractProperties(TextView statement) const;
    [[nodiscard]] Text GetPropertiesFromSelection(int position) const;
    [[nodiscard]] Texts ExtractPropertiesAsCollection(TextView statement) const;

    /// The declarations of entry n, which is 1-based here.
    [[nodiscard]] Texts GetPropertiesFromNthStatementAsCollection(int n) const;
    [[nodiscard]] Texts GetStatementProperties(TextView body) const;
    [[nodiscard]] Text GetPropertyName(TextView declaration) const;
    [[nodiscard]] Text GetPropertyValue(TextView declaration) const;

    /// The declaration around the position, without its ";"; "" in a selector and where no ";" or "}" follows. Directly
    /// behind a ";" the position is in the next declaration.
    [[nodiscard]] Text getPropertyFromSelection(int position) const;
    [[nodiscard]] Text GetPropertyAtSelection(int position) const { return getPropertyFromSelection(position); }

    // Inventories: what the whole style sheet uses.

    /// What follows each "color: " (one blank) of the text up to a ";" or "}", in lower case; of equal ones the last.
    [[nodiscard]] Texts GetAllColors() const;

    /// The declared values that are colours, by `IsValidColor`; each once.
    [[nodiscard]] Texts GetAllColors1() const;

    /// The `font-family` values without "!important". One that has it can stand in the list more than once.
    [[nodiscard]] Texts GetAllFonts() const;

    /// The declared values that begin with "url(", and "none"; each once.
    [[nodiscard]] Texts GetAllURLs() const;

    /// The names behind the first "." of each class selector, or "#" of each ID selector, as often as they occur.
    [[nodiscard]] Texts GetAllClasses() const;
    [[nodiscard]] Texts GetAllIDs() const;

    // White space.

    /// Whether the one character is white space; throws `std::invalid_argument` for "".
    [[nodiscard]] bool isWhitespace(TextView character) const;
    [[nodiscard]] Text stripLeftWS(TextView text) const;
    [[nodiscard]] Text stripRightWS(TextView text) const;

    /// The white space that the text begins with; "" for a text that is nothing else.
    [[nodiscard]] Text GetLeadingWhitespace(TextView text) const;

    // Variants.

    /// The statements of the window's text, scanned anew, with a backslash and quote guarding nothing.
    [[nodiscard]] Texts GetAllStatementsAsTextUnstripped1() const;

    /// The same with white space leading the statement behind it.
    [[nodiscard]] Texts GetAllStatementsAsTextUnstrippedLeading() const;

    /// As the operations without the number, but entering every block. `GetStatementStartChar1` doesn't count the white
    /// space behind a block's "{", and answers a position behind the end with the length of what it passed.
    [[nodiscard]] int GetStatementNumber1(int position) const;
    [[nodiscard]] int GetStatementStartChar1(int position) const;

    /// As `GetAtMediaStatements`, with white space leading the statement behind it.
    [[nodiscard]] Texts GetAtMediaStatements1(TextView block) const;

    /// The statement around a position, read off the text without the cache.
    [[nodiscard]] Text getStatementFromSelectionWalk(int position) const;

  private:
    /// Whether n names an entry; false for -1 and for an n beyond the cache, and a failure below that.
    [[nodiscard]] bool HasEntry(int n) const;

    Text file_;
    StyleSheetTextSource* window_ = nullptr;
    ScannedStatements cachedStatements_;
};

}  // namespace tintora
