// One declaration of the current statement: found, changed, added and removed by replacing no more than its characters.

#include "document/ktStyleSheetWindow.h"
#include "language/Declarations.h"
#include "model/DeclarationText.h"
#include "text/LowerCase.h"
#include "text/Narrowing.h"
#include "text/Whitespace.h"

#include <algorithm>

namespace tintora {

namespace {

/// The unit at a 1-based position; 0 outside of the text.
char16_t UnitAt(TextView text, int position) {
    return position >= 1 && position <= static_cast<int>(text.size()) ? text[static_cast<std::size_t>(position - 1)]
                                                                      : u'\0';
}

/// The position behind the nearest ";" or "{" at or before the 1-based `position`; 0 if there is none.
int DeclarationStart(TextView text, int position) {
    int at = std::min(position, static_cast<int>(text.size()));
    while (at > 0 && UnitAt(text, at) != u';' && UnitAt(text, at) != u'{')
        --at;
    return at > 0 ? at + 1 : 0;
}

/// The position of the nearest ";" or "}" at or behind `position`; behind the text if there is none; 0 for position 0.
int DeclarationEnd(TextView text, int position) {
    if (text.empty() || position <= 0)
        return 0;
    int at = position;
    while (at <= static_cast<int>(text.size()) && UnitAt(text, at) != u';' && UnitAt(text, at) != u'}')
        ++at;
    return std::min(at, static_cast<int>(text.size()) + 1);
}

}  // namespace

ktStyleSheetWindow::FoundProperty ktStyleSheetWindow::FindProperty(TextView name) const {
    const Text text = GetText();
    const auto length = static_cast<int>(NarrowLength(text));
    const FoundProperty nowhere{length, length, false};
    const int number = CurrentNumber();
    if (number < 1)
        return nowhere;
    const Text entry = styleSheet_.getNthStatementAsTextUnstripped(number - 1);
    const TextView statement = TrimmedView(entry);
    const auto entryStart = static_cast<int>(styleSheet_.GetStatementOrigin(number).start);
    const int start = entryStart + static_cast<int>(statement.data() - entry.data());
    const Text body = styleSheet_.ExtractProperties(statement);
    // The body is the end of its statement.
    const int bodyStart = start + static_cast<int>(statement.size() - body.size());
    const Text wanted = LowerCase(name);
    for (const DeclarationPlace& place : FindStatementProperties(body)) {
        const TextView declaration = TextView(body).substr(place.start, place.length);
        if (!EqualsLowered(GetPropertyName(declaration), wanted))
            continue;
        const int found = bodyStart + static_cast<int>(place.start);
        // The text may have moved on since the statements were read.
        if (text.compare(static_cast<std::size_t>(std::min(found, length)), declaration.size(), declaration) != 0)
            return nowhere;
        return {found, found + static_cast<int>(declaration.size()), true};
    }
    const std::size_t brace = statement.rfind(u'}');
    if (brace == TextView::npos)
        return nowhere;
    const int place = std::min(start + static_cast<int>(brace), length);
    return {place, place, false};
}

int ktStyleSheetWindow::GetPropertyInCurrentStatementStart(TextView name) const { return FindProperty(name).start; }

int ktStyleSheetWindow::GetPropertyInCurrentStatementEnd(TextView name) const { return FindProperty(name).end; }

Texts ktStyleSheetWindow::GetCurrentStatementProperties() const {
    return styleSheet_.GetStatementProperties(styleSheet_.GetPropertiesFromSelection(GetSelectionStart()));
}

void ktStyleSheetWindow::ChangeCurrentProperty(TextView name, TextView value) {
    ChangeCurrentProperties({{Text(name), Text(value)}});
}

void ktStyleSheetWindow::ChangeCurrentProperties(const DeclarationChanges& changes) {
    if (changes.empty())
        return;
    for (const DeclarationChange& change : changes)
        static_cast<void>(NarrowLength(change.value));
    {
        const UndoStep step(textEditor_.Buffer());
        for (const DeclarationChange& change : changes)
            WriteProperty(change.name, change.value);
    }
    CacheStatements();
    UpdateCorePropertiesToolbar();
    needsPreviewing_ = true;
    LivePreview();
    FollowChangeOfPalette();
}

void ktStyleSheetWindow::WriteProperty(TextView name, TextView value) {
    CatchUpWithText();
    const FoundProperty found = FindProperty(name);
    if (value.empty())
        RemoveProperty(found);
    else if (found.isFound)
        ChangeExistingProperty(found, value);
    else
        AddProperty(found, name, value);
}

void ktStyleSheetWindow::ChangeExistingProperty(const FoundProperty& found, TextView value) {
    const Text text = GetText();
    const TextView declaration =
        TextView(text).substr(static_cast<std::size_t>(found.start), static_cast<std::size_t>(found.end - found.start));
    const Text old = GetDeclarationValue(declaration);
    const std::size_t colon = text.find(u':', static_cast<std::size_t>(found.start));
    if (colon == Text::npos)
        return;
    // One blank is taken to follow the colon: where it is missing, the character behind the value goes.
    const auto behindColon = static_cast<int>(colon) + 1;
    static_cast<void>(Narrow(static_cast<long long>(text.size() - old.size() + value.size())));
    ReplaceText(u" " + Text(value), behindColon, behindColon + static_cast<int>(old.size()) + 1);
    const int caret = behindColon + static_cast<int>(value.size()) + 1;
    SetSelection(caret, caret);
}

void ktStyleSheetWindow::AddProperty(const FoundProperty& place, TextView name, TextView value) {
    const Text text = GetText();
    int start = place.start;
    int end = place.end;
    if (start != 0) {
        start = SkipWhitespaceBackward(text, start);
        end = SkipWhitespaceForward(text, end) - 1;
    }
    const char16_t last = UnitAt(text, start);
    const bool isClosed = last == u';' || last == u'{' || (last == u'/' && UnitAt(text, start - 1) == u'*');
    const Text declaration =
        (isClosed ? Text() : u";") + GetPropertySeparator(settings_) + Text(name) + u": " + Text(value) + u";";
    static_cast<void>(Narrow(static_cast<long long>(text.size() + declaration.size()) - (end - start)));
    ReplaceText(declaration, start, end);
}

void ktStyleSheetWindow::RemovePropertyFromCurrentStatement(TextView name) {
    CatchUpWithText();
    const UndoStep step(textEditor_.Buffer());
    RemoveProperty(FindProperty(name));
}

void ktStyleSheetWindow::RemoveProperty(const FoundProperty& found) {
    if (!found.isFound)
        return;
    ReplaceText({}, found.start, found.end);
    if (found.start == 0)
        return;
    const Text separator = GetPropertySeparator(settings_);
    const Text text = GetText();
    const int start = SkipWhitespaceBackward(text, found.start);
    const int end = SkipWhitespaceForward(text, found.start) - 1;
    if (end > start)
        ReplaceText(separator, start, end);
    // `end` is a position in the text in which it was found.
    if (UnitAt(text, end) == u'}') {
        InsertText(separator, end);
        if (end >= 1)
            SetSelection(end - 1, end - 1);
    }
}

void ktStyleSheetWindow::SelectPropertyInCurrentStatement(TextView name) {
    CatchUpWithText();
    const FoundProperty found = FindProperty(name);
    if (found.isFound) {
        SetSelection(found.start, found.end);
        return;
    }
    const std::size_t brace = GetText().find(u'}', static_cast<std::size_t>(CurrentTrueStart()));
    if (brace != Text::npos)
        SetSelection(static_cast<int>(brace), static_cast<int>(brace));
}

Text ktStyleSheetWindow::GetCurrentProperty() const { return styleSheet_.GetPropertyAtSelection(GetSelectionStart()); }

Text ktStyleSheetWindow::GetCurrentPropertyName() { return styleSheet_.GetPropertyName(GetCurrentProperty()); }

Text ktStyleSheetWindow::GetCurrentPropertyValue() const { return styleSheet_.GetPropertyValue(GetCurrentProperty()); }

Text ktStyleSheetWindow::GetCurrentPropertyFromText() const { return GetCurrentPropertyFromChar(GetSelectionStart()); }

Text ktStyleSheetWindow::GetCurrentPropertyNameFromText() const {
    return styleSheet_.GetPropertyName(GetCurrentPropertyFromText());
}

Text ktStyleSheetWindow::GetCurrentPropertyValueFromText() const {
    return styleSheet_.GetPropertyValue(GetCurrentPropertyFromText());
}

Text ktStyleSheetWindow::GetCurrentPropertyFromChar(int offset) const {
    const Text text = GetText();
    const int start = offset <= 0 ? 0 : DeclarationStart(text, offset);
    const int end = DeclarationEnd(text, offset);
    if (start >= end)
        return {};
    const int from = std::max(start, 1);
    return text.substr(static_cast<std::size_t>(from - 1), static_cast<std::size_t>(end - from));
}

Text ktStyleSheetWindow::GetCurrentPropertyNameFromChar(int offset) const {
    return styleSheet_.GetPropertyName(GetCurrentPropertyFromChar(offset));
}

Text ktStyleSheetWindow::GetCurrentPropertyValueFromChar(int offset) const {
    return styleSheet_.GetPropertyValue(GetCurrentPropertyFromChar(offset));
}

void ktStyleSheetWindow::EditCurrentProperty() {
    if (properties_.IsOpen())
        properties_.EditProperty(GetCurrentPropertyName());
}

bool ktStyleSheetWindow::CursorInSelector() const { return styleSheet_.CursorInSelector(GetSelectionStart()); }

}  // namespace tintora
