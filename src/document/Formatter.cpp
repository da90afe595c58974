#include "document/Formatter.h"

#include "language/FeatureNames.h"
#include "language/Words.h"
#include "model/SelectorText.h"
#include "text/Whitespace.h"

namespace tintora {

namespace {

/// The text through its last character before `end` that isn't white space.
TextView UpToText(TextView text, std::size_t end) {
    while (end > 0 && IsWhitespaceUnit(text[end - 1]))
        --end;
    return text.substr(0, end);
}

/// With `separator` in the place of the white space behind each ";".
Text WithPropertySeparators(TextView text, TextView separator) {
    Text result;
    std::size_t from = 0;
    for (std::size_t at = text.find(u';'); at != TextView::npos; at = text.find(u';', from)) {
        result.append(text.substr(from, at + 1 - from)).append(separator);
        from = FindNonWhitespace(text, at + 1);
    }
    return result.append(text.substr(from));
}

int TypeOf(TextView statement) { return GetSelectorType(ExtractSelector(statement)); }

/// A rule, whose first "{" is at `opening`.
Text FormattedRule(TextView rule, std::size_t opening, const Separators& separators) {
    const std::size_t body = FindNonWhitespace(rule, opening + 1);
    const Text head = Text(UpToText(rule, opening)) + separators.selectorDeclaration + u"{" + separators.firstProperty;
    Text text = WithPropertySeparators(head + Text(rule.substr(body)), separators.property);
    const std::size_t closing = text.rfind(u'}');
    if (closing == Text::npos)
        return text;
    // Between braces with nothing in them both separators stay.
    const bool isEmpty = body < rule.size() && rule.find_last_of(u'}') == body;
    const TextView front = isEmpty ? TextView(text).substr(0, closing) : UpToText(text, closing);
    return Text(front) + separators.lastProperty + text.substr(closing);
}

/// The index behind the entries that are nested in entry `index`.
int IndexBehindNested(const ktStyleSheet& sheet, int index) {
    int next = index + 1;
    while (next < static_cast<int>(sheet.GetAllStatementsAsTextUnstripped().size()) &&
           sheet.GetStatementOrigin(next + 1).isNested)
        ++next;
    return next;
}

/// The `@media` block of the entries from `first` to before `next`: its head, its nested statements and its brace.
Text FormattedBlock(const ktStyleSheet& sheet, int first, int next, const Separators& separators) {
    Texts entries;
    for (int index = first; index < next; ++index)
        entries.push_back(FormatOneStatement(sheet.getNthStatementAsText(index), separators));
    entries.push_back(separators.lastProperty + u"}");
    return JoinItems(entries, separators.statement);
}

}  // namespace

Text FormatOneStatement(TextView statement, const Separators& separators) {
    const int type = TypeOf(statement);
    const std::size_t opening = statement.find(u'{');
    if (type == selector_type::AtMedia)
        return Text(statement.substr(0, opening == TextView::npos ? opening : opening + 1));
    if (type < selector_type::Type || opening == TextView::npos)
        return Text(statement);
    return FormattedRule(statement, opening, separators);
}

Text FormattedStyleSheet(const ktStyleSheet& sheet, const Separators& separators, MediaBlockFormat blocks) {
    Texts output;
    const int count = static_cast<int>(sheet.GetAllStatementsAsTextUnstripped().size());
    for (int index = 0, next = 0; index < count; index = next) {
        next = IndexBehindNested(sheet, index);
        const Text statement = sheet.getNthStatementAsText(index);
        if (TypeOf(statement) != selector_type::AtMedia) {
            output.push_back(FormatOneStatement(statement, separators));
            continue;
        }
        const Text block =
            blocks == MediaBlockFormat::FormatNested ? FormattedBlock(sheet, index, next, separators) : statement;
        output.push_back(AreEqualWithoutWhitespace(block, statement) ? block : statement);
    }
    return JoinItems(output, separators.statement);
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
