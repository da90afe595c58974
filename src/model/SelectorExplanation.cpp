#include "model/SelectorExplanation.h"

#include "language/FeatureNames.h"
#include "linking/Paths.h"
#include "model/SelectorText.h"
#include "text/LowerCase.h"
#include "text/StringTable.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

Text Message(int number, TextView first = {}, TextView second = {}) {
    return FormatMessage(LoadResourceString(number), first, second);
}

/// What a selector has in front of its mark, and from the mark on.
struct SplitSelector {
    TextView front;
    TextView rest;
};

SplitSelector SplitAt(TextView selector, std::size_t index) {
    return {selector.substr(0, index), index == TextView::npos ? TextView() : selector.substr(index)};
}

/// The text of `selector` between two indexes; "" where the second isn't behind the first. An end that wasn't found is
/// the end of the selector.
TextView Between(TextView selector, std::size_t from, std::size_t to) {
    to = std::min(to, selector.size());
    return from < to ? selector.substr(from, to - from) : TextView();
}

struct NumberedMark {
    TextView mark;
    int number;
};

constexpr auto LinkStates = std::to_array<NumberedMark>({
    {u":link", 1100},
    {u":visited", 1101},
    {u":active", 1102},
    {u":hover", 1103},
});

constexpr auto DynamicStates = std::to_array<NumberedMark>({
    {u":active", 1102},
    {u":focus", 1105},
    {u":hover", 1103},
});

constexpr auto Languages = std::to_array<NumberedMark>({
    {u":lang(en)", 1111},
    {u":lang(fr)", 1112},
    {u":lang(de)", 1113},
    {u":lang(it)", 1114},
    {u":lang(nl)", 1115},
    {u":lang(es)", 1116},
    {u":lang(el)", 1117},
    {u":lang(pt)", 1118},
    {u":lang(ar)", 1119},
    {u":lang(he)", 1120},
    {u":lang(ru)", 1121},
    {u":lang(zh)", 1122},
    {u":lang(ja)", 1123},
    {u":lang(ur)", 1124},
    {u":lang(sa)", 1125},
});

Text DescribeType(TextView selector) { return selector.empty() ? Text() : Message(1088, selector); }

/// A class or an ID: `alone` is the sentence for one with no element, `ofElement` for one with an element.
Text DescribeNamed(TextView selector, char16_t mark, int alone, int ofElement) {
    const SplitSelector split = SplitAt(selector, selector.find(mark));
    const TextView name = split.rest.substr(std::min<std::size_t>(split.rest.size(), 1));
    if (name.empty())
        return {};
    return split.front.empty() ? Message(alone, name) : Message(ofElement, split.front, name);
}

template <std::size_t Count>
Text DescribeState(TextView selector, const std::array<NumberedMark, Count>& states) {
    const SplitSelector split = SplitAt(selector, selector.find(u':'));
    const auto found = std::find_if(states.begin(), states.end(),
                                    [&](const NumberedMark& state) { return EqualsLowered(split.rest, state.mark); });
    return found == states.end() ? Text() : Message(found->number, DescribeSelector(split.front));
}

/// The part in front of the colon, in one sentence for the pseudo-element `mark` and in another for all else.
Text DescribePseudoElement(TextView selector, TextView mark, int number, int otherNumber) {
    const SplitSelector split = SplitAt(selector, selector.find(u':'));
    return Message(EqualsLowered(split.rest, mark) ? number : otherNumber, DescribeSelector(split.front));
}

Text DescribeFirstChild(TextView selector) {
    return Message(1093, DescribeSelector(SplitAt(selector, selector.find(u':')).front));
}

Text DescribeLanguage(TextView selector) {
    const std::size_t mark = FindLowered(selector, u":lang");
    if (mark == TextView::npos)
        return {};
    Text clause = DescribeSelector(selector.substr(0, mark)) + u" ";
    // Of several languages the last one in the table is told.
    const auto last = std::find_if(Languages.rbegin(), Languages.rend(), [&](const NumberedMark& language) {
        return FindLowered(selector, language.mark) != TextView::npos;
    });
    if (last != Languages.rend())
        clause += LoadResourceString(last->number);
    return clause;
}

Text DescribeAttribute(TextView selector) {
    const std::size_t opening = selector.find(u'[');
    const std::size_t closing = selector.find(u']');
    const std::size_t equals = selector.find(u'=');
    const std::size_t tilde = selector.find(u'~');
    const Text element = DescribeSelector(selector.substr(0, opening));
    if (equals == TextView::npos)
        return element + Message(1126, Between(selector, opening + 1, closing));
    const TextView name = Between(selector, opening + 1, tilde == TextView::npos ? equals : tilde);
    const Text value = UnquoteText(Between(selector, equals + 1, closing));
    return element + Message(tilde == TextView::npos ? 1127 : 1128, name, value);
}

/// The selector cut at each unit that `isSeparator` accepts, each piece trimmed, the last one only if it isn't empty.
template <typename IsSeparator>
Texts Pieces(TextView selector, IsSeparator isSeparator) {
    Texts pieces;
    std::size_t start = 0;
    for (std::size_t index = 0; index < selector.size(); ++index) {
        if (isSeparator(selector[index])) {
            pieces.push_back(TrimWhitespace(selector.substr(start, index - start)));
            start = index + 1;
        }
    }
    Text last = TrimWhitespace(selector.substr(start));
    if (!last.empty())
        pieces.push_back(std::move(last));
    return pieces;
}

Text DescribeGroup(TextView selector) {
    Text clause(LoadResourceString(1106));
    for (const Text& piece : Pieces(selector, [](char16_t unit) { return unit == u','; }))
        clause += u" " + DescribeSelector(piece);
    return clause;
}

/// A chain of elements, told from the last to the first with the words of `relation` between them.
template <typename IsSeparator>
Text DescribeChain(TextView selector, IsSeparator isSeparator, int relation) {
    Text clause(LoadResourceString(1107));
    const Texts pieces = Pieces(selector, isSeparator);
    for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece) {
        clause += u" " + DescribeSelector(*piece);
        if (piece + 1 != pieces.rend())
            clause += LoadResourceString(relation);
    }
    return clause;
}

}  // namespace

Text GetSelectorExplanation(TextView selector) {
    const int type = GetSelectorType(selector);
    const bool saysWhatItDoes = type == selector_type::Typographical || type == selector_type::GeneratedContent;
    return Message(saysWhatItDoes ? 1099 : 1096, DescribeSelector(selector));
}

Text DescribeSelector(TextView selector) {
    switch (GetSelectorType(selector)) {
        case selector_type::Type: return DescribeType(selector);
        case selector_type::Link: return DescribeState(selector, LinkStates);
        case selector_type::Class: return DescribeNamed(selector, u'.', 1090, 1089);
        case selector_type::ID: return DescribeNamed(selector, u'#', 1092, 1091);
        case selector_type::Descendant: return DescribeChain(selector, IsWhitespaceUnit, 1108);
        case selector_type::Group: return DescribeGroup(selector);
        case selector_type::Dynamic: return DescribeState(selector, DynamicStates);
        case selector_type::Language: return DescribeLanguage(selector);
        case selector_type::Typographical: return DescribePseudoElement(selector, u":first-line", 1095, 1094);
        case selector_type::GeneratedContent: return DescribePseudoElement(selector, u":before", 1097, 1098);
        case selector_type::FirstChild: return DescribeFirstChild(selector);
        case selector_type::Child:
            return DescribeChain(
                selector, [](char16_t unit) { return unit == u'>'; }, 1110);
        case selector_type::AdjacentSibling:
            return DescribeChain(
                selector, [](char16_t unit) { return unit == u'+'; }, 1109);
        case selector_type::Attribute: return DescribeAttribute(selector);
        default: return {};
    }
}

TextView GetNewRuleHelpText(TextView kind) noexcept {
    constexpr auto Kinds = std::to_array<NumberedMark>({
        {u"Type", 1056},
        {u"Link", 1057},
        {u"Class", 1058},
        {u"ID", 1059},
        {u"Descendant", 1060},
        {u"Group", 1061},
        {u"Dynamic", 1062},
        {u"Generated Content", 1063},
        {u"First Child", 1064},
        {u"Child", 1065},
        {u"Adjacent Sibling", 1066},
        {u"Attribute", 1067},
        {u"Typographical", 1068},
        {u"Language", 1069},
        {u"All Link", 1070},
        {u"All Link States", 1070},
        {u"All Heading Levels", 1071},
        {u"All Basic Text", 1072},
        {u"All Table", 1073},
        {u"All Form", 1074},
    });
    const auto* const found =
        std::find_if(Kinds.begin(), Kinds.end(), [=](const NumberedMark& row) { return row.mark == kind; });
    return found == Kinds.end() ? TextView() : LoadResourceString(found->number);
}

}  // namespace tintora
