#include "properties/ControlRows.h"

#include "language/Vocabulary.h"
#include "language/Words.h"
#include "properties/EditorLookup.h"
#include "properties/GroupEditors.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace tintora {
namespace {

using enum ControlKind;

struct RowCase {
    TextView control;
    ControlKind kind;
    int number;
    bool showSign = false;
    TextView section = u"";
};

struct EditorCase {
    int editor;
    std::vector<RowCase> rows;
};

const std::vector<EditorCase> Editors = {
    {0,
     {{u"ColorEditor", Color, 1004},
      {u"FontFamilyEditor", Keyword, 1011},
      {u"FontSizeEditor", Length, 1001},
      {u"FontWeightEditor", Keyword, 1002},
      {u"FontStyleEditor", Keyword, 1012},
      {u"TextDecorationEditor", TextDecoration, 1013}}},
    {1,
     {{u"LetterSpacingEditor", Length, 1005, true},
      {u"WordSpacingEditor", Length, 1006, true},
      {u"TextIndentEditor", Length, 1007, true},
      {u"VerticalAlignEditor", Length, 1008, true},
      {u"LineHeightEditor", Length, 1009},
      {u"TextAlignEditor", Keyword, 1010}}},
    {2,
     {{u"BackgroundColorEditor", Color, 1015},
      {u"BackgroundImageEditor", URL, 1003},
      {u"BackgroundRepeatEditor", Keyword, 1016},
      {u"BackgroundAttachmentEditor", Keyword, 1017},
      {u"BackgroundPositionEditor", Pair, 1018, true}}},
    {3,
     {{u"BorderAllEditor", Edge, 1052, false, u"all"},
      {u"BorderTopEditor", Edge, 1055, false, u"top"},
      {u"BorderLeftEditor", Edge, 1056, false, u"left"},
      {u"BorderBottomEditor", Edge, 1057, false, u"bottom"},
      {u"BorderRightEditor", Edge, 1058, false, u"right"}}},
    {4,
     {{u"MarginEditor", Length, 1019, true},
      {u"MarginTopEditor", Length, 1020, true},
      {u"MarginLeftEditor", Length, 1021, true},
      {u"MarginBottomEditor", Length, 1022, true},
      {u"MarginRightEditor", Length, 1023, true},
      {u"PaddingEditor", Length, 1024},
      {u"PaddingTopEditor", Length, 1025},
      {u"PaddingLeftEditor", Length, 1026},
      {u"PaddingBottomEditor", Length, 1027},
      {u"PaddingRightEditor", Length, 1028}}},
    {5,
     {{u"PositionEditor", Keyword, 1029},
      {u"TopEditor", Length, 1030, true},
      {u"LeftEditor", Length, 1031, true},
      {u"BottomEditor", Length, 1032, true},
      {u"RightEditor", Length, 1033, true},
      {u"WidthEditor", Length, 1034},
      {u"HeightEditor", Length, 1035},
      {u"MinWidthEditor", Length, 1036},
      {u"MaxWidthEditor", Length, 1037},
      {u"MinHeightEditor", Length, 1038},
      {u"MaxHeightEditor", Length, 1039},
      {u"VisibilityEditor", Keyword, 1040},
      {u"ZIndexEditor", Length, 1041, true}}},
    {6,
     {{u"DisplayTypeEditor", Keyword, 1090},
      {u"WhitespaceEditor", Keyword, 1094, false, u"BlockPropertiesEditor"},
      {u"ListStyleTypeEditor", Keyword, 1091, false, u"ListStylePropertiesEditor"},
      {u"ListStylePositionEditor", Keyword, 1092, false, u"ListStylePropertiesEditor"},
      {u"ListStyleImageEditor", URL, 1093, false, u"ListStylePropertiesEditor"},
      {u"BorderSpacingEditor", Pair, 1096, false, u"TablePropertiesEditor"},
      {u"BorderCollapseEditor", Keyword, 1097, false, u"TablePropertiesEditor"},
      {u"TableLayoutEditor", Keyword, 1098, false, u"TablePropertiesEditor"},
      {u"EmptyCellsEditor", Keyword, 1100, false, u"EmptyCellsEditor"},
      {u"CaptionSideEditor", Keyword, 1099, false, u"TableCaptionEditor"}}},
    {7,
     {{u"FontVariantEditor", Keyword, 1043},
      {u"TextTransformEditor", Keyword, 1044},
      {u"TextDirectionEditor", Keyword, 1045},
      {u"UnicodeBidiEditor", Keyword, 1046}}},
    {8,
     {{u"OverflowEditor", Keyword, 1049},
      {u"FloatEditor", Keyword, 1050},
      {u"ClearEditor", Keyword, 1051},
      {u"ClipEditor", Clip, 1048}}},
    {9, {{u"CursorEditor", Keyword, 1072}, {u"OutlineEditor", Edge, 1073}}},
    {10,
     {{u"PageBreakBeforeEditor", Keyword, 1077},
      {u"PageBreakAfterEditor", Keyword, 1078},
      {u"PageBreakInsideEditor", Keyword, 1079}}},
    {12, {{u"QuotesTypeSelector", Quotes, 1101}}},
    {14, {{u"ContentEditor", Content, 1106}}},
};

struct PartCase {
    int compound;
    /// The kind, the number and the property whose words it offers, "+" for a sign.
    std::string parts;
};

const std::vector<PartCase> Parts = {
    {1018, "Length 1018 1018+, Length 1018 1018+"},
    {1096, "Length 1096 1096, Length 1096 1096"},
    {1048, "Keyword 1048 1048, Length 1030 1030+, Length 1033 1033+, Length 1032 1032+, Length 1031 1031+"},
    {1073, "Length 1075 1075, Color 1076 1076, Keyword 1074 1074"},
    {1052, "Length 1054 1052, Color 1053 1053, Keyword 1059 1059"},
    {1055, "Length 1061 1052, Color 1062 1062, Keyword 1060 1059"},
    {1056, "Length 1064 1052, Color 1065 1065, Keyword 1063 1059"},
    {1057, "Length 1067 1052, Color 1068 1068, Keyword 1066 1059"},
    {1058, "Length 1070 1052, Color 1071 1071, Keyword 1069 1059"},
    {1101, "Keyword 1101 1101"},
    {1106, "Keyword 1106 1106, Keyword 1107 1107"},
    {1004, ""},
    {0, ""},
};

struct DeclarationCase {
    int editor;
    /// Parted by blanks.
    TextView names;
    /// 0 for none.
    int number;
};

const std::vector<DeclarationCase> Declarations = {
    {3, u"border border-color border-style border-width", 1052},
    {3, u"border-top border-top-color border-top-style border-top-width", 1055},
    {3, u"border-left border-left-color border-left-style border-left-width", 1056},
    {3, u"border-bottom border-bottom-color border-bottom-style border-bottom-width", 1057},
    {3, u"border-right border-right-color border-right-style border-right-width", 1058},
    {3, u"border-spacing border-collapse outline outline-width x margin", 0},
    {9, u"outline outline-color outline-style outline-width", 1073},
    {9, u"cursor", 1072},
    {9, u"border border-width", 0},
    {4, u"margin", 1019},
    {4, u"margin-right", 1023},
    {6, u"table-layout", 1098},
    {6, u"marker-offset list-style", 0},
    {10, u"widows orphans page", 0},
    {0, u"font font-variant line-height font-stretch", 0},
    {2, u"background", 0},
    {14, u"voice-family quotes", 0},
    {12, u"quotes", 1101},
    {11, u"counter-reset counter-increment", 0},
};

struct FocusCase {
    int editor;
    int property;
    int row;
    TextView part;
};

const std::vector<FocusCase> Focuses = {
    {0, 1004, 1004, u""},
    {0, 1042, 0, u""},
    {0, 0, 0, u""},
    {3, 1052, 1052, u"BorderStyleEditor"},
    {3, 1053, 1052, u"BorderColorEditor"},
    {3, 1054, 1052, u"BorderWidthEditor"},
    {3, 1059, 1052, u"BorderStyleEditor"},
    {3, 1055, 1055, u"BorderStyleEditor"},
    {3, 1056, 1056, u"BorderStyleEditor"},
    {3, 1057, 1057, u"BorderStyleEditor"},
    {3, 1058, 1058, u"BorderStyleEditor"},
    {3, 1060, 1055, u"BorderStyleEditor"},
    {3, 1061, 1055, u"BorderWidthEditor"},
    {3, 1062, 1055, u"BorderColorEditor"},
    {3, 1063, 1056, u"BorderStyleEditor"},
    {3, 1064, 1056, u"BorderWidthEditor"},
    {3, 1065, 1056, u"BorderColorEditor"},
    {3, 1066, 1057, u"BorderStyleEditor"},
    {3, 1067, 1057, u"BorderWidthEditor"},
    {3, 1068, 1057, u"BorderColorEditor"},
    {3, 1069, 1058, u"BorderStyleEditor"},
    {3, 1070, 1058, u"BorderWidthEditor"},
    {3, 1071, 1058, u"BorderColorEditor"},
    {3, 1073, 0, u""},
    {9, 1073, 1073, u"OutlineStyleEditor"},
    {9, 1074, 1073, u"OutlineStyleEditor"},
    {9, 1075, 1073, u"OutlineWidthEditor"},
    {9, 1076, 1073, u"OutlineColorEditor"},
    {9, 1054, 0, u""},
    {2, 1018, 1018, u"HorizontalEditor"},
    {8, 1048, 1048, u"ValueType"},
    {8, 1030, 0, u""},
    {4, 1083, 0, u""},
    {6, 1090, 1090, u""},
    {6, 1095, 0, u""},
    {6, 1100, 1100, u""},
    {10, 1080, 0, u""},
    {10, 1082, 0, u""},
    {12, 1101, 1101, u"QuotesTypeSelector"},
    {14, 1106, 1106, u"ContentEditor"},
    {14, 1107, 0, u""},
};

std::string NameOf(ControlKind kind) { return kind == Length ? "Length" : kind == Color ? "Color" : "Keyword"; }

std::string DumpParts(int compound) {
    std::string dump;
    for (const ControlPart& part : PartsOfControl(compound)) {
        dump += dump.empty() ? "" : ", ";
        dump += NameOf(part.kind) + " " + std::to_string(part.number) + " " + std::to_string(part.wordsOf);
        dump += part.showSign ? "+" : "";
    }
    return dump;
}

TEST(ControlRows, EachEditorHasItsControls) {
    std::size_t count = 0;
    for (const EditorCase& editor : Editors) {
        SCOPED_TRACE(editor.editor);
        const auto rows = RowsOfEditor(editor.editor);
        count += rows.size();
        ASSERT_EQ(rows.size(), editor.rows.size());
        for (std::size_t index = 0; index < rows.size(); ++index) {
            const RowCase& expected = editor.rows[index];
            SCOPED_TRACE(Utf8FromText(expected.control));
            EXPECT_EQ(rows[index].control, expected.control);
            EXPECT_EQ(rows[index].kind, expected.kind);
            EXPECT_EQ(rows[index].number, expected.number);
            EXPECT_EQ(rows[index].showSign, expected.showSign);
            EXPECT_EQ(rows[index].section, expected.section);
        }
    }
    EXPECT_EQ(ControlRows().size(), count);
    for (const int none : {11, 13, 15, -1, 99})
        EXPECT_TRUE(RowsOfEditor(none).empty()) << none;
}

TEST(ControlRows, EveryLabelTellsItsRowFromTheOthersOfTheForm) {
    for (const GroupEditorEntry& editor : GroupEditors()) {
        std::set<TextView> labels;
        for (const ControlRow& row : RowsOfEditor(editor.number)) {
            EXPECT_TRUE(labels.insert(row.label).second) << Utf8FromText(row.label);
            EXPECT_FALSE(row.label.empty());
            EXPECT_NE(PropertyNameFromNumber(row.number), u"generic");
        }
        EXPECT_FALSE(labels.empty()) << editor.number;
    }
}

TEST(ControlRows, ACompoundControlHasItsParts) {
    for (const PartCase& row : Parts)
        EXPECT_EQ(DumpParts(row.compound), row.parts) << row.compound;
    for (const ControlRow& row : ControlRows()) {
        const bool isCompound =
            row.kind == Pair || row.kind == Clip || row.kind == Edge || row.kind == Quotes || row.kind == Content;
        EXPECT_EQ(!PartsOfControl(row.number).empty(), isCompound) << row.number;
    }
}

TEST(ControlRows, ADeclarationIsShownByOneRow) {
    for (const DeclarationCase& declaration : Declarations) {
        for (const Text& name : GetWordsFromText(declaration.names, u" ")) {
            SCOPED_TRACE(Utf8FromText(name));
            const ControlRow* const row = RowOfDeclaration(declaration.editor, name);
            EXPECT_EQ(row == nullptr ? 0 : row->number, declaration.number);
        }
    }
    for (const ControlRow& row : ControlRows())
        EXPECT_EQ(RowOfDeclaration(row.editor, PropertyNameFromNumber(row.number)), &row) << row.number;
}

TEST(ControlRows, TheFocusGoesToTheControlOfTheProperty) {
    for (const FocusCase& focus : Focuses) {
        SCOPED_TRACE(std::to_string(focus.editor) + " " + std::to_string(focus.property));
        const FocusPlace place = PlaceOfFocus(focus.editor, focus.property);
        EXPECT_EQ(place.row == nullptr ? 0 : place.row->number, focus.row);
        EXPECT_EQ(place.part == nullptr ? TextView() : place.part->control, focus.part);
    }
}

TEST(ControlRows, WhatCanBeReachedByNameHasAControlThere) {
    const std::set<TextView> without = {u"font-stretch", u"font-size-adjust", u"widows", u"orphans", u"page"};
    for (const Text& name : NamesOfProperties()) {
        const EditorPlace place = PlaceToEdit(name);
        if (place.property == 0 || FindGroupEditor(place.editor) == nullptr)
            continue;
        const bool hasControl = PlaceOfFocus(place.editor, place.property).row != nullptr;
        EXPECT_EQ(hasControl, !without.contains(name)) << Utf8FromText(name);
    }
}

}  // namespace
}  // namespace tintora
