#include "properties/EditorLookup.h"

#include "language/WordTable.h"
#include "properties/GroupEditors.h"
#include "text/LowerCase.h"

#include <array>

namespace tintora {

namespace {

using namespace group_editor;

struct NamedPlace {
    TextView name;
    EditorPlace place;
};

constexpr auto Places = std::to_array<NamedPlace>({
    {u"Text Style Editor", {TextStyle, 0}},
    {u"Text Editor", {TextLayout, 0}},
    {u"Background Editor", {Background, 0}},
    {u"Border Editor", {Border, 0}},
    {u"Margin Editor", {MarginPadding, 0}},
    {u"Padding Editor", {MarginPadding, 0}},
    {u"Page Layout Editor", {PageLayout, 0}},
    {u"Display Type Editor", {DisplayType, 0}},
    {u"Advanced Text Editor", {AdvancedText, 0}},
    {u"Advanced Layout Editor", {AdvancedPageLayout, 0}},
    {u"User Interface Editor", {UserInterface, 0}},
    {u"Page Break Editor", {PageBreak, 0}},
    {u"Quotes Editor", {Quotes, 0}},
    {u"Text Shadow Editor", {TextShadow, 0}},
    {u"Content Editor", {Content, 0}},
    {u"Printing Editor", {Print, 0}},

    {u"color", {TextStyle, 1004}},
    {u"font-family", {TextStyle, 1011}},
    {u"font-size", {TextStyle, 1001}},
    {u"font-style", {TextStyle, 1012}},
    {u"font-weight", {TextStyle, 1002}},
    {u"font-stretch", {TextStyle, 1042}},
    {u"text-decoration", {TextStyle, 1013}},

    {u"letter-spacing", {TextLayout, 1005}},
    {u"word-spacing", {TextLayout, 1006}},
    {u"text-align", {TextLayout, 1010}},
    {u"vertical-align", {TextLayout, 1008}},
    {u"text-indent", {TextLayout, 1007}},
    {u"line-height", {TextLayout, 1009}},

    {u"background-color", {Background, 1015}},
    {u"background-image", {Background, 1003}},
    {u"background-attachment", {Background, 1017}},
    {u"background-repeat", {Background, 1016}},
    {u"background-position", {Background, 1018}},

    // A side's shorthand leads to its style.
    {u"border", {Border, 1052}},
    {u"border-style", {Border, 1059}},
    {u"border-width", {Border, 1054}},
    {u"border-color", {Border, 1053}},
    {u"border-top", {Border, 1060}},
    {u"border-top-style", {Border, 1060}},
    {u"border-top-width", {Border, 1061}},
    {u"border-top-color", {Border, 1062}},
    {u"border-left", {Border, 1063}},
    {u"border-left-style", {Border, 1063}},
    {u"border-left-width", {Border, 1064}},
    {u"border-left-color", {Border, 1065}},
    {u"border-bottom", {Border, 1066}},
    {u"border-bottom-style", {Border, 1066}},
    {u"border-bottom-width", {Border, 1067}},
    {u"border-bottom-color", {Border, 1068}},
    {u"border-right", {Border, 1069}},
    {u"border-right-style", {Border, 1069}},
    {u"border-right-width", {Border, 1070}},
    {u"border-right-color", {Border, 1071}},

    {u"margin", {MarginPadding, 1019}},
    {u"margin-top", {MarginPadding, 1020}},
    {u"margin-left", {MarginPadding, 1021}},
    {u"margin-bottom", {MarginPadding, 1022}},
    {u"margin-right", {MarginPadding, 1023}},
    {u"padding", {MarginPadding, 1024}},
    {u"padding-top", {MarginPadding, 1025}},
    {u"padding-left", {MarginPadding, 1026}},
    {u"padding-bottom", {MarginPadding, 1027}},
    {u"padding-right", {MarginPadding, 1028}},

    {u"position", {PageLayout, 1029}},
    {u"top", {PageLayout, 1030}},
    {u"left", {PageLayout, 1031}},
    {u"bottom", {PageLayout, 1032}},
    {u"right", {PageLayout, 1033}},
    {u"width", {PageLayout, 1034}},
    {u"height", {PageLayout, 1035}},
    {u"z-index", {PageLayout, 1041}},
    {u"min-width", {PageLayout, 1036}},
    {u"max-width", {PageLayout, 1037}},
    {u"min-height", {PageLayout, 1038}},
    {u"max-height", {PageLayout, 1039}},
    {u"visibility", {PageLayout, 1040}},

    {u"display", {DisplayType, 1090}},
    {u"white-space", {DisplayType, 1094}},
    {u"list-style-type", {DisplayType, 1091}},
    {u"list-style-position", {DisplayType, 1092}},
    {u"list-style-image", {DisplayType, 1093}},
    {u"border-spacing", {DisplayType, 1096}},
    {u"border-collapse", {DisplayType, 1097}},
    {u"table-layout", {DisplayType, 1098}},
    {u"caption-side", {DisplayType, 1099}},
    {u"empty-cells", {DisplayType, 1100}},

    {u"font-variant", {AdvancedText, 1043}},
    {u"text-transform", {AdvancedText, 1044}},
    {u"text-direction", {AdvancedText, 1045}},
    {u"unicode-bidi", {AdvancedText, 1046}},
    {u"font-size-adjust", {AdvancedText, 1047}},

    {u"overflow", {AdvancedPageLayout, 1049}},
    {u"float", {AdvancedPageLayout, 1050}},
    {u"clear", {AdvancedPageLayout, 1051}},
    {u"clip", {AdvancedPageLayout, 1048}},

    {u"cursor", {UserInterface, 1072}},
    {u"outline", {UserInterface, 1073}},
    {u"outline-style", {UserInterface, 1074}},
    {u"outline-width", {UserInterface, 1075}},
    {u"outline-color", {UserInterface, 1076}},

    {u"page-break-before", {PageBreak, 1077}},
    {u"page-break-after", {PageBreak, 1078}},
    {u"page-break-inside", {PageBreak, 1079}},
    {u"widows", {PageBreak, 1080}},
    {u"orphans", {PageBreak, 1081}},
    {u"page", {PageBreak, 1082}},

    {u"text-shadow", {TextShadow, 1105}},
    {u"quotes", {Quotes, 1101}},
    {u"content", {Content, 1106}},

    {u"size", {Print, 1089}},
    {u"marks", {Print, 1088}},
    {u"print-margin", {Print, 1019}},
    {u"print-margin-top", {Print, 1020}},
    {u"print-margin-left", {Print, 1021}},
    {u"print-margin-bottom", {Print, 1022}},
    {u"print-margin-right", {Print, 1023}},
});

const NamedPlace* FindPlace(TextView name, WordTable::LetterCase letterCase) {
    const auto tableOf = [](WordTable::LetterCase matters) {
        Texts names;
        for (const NamedPlace& row : Places)
            names.emplace_back(row.name);
        return WordTable(std::move(names), matters);
    };
    static const WordTable exact = tableOf(WordTable::LetterCase::Matters);
    static const WordTable folded = tableOf(WordTable::LetterCase::Ignored);
    const std::size_t index = (letterCase == WordTable::LetterCase::Matters ? exact : folded).Find(name);
    return index == WordTable::NotFound ? nullptr : &Places[index];
}

}  // namespace

EditorPlace PlaceToEdit(TextView name) {
    const NamedPlace* const found = FindPlace(name, WordTable::LetterCase::Matters);
    return found == nullptr ? EditorPlace() : found->place;
}

std::optional<int> EditorToOpen(TextView name) {
    if (EqualsLowered(name, u"marker-offset"))
        return DisplayType;
    const NamedPlace* const found = FindPlace(name, WordTable::LetterCase::Ignored);
    if (found == nullptr || found->place.editor == TextShadow)
        return std::nullopt;
    return found->place.editor;
}

}  // namespace tintora
