#include "model/ktStyleSheet.h"

#include "model/DeclarationText.h"
#include "model/MediaBlocks.h"
#include "model/SelectorText.h"
#include "model/StatementPositions.h"
#include "model/StatementScan.h"
#include "text/Narrowing.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace tintora {

void ktStyleSheet::OpenStyleSheet(TextView file) {
    file_ = file;
    if (window_ != nullptr)
        window_->LoadContent(file);
}

Text ktStyleSheet::GetStyleSheetText() const {
    if (window_ == nullptr)
        return {};
    try {
        return window_->GetText();
    } catch (...) {
        return {};
    }
}

void ktStyleSheet::CacheStatements(TextView text) {
    cachedStatements_ = ScanStatementsWithOrigins(text.empty() ? TextView(GetStyleSheetText()) : text);
}

StatementOrigin ktStyleSheet::GetStatementOrigin(int number) const {
    return cachedStatements_.origins.at(static_cast<std::size_t>(number) - 1);
}

Texts ktStyleSheet::GetAllStatementsAsText() const {
    Texts statements;
    statements.reserve(GetAllStatementsAsTextUnstripped().size());
    std::ranges::transform(GetAllStatementsAsTextUnstripped(), std::back_inserter(statements), TrimWhitespace);
    return statements;
}

bool ktStyleSheet::HasEntry(int n) const {
    if (n < -1)
        throw std::out_of_range("a statement is asked for by a negative number");
    return n != -1 && n < std::ssize(GetAllStatementsAsTextUnstripped());
}

Text ktStyleSheet::getNthStatementAsTextUnstripped(int n) const {
    return HasEntry(n) ? GetAllStatementsAsTextUnstripped()[static_cast<std::size_t>(n)] : Text();
}

Text ktStyleSheet::getNthStatementAsText(int n) const {
    return HasEntry(n) ? TrimWhitespace(GetAllStatementsAsTextUnstripped()[static_cast<std::size_t>(n)]) : Text();
}

Texts ktStyleSheet::GetAtMediaStatements(TextView block) const { return tintora::GetAtMediaStatements(block); }

int ktStyleSheet::GetStatementNumber(int position) const {
    const StatementPlace place = WalkToPosition(cachedStatements_.extents, position);
    return place.stopped ? place.number : place.number - 1;
}

int ktStyleSheet::GetStatementStartChar(int position) const {
    const StatementPlace place = WalkToPosition(cachedStatements_.extents, position);
    if (place.number > std::ssize(GetAllStatementsAsTextUnstripped()))
        return GetNthStatementStartChar(place.number - 1);
    return place.start;
}

int ktStyleSheet::GetNthStatementStartChar([[maybe_unused]] int n) const noexcept { return 0; }

Text ktStyleSheet::getStatementFromSelection(int position) const {
    return getNthStatementAsText(GetStatementNumber(position) - 1);
}

bool ktStyleSheet::CursorInSelector(int position) const {
    // The statement is trimmed and its start isn't, so white space in front of the first statement shifts the
    // comparison.
    const std::size_t brace = getStatementFromSelection(position).find(u'{');
    return brace == Text::npos || position < GetStatementStartChar(position) + static_cast<int>(brace) + 1;
}

Text ktStyleSheet::ExtractSelector(TextView statement) const { return tintora::ExtractSelector(statement); }

Texts ktStyleSheet::GetAllSelectorsAsText() const {
    Texts selectors;
    selectors.reserve(GetAllStatementsAsTextUnstripped().size());
    for (const Text& statement : GetAllStatementsAsTextUnstripped())
        selectors.push_back(tintora::ExtractSelector(TrimmedView(statement)));
    return selectors;
}

Text ktStyleSheet::GetNthSelector(int n) const { return tintora::ExtractSelector(getNthStatementAsText(n)); }

Text ktStyleSheet::GetNthSelectorUnstripped(int n) const {
    const Text statement = getNthStatementAsTextUnstripped(n);
    return GetLeadingWhitespace(statement) + tintora::ExtractSelector(statement);
}

Text ktStyleSheet::GetSelectorFromSelection(int position) const {
    return TrimWhitespace(tintora::ExtractSelector(getStatementFromSelection(position)));
}

int ktStyleSheet::GetSelectorType(TextView selector) const { return tintora::GetSelectorType(selector); }

Text ktStyleSheet::ExtractProperties(TextView statement) const { return tintora::ExtractProperties(statement); }

Text ktStyleSheet::GetPropertiesFromSelection(int position) const {
    return tintora::ExtractProperties(getStatementFromSelection(position));
}

Texts ktStyleSheet::ExtractPropertiesAsCollection(TextView statement) const {
    return tintora::ExtractPropertiesAsCollection(statement);
}

Texts ktStyleSheet::GetPropertiesFromNthStatementAsCollection(int n) const {
    if (n < 1 || n > std::ssize(GetAllStatementsAsTextUnstripped()))
        throw std::out_of_range("there is no statement of that number");
    return tintora::ExtractPropertiesAsCollection(
        TrimmedView(GetAllStatementsAsTextUnstripped()[static_cast<std::size_t>(n - 1)]));
}

Texts ktStyleSheet::GetStatementProperties(TextView body) const { return tintora::GetStatementProperties(body); }

Text ktStyleSheet::GetPropertyName(TextView declaration) const { return tintora::GetPropertyName(declaration); }

Text ktStyleSheet::GetPropertyValue(TextView declaration) const { return tintora::GetPropertyValue(declaration); }

Text ktStyleSheet::getPropertyFromSelection(int position) const {
    const int number = GetStatementNumber(position);
    if (number < 1 || number > std::ssize(GetAllStatementsAsTextUnstripped()))
        return {};
    const TextView statement = GetAllStatementsAsTextUnstripped()[static_cast<std::size_t>(number - 1)];
    int start = GetStatementStartChar(position);
    if (start == 1)
        start = 0;
    // The offset in the statement, as the length of what stands in front of the caret: the character before the caret
    // has the index `offset - 1`.
    const int offset = position - start;
    const std::size_t brace = statement.find(u'{');
    if (brace == TextView::npos || offset < static_cast<int>(brace) + 1)
        return {};
    std::size_t from = std::min(static_cast<std::size_t>(offset), statement.size());
    while (from > brace + 1 && statement[from - 1] != u';' && statement[from - 1] != u'}')
        --from;
    std::size_t end = statement.find(u';', from);
    if (end == TextView::npos)
        end = statement.find(u'}', from);
    if (end == TextView::npos)
        return {};
    Text declaration = TrimWhitespace(statement.substr(from, end - from));
    return declaration == u"}" ? Text() : declaration;
}

bool ktStyleSheet::isWhitespace(TextView character) const {
    if (character.empty())
        throw std::invalid_argument("no character to look at");
    return IsWhitespaceChar(character);
}

Text ktStyleSheet::stripLeftWS(TextView text) const { return StripLeftWhitespace(text); }

Text ktStyleSheet::stripRightWS(TextView text) const { return StripRightWhitespace(text); }

Text ktStyleSheet::GetLeadingWhitespace(TextView text) const {
    static_cast<void>(NarrowLength(text));
    const std::size_t length = FindNonWhitespace(text, 0);
    return length == text.size() ? Text() : Text(text.substr(0, length));
}

Texts ktStyleSheet::GetAllStatementsAsTextUnstripped1() const {
    return ScanStatements(GetStyleSheetText(), EscapedQuote::IsPlain);
}

Texts ktStyleSheet::GetAllStatementsAsTextUnstrippedLeading() const {
    return ScanStatements(GetStyleSheetText(), EscapedQuote::IsPlain, WhitespaceBetween::LeadsTheSecond);
}

int ktStyleSheet::GetStatementNumber1(int position) const {
    const StatementPlace place = WalkIntoBlocks(GetAllStatementsAsTextUnstripped(), position, HeaderWhitespace::Counts);
    return place.stopped ? place.number : place.number - 1;
}

int ktStyleSheet::GetStatementStartChar1(int position) const {
    return WalkIntoBlocks(GetAllStatementsAsTextUnstripped(), position, HeaderWhitespace::DoesNotCount).start;
}

Texts ktStyleSheet::GetAtMediaStatements1(TextView block) const { return tintora::GetAtMediaStatements1(block); }

Text ktStyleSheet::getStatementFromSelectionWalk(int position) const {
    return StatementAround(GetStyleSheetText(), position);
}

}  // namespace tintora
