#include "language/Vocabulary.h"

#include "language/Words.h"
#include "text/LowerCase.h"
#include "text/StringTable.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>

namespace tintora {

namespace {

constexpr int FirstNamedProperty = 1001;

/// The names of the properties from 1001 on; 1102 has none. "border-rightcolor" lacks a hyphen, and names help pages
/// so.
constexpr auto PropertyNames = std::to_array<TextView>({
    u"font-size",
    u"font-weight",
    u"background-image",
    u"color",
    u"letter-spacing",
    u"word-spacing",
    u"text-indent",
    u"vertical-align",
    u"line-height",
    u"text-align",
    u"font-family",
    u"font-style",
    u"text-decoration",
    u"background",
    u"background-color",
    u"background-repeat",
    u"background-attachment",
    u"background-position",
    u"margin",
    u"margin-top",
    u"margin-left",
    u"margin-bottom",
    u"margin-right",
    u"padding",
    u"padding-top",
    u"padding-left",
    u"padding-bottom",
    u"padding-right",
    u"position",
    u"top",
    u"left",
    u"bottom",
    u"right",
    u"width",
    u"height",
    u"min-width",
    u"max-width",
    u"min-height",
    u"max-height",
    u"visibility",
    u"z-index",
    u"font-stretch",
    u"font-variant",
    u"text-transform",
    u"text-direction",
    u"unicode-bidi",
    u"font-size-adjust",
    u"clip",
    u"overflow",
    u"float",
    u"clear",
    u"border",
    u"border-color",
    u"border-width",
    u"border-top",
    u"border-left",
    u"border-bottom",
    u"border-right",
    u"border-style",
    u"border-top-style",
    u"border-top-width",
    u"border-top-color",
    u"border-left-style",
    u"border-left-width",
    u"border-left-color",
    u"border-bottom-style",
    u"border-bottom-width",
    u"border-bottom-color",
    u"border-right-style",
    u"border-right-width",
    u"border-rightcolor",
    u"cursor",
    u"outline",
    u"outline-style",
    u"outline-width",
    u"outline-color",
    u"page-break-before",
    u"page-break-after",
    u"page-break-inside",
    u"widows",
    u"orphans",
    u"page",
    u"margin",
    u"margin-top",
    u"margin-left",
    u"margin-bottom",
    u"margin-right",
    u"marks",
    u"size",
    u"display",
    u"list-style-type",
    u"list-style-position",
    u"list-style-image",
    u"white-space",
    u"marker-offset",
    u"border-spacing",
    u"border-collapse",
    u"table-layout",
    u"caption-side",
    u"empty-cells",
    u"quotes",
    u"",
    u"counter-reset",
    u"counter-increment",
    u"text-shadow",
    u"content",
});

struct NumberedName {
    TextView name;
    int number;
};

constexpr bool NameIsLess(const NumberedName& left, const NumberedName& right) { return left.name < right.name; }

/// In the order of the names. It isn't `PropertyNames` turned round: of two numbers of a name the higher one stands
/// here, `table-layout` is missing, and `border-right-color` is spelled right.
constexpr auto PropertyNumbers = std::to_array<NumberedName>({
    {u"background", 1014},
    {u"background-attachment", 1017},
    {u"background-color", 1015},
    {u"background-image", 1003},
    {u"background-position", 1018},
    {u"background-repeat", 1016},
    {u"border", 1052},
    {u"border-bottom", 1057},
    {u"border-bottom-color", 1068},
    {u"border-bottom-style", 1066},
    {u"border-bottom-width", 1067},
    {u"border-collapse", 1097},
    {u"border-color", 1053},
    {u"border-left", 1056},
    {u"border-left-color", 1065},
    {u"border-left-style", 1063},
    {u"border-left-width", 1064},
    {u"border-right", 1058},
    {u"border-right-color", 1071},
    {u"border-right-style", 1069},
    {u"border-right-width", 1070},
    {u"border-spacing", 1096},
    {u"border-style", 1059},
    {u"border-top", 1055},
    {u"border-top-color", 1062},
    {u"border-top-style", 1060},
    {u"border-top-width", 1061},
    {u"border-width", 1054},
    {u"bottom", 1032},
    {u"caption-side", 1099},
    {u"clear", 1051},
    {u"clip", 1048},
    {u"color", 1004},
    {u"content", 1106},
    {u"counter-increment", 1104},
    {u"counter-reset", 1103},
    {u"cursor", 1072},
    {u"display", 1090},
    {u"empty-cells", 1100},
    {u"float", 1050},
    {u"font", 1000},
    {u"font-family", 1011},
    {u"font-size", 1001},
    {u"font-size-adjust", 1047},
    {u"font-stretch", 1042},
    {u"font-style", 1012},
    {u"font-variant", 1043},
    {u"font-weight", 1002},
    {u"height", 1035},
    {u"left", 1031},
    {u"letter-spacing", 1005},
    {u"line-height", 1009},
    {u"list-style-image", 1093},
    {u"list-style-position", 1092},
    {u"list-style-type", 1091},
    {u"margin", 1083},
    {u"margin-bottom", 1086},
    {u"margin-left", 1085},
    {u"margin-right", 1087},
    {u"margin-top", 1084},
    {u"marker-offset", 1095},
    {u"marks", 1088},
    {u"max-height", 1039},
    {u"max-width", 1037},
    {u"min-height", 1038},
    {u"min-width", 1036},
    {u"orphans", 1081},
    {u"outline", 1073},
    {u"outline-color", 1076},
    {u"outline-style", 1074},
    {u"outline-width", 1075},
    {u"overflow", 1049},
    {u"padding", 1024},
    {u"padding-bottom", 1027},
    {u"padding-left", 1026},
    {u"padding-right", 1028},
    {u"padding-top", 1025},
    {u"page", 1082},
    {u"page-break-after", 1078},
    {u"page-break-before", 1077},
    {u"page-break-inside", 1079},
    {u"position", 1029},
    {u"quotes", 1101},
    {u"right", 1033},
    {u"size", 1089},
    {u"text-align", 1010},
    {u"text-decoration", 1013},
    {u"text-direction", 1045},
    {u"text-indent", 1007},
    {u"text-shadow", 1105},
    {u"text-transform", 1044},
    {u"top", 1030},
    {u"unicode-bidi", 1046},
    {u"vertical-align", 1008},
    {u"visibility", 1040},
    {u"voice-family", 1106},
    {u"white-space", 1094},
    {u"widows", 1080},
    {u"width", 1034},
    {u"word-spacing", 1006},
    {u"z-index", 1041},
});

static_assert(std::is_sorted(PropertyNumbers.begin(), PropertyNumbers.end(), NameIsLess));

constexpr int NoWords = 1;
constexpr int FontFamily = 1011;
constexpr int UnitWords = 1300;
constexpr int FontFamilyWords = 1307;
constexpr int BlockElementWords = 1131;
constexpr int CurrentSelectors = 1087;

struct WordsOfProperties {
    int first;
    int last;
    int stringNumber;
};

/// Which string holds the words of the properties from `first` through `last`.
constexpr auto PropertyWords = std::to_array<WordsOfProperties>({
    {998, 998, 1336},   {1001, 1001, 1301}, {1002, 1002, 1306}, {1003, 1003, 1330}, {1005, 1006, 1302},
    {1008, 1008, 1304}, {1009, 1009, 1303}, {1010, 1010, 1305}, {1012, 1012, 1308}, {1013, 1013, 1354},
    {1016, 1016, 1309}, {1017, 1017, 1310}, {1018, 1018, 1311}, {1019, 1023, 1312}, {1024, 1028, 1313},
    {1029, 1029, 1314}, {1030, 1037, 1312}, {1040, 1040, 1316}, {1041, 1041, 1315}, {1042, 1042, 1317},
    {1043, 1043, 1318}, {1044, 1044, 1319}, {1045, 1045, 1320}, {1046, 1046, 1321}, {1047, 1047, 1322},
    {1048, 1048, 1323}, {1049, 1049, 1324}, {1050, 1050, 1325}, {1051, 1051, 1326}, {1052, 1052, 1327},
    {1059, 1059, 1328}, {1072, 1072, 1329}, {1073, 1073, 1351}, {1074, 1074, 1328}, {1075, 1075, 1327},
    {1077, 1079, 1331}, {1080, 1081, 1332}, {1083, 1087, 1333}, {1088, 1088, 1334}, {1089, 1089, 1335},
    {1090, 1090, 1345}, {1091, 1091, 1337}, {1092, 1092, 1338}, {1093, 1093, 1339}, {1094, 1094, 1341},
    {1095, 1095, 1340}, {1096, 1096, 1342}, {1097, 1097, 1343}, {1098, 1098, 1344}, {1099, 1099, 1346},
    {1100, 1100, 1347}, {1101, 1101, 1348}, {1102, 1104, 1349}, {1105, 1105, 1350}, {1106, 1106, 1352},
    {1107, 1107, 1353},
});

int StringOfWords(int property) {
    const auto* const found =
        std::find_if(PropertyWords.begin(), PropertyWords.end(),
                     [=](const WordsOfProperties& row) { return property >= row.first && property <= row.last; });
    return found == PropertyWords.end() ? UnitWords : found->stringNumber;
}

WordTable WordsToAsk(int number) { return {GetPossibleValues(number), WordTable::LetterCase::Matters}; }

}  // namespace

int PropertyNumberFromName(TextView name) {
    static const WordTable names(NamesOfProperties(), WordTable::LetterCase::Ignored);
    const std::size_t index = names.Find(name);
    return index == WordTable::NotFound ? UnknownProperty : PropertyNumbers[index].number;
}

Texts NamesOfProperties() {
    Texts names;
    for (const NumberedName& row : PropertyNumbers)
        names.emplace_back(row.name);
    return names;
}

TextView PropertyNameFromNumber(int number) noexcept {
    constexpr TextView Unknown = u"generic";
    if (number < FirstNamedProperty || number - FirstNamedProperty >= std::ssize(PropertyNames))
        return Unknown;
    const TextView name = PropertyNames[static_cast<std::size_t>(number - FirstNamedProperty)];
    return name.empty() ? Unknown : name;
}

Texts GetPossibleValues(int number, const FrontDocument* front) {
    if (number == NoWords)
        return {};
    if (number == FontFamily)
        return GetFontFamilyValues(front);
    return GetWordsFromText(LoadResourceString(StringOfWords(number)), u" ");
}

const WordTable& PossibleWords(int number) {
    static const std::map<int, WordTable> ownWords = [] {
        std::map<int, WordTable> words;
        const auto add = [&](int property) { words.emplace(property, WordsToAsk(property)); };
        add(NoWords);
        add(FontFamily);
        for (const WordsOfProperties& row : PropertyWords) {
            for (int property = row.first; property <= row.last; ++property)
                add(property);
        }
        return words;
    }();
    static const WordTable unitWords = WordsToAsk(UnknownProperty);
    const auto found = ownWords.find(number);
    return found == ownWords.end() ? unitWords : found->second;
}

Texts GetFontFamilyValues(const FrontDocument* front) {
    Texts values = GetWordsFromText(LoadResourceString(FontFamilyWords), u"/");
    std::ranges::move(GetCurrentFontList(front), std::back_inserter(values));
    return values;
}

Texts GetWordList(int number, const FrontDocument* front) {
    if (front == nullptr)
        return {};
    if (number == CurrentSelectors)
        return front->GetCurrentSelectors();
    return GetWordsFromText(LoadResourceString(number), u" ");
}

bool IsBlockElementName(TextView name) {
    return ListContains(GetWordsFromText(LoadResourceString(BlockElementWords), u" "), LowerCase(name));
}

bool IsListItemName(TextView name) noexcept { return name == u"li"; }

bool IsTableDisplay(TextView value) noexcept { return value == u"table" || value == u"inline-table"; }

}  // namespace tintora
