// Whole statements: addressing, making, editing, copying and removing them.

#include "document/ktStyleSheetWindow.h"
#include "language/FeatureNames.h"
#include "text/StringTable.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

struct KindAndNumber {
    TextView kind;
    int number;
};

/// The kinds that insert rules together, with the numbers of their texts.
constexpr auto RuleSets = std::to_array<KindAndNumber>({
    {u"All Link States", 1075},
    {u"All Heading Levels", 1076},
    {u"All Basic Text", 1077},
    {u"All Table", 1078},
    {u"All Form", 1079},
});

/// The kinds that have a form, with the types of their selectors.
constexpr auto Forms = std::to_array<KindAndNumber>({
    {u"@ Import Rule", selector_type::AtImport},
    {u"@ Media Rule", selector_type::AtMedia},
    {u"Comment", selector_type::Comment},
    {u"Type", selector_type::Type},
    {u"Link", selector_type::Link},
    {u"Class", selector_type::Class},
    {u"ID", selector_type::ID},
    {u"Descendant", selector_type::Descendant},
    {u"Group", selector_type::Group},
    {u"Dynamic", selector_type::Dynamic},
    {u"Language", selector_type::Language},
    {u"Typographical", selector_type::Typographical},
    {u"Generated Content", selector_type::GeneratedContent},
    {u"First Child", selector_type::FirstChild},
    {u"Child", selector_type::Child},
    {u"Adjacent Sibling", selector_type::AdjacentSibling},
    {u"Attribute", selector_type::Attribute},
});

/// How long the selector of a statement is where it stands in the text, which is longer than its one-line form where
/// lines end in CR LF.
int SelectorLengthInText(TextView statement, int type, TextView selector) {
    const std::size_t brace = statement.find(u'{');
    const bool isCutAtBrace = type != selector_type::Comment && type != selector_type::AtImport &&
                              type != selector_type::AtPage && brace != TextView::npos;
    if (type == selector_type::AtImport || type == selector_type::AtPage)
        return static_cast<int>(selector.size());
    return static_cast<int>(StripRightWhitespace(isCutAtBrace ? statement.substr(0, brace) : statement).size());
}

}  // namespace

int ktStyleSheetWindow::GetCurrentStatementNumber(int offset) const { return styleSheet_.GetStatementNumber(offset); }

int ktStyleSheetWindow::StatementCount() const {
    return static_cast<int>(styleSheet_.GetAllStatementsAsTextUnstripped().size());
}

int ktStyleSheetWindow::CurrentNumber() const {
    return std::min(GetCurrentStatementNumber(GetSelectionStart()), StatementCount());
}

bool ktStyleSheetWindow::IsFirstStatementCurrent() const { return CurrentNumber() == 1; }

int ktStyleSheetWindow::CurrentTrueStart() const {
    const int number = CurrentNumber();
    return number < 1 ? 0 : static_cast<int>(styleSheet_.GetStatementOrigin(number).start);
}

int ktStyleSheetWindow::GetCurrentStatementStartChar() const {
    return IsFirstStatementCurrent() ? 1 : CurrentTrueStart();
}

Text ktStyleSheetWindow::GetCurrentSelector() const {
    if (IsFirstStatementCurrent())
        return StripRightWhitespace(styleSheet_.GetNthSelectorUnstripped(0));
    // The remembered statement, which may lag behind the caret.
    return styleSheet_.GetNthSelector(std::max(lastSelectedStatement_, 0) - 1);
}

Text ktStyleSheetWindow::GetCurrentSelector1() const {
    return styleSheet_.GetSelectorFromSelection(GetSelectionStart());
}

Text ktStyleSheetWindow::GetCurrentStatement() const {
    if (IsFirstStatementCurrent())
        return StripRightWhitespace(styleSheet_.getNthStatementAsTextUnstripped(0));
    return styleSheet_.getNthStatementAsText(CurrentNumber() - 1);
}

Text ktStyleSheetWindow::GetCurrentStatement1() const {
    return TrimWhitespace(styleSheet_.getStatementFromSelection(GetSelectionStart()));
}

int ktStyleSheetWindow::GetCurrentSelectorType() const { return styleSheet_.GetSelectorType(GetCurrentSelector()); }

Texts ktStyleSheetWindow::GetCurrentSelectors() const { return styleSheet_.GetAllSelectorsAsText(); }

Text ktStyleSheetWindow::SelectorAtCaret() const {
    return IsFirstStatementCurrent() ? GetCurrentSelector() : styleSheet_.ExtractSelector(GetCurrentStatement());
}

int ktStyleSheetWindow::CurrentSelectorLength() const {
    const Text selector = SelectorAtCaret();
    return SelectorLengthInText(GetCurrentStatement(), styleSheet_.GetSelectorType(selector), selector);
}

int ktStyleSheetWindow::EndOfCurrentWhitespace() const {
    const int number = CurrentNumber();
    if (number < 1)
        return 0;
    return CurrentTrueStart() + static_cast<int>(styleSheet_.getNthStatementAsTextUnstripped(number - 1).size());
}

int ktStyleSheetWindow::ReachOfFirst(int end) const {
    if (!IsFirstStatementCurrent())
        return end;
    // The start of the first statement counts as 1, so its end lies one character too far: that goes if it is white
    // space.
    const Text text = GetText();
    const bool mayGo =
        end >= 1 && end <= static_cast<int>(text.size()) && IsWhitespaceUnit(text[static_cast<std::size_t>(end - 1)]);
    return mayGo ? end : end - 1;
}

void ktStyleSheetWindow::StatementSelected(int number) {
    lastSelectedStatement_ = number;
    if (number < 1 || number > StatementCount())
        return;
    const Text statement = styleSheet_.getNthStatementAsText(number - 1);
    const std::size_t place = styleSheet_.GetStyleSheetText().find(statement);
    if (place != Text::npos)
        SetSelection(static_cast<int>(place), static_cast<int>(place + statement.size()));
}

void ktStyleSheetWindow::SelectCurrentSelector() {
    CatchUpWithText();
    const int start = GetCurrentStatementStartChar();
    SetSelection(start, start + CurrentSelectorLength());
}

void ktStyleSheetWindow::SelectCurrentStatement() {
    CatchUpWithText();
    const int start = GetCurrentStatementStartChar();
    SetSelection(start, start + static_cast<int>(GetCurrentStatement().size()));
}

void ktStyleSheetWindow::InsertCursorAfterCurrentStatement() {
    CatchUpWithText();
    const int behind = GetCurrentStatementStartChar() + static_cast<int>(GetCurrentStatement().size()) + 1;
    const int place = std::min(behind, EndOfCurrentWhitespace());
    SetSelection(place, place);
}

void ktStyleSheetWindow::InsertCursorBeforeCurrentStatement() {
    const int start = GetCurrentStatementStartChar();
    SetSelection(start, start);
}

void ktStyleSheetWindow::DeleteStatement() {
    CatchUpWithText();
    {
        const UndoStep step(textEditor_.Buffer());
        const int end = GetCurrentStatementStartChar() + static_cast<int>(GetCurrentStatement().size());
        ReplaceText({}, CurrentTrueStart(), ReachOfFirst(end));
    }
    FinishChange();
}

void ktStyleSheetWindow::DuplicateStatement() {
    CatchUpWithText();
    {
        const UndoStep step(textEditor_.Buffer());
        const Text statement = GetCurrentStatement();
        const int place = CurrentTrueStart() + static_cast<int>(statement.size());
        InsertCursorAfterCurrentStatement();
        InsertText(GetStatementSeparator(settings_) + statement, place);
    }
    FinishChange();
}

void ktStyleSheetWindow::InsertAtTop(TextView block) {
    const auto leading = static_cast<int>(FindNonWhitespace(GetText(), 0));
    ReplaceText(Text(block) + GetStatementSeparator(settings_), 0, leading);
}

void ktStyleSheetWindow::ReplaceWhitespaceBehindStatement(TextView block) {
    const Text separator = GetStatementSeparator(settings_);
    const Text text = GetText();
    if (text.empty()) {
        ReplaceText(Text(block) + separator, 0, 1);
        return;
    }
    const int behind = GetCurrentStatementStartChar() + static_cast<int>(GetCurrentStatement().size()) + 1;
    const int position = std::min(behind, EndOfCurrentWhitespace());
    const int start = SkipWhitespaceBackward(text, position);
    const int end = SkipWhitespaceForward(text, position) - 1;
    ReplaceText(separator + Text(block) + separator, start, end);
}

void ktStyleSheetWindow::InsertRuleSet(int number) {
    {
        const UndoStep step(textEditor_.Buffer());
        InsertCursorAfterCurrentStatement();
        SetSelectionText(LoadResourceString(number));
    }
    FinishChange();
}

void ktStyleSheetWindow::InsertStatement(TextView kind, TextView value) {
    const UndoStep step(textEditor_.Buffer());
    const bool isComment = kind == u"Comment";
    const Text block = isComment ? Text(value) : Text(value) + u" {}";
    if (styleSheet_.GetSelectorType(SelectorAtCaret()) == selector_type::AtMedia)
        InsertAtTop(block);
    else
        ReplaceWhitespaceBehindStatement(block);
    const int behindBrace = LengthInText(GetStatementSeparator(settings_)) + 1;
    const int caret = GetSelectionStart();
    if (!isComment && caret > behindBrace)
        SetSelection(caret - behindBrace, caret - behindBrace);
}

void ktStyleSheetWindow::NewStatement(TextView wantedKind) {
    const Text kind = wantedKind.empty() ? statementDialogs_.AskStatementKind() : Text(wantedKind);
    if (kind.empty())
        return;
    CatchUpWithText();
    const auto isKind = [&](const KindAndNumber& row) { return row.kind == kind; };
    const auto* const ruleSet = std::find_if(RuleSets.begin(), RuleSets.end(), isKind);
    if (ruleSet != RuleSets.end()) {
        InsertRuleSet(ruleSet->number);
        return;
    }
    const auto* const form = std::find_if(Forms.begin(), Forms.end(), isKind);
    if (form == Forms.end())
        return;
    const Text value = statementDialogs_.EditSelector(kind, {});
    if (!value.empty() && form->number == selector_type::AtImport)
        ReplaceText(value + GetStatementSeparator(settings_), 0, 0);
    else if (!value.empty())
        InsertStatement(kind, value);
    FinishChange();
    if (form->number != selector_type::AtImport)
        frame_.BringDocumentToFront();
}

Text ktStyleSheetWindow::TextForForm(int type, TextView selector) const {
    if (type == selector_type::AtImport)
        return GetCurrentStatement();
    // A comment as it stands: its selector is in lower case.
    return TrimWhitespace(type == selector_type::Comment ? TextView(GetCurrentStatement()) : selector);
}

void ktStyleSheetWindow::EditStatement() {
    CatchUpWithText();
    const Text selector = SelectorAtCaret();
    const int type = styleSheet_.GetSelectorType(selector);
    const auto* const form =
        std::find_if(Forms.begin(), Forms.end(), [=](const KindAndNumber& row) { return row.number == type; });
    if (form == Forms.end())
        return;
    const Text value = statementDialogs_.EditSelector(form->kind, TextForForm(type, selector));
    if (!value.empty()) {
        const int start = CurrentTrueStart();
        if (type == selector_type::AtImport)
            ReplaceText(value, start, start + static_cast<int>(GetCurrentStatement().size()));
        else
            ReplaceText(value, start, ReachOfFirst(GetCurrentStatementStartChar() + CurrentSelectorLength()));
    }
    FinishChange();
}

}  // namespace tintora
