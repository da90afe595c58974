#include "language/LexClass.h"

#include "language/PropertyValidation.h"
#include "language/Vocabulary.h"
#include "text/LowerCase.h"
#include "text/Narrowing.h"
#include "text/Whitespace.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr int FlagsSlot = 0;
constexpr std::int32_t BitsOfControl = 0xFF;

constexpr TextView Media = u"@media";
constexpr TextView Important = u"!important";

bool IsInside(TextView text, std::int32_t position) {
    return position >= 1 && static_cast<std::size_t>(position) <= text.size();
}

Text ChunkAt(TextView line, std::int32_t position, ChunkForm form) {
    static_cast<void>(NarrowLength(line));
    if (!IsInside(line, position))
        return {};
    const auto index = static_cast<std::size_t>(position - 1);
    return Text(line.substr(index, LineChunks(line).EndOfChunk(index, form) - index));
}

}  // namespace

void LexClass::ISourceLex4_BeginLineScan(const LexBuffer& buffer, std::int32_t row, TextView text,
                                         std::int32_t /*unused*/) {
    lineLength_ = Narrow(buffer.GetLineLength(row));
    lineNumber_ = row;
    lineIndex_ = 0;
    lexState_ = row > 0 ? buffer.GetLineData(row - 1, FlagsSlot) & ~BitsOfControl : 0;
    lineText_.assign(text.substr(0, static_cast<std::size_t>(std::max(lineLength_, 0))));
    loweredLine_.assign(lineText_);
    TurnIntoLowerCase(loweredLine_);
    chunks_ = LineChunks(lineText_);
}

bool LexClass::ISourceLex4_EndLineScan(LexBuffer& buffer) {
    const std::int32_t old = static_cast<std::int16_t>(buffer.GetLineData(lineNumber_, FlagsSlot));
    lexState_ = (lexState_ & ~BitsOfControl) | (old & BitsOfControl);
    buffer.SetLineData(lineNumber_, FlagsSlot, lexState_);
    return lexState_ != old;
}

LexClass::Piece LexClass::ScanPiece(std::size_t index, Judging judging) {
    if (index >= lineText_.size())
        return {token_type::EndOfLine, 0};
    EnterAt(index);
    return IsInComment(lexState_) ? ScanComment(index) : ScanChunk(index, judging);
}

void LexClass::EnterAt(std::size_t index) {
    const TextView rest = TextView(loweredLine_).substr(index);
    if (rest.front() == u'/' && rest.starts_with(u"/*"))
        Set(LexInComment);
    // In a comment as well, if the comment goes on with it at the start of a line.
    if (rest.front() == u'@' && rest.starts_with(Media))
        Set(LexInMedia);
}

LexClass::Piece LexClass::ScanComment(std::size_t index) {
    // The search begins at the comment's own "/*", so "/*/" is a comment from end to end.
    const std::size_t close = lineText_.find(u"*/", index);
    if (close == Text::npos)
        return {token_type::Comment, static_cast<std::int32_t>(lineText_.size() - index)};
    Clear(LexInComment);
    return {token_type::Comment, static_cast<std::int32_t>(close + 2 - index)};
}

LexClass::Piece LexClass::ScanChunk(std::size_t index, Judging judging) {
    const auto length = static_cast<std::int32_t>(chunks_.EndOfChunk(index, ChunkForm::Tokens) - index);
    const TextView chunk = TextView(loweredLine_).substr(index, static_cast<std::size_t>(length));
    const TextView text = TrimmedView(chunk);
    switch (text.empty() ? u'\0' : text.front()) {
        case u'@':
            if (text.starts_with(Media))
                return ScanMediaHead(length);
            break;
        case u'{': return ScanOpeningBrace();
        case u'}': return ScanClosingBrace();
        case u':':
        case u';': return ScanPunctuation(text.front());
        case u'!':
            if (judging == Judging::On && isImportant(text))
                return {token_type::Important, static_cast<std::int32_t>(Important.size())};
            break;
        default: break;
    }
    // No chunk holds a ";" beside other text but one that begins with a backslash and a quote.
    if (chunk.front() == u'\\' && chunk.find(u';') != TextView::npos)
        return ScanHiddenValue(length);
    if (!IsInRule(lexState_))
        return {token_type::Selector, length};
    return {IsNameExpected(lexState_) ? ScanName(text) : TypeOfValue(text, judging), length};
}

LexClass::Piece LexClass::ScanMediaHead(std::int32_t length) {
    Set(LexInMedia);
    return {token_type::MediaHead, length};
}

LexClass::Piece LexClass::ScanOpeningBrace() {
    Set(LexInRule | LexExpectName);
    if (IsInMedia(lexState_))
        Set(LexInMediaRule);
    return {token_type::Brace, 1};
}

LexClass::Piece LexClass::ScanClosingBrace() {
    if (IsInMedia(lexState_))
        Clear(LexInMediaRule);
    Clear(LexInRule | LexExpectName);
    return {token_type::Brace, 1};
}

LexClass::Piece LexClass::ScanPunctuation(char16_t unit) {
    if (!IsInRule(lexState_))
        return {token_type::Selector, 1};
    if (unit == u':')
        Clear(LexExpectName);
    else
        Set(LexExpectName);
    return {token_type::Punctuation, 1};
}

LexClass::Piece LexClass::ScanHiddenValue(std::int32_t length) {
    Set(LexExpectName);
    return {token_type::HiddenValue, length};
}

std::int32_t LexClass::ScanName(TextView name) {
    lastPropertyName_.assign(name);
    lastRules_ = &RulesOfProperty(name);
    const bool isKnown = name.empty() || IsPropertyNumber(lastRules_->number);
    return isKnown ? token_type::PropertyName : token_type::UnknownPropertyName;
}

std::int32_t LexClass::TypeOfValue(TextView value, Judging judging) const {
    if (judging == Judging::Off)
        return token_type::Selector;
    return tintora::ValidPropertyValue(*lastRules_, value) ? token_type::ValidValue : token_type::InvalidValue;
}

Text LexClass::GetNextChunk(TextView line, std::int32_t position) { return ChunkAt(line, position, ChunkForm::Tokens); }

Text LexClass::GetNextChunk0(TextView line, std::int32_t position) {
    return ChunkAt(line, position, ChunkForm::PlainQuotes);
}

Text LexClass::GetNextChunk2(TextView line, std::int32_t position) { return ChunkAt(line, position, ChunkForm::Words); }

bool LexClass::isPunctuation(TextView text, std::int32_t position) noexcept {
    if (!IsInside(text, position))
        return false;
    const char16_t unit = text[static_cast<std::size_t>(position - 1)];
    return unit == u':' || unit == u';';
}

bool LexClass::isImportant(TextView text) noexcept { return EqualsLowered(text, Important); }

bool LexClass::ValidPropertyValue(TextView name, TextView value) { return tintora::ValidPropertyValue(name, value); }

bool LexClass::isValidTextDecorationValue(TextView name, TextView value) {
    return tintora::isValidTextDecorationValue(name, value);
}

bool LexClass::isValidFontFamilyValue(TextView name, TextView value) {
    return tintora::isValidFontFamilyValue(name, value);
}

bool LexClass::isValidBackgroundPositionValue(TextView name, TextView value) {
    return tintora::isValidBackgroundPositionValue(name, value);
}

bool LexClass::isValidEdgeValue(TextView name, TextView value) { return tintora::isValidEdgeValue(name, value); }

bool LexClass::isValidFontValue(TextView name, TextView value) { return tintora::isValidFontValue(name, value); }

}  // namespace tintora
