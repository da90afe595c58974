#include "document/FormattingSample.h"

#include "editor/SourceView.h"
#include "text/LineEnds.h"
#include "text/Whitespace.h"

namespace tintora {

namespace {

Text Separator(TextView whitespace) { return WithLineEnds(whitespace, u"\r"); }

/// The white space in front of the first `mark`.
std::optional<Text> SeparatorBefore(TextView sample, char16_t mark) {
    const std::size_t end = sample.find(mark);
    if (end == TextView::npos)
        return std::nullopt;
    std::size_t start = end;
    while (start > 0 && IsWhitespaceUnit(sample[start - 1]))
        --start;
    return Separator(sample.substr(start, end - start));
}

/// The white space behind the first `mark`.
std::optional<Text> SeparatorAfter(TextView sample, char16_t mark) {
    const std::size_t found = sample.find(mark);
    if (found == TextView::npos)
        return std::nullopt;
    const std::size_t start = found + 1;
    return Separator(sample.substr(start, FindNonWhitespace(sample, start) - start));
}

/// Whether the unit at a 0-based offset is white space, as the start of the first line and the end of the last are.
bool IsWhitespaceAt(TextView sample, int offset) noexcept {
    if (offset < 0 || static_cast<std::size_t>(offset) >= sample.size())
        return true;
    return IsWhitespaceUnit(sample[static_cast<std::size_t>(offset)]);
}

}  // namespace

Text FormattingSampleText(const Separators& separators) {
    return u"body" + separators.selectorDeclaration + u"{" + separators.firstProperty + u"font-weight: bold;" +
           separators.property + u"text-decoration: underline;" + separators.lastProperty + u"}" + separators.statement;
}

SampleSeparators ReadFormattingSample(TextView sample) {
    SampleSeparators read;
    read.selectorDeclaration = SeparatorBefore(sample, u'{');
    read.firstProperty = SeparatorAfter(sample, u'{');
    read.property = SeparatorAfter(sample, u';');
    read.lastProperty = SeparatorBefore(sample, u'}');
    read.statement = SeparatorAfter(sample, u'}');
    return read;
}

Text LoadFormattingOptions(SettingsStore& store) { return FormattingSampleText(ReadSeparators(store)); }

void ApplyFormattingOptions(SettingsStore& store, TextView sample) {
    const SampleSeparators read = ReadFormattingSample(sample);
    const auto save = [&](const std::optional<Text>& separator, void (*set)(SettingsStore&, TextView)) {
        if (separator)
            set(store, *separator);
    };
    save(read.selectorDeclaration, SetSelectorDeclarationSeparator);
    save(read.firstProperty, SetFirstPropertySeparator);
    save(read.property, SetPropertySeparator);
    save(read.lastProperty, SetLastPropertySeparator);
    save(read.statement, SetStatementSeparator);
}

bool MayKeyActInSample(TextView sample, const SampleSelection& selection, int code, int shift) noexcept {
    if (selection.anchor != selection.caret)
        return false;
    if (code >= sample_key::FirstArrow && code <= sample_key::LastArrow)
        return true;
    if ((shift & (shift_state::Control | shift_state::Alt)) != 0)
        return false;
    const bool isBehind = IsWhitespaceAt(sample, selection.caret - 1);
    const bool isInFront = IsWhitespaceAt(sample, selection.caret);
    switch (code) {
        case sample_key::Return:
        case sample_key::Tab:
        case key_code::Space: return isBehind || isInFront;
        case key_code::Delete: return isInFront;
        case key_code::Backspace: return isBehind;
        default: return false;
    }
}

}  // namespace tintora
