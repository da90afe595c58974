#include "language/Colors.h"
#include "language/PropertyValidation.h"
#include "language/ValueLists.h"
#include "language/ValueParsers.h"
#include "language/Vocabulary.h"
#include "language/Words.h"
#include "text/Encoding.h"
#include "text/LowerCase.h"
#include "text/NumberText.h"
#include "text/StringTable.h"
#include "text/Whitespace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

namespace tintora {
namespace {

/// The test of values written down step by step, with the lists as they are and nothing prepared.
class PlainTest {
  public:
    explicit PlainTest(TextView familySeparator) : familySeparator_(familySeparator) {}

    [[nodiscard]] bool Passes(const Text& name, const Text& value) const {
        const Text p = LowerCase(TrimWhitespace(name));
        const Text v = LowerCase(TrimWhitespace(value));
        const int number = PropertyNumberFromName(p);
        if (v.empty() || value == u"inherit")
            return true;
        if (number != 1011 && ListContains(GetPossibleValues(number), v))
            return true;
        if (ListHasKey(LengthProperties(), p) && IsLengthValue(v))
            return true;
        if (ListHasKey(URLProperties(), p) && IsURLValue(v))
            return true;
        if (ListHasKey(PositiveLengthProperties(), p) && IsPositiveLengthValue(v))
            return true;
        if (ListHasKey(ColorProperties(), p) && IsValidColor(v))
            return true;
        return PassesByName(p, v);
    }

  private:
    template <typename Test>
    static bool AllWords(const Text& value, Test test) {
        const Texts words = GetWordsFromText(value, u" ");
        return std::all_of(words.begin(), words.end(), test);
    }

    [[nodiscard]] bool PassesByName(const Text& p, const Text& v) const {
        if (p == u"text-decoration")
            return AllWords(v, [](const Text& word) { return ListContains(GetPossibleValues(1013), word); });
        if (p == u"font-family")
            return PassesAsFamilies(v);
        if (p == u"background-position")
            return AllWords(v, [](const Text& word) {
                return IsPositiveLengthValue(word) || ListContains(GetPossibleValues(1018), word);
            });
        if ((p == u"margin" || p == u"padding") && GetWordsFromText(v, u" ").size() >= 2)
            return AllWords(v, [&](const Text& word) { return Passes(p, word); });
        if (p == u"background")
            return AllWords(v, [&](const Text& word) { return PassesAsBackground(word); });
        if (p == u"list-style")
            return AllWords(v, [&](const Text& word) {
                return IsURLValue(word) || Passes(u"list-style-type", word) || Passes(u"list-style-position", word);
            });
        if (p == u"quotes" || p == u"content" || p == u"font")
            return true;
        if ((p == u"z-index" || p == u"line-height") && IsNumeric(v))
            return true;
        if ((p == u"list-style-image" || p == u"background-image" || p == u"cursor") && (IsURLValue(v) || v == u"none"))
            return true;
        if ((p == u"background-color" && v == u"transparent") || (p == u"clip" && IsRectValue(v)))
            return true;
        return p.starts_with(u"border") && AllWords(v, PassesAsEdge);
    }

    [[nodiscard]] bool PassesAsFamilies(const Text& v) const {
        bool passes = true;
        for (const Text& untrimmed : GetWordsFromText(v, familySeparator_)) {
            const Text piece = TrimWhitespace(untrimmed);
            if (piece.find(u' ') != Text::npos)
                passes = passes && ((piece.front() == u'"' && piece.back() == u'"') ||
                                    (piece.front() == u'\'' && piece.back() == u'\''));
        }
        return passes;
    }

    [[nodiscard]] bool PassesAsBackground(const Text& word) const {
        return IsURLValue(word) || IsValidColor(word) || word == u"transparent" || word == u"none" ||
               IsPositiveLengthValue(word) || Passes(u"background-attachment", word) ||
               Passes(u"background-position", word) || Passes(u"background-repeat", word);
    }

    static bool PassesAsEdge(const Text& word) {
        return IsValidColor(word) || IsPositiveLengthValue(word) ||
               LoadResourceString(1327).find(word) != TextView::npos || word == u"medium" || word == u"thin" ||
               word == u"thick" || ListContains(GetPossibleValues(1059), word) || word == u"transparent";
    }

    TextView familySeparator_;
};

class RandomPairs {
  public:
    RandomPairs() {
        names_ = GetWordsFromText(LoadResourceString(1500), u" ");
        for (const TextView name : {u"", u"colour", u"voice-family", u"border-x", u"MARGIN", u" Font-Family "})
            names_.emplace_back(name);
        for (int number = 998; number <= 1107; ++number) {
            for (const Text& word : GetPossibleValues(number))
                words_.push_back(word);
        }
        for (const Texts& colors : {GetColorKeywords(), GetUIColorKeywords()})
            words_.insert(words_.end(), colors.begin(), colors.end());
        for (const TextView word :
             {u"0",        u"10px",       u"-2em",    u"+5%",        u"1.5",    u"-3e2",     u"#fff",
              u"#12",      u"url(a.gif)", u"URL(",    u"rgb(1,2,3)", u"rgb(1,", u"invert",   u"transparent",
              u"Times",    u"\"Times",    u"Roman\"", u"'a",         u"b'",     u"rect(1px", u"4px)",
              u"nonsense", u"RED",        u"Inherit", u"\xD800",     u"\"",     u"hi",       u"!important"})
            words_.emplace_back(word);
    }

    const Text& Name() { return names_[random_() % names_.size()]; }

    Text Value() {
        Text value;
        for (auto count = random_() % 5U; count > 0; --count)
            value.append(words_[random_() % words_.size()]).append(Separator());
        return random_() % 2U == 0 ? TrimWhitespace(value) : value;
    }

    Text Families() {
        constexpr std::array<TextView, 8> Parts = {u"\"A", u"B\"", u"'a", u"b'", u"c", u",", u", ", u" "};
        Text families;
        for (auto count = random_() % 10U; count > 0; --count)
            families.append(Parts[random_() % Parts.size()]);
        return families;
    }

  private:
    TextView Separator() {
        constexpr std::array<TextView, 8> Separators = {u" ", u" ", u" ", u"  ", u",", u", ", u"\t", u""};
        return Separators[random_() % Separators.size()];
    }

    std::mt19937 random_{33};
    Texts names_;
    Texts words_;
};

constexpr int PairCount = 100000;

/// The plain steps copy every list.
constexpr int PlainPairCount = 30000;

TEST(PropertyValidationTwins, TheyAgreeOnEverythingButFontFamilies) {
    RandomPairs pairs;
    for (int round = 0; round < PairCount; ++round) {
        const Text& name = pairs.Name();
        const Text value = pairs.Value();
        if (LowerCase(TrimWhitespace(name)) == u"font-family")
            continue;
        ASSERT_EQ(ValidatePropertyValue(name, value), ValidPropertyValue(name, value))
            << Utf8FromText(name + u": " + value);
    }
}

TEST(PropertyValidationTwins, FontFamiliesDifferOnlyWhereACommaPartsThem) {
    RandomPairs pairs;
    const PlainTest scanner(u",");
    const PlainTest editors(u", ");
    int differences = 0;
    for (int round = 0; round < PlainPairCount; ++round) {
        const Text families = pairs.Families();
        SCOPED_TRACE(Utf8FromText(families));
        const bool isValid = ValidPropertyValue(u"font-family", families);
        const bool isValidInEditors = ValidatePropertyValue(u"font-family", families);
        ASSERT_EQ(isValid, scanner.Passes(u"font-family", families));
        ASSERT_EQ(isValidInEditors, editors.Passes(u"font-family", families));
        ASSERT_TRUE(isValid == isValidInEditors || families.find(u',') != Text::npos);
        differences += isValid == isValidInEditors ? 0 : 1;
    }
    EXPECT_GT(differences, PlainPairCount / 100);
}

TEST(PropertyValidationTwins, BothDoWhatThePlainStepsDo) {
    RandomPairs pairs;
    const PlainTest scanner(u",");
    const PlainTest editors(u", ");
    int validCount = 0;
    for (int round = 0; round < PlainPairCount; ++round) {
        const Text& name = pairs.Name();
        const Text value = pairs.Value();
        SCOPED_TRACE(Utf8FromText(name + u": " + value));
        ASSERT_EQ(ValidPropertyValue(name, value), scanner.Passes(name, value));
        ASSERT_EQ(ValidatePropertyValue(name, value), editors.Passes(name, value));
        validCount += ValidPropertyValue(name, value) ? 1 : 0;
    }
    EXPECT_GT(validCount, PlainPairCount / 10);
    EXPECT_LT(validCount, PlainPairCount - PlainPairCount / 10);
}

}  // namespace
}  // namespace tintora
