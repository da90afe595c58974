#include "document/Formatter.h"

#include "language/FeatureNames.h"
#include "model/SelectorText.h"
#include "text/Whitespace.h"

#include <utility>

namespace tintora {

namespace {

int TypeOf(TextView statement) { return GetSelectorType(ExtractSelector(statement)); }

/// Lays statements out behind one another, in one text.
class Layout {
  public:
    explicit Layout(const Separators& separators) : separators_(separators) {}

    /// One statement, trimmed, whose selector has this type.
    void Append(TextView statement, int type) {
        const std::size_t opening = statement.find(u'{');
        if (type == selector_type::AtMedia)
            text_.append(statement.substr(0, opening == TextView::npos ? opening : opening + 1));
        else if (type < selector_type::Type || opening == TextView::npos)
            text_.append(statement);
        else
            AppendRule(statement, opening);
    }

    void AppendAsItStands(TextView text) { text_.append(text); }

    /// Between two statements.
    void AppendStatementSeparator() { text_.append(separators_.statement); }

    /// The end of a block.
    void AppendClosingBrace() { text_.append(separators_.lastProperty).append(u"}"); }

    [[nodiscard]] std::size_t Length() const noexcept { return text_.size(); }
    [[nodiscard]] TextView From(std::size_t start) const { return TextView(text_).substr(start); }
    void CutTo(std::size_t length) { text_.resize(length); }
    [[nodiscard]] Text Take() { return std::move(text_); }

  private:
    /// A rule, whose first "{" is at `opening`.
    void AppendRule(TextView rule, std::size_t opening) {
        const std::size_t start = text_.size();
        text_.append(rule.substr(0, opening));
        StripRight(text_.size(), start);
        text_.append(separators_.selectorDeclaration).append(u"{").append(separators_.firstProperty);
        const std::size_t body = FindNonWhitespace(rule, opening + 1);
        AppendDeclarations(rule.substr(body));
        const std::size_t closing = text_.rfind(u'}');
        if (closing == Text::npos || closing < start)
            return;
        // Between braces with nothing in them both separators stay.
        const bool isEmpty = body < rule.size() && rule.rfind(u'}') == body;
        text_.insert(isEmpty ? closing : StripRight(closing, start), separators_.lastProperty);
    }

    /// With the separator in the place of the white space behind each ";".
    void AppendDeclarations(TextView body) {
        std::size_t from = 0;
        for (std::size_t at = body.find(u';'); at != TextView::npos; at = body.find(u';', from)) {
            text_.append(body.substr(from, at + 1 - from)).append(separators_.property);
            from = FindNonWhitespace(body, at + 1);
        }
        text_.append(body.substr(from));
    }

    /// Takes away the white space in front of `end`, but none in front of `start`; gives where the rest ends.
    std::size_t StripRight(std::size_t end, std::size_t start) {
        std::size_t stripped = end;
        while (stripped > start && IsWhitespaceUnit(text_[stripped - 1]))
            --stripped;
        text_.erase(stripped, end - stripped);
        return stripped;
    }

    const Separators& separators_;
    Text text_;
};

/// The cached statements of a style sheet, trimmed.
class CachedStatements {
  public:
    explicit CachedStatements(const ktStyleSheet& sheet)
        : sheet_(sheet), count_(static_cast<int>(sheet.GetAllStatementsAsTextUnstripped().size())) {}

    [[nodiscard]] int Count() const noexcept { return count_; }
    [[nodiscard]] TextView At(int index) const {
        return TrimmedView(sheet_.GetAllStatementsAsTextUnstripped()[static_cast<std::size_t>(index)]);
    }

    /// The index behind the entries that are nested in entry `index`.
    [[nodiscard]] int BehindNested(int index) const {
        int next = index + 1;
        while (next < count_ && sheet_.GetStatementOrigin(next + 1).isNested)
            ++next;
        return next;
    }

  private:
    const ktStyleSheet& sheet_;
    int count_;
};

/// The `@media` block of the entries from `first` to before `next`: its head, its nested statements and its brace.
void AppendBlock(Layout& layout, const CachedStatements& statements, int first, int next) {
    const std::size_t start = layout.Length();
    for (int index = first; index < next; ++index) {
        layout.Append(statements.At(index), TypeOf(statements.At(index)));
        layout.AppendStatementSeparator();
    }
    layout.AppendClosingBrace();
    if (AreEqualWithoutWhitespace(layout.From(start), statements.At(first)))
        return;
    layout.CutTo(start);
    layout.AppendAsItStands(statements.At(first));
}

}  // namespace

Text FormatOneStatement(TextView statement, const Separators& separators) {
    Layout layout(separators);
    layout.Append(statement, TypeOf(statement));
    return layout.Take();
}

Text FormattedStyleSheet(const ktStyleSheet& sheet, const Separators& separators, MediaBlockFormat blocks) {
    Layout layout(separators);
    const CachedStatements statements(sheet);
    for (int index = 0, next = 0; index < statements.Count(); index = next) {
        next = statements.BehindNested(index);
        if (index > 0)
            layout.AppendStatementSeparator();
        const TextView statement = statements.At(index);
        const int type = TypeOf(statement);
        if (type != selector_type::AtMedia)
            layout.Append(statement, type);
        else if (blocks == MediaBlockFormat::FormatNested)
            AppendBlock(layout, statements, index, next);
        else
            layout.AppendAsItStands(statement);
    }
    return layout.Take();
}

bool AreEqualWithoutWhitespace(TextView one, TextView other) noexcept {
    std::size_t index = 0;
    std::size_t otherIndex = 0;
    while (true) {
        index = FindNonWhitespace(one, index);
        otherIndex = FindNonWhitespace(other, otherIndex);
        if (index == one.size() || otherIndex == other.size())
            return index == one.size() && otherIndex == other.size();
        if (one[index++] != other[otherIndex++])
            return false;
    }
}

}  // namespace tintora
