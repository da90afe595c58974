#include "model/StatementScan.h"

#include "model/MediaBlocks.h"
#include "text/LowerCase.h"
#include "text/Narrowing.h"
#include "text/Whitespace.h"

namespace tintora {

namespace {

class StatementScanner {
  public:
    StatementScanner(TextView text, EscapedQuote escapedQuote, WhitespaceBetween whitespace)
        : text_(text), escapedQuote_(escapedQuote), whitespace_(whitespace) {}

    ScannedStatements Scan() {
        // A guess at the number of statements spares most of the growing.
        scanned_.statements.reserve(text_.size() / 32);
        scanned_.origins.reserve(text_.size() / 32);
        scanned_.extents.reserve(text_.size() / 32);
        for (std::size_t index = 0; index < text_.size(); ++index)
            Visit(index);
        const TextView rest = text_.substr(start_);
        if (!rest.empty() && !IsAllWhitespace(rest))
            Close(text_.size(), 0);
        return std::move(scanned_);
    }

  private:
    /// The one step of the scan. No position is skipped, whatever an earlier one closed: the second character of a
    /// token may begin the next, as in "/*/".
    void Visit(std::size_t index) {
        switch (text_[index]) {
            case u'@': VisitAt(index); break;
            case u'/': VisitSlash(index); break;
            case u'*': VisitStar(index); break;
            case u';': VisitSemicolon(index); break;
            case u'{': VisitOpeningBrace(); break;
            case u'}': VisitClosingBrace(index); break;
            case u'\\': VisitBackslash(index); break;
            case u'<': VisitCommentDelimiter(index, u"<!--"); break;
            case u'-': VisitCommentDelimiter(index, u"-->"); break;
            default: break;
        }
    }

    // Neither comments nor rules keep these two words from switching the scan.
    void VisitAt(std::size_t index) {
        if (HasLoweredAt(text_, index, u"@import")) {
            inImport_ = true;
        } else if (HasLoweredAt(text_, index, u"@media")) {
            inMedia_ = true;
            lastMention_ = index;
        }
    }

    void VisitSlash(std::size_t index) {
        if (!inRule_ && !inMedia_ && StandsAt(index, u"/*"))
            inComment_ = true;
    }

    void VisitStar(std::size_t index) {
        if (inComment_ && StandsAt(index, u"*/")) {
            Close(index, 2);
            inComment_ = false;
        }
    }

    void VisitSemicolon(std::size_t index) {
        if (inImport_) {
            Close(index, 1);
            inImport_ = false;
        }
        if (IsPlain())
            quoteEscaped_ = false;
    }

    void VisitOpeningBrace() {
        if (inMedia_)
            ++mediaDepth_;
        else if (IsPlain())
            inRule_ = true;
    }

    void VisitClosingBrace(std::size_t index) {
        if (inMedia_) {
            --mediaDepth_;
            // Only the step from 1 to 0 ends a block: a "}" that comes before any "{" makes the depth negative.
            if (mediaDepth_ == 0)
                CloseMediaBlock(index);
        } else if (IsPlain() && !quoteEscaped_) {
            Close(index, 1);
            inRule_ = false;
        }
    }

    void CloseMediaBlock(std::size_t index) {
        const std::size_t start = start_;
        const std::size_t mention = lastMention_;
        const TextView block = TakeThrough(index, 1);
        const std::vector<NestedPlace> places = FindAtMediaStatements(block);
        const bool mentionsMedia = mention != TextView::npos;
        Append(start, block, false, mentionsMedia ? MediaExtent(block, places.size()) : PlainExtent(block));
        // A mention in front of the first brace is the block's own.
        const std::size_t brace = block.find(u'{');
        const bool mayMention = mentionsMedia && (brace == TextView::npos || mention > start + brace);
        for (const NestedPlace& place : places) {
            const TextView nested = block.substr(place.start, place.length);
            Append(start + place.start, nested, true,
                   mayMention && MentionsMedia(nested) ? MediaExtent(nested) : PlainExtent(nested));
        }
        inMedia_ = false;
    }

    void VisitBackslash(std::size_t index) {
        if (escapedQuote_ == EscapedQuote::Guards && IsPlain() && StandsAt(index, u"\\\""))
            quoteEscaped_ = true;
    }

    // They end a statement inside of a rule as well, and the rule goes on.
    void VisitCommentDelimiter(std::size_t index, TextView delimiter) {
        if (IsPlain() && StandsAt(index, delimiter))
            Close(index, delimiter.size());
    }

    [[nodiscard]] bool IsPlain() const { return !inMedia_ && !inComment_ && !inImport_; }

    [[nodiscard]] bool StandsAt(std::size_t index, TextView token) const {
        return text_.substr(index, token.size()) == token;
    }

    void Close(std::size_t index, std::size_t tokenLength) {
        const std::size_t start = start_;
        const bool mentionsMedia = lastMention_ != TextView::npos;
        const TextView statement = TakeThrough(index, tokenLength);
        Append(start, statement, false, mentionsMedia ? MediaExtent(statement) : PlainExtent(statement));
    }

    /// What stands from the end of the last statement through a token; the next statement begins behind it.
    TextView TakeThrough(std::size_t index, std::size_t tokenLength) {
        std::size_t end = index + tokenLength;
        if (whitespace_ == WhitespaceBetween::TrailsTheFirst)
            end = FindNonWhitespace(text_, end);
        const TextView statement = text_.substr(start_, end - start_);
        start_ = end;
        lastMention_ = TextView::npos;
        return statement;
    }

    static StatementExtent PlainExtent(TextView statement) { return {static_cast<int>(statement.size()), false, 0, 0}; }

    static StatementExtent MediaExtent(TextView statement, std::size_t nestedCount) {
        return {static_cast<int>(statement.size()), true, MediaHeaderLength(statement), static_cast<int>(nestedCount)};
    }

    static StatementExtent MediaExtent(TextView statement) {
        return MediaExtent(statement, FindAtMediaStatements(statement).size());
    }

    void Append(std::size_t start, TextView statement, bool isNested, const StatementExtent& extent) {
        scanned_.statements.emplace_back(statement);
        scanned_.origins.push_back({start, isNested});
        scanned_.extents.push_back(extent);
    }

    TextView text_;
    EscapedQuote escapedQuote_;
    WhitespaceBetween whitespace_;

    ScannedStatements scanned_;
    std::size_t start_ = 0;
    /// Where "@media" stands last in the statement that is open; `npos` if nowhere.
    std::size_t lastMention_ = TextView::npos;
    int mediaDepth_ = 0;
    bool inImport_ = false;
    bool inMedia_ = false;
    bool inComment_ = false;
    bool inRule_ = false;
    bool quoteEscaped_ = false;
};

}  // namespace

ScannedStatements ScanStatementsWithOrigins(TextView text, EscapedQuote escapedQuote, WhitespaceBetween whitespace) {
    static_cast<void>(NarrowLength(text));
    return StatementScanner(text, escapedQuote, whitespace).Scan();
}

Texts ScanStatements(TextView text, EscapedQuote escapedQuote, WhitespaceBetween whitespace) {
    return ScanStatementsWithOrigins(text, escapedQuote, whitespace).statements;
}

}  // namespace tintora
