#include "language/PropertyValidation.h"

#include "language/Colors.h"
#include "language/ValueParsers.h"
#include "language/Words.h"
#include "text/LowerCase.h"
#include "text/NumberText.h"
#include "text/StringTable.h"
#include "text/Whitespace.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr int TextDecoration = 1013;
constexpr int BorderStyle = 1059;
constexpr int EdgeWords = 1327;

constexpr TextView Blank = u" ";

/// Whether `text` may have letters that aren't in lower case. A loop that never ends early runs over many units at
/// once.
bool MayHaveCapitals(TextView text) {
    bool mayHaveCapitals = false;
    for (const char16_t unit : text)
        mayHaveCapitals |= (unit >= u'A' && unit <= u'Z') || unit >= 0x80;
    return mayHaveCapitals;
}

/// A text in lower case, which is copied only where it may have capitals.
class LoweredText {
  public:
    explicit LoweredText(TextView text) : view_(text) {
        if (!MayHaveCapitals(text))
            return;
        own_ = LowerCase(text);
        view_ = own_;
    }
    LoweredText(const LoweredText&) = delete;
    LoweredText& operator=(const LoweredText&) = delete;
    LoweredText(LoweredText&&) = delete;
    LoweredText& operator=(LoweredText&&) = delete;
    ~LoweredText() = default;

    [[nodiscard]] TextView View() const noexcept { return view_; }

  private:
    Text own_;
    TextView view_;
};

/// Whether `value`, lower-case and trimmed, passes what all properties are tested for.
bool PassesLists(const PropertyRules& rules, TextView value) {
    return (rules.words != nullptr && rules.words->Has(value)) || (rules.isLengthProperty && IsLengthValue(value)) ||
           (rules.isURLProperty && IsURLValue(value)) ||
           (rules.isPositiveLengthProperty && IsPositiveLengthValue(value)) ||
           (rules.isColorProperty && IsValidColor(value));
}

bool HasManyWords(TextView value) { return value.find(u' ', 1) != TextView::npos; }

bool AreSides(const PropertyRules& rules, TextView value, FontFamilySplit split) {
    return EveryWord(value, Blank, [&](TextView word) { return ValidPropertyValue(rules, word, split); });
}

bool IsBackground(TextView value, FontFamilySplit split) {
    static const PropertyRules& attachment = RulesOfProperty(u"background-attachment");
    static const PropertyRules& position = RulesOfProperty(u"background-position");
    static const PropertyRules& repeat = RulesOfProperty(u"background-repeat");
    return EveryWord(value, Blank, [=](TextView word) {
        return IsURLValue(word) || IsValidColor(word) || word == u"transparent" || word == u"none" ||
               IsPositiveLengthValue(word) || ValidPropertyValue(attachment, word, split) ||
               ValidPropertyValue(position, word, split) || ValidPropertyValue(repeat, word, split);
    });
}

bool IsListStyle(TextView value, FontFamilySplit split) {
    static const PropertyRules& type = RulesOfProperty(u"list-style-type");
    static const PropertyRules& position = RulesOfProperty(u"list-style-position");
    return EveryWord(value, Blank, [=](TextView word) {
        return IsURLValue(word) || ValidPropertyValue(type, word, split) || ValidPropertyValue(position, word, split);
    });
}

/// What is left for a value that no other test took.
bool PassesFinalTest(const PropertyRules& rules, TextView value) {
    return rules.isBorder && isValidEdgeValue(u"border", value);
}

/// A value may pass the rule of its property, or fail it for good, or go on to the final test.
bool PassesOwnRule(const PropertyRules& rules, TextView value, FontFamilySplit split) {
    bool passes = false;
    switch (rules.ownRule) {
        case OwnRule::TextDecoration: return isValidTextDecorationValue(rules.name, value);
        case OwnRule::FontFamily: return isValidFontFamilyValue(rules.name, value, split);
        case OwnRule::BackgroundPosition: return isValidBackgroundPositionValue(rules.name, value);
        case OwnRule::Background: return IsBackground(value, split);
        case OwnRule::ListStyle: return IsListStyle(value, split);
        case OwnRule::Font: return isValidFontValue(rules.name, value, split);
        case OwnRule::Sides:
            if (HasManyWords(value))
                return AreSides(rules, value, split);
            break;
        case OwnRule::Number: passes = IsNumeric(value); break;
        case OwnRule::Anything: passes = true; break;
        case OwnRule::URL: passes = IsURLValue(value); break;
        case OwnRule::Transparent: passes = value == u"transparent"; break;
        case OwnRule::Rect: passes = IsRectValue(value); break;
        // The answer isn't used: an outline of more than one word fails, whatever it holds.
        case OwnRule::Outline: static_cast<void>(isValidEdgeValue(rules.name, value)); break;
        case OwnRule::None: break;
    }
    return passes || PassesFinalTest(rules, value);
}

bool IsQuoted(TextView piece) {
    return (piece.starts_with(u'"') && piece.ends_with(u'"')) || (piece.starts_with(u'\'') && piece.ends_with(u'\''));
}

/// Every word is a style.
constexpr bool IsFontStyleWord(TextView /*word*/) { return true; }

}  // namespace

bool ValidPropertyValue(TextView name, TextView value, FontFamilySplit split) {
    return ValidPropertyValue(RulesOfProperty(TrimmedView(name)), value, split);
}

bool ValidPropertyValue(const PropertyRules& rules, TextView value, FontFamilySplit split) {
    const LoweredText lowered(TrimmedView(value));
    if (lowered.View().empty() || value == u"inherit")
        return true;
    return PassesLists(rules, lowered.View()) || PassesOwnRule(rules, lowered.View(), split);
}

bool ValidatePropertyValue(TextView name, TextView value) {
    return ValidPropertyValue(name, value, FontFamilySplit::AtCommaAndBlank);
}

bool isValidTextDecorationValue(TextView /*name*/, TextView value) {
    const WordTable& words = PossibleWords(TextDecoration);
    return EveryWord(value, Blank, [&](TextView word) { return words.Has(word); });
}

bool isValidFontFamilyValue(TextView /*name*/, TextView value, FontFamilySplit split) {
    const TextView separator = split == FontFamilySplit::AtComma ? u"," : u", ";
    return EveryWord(value, separator, [](TextView untrimmed) {
        const TextView piece = TrimmedView(untrimmed);
        return piece.find(u' ') == TextView::npos || IsQuoted(piece);
    });
}

bool isValidBackgroundPositionValue(TextView name, TextView value) {
    const LoweredText lowered(value);
    const WordTable& words = PossibleWords(PropertyNumberFromName(name));
    return !value.empty() && EveryWord(lowered.View(), Blank,
                                       [&](TextView word) { return IsPositiveLengthValue(word) || words.Has(word); });
}

bool isValidEdgeValue(TextView name, TextView value) {
    const TextView edgeWords = LoadResourceString(EdgeWords);
    const WordTable& styles = PossibleWords(BorderStyle);
    const TextView ownWord = name == u"border" ? u"transparent" : u"invert";
    return EveryWord(value, Blank, [&](TextView word) {
        return IsValidColor(word) || IsPositiveLengthValue(word) || edgeWords.find(word) != TextView::npos ||
               styles.Has(word) || word == ownWord;
    });
}

bool isValidFontValue(TextView /*name*/, TextView value, FontFamilySplit split) {
    static const PropertyRules& size = RulesOfProperty(u"font-size");
    static const PropertyRules& weight = RulesOfProperty(u"font-weight");
    static const PropertyRules& variant = RulesOfProperty(u"font-variant");
    return EveryWord(value, Blank, [=](TextView word) {
        return ValidPropertyValue(size, word, split) || ValidPropertyValue(weight, word, split) ||
               ValidPropertyValue(variant, word, split) || IsFontStyleWord(word);
    });
}

}  // namespace tintora
