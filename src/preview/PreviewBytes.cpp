#include "preview/PreviewBytes.h"

#include "language/Words.h"
#include "linking/FileUrls.h"
#include "linking/HtmlRewriting.h"
#include "linking/LiteralSearch.h"
#include "preview/PageBytes.h"
#include "preview/PageLinks.h"
#include "text/StringTable.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

namespace tintora {

namespace {

constexpr int RulePageText = 1141;
constexpr TextView ByteOrderMark = u"\xFEFF";

/// What a relative address in the page is relative to: the page's path, or what its `base` leads to; nothing where that
/// is no local file.
std::optional<Text> BasePath(TextView pagePath, TextView base) {
    return base.empty() ? Text(pagePath) : ResolveFileURL(pagePath, base);
}

/// The page with `element` in place of each link that leads to the document; nothing if there is none.
std::optional<Text> WithOwnLinksReplaced(TextView page, TextView pagePath, TextView documentPath, TextView element) {
    const PageLinks links = FindPageLinks(page);
    const std::optional<Text> base = BasePath(pagePath, links.base);
    Text result;
    std::size_t from = 0;
    for (const StyleSheetLink& link : links.styleSheets) {
        // A link to nowhere doesn't lead to the page itself, though the address "" would.
        const bool leadsSomewhere = base && !link.href.empty();
        const std::optional<Text> target = leadsSomewhere ? ResolveFileURL(*base, link.href) : std::nullopt;
        if (!target || !IsSameFile(*target, documentPath))
            continue;
        result.append(page, from, link.start - from).append(element);
        from = link.start + link.length;
    }
    if (from == 0)
        return std::nullopt;
    return result.append(page, from);
}

constexpr bool IsLeading(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool IsTrailing(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// The character at the start of `text`, which isn't empty, and for what no page can hold U+FFFD.
char32_t FirstCharacter(TextView text) {
    constexpr char32_t ReplacementCharacter = 0xFFFD;
    const char16_t unit = text.front();
    if (IsLeading(unit) && text.size() > 1 && IsTrailing(text[1]))
        return 0x10000U + (unit - 0xD800U) * 0x400U + (text[1] - 0xDC00U);
    return unit == u'\0' || IsLeading(unit) || IsTrailing(unit) ? ReplacementCharacter : unit;
}

/// An escape without its backslash.
void AppendEscapeDigits(Text& text, char32_t character) {
    std::array<char, 8> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<std::uint32_t>(character), 16).ptr;
    text.append(digits.data(), end).append(u" ");
}

/// The declarations as ASCII that means the same in CSS.
Text EscapedDeclarations(TextView text) {
    Text escaped;
    bool isEscape = false;
    while (!text.empty()) {
        const char32_t character = FirstCharacter(text);
        if (character < 0x80) {
            isEscape = character == U'\\' && !isEscape;
            escaped.push_back(text.front());
        } else {
            // A character behind a backslash has one already.
            if (!isEscape)
                escaped.push_back(u'\\');
            isEscape = false;
            AppendEscapeDigits(escaped, character);
        }
        text.remove_prefix(character < 0x10000 ? 1 : 2);
    }
    return ReplaceOccurrences(escaped, u"</", u"<\\/");
}

}  // namespace

std::string SheetBytes(TextView text, Encoding encoding, bool isMarked) {
    std::optional<std::string> bytes = isMarked ? std::nullopt : EncodeText(text, encoding);
    if (bytes)
        return std::move(*bytes);
    const bool hasMark = text.starts_with(ByteOrderMark);
    return Utf8FromText(hasMark ? Text(text) : Text(ByteOrderMark).append(text));
}

std::string LinkedPageBytes(std::string_view bytes, TextView pagePath, TextView documentPath, TextView sheetPath) {
    PageText page = DecodePage(bytes);
    const Text element = LinkElement(u"stylesheet", FileURLFromPath(sheetPath), u"");
    std::optional<Text> linked;
    if (!documentPath.empty())
        linked = WithOwnLinksReplaced(page.text, pagePath, documentPath, element);
    if (!linked)
        linked = PageWithElementInHead(page.text, element);
    if (!linked)
        return std::string(bytes);
    page.text = std::move(*linked);
    // The element is ASCII, so that every encoding has it.
    return EncodePage(page).value_or(std::string(bytes));
}

std::string RulePageBytes(const Texts& declarations) {
    // Only this one mark is replaced: a declaration may hold another.
    const Text escaped = EscapedDeclarations(JoinItems(declarations, u" "));
    return Utf8FromText(ReplaceOccurrences(LoadResourceString(RulePageText), u"^0", escaped));
}

}  // namespace tintora
