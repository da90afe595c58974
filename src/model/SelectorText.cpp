#include "model/SelectorText.h"

#include "language/FeatureNames.h"
#include "text/LowerCase.h"
#include "text/Narrowing.h"
#include "text/Whitespace.h"

namespace tintora {

namespace {

bool Contains(TextView selector, char16_t mark) { return selector.find(mark) != TextView::npos; }

bool ContainsWord(TextView selector, TextView word) { return FindLowered(selector, word) != TextView::npos; }

/// Whether white space parts two pieces of the selector outside of brackets. White space at the end parts nothing.
bool HasDescendant(TextView selector) {
    bool inBracket = false;
    for (std::size_t index = 0; index + 1 < selector.size(); ++index) {
        const char16_t unit = selector[index];
        if (unit == u'[')
            inBracket = true;
        else if (unit == u']')
            inBracket = false;
        else if (!inBracket && IsWhitespaceUnit(unit) && !IsWhitespaceUnit(selector[index + 1]))
            return true;
    }
    return false;
}

/// The type that the words behind a colon give, `None` if they give none.
int TypeOfPseudoClass(TextView selector) {
    if (ContainsWord(selector, u"link") || ContainsWord(selector, u"visited"))
        return selector_type::Link;
    if (ContainsWord(selector, u":hover") || ContainsWord(selector, u":active") || ContainsWord(selector, u":focus"))
        return LowerCaseUnit(selector.front()) == u'a' ? selector_type::Link : selector_type::Dynamic;
    if (ContainsWord(selector, u":lang"))
        return selector_type::Language;
    if (ContainsWord(selector, u":first-line") || ContainsWord(selector, u":first-letter"))
        return selector_type::Typographical;
    if (ContainsWord(selector, u":before") || ContainsWord(selector, u":after"))
        return selector_type::GeneratedContent;
    if (ContainsWord(selector, u":first-child"))
        return selector_type::FirstChild;
    return selector_type::None;
}

}  // namespace

Text NewlinesToBlanks(TextView text) {
    Text result;
    result.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        const bool isPair = text[index] == u'\r' && index + 1 < text.size() && text[index + 1] == u'\n';
        result.push_back(isPair ? u' ' : text[index]);
        if (isPair)
            ++index;
    }
    return result;
}

Text ExtractSelector(TextView statement) {
    static_cast<void>(NarrowLength(statement));
    const TextView stripped = statement.substr(FindNonWhitespace(statement, 0));
    for (const TextView word : {TextView(u"@page"), TextView(u"@import")}) {
        if (HasLoweredAt(stripped, 0, word))
            return Text(word);
    }
    if (stripped.starts_with(u"/*"))
        return LowerCase(NewlinesToBlanks(stripped));
    constexpr TextView FontFace = u"@font-face";
    if (HasLoweredAt(stripped, 0, FontFace))
        return Text(FontFace);
    return TrimWhitespace(NewlinesToBlanks(statement.substr(0, statement.find(u'{'))));
}

int GetSelectorType(TextView selector) {
    static_cast<void>(NarrowLength(selector));
    selector.remove_prefix(FindNonWhitespace(selector, 0));
    if (selector.empty())
        return selector_type::None;
    if (HasLoweredAt(selector, 0, u"@page"))
        return selector_type::AtPage;
    if (HasLoweredAt(selector, 0, u"@import"))
        return selector_type::AtImport;
    if (HasLoweredAt(selector, 0, u"@media"))
        return selector_type::AtMedia;
    if (selector.starts_with(u"/*"))
        return selector_type::Comment;
    if (Contains(selector, u','))
        return selector_type::Group;
    if (Contains(selector, u'>'))
        return selector_type::Child;
    if (Contains(selector, u'+'))
        return selector_type::AdjacentSibling;
    if (HasDescendant(selector))
        return selector_type::Descendant;
    if (Contains(selector, u':')) {
        const int type = TypeOfPseudoClass(selector);
        if (type != selector_type::None)
            return type;
    }
    if (Contains(selector, u'['))
        return selector_type::Attribute;
    if (Contains(selector, u'.'))
        return selector_type::Class;
    return Contains(selector, u'#') ? selector_type::ID : selector_type::Type;
}

}  // namespace tintora
