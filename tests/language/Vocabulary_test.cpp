#include "language/Vocabulary.h"

#include "language/Bracketed.h"
#include "language/FakeFrontDocument.h"
#include "language/Words.h"
#include "text/Encoding.h"
#include "text/StringTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <set>
#include <utility>
#include <vector>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct NumberedName {
    int number;
    TextView name;
};

/// The names of the properties from a number on, parted by blanks.
constexpr auto NamesFromNumbers = std::to_array<NumberedName>({
    {1001,
     u"font-size font-weight background-image color letter-spacing word-spacing text-indent vertical-align "
     u"line-height text-align"},
    {1011,
     u"font-family font-style text-decoration background background-color background-repeat "
     u"background-attachment background-position margin margin-top"},
    {1021,
     u"margin-left margin-bottom margin-right padding padding-top padding-left padding-bottom "
     u"padding-right position top"},
    {1031, u"left bottom right width height min-width max-width min-height max-height visibility"},
    {1041,
     u"z-index font-stretch font-variant text-transform text-direction unicode-bidi font-size-adjust clip "
     u"overflow float"},
    {1051,
     u"clear border border-color border-width border-top border-left border-bottom border-right "
     u"border-style border-top-style"},
    {1061,
     u"border-top-width border-top-color border-left-style border-left-width border-left-color "
     u"border-bottom-style border-bottom-width border-bottom-color border-right-style border-right-width"},
    {1071,
     u"border-rightcolor cursor outline outline-style outline-width outline-color page-break-before "
     u"page-break-after page-break-inside widows"},
    {1081, u"orphans page margin margin-top margin-left margin-bottom margin-right marks size display"},
    {1091,
     u"list-style-type list-style-position list-style-image white-space marker-offset border-spacing "
     u"border-collapse table-layout caption-side empty-cells"},
    {1101, u"quotes"},
    {1103, u"counter-reset counter-increment text-shadow content"},
});

constexpr auto NumbersWithoutName = std::to_array<int>({
    -1000000,
    -1,
    0,
    1,
    998,
    999,
    1000,
    1102,
    1107,
    1108,
    2001,
    65536 + 1001,
    std::numeric_limits<int>::max(),
});

/// Names whose number doesn't answer them, or that are written in some other way.
constexpr auto NumbersOfNames = std::to_array<NumberedName>({
    {1000, u"font"},
    {1071, u"border-right-color"},
    {1106, u"voice-family"},
    {1106, u"content"},
    {1083, u"margin"},
    {1084, u"margin-top"},
    {1085, u"margin-left"},
    {1086, u"margin-bottom"},
    {1087, u"margin-right"},
    {1083, u"MARGIN"},
    {1001, u"Font-Size"},
    {1041, u"Z-INDEX"},
    {999, u"table-layout"},
    {999, u"TABLE-LAYOUT"},
    {999, u"border-rightcolor"},
    {999, u"nonsense"},
    {999, u""},
    {999, u" "},
    {999, u"color "},
    {999, u" color"},
    {999, u"colour"},
    {999, u"colo"},
    {999, u"color:"},
    {999, u"list-style"},
    {999, u"generic"},
    {999, u"number"},
    {999, u"font_size"},
    {999, u"color\0"sv},
    {999, u"\0"sv},
    {999, u"\xD800"},
    {999, u"\xFF43olor"},
    {999, u"bac\x212Aground"},
    {999,
     u"w\x0130"
     u"dth"},
    {999, u"background-attachments"},
});

struct WordsCase {
    int first;
    int last;
    TextView words;
};

constexpr TextView Units = u"em ex px pt in mm cm %";

/// The words of the properties that have a list of their own, parted by blanks.
constexpr auto WordsCases = std::to_array<WordsCase>({
    {998, 998, u"px pt in mm cm %"},
    {1001, 1001, u"inherit xx-small x-small small medium large x-large xx-large larger smaller em ex px pt in mm cm %"},
    {1002, 1002, u"inherit normal bold bolder lighter 100 200 300 400 500 600 700 800 900"},
    {1003, 1003, u"inherit"},
    {1005, 1005, u"inherit normal em ex px pt in mm cm %"},
    {1006, 1006, u"inherit normal em ex px pt in mm cm %"},
    {1008, 1008, u"inherit baseline sub super text-top text-bottom middle top bottom em ex px pt in mm cm %"},
    {1009, 1009, u"inherit normal number em ex pt px in mm cm %"},
    {1010, 1010, u"inherit left right center justify"},
    {1012, 1012, u"inherit normal italic oblique"},
    {1013, 1013, u"none underline overline line-through blink"},
    {1016, 1016, u"inherit repeat repeat-x repeat-y no-repeat"},
    {1017, 1017, u"inherit scroll fixed"},
    {1018, 1018, u"inherit top center bottom left right em ex px pt in mm cm %"},
    {1019, 1023, u"inherit auto em ex px pt in mm cm %"},
    {1024, 1028, u"inherit em ex px pt in mm cm %"},
    {1029, 1029, u"inherit absolute relative static fixed"},
    {1030, 1037, u"inherit auto em ex px pt in mm cm %"},
    {1040, 1040, u"inherit visible hidden"},
    {1041, 1041, u"inherit auto number"},
    {1042, 1042,
     u"inherit none normal wider narrower ultra-condensed extra-condensed condensed semi-condensed "
     u"semi-expanded expanded extra-expanded ultra-expanded"},
    {1043, 1043, u"inherit normal small-caps"},
    {1044, 1044, u"inherit capitalize uppercase lowercase none"},
    {1045, 1045, u"inherit ltr rtl"},
    {1046, 1046, u"inherit normal embed bidi-override"},
    {1047, 1047, u"inherit none number"},
    {1048, 1048, u"inherit auto rectangle"},
    {1049, 1049, u"inherit visible hidden scroll auto"},
    {1050, 1050, u"inherit none left right"},
    {1051, 1051, u"inherit none left right both"},
    {1052, 1052, u"inherit thin medium thick em ex px pt in mm cm %"},
    {1059, 1059, u"inherit none solid double dotted dashed groove ridge inset outset"},
    {1072, 1072,
     u"inherit none auto crosshair default pointer move text wait help progress e-resize ne-resize "
     u"nw-resize n-resize se-resize sw-resize s-resize w-resize"},
    {1073, 1073, u"inherit thin medium thick em ex px pt in mm cm %"},
    {1074, 1074, u"inherit none solid double dotted dashed groove ridge inset outset"},
    {1075, 1075, u"inherit thin medium thick em ex px pt in mm cm %"},
    {1077, 1077, u"inherit auto always avoid left right"},
    {1078, 1078, u"inherit auto always avoid left right"},
    {1079, 1079, u"inherit auto always avoid left right"},
    {1080, 1080, u"inherit number"},
    {1081, 1081, u"inherit number"},
    {1083, 1087, u"inherit auto px pt in mm cm %"},
    {1088, 1088, u"inherit none crop cross crop+cross"},
    {1089, 1089, u"inherit auto portrait landscape"},
    {1090, 1090,
     u"inherit none block inline-block inline list-item run-in table inline-table table-column-group "
     u"table-column table-row-group table-header-group table-footer-group table-row table-cell "
     u"table-caption"},
    {1091, 1091,
     u"disc circle square decimal decimal-leading-zero lower-roman upper-roman lower-greek lower-alpha "
     u"lower-latin upper-alpha upper-latin hebrew armenian georgian cjk-ideographic hiragana katakana "
     u"hiragana-iroha katakana-iroha none inherit"},
    {1092, 1092, u"inherit inside outside"},
    {1093, 1093, u"inherit none"},
    {1094, 1094, u"inherit normal pre nowrap"},
    {1095, 1095, u"inherit auto em ex px pt in mm cm %"},
    {1096, 1096, u"inherit auto em ex px pt in mm cm %"},
    {1097, 1097, u"inherit collapse separate"},
    {1098, 1098, u"inherit auto fixed"},
    {1099, 1099, u"inherit top bottom"},
    {1100, 1100, u"inherit show hide"},
    {1101, 1101, u"inherit list none"},
    {1102, 1102, u"inherit list none"},
    {1103, 1103, u"inherit list none"},
    {1104, 1104, u"inherit list none"},
    {1105, 1105, u"inherit list none"},
    {1106, 1106, u"inherit list"},
    {1107, 1107, u"open-quote close-quote no-open-quote no-close-quote"},
});

constexpr TextView FontWords =
    u"[sans-serif][serif][monospace][cursive][fantasy][Times, \"Times New Roman\", serif]"
    u"[Verdana, Helvetica, Arial, sans-serif][Courier, \"Courier New\", monospace]";

struct ElementCase {
    TextView name;
    bool isBlock;
};

constexpr auto ElementCases = std::to_array<ElementCase>({
    {u"blockquote", true}, {u"body", true}, {u"dd", true},      {u"div", true},    {u"dl", true},
    {u"dt", true},         {u"p", true},    {u"ul", true},      {u"DIV", true},    {u"P", true},
    {u"", false},          {u"ol", false},  {u"li", false},     {u"h1", false},    {u"span", false},
    {u"p ", false},        {u"d", false},   {u"dd div", false}, {u"p\0"sv, false}, {u"\xD800", false},
});

/// The words of type-ahead that no property number answers to.
constexpr auto WordsWithoutNumber = std::to_array<TextView>({u"list-style", u"table-layout"});

constexpr int TypeAheadWords = 1500;

struct NameOfNumber {
    int number;
    Text name;
};

/// Every number that has a name, in order.
std::vector<NameOfNumber> NamesOfNumbers() {
    std::vector<NameOfNumber> names;
    for (const NumberedName& row : NamesFromNumbers) {
        int number = row.number;
        for (Text& name : GetWordsFromText(row.name, u" "))
            names.push_back({number++, std::move(name)});
    }
    return names;
}

bool HasOwnWords(int number) {
    return std::any_of(WordsCases.begin(), WordsCases.end(),
                       [=](const WordsCase& row) { return number >= row.first && number <= row.last; });
}

TEST(Vocabulary, ANumberHasItsName) {
    const std::vector<NameOfNumber> names = NamesOfNumbers();
    EXPECT_EQ(names.size(), 105U);
    for (const NameOfNumber& row : names)
        EXPECT_EQ(PropertyNameFromNumber(row.number), row.name) << row.number;
}

TEST(Vocabulary, AnyOtherNumberIsGeneric) {
    for (const int number : NumbersWithoutName)
        EXPECT_EQ(PropertyNameFromNumber(number), u"generic") << number;
}

TEST(Vocabulary, TheLastNumberOfANameAnswersIt) {
    const std::vector<NameOfNumber> names = NamesOfNumbers();
    for (const NameOfNumber& row : names) {
        if (row.name == u"table-layout" || row.name == u"border-rightcolor")
            continue;
        const auto last = std::find_if(names.rbegin(), names.rend(),
                                       [&](const NameOfNumber& other) { return other.name == row.name; });
        EXPECT_EQ(PropertyNumberFromName(row.name), last->number) << Utf8FromText(row.name);
        Text capitals(row.name);
        std::transform(capitals.begin(), capitals.end(), capitals.begin(),
                       [](char16_t unit) { return unit >= u'a' ? static_cast<char16_t>(unit - 32) : unit; });
        EXPECT_EQ(PropertyNumberFromName(capitals), last->number) << Utf8FromText(capitals);
    }
}

TEST(Vocabulary, SomeNamesAndNumbersDoNotAnswerEachOther) {
    for (const NumberedName& row : NumbersOfNames)
        EXPECT_EQ(PropertyNumberFromName(row.name), row.number) << Utf8FromText(row.name);
}

TEST(Vocabulary, ALongNameIsUnknown) {
    EXPECT_EQ(PropertyNumberFromName(Text(70000, u'a')), UnknownProperty);
    EXPECT_EQ(PropertyNumberFromName(u"color" + Text(70000, u'\0')), UnknownProperty);
}

TEST(Vocabulary, APropertyHasANumberFromAThousandOn) {
    EXPECT_TRUE(IsPropertyNumber(1000));
    EXPECT_TRUE(IsPropertyNumber(1001));
    EXPECT_TRUE(IsPropertyNumber(std::numeric_limits<int>::max()));
    EXPECT_FALSE(IsPropertyNumber(999));
    EXPECT_FALSE(IsPropertyNumber(0));
    EXPECT_FALSE(IsPropertyNumber(-1000));
}

TEST(Vocabulary, APropertyHasItsWords) {
    for (const WordsCase& row : WordsCases) {
        for (int number = row.first; number <= row.last; ++number)
            EXPECT_EQ(GetPossibleValues(number), GetWordsFromText(row.words, u" ")) << number;
    }
}

TEST(Vocabulary, AnyOtherNumberHasTheUnits) {
    for (int number = -5; number <= 1600; ++number) {
        if (number != 1 && number != 1011 && !HasOwnWords(number)) {
            EXPECT_EQ(GetPossibleValues(number), GetWordsFromText(Units, u" ")) << number;
        }
    }
    for (const int number : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(GetPossibleValues(number), GetWordsFromText(Units, u" ")) << number;
}

TEST(Vocabulary, TheNumberOneHasNoWords) { EXPECT_EQ(GetPossibleValues(1), Texts()); }

TEST(Vocabulary, FontsAreTheGenericOnesThenThoseOfTheDocument) {
    FakeFrontDocument front;
    EXPECT_EQ(Bracketed(GetFontFamilyValues(nullptr)), FontWords);
    EXPECT_EQ(Bracketed(GetFontFamilyValues(&front)), FontWords);
    front.fonts = {u"Georgia, serif", u"serif"};
    EXPECT_EQ(Bracketed(GetFontFamilyValues(&front)), Text(FontWords) + u"[Georgia, serif][serif]");
    EXPECT_EQ(GetPossibleValues(1011), GetFontFamilyValues(nullptr));
    EXPECT_EQ(GetPossibleValues(1011, &front), GetFontFamilyValues(&front));
    EXPECT_EQ(GetPossibleValues(1010, &front), GetPossibleValues(1010));
}

TEST(Vocabulary, WithoutADocumentWordListsAreEmpty) {
    for (const int number : {0, 1080, 1086, 1087, 1300, 1500})
        EXPECT_EQ(GetWordList(number, nullptr), Texts()) << number;
}

TEST(Vocabulary, AWordListIsTheWordsOfItsString) {
    const FakeFrontDocument front;
    EXPECT_EQ(Bracketed(GetWordList(1086, &front)), u"[a:link][a:visited][a:hover][a:active]");
    EXPECT_EQ(Bracketed(GetWordList(1081, &front)),
              u"[table][tr][td][th][thead][tbody][tfoot][caption][col][colgroup][]");
    EXPECT_EQ(GetWordList(0, &front), Texts());
    EXPECT_EQ(GetWordList(-1, &front), Texts());
    EXPECT_EQ(GetWordList(1104, &front), Texts());
}

TEST(Vocabulary, TheListsOfElementsEndWithAnEmptyWord) {
    const FakeFrontDocument front;
    for (int number = 1080; number <= 1085; ++number) {
        const Texts words = GetWordList(number, &front);
        ASSERT_GT(words.size(), 2U) << number;
        EXPECT_EQ(std::count(words.begin(), words.end(), u""), 1) << number;
        EXPECT_EQ(words.back(), u"") << number;
    }
}

TEST(Vocabulary, TheSelectorsOfTheDocumentAreAWordListToo) {
    FakeFrontDocument front;
    EXPECT_EQ(GetWordList(1087, &front), Texts());
    front.selectors = {u"h1", u"", u"a b"};
    EXPECT_EQ(GetWordList(1087, &front), front.selectors);
}

TEST(Vocabulary, TypeAheadOffersEveryNameOnceInOrder) {
    const Texts words = GetWordsFromText(LoadResourceString(TypeAheadWords), u" ");
    std::set<Text> names = {u"font", u"border-right-color"};
    names.insert(WordsWithoutNumber.begin(), WordsWithoutNumber.end());
    for (int number = 1000; number <= 1200; ++number)
        names.emplace(PropertyNameFromNumber(number));
    names.erase(u"generic");
    names.erase(u"border-rightcolor");
    EXPECT_EQ(words, Texts(names.begin(), names.end()));
}

TEST(Vocabulary, TypeAheadOffersWhatHasANumberAndTwoMore) {
    for (const Text& word : GetWordsFromText(LoadResourceString(TypeAheadWords), u" ")) {
        const bool hasNumber =
            std::find(WordsWithoutNumber.begin(), WordsWithoutNumber.end(), word) == WordsWithoutNumber.end();
        EXPECT_EQ(PropertyNumberFromName(word) != UnknownProperty, hasNumber) << Utf8FromText(word);
    }
}

TEST(Vocabulary, AnElementIsABlockInWhateverCase) {
    for (const ElementCase& row : ElementCases)
        EXPECT_EQ(IsBlockElementName(row.name), row.isBlock) << Utf8FromText(row.name);
}

TEST(Vocabulary, OnlyOneNameIsThatOfAListItem) {
    EXPECT_TRUE(IsListItemName(u"li"));
    for (const TextView name : {u""sv, u"LI"sv, u"Li"sv, u"li "sv, u"ul li"sv, u"l"sv, u"lis"sv})
        EXPECT_FALSE(IsListItemName(name)) << Utf8FromText(name);
}

TEST(Vocabulary, TwoValuesDisplayATable) {
    EXPECT_TRUE(IsTableDisplay(u"table"));
    EXPECT_TRUE(IsTableDisplay(u"inline-table"));
    for (const TextView value : {u""sv, u"Table"sv, u"table-row"sv, u"table "sv, u"inline"sv, u"INLINE-TABLE"sv})
        EXPECT_FALSE(IsTableDisplay(value)) << Utf8FromText(value);
}

}  // namespace
}  // namespace tintora
