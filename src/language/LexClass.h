#pragma once

#include "language/LexBuffer.h"
#include "language/LineChunks.h"
#include "language/PropertyRules.h"
#include "language/TokenTypes.h"
#include "text/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace tintora {

// The flags of a line: where in the style sheet its end is. The first line starts with none of them, each other line
// with those of the line before it. The low 8 bits beside them belong to the control.

/// Inside of a comment.
inline constexpr std::int32_t LexInComment = 256;
/// Between the braces of a rule.
inline constexpr std::int32_t LexInRule = 512;
/// The next word is the name of a property.
inline constexpr std::int32_t LexExpectName = 1024;
/// An "@media" was seen. Nothing clears it: it stays set to the end of the style sheet.
inline constexpr std::int32_t LexInMedia = 2048;
/// A "{" was seen since an "@media".
inline constexpr std::int32_t LexInMediaRule = 4096;

/// The scanner that tells the text control what each character of a style sheet is, a line at a time.
///
/// It judges as well: the name of a property that nobody knows, and a value that its property doesn't take, have types
/// of their own. Any text has tokens; what is bad has the type of something bad.
///
/// For each line in turn:
///
///     LexClass lexer;
///     lexer.ISourceLex4_BeginLineScan(buffer, row, line);
///     for (LexToken token = lexer.ISourceLex4_ScanToken(); token.type != token_type::EndOfLine;
///          token = lexer.ISourceLex4_ScanToken())
///         ...;                                                  // "a " 24, "{" 23, "color" 19, ":" 17, " red" 21
///     if (lexer.ISourceLex4_EndLineScan(buffer))
///         ...;                                                  // the next line must be scanned too
///
/// The tokens of a line cover it without gap or overlap. One scanner serves one control, and may be used for its lines
/// in any order; but a value is judged against the name that was scanned last, whichever line that was on.
///
/// A line holds at most 32,767 units; a longer one throws `OverflowFailure`.
class LexClass {
  public:
    LexClass() = default;
    LexClass(const LexClass&) = delete;
    LexClass& operator=(const LexClass&) = delete;
    LexClass(LexClass&&) = delete;
    LexClass& operator=(LexClass&&) = delete;
    ~LexClass() = default;

    // The calls of the control.

    /// Starts the scan of the line `row` (0-based), whose text begins `text`; what stands behind the line's length in
    /// the buffer isn't looked at. The last argument is not used. Where the line is too long, this throws and changes
    /// nothing.
    void ISourceLex4_BeginLineScan(const LexBuffer& buffer, std::int32_t row, TextView text, std::int32_t unused = 0);

    /// The token at `ISourceLex4_GetLineIndex()`, behind which the index then stands; type 0 and no length at the end
    /// of the line, as often as it is asked.
    [[nodiscard]] LexToken ISourceLex4_ScanToken() { return Scan(Judging::On); }

    /// Stores the flags at the place that the scan has reached, and answers whether they differ from what the buffer
    /// held. Of what it held only the low 16 bits are looked at.
    [[nodiscard]] bool ISourceLex4_EndLineScan(LexBuffer& buffer);

    /// The 0-based offset of the next token. It may be set to any place of the line; one below 0 counts as 0.
    [[nodiscard]] std::int32_t ISourceLex4_GetLineIndex() const noexcept { return lineIndex_; }
    void ISourceLex4_SetLineIndex(std::int32_t index) noexcept { lineIndex_ = index; }

    /// 0: letters are shown as they are written.
    [[nodiscard]] static std::int32_t ISourceLex4_GetDesiredCase() noexcept { return 0; }
    /// 0: there is nothing special about this scanner.
    [[nodiscard]] static std::int32_t ISourceLex4_GetProperties() noexcept { return 0; }

    // What the scan knows.

    [[nodiscard]] const Text& LineText() const noexcept { return lineText_; }
    [[nodiscard]] std::int32_t LineNumber() const noexcept { return lineNumber_; }
    [[nodiscard]] std::int32_t LineLength() const noexcept { return lineLength_; }
    [[nodiscard]] std::int32_t LexState() const noexcept { return lexState_; }

    /// The lower-case name that values are judged against: the last chunk that stood where a name is expected, "" if it
    /// was white space. It stays from line to line.
    [[nodiscard]] const Text& LastPropertyName() const noexcept { return lastPropertyName_; }

    // The steps of the scan. Positions are 1-based; at one outside of the line there is nothing. The chunks throw
    // `OverflowFailure` for a line that is too long.

    /// The raw text of the token at `position`, comments aside; "" outside of the line.
    ///
    ///  - A backslash and a double quote: through the unit behind the next ";", if there is one.
    ///  - "@media" at the start of the line: through the first "{", or to the line's end.
    ///  - ":", ";", "{" or "}": itself.
    ///  - "!": up to white space or one of `:`, `,`, `;`, `{`, `}`.
    ///  - Any other text: up to ":", ";", "{", "}", "!", a backslash and a double quote, or "/*", blanks included. What
    ///    stands at `position` itself ends nothing.
    [[nodiscard]] static Text GetNextChunk(TextView line, std::int32_t position);

    /// As `GetNextChunk`, but a backslash before a double quote neither begins nor ends a chunk.
    [[nodiscard]] static Text GetNextChunk0(TextView line, std::int32_t position);

    /// As `GetNextChunk`, but the other text also ends at white space, once there was something else: "1px", " solid".
    [[nodiscard]] static Text GetNextChunk2(TextView line, std::int32_t position);

    /// As `ISourceLex4_ScanToken`, but without judging values: they have type 24, and so has "!important". Names have
    /// their types.
    [[nodiscard]] LexToken ISourceLex4_ScanToken1() { return Scan(Judging::Off); }

    /// Whether ":" or ";" stands at `position`.
    [[nodiscard]] static bool isPunctuation(TextView text, std::int32_t position) noexcept;

    /// Whether `text`, in whatever case, is "!important".
    [[nodiscard]] static bool isImportant(TextView text) noexcept;

    // The test of values, as the functions of the same names make it.

    [[nodiscard]] static bool ValidPropertyValue(TextView name, TextView value);
    [[nodiscard]] static bool isValidTextDecorationValue(TextView name, TextView value);
    [[nodiscard]] static bool isValidFontFamilyValue(TextView name, TextView value);
    [[nodiscard]] static bool isValidBackgroundPositionValue(TextView name, TextView value);
    [[nodiscard]] static bool isValidEdgeValue(TextView name, TextView value);
    [[nodiscard]] static bool isValidFontValue(TextView name, TextView value);

    // Tests of a line's flags.

    [[nodiscard]] static bool IsInComment(std::int32_t state) noexcept { return (state & LexInComment) != 0; }
    [[nodiscard]] static bool IsInRule(std::int32_t state) noexcept { return (state & LexInRule) != 0; }
    [[nodiscard]] static bool IsNameExpected(std::int32_t state) noexcept { return (state & LexExpectName) != 0; }
    [[nodiscard]] static bool IsInMedia(std::int32_t state) noexcept { return (state & LexInMedia) != 0; }
    [[nodiscard]] static bool IsInCommentOrMedia(std::int32_t state) noexcept {
        return IsInComment(state) || IsInMedia(state);
    }

    /// Whether `LexInMedia` is set in the scanner's own state and in `state`. `LexInMediaRule` isn't asked for.
    [[nodiscard]] bool IsInMediaRule(std::int32_t state) const noexcept {
        return (lexState_ & state & LexInMedia) != 0;
    }

  private:
    enum class Judging { On, Off };

    struct Piece {
        std::int32_t type;
        std::int32_t length;
    };

    // Here, so that a token isn't put together and taken apart again at each call.
    LexToken Scan(Judging judging) {
        lineIndex_ = std::max(lineIndex_, 0);
        const std::int32_t start = lineIndex_;
        const Piece piece = ScanPiece(static_cast<std::size_t>(start), judging);
        lineIndex_ += piece.length;
        return {piece.type, start, piece.length};
    }

    Piece ScanPiece(std::size_t index, Judging judging);
    void EnterAt(std::size_t index);
    Piece ScanComment(std::size_t index);
    Piece ScanChunk(std::size_t index, Judging judging);
    Piece ScanMediaHead(std::int32_t length);
    Piece ScanOpeningBrace();
    Piece ScanClosingBrace();
    Piece ScanPunctuation(char16_t unit);
    Piece ScanHiddenValue(std::int32_t length);
    std::int32_t ScanName(TextView name);
    [[nodiscard]] std::int32_t TypeOfValue(TextView value, Judging judging) const;

    void Set(std::int32_t flags) noexcept { lexState_ |= flags; }
    void Clear(std::int32_t flags) noexcept { lexState_ &= ~flags; }

    Text lineText_;
    Text loweredLine_;
    LineChunks chunks_;
    std::int32_t lineNumber_ = 0;
    std::int32_t lineLength_ = 0;
    std::int32_t lineIndex_ = 0;
    std::int32_t lexState_ = 0;
    Text lastPropertyName_;
    const PropertyRules* lastRules_ = &RulesOfProperty({});
};

}  // namespace tintora
