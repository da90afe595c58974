#include "properties/ControlRows.h"

#include "language/Vocabulary.h"
#include "properties/GroupEditors.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

using namespace group_editor;
using enum ControlKind;

/// In the order of the editors.
constexpr auto Rows = std::to_array<ControlRow>({
    {TextStyle, u"", u"ColorEditor", u"Color", Color, 1004},
    {TextStyle, u"", u"FontFamilyEditor", u"Font", Keyword, 1011},
    {TextStyle, u"", u"FontSizeEditor", u"Size", Length, 1001},
    {TextStyle, u"", u"FontWeightEditor", u"Weight", Keyword, 1002},
    {TextStyle, u"", u"FontStyleEditor", u"Style", Keyword, 1012},
    {TextStyle, u"", u"TextDecorationEditor", u"Decoration", TextDecoration, 1013},

    {TextLayout, u"", u"LetterSpacingEditor", u"Letter spacing", Length, 1005, true},
    {TextLayout, u"", u"WordSpacingEditor", u"Word spacing", Length, 1006, true},
    {TextLayout, u"", u"TextIndentEditor", u"Indent", Length, 1007, true},
    {TextLayout, u"", u"VerticalAlignEditor", u"Vertical align", Length, 1008, true},
    {TextLayout, u"", u"LineHeightEditor", u"Line height", Length, 1009},
    {TextLayout, u"", u"TextAlignEditor", u"Alignment", Keyword, 1010},

    {Background, u"", u"BackgroundColorEditor", u"Color", Color, 1015},
    {Background, u"", u"BackgroundImageEditor", u"Image", URL, 1003},
    {Background, u"", u"BackgroundRepeatEditor", u"Repeat", Keyword, 1016},
    {Background, u"", u"BackgroundAttachmentEditor", u"Attachment", Keyword, 1017},
    {Background, u"", u"BackgroundPositionEditor", u"Position", Pair, 1018, true},

    {Border, u"all", u"BorderAllEditor", u"All sides", Edge, 1052},
    {Border, u"top", u"BorderTopEditor", u"Top", Edge, 1055},
    {Border, u"left", u"BorderLeftEditor", u"Left", Edge, 1056},
    {Border, u"bottom", u"BorderBottomEditor", u"Bottom", Edge, 1057},
    {Border, u"right", u"BorderRightEditor", u"Right", Edge, 1058},

    {MarginPadding, u"", u"MarginEditor", u"Margin", Length, 1019, true},
    {MarginPadding, u"", u"MarginTopEditor", u"Margin top", Length, 1020, true},
    {MarginPadding, u"", u"MarginLeftEditor", u"Margin left", Length, 1021, true},
    {MarginPadding, u"", u"MarginBottomEditor", u"Margin bottom", Length, 1022, true},
    {MarginPadding, u"", u"MarginRightEditor", u"Margin right", Length, 1023, true},
    {MarginPadding, u"", u"PaddingEditor", u"Padding", Length, 1024},
    {MarginPadding, u"", u"PaddingTopEditor", u"Padding top", Length, 1025},
    {MarginPadding, u"", u"PaddingLeftEditor", u"Padding left", Length, 1026},
    {MarginPadding, u"", u"PaddingBottomEditor", u"Padding bottom", Length, 1027},
    {MarginPadding, u"", u"PaddingRightEditor", u"Padding right", Length, 1028},

    {PageLayout, u"", u"PositionEditor", u"Position", Keyword, 1029},
    {PageLayout, u"", u"TopEditor", u"Top", Length, 1030, true},
    {PageLayout, u"", u"LeftEditor", u"Left", Length, 1031, true},
    {PageLayout, u"", u"BottomEditor", u"Bottom", Length, 1032, true},
    {PageLayout, u"", u"RightEditor", u"Right", Length, 1033, true},
    {PageLayout, u"", u"WidthEditor", u"Width", Length, 1034},
    {PageLayout, u"", u"HeightEditor", u"Height", Length, 1035},
    {PageLayout, u"", u"MinWidthEditor", u"Min width", Length, 1036},
    {PageLayout, u"", u"MaxWidthEditor", u"Max width", Length, 1037},
    {PageLayout, u"", u"MinHeightEditor", u"Min height", Length, 1038},
    {PageLayout, u"", u"MaxHeightEditor", u"Max height", Length, 1039},
    {PageLayout, u"", u"VisibilityEditor", u"Visibility", Keyword, 1040},
    {PageLayout, u"", u"ZIndexEditor", u"Stacking order", Length, 1041, true},

    {DisplayType, u"", u"DisplayTypeEditor", u"Display", Keyword, 1090},
    {DisplayType, u"BlockPropertiesEditor", u"WhitespaceEditor", u"White space", Keyword, 1094},
    {DisplayType, u"ListStylePropertiesEditor", u"ListStyleTypeEditor", u"Marker", Keyword, 1091},
    {DisplayType, u"ListStylePropertiesEditor", u"ListStylePositionEditor", u"Marker position", Keyword, 1092},
    {DisplayType, u"ListStylePropertiesEditor", u"ListStyleImageEditor", u"Marker image", URL, 1093},
    {DisplayType, u"TablePropertiesEditor", u"BorderSpacingEditor", u"Border spacing", Pair, 1096},
    {DisplayType, u"TablePropertiesEditor", u"BorderCollapseEditor", u"Border collapse", Keyword, 1097},
    {DisplayType, u"TablePropertiesEditor", u"TableLayoutEditor", u"Table layout", Keyword, 1098},
    {DisplayType, u"EmptyCellsEditor", u"EmptyCellsEditor", u"Empty cells", Keyword, 1100},
    {DisplayType, u"TableCaptionEditor", u"CaptionSideEditor", u"Caption side", Keyword, 1099},

    {AdvancedText, u"", u"FontVariantEditor", u"Variant", Keyword, 1043},
    {AdvancedText, u"", u"TextTransformEditor", u"Capitals", Keyword, 1044},
    {AdvancedText, u"", u"TextDirectionEditor", u"Direction", Keyword, 1045},
    {AdvancedText, u"", u"UnicodeBidiEditor", u"Bidirectional text", Keyword, 1046},

    {AdvancedPageLayout, u"", u"OverflowEditor", u"Overflow", Keyword, 1049},
    {AdvancedPageLayout, u"", u"FloatEditor", u"Float", Keyword, 1050},
    {AdvancedPageLayout, u"", u"ClearEditor", u"Clear", Keyword, 1051},
    {AdvancedPageLayout, u"", u"ClipEditor", u"Clip", Clip, 1048},

    {UserInterface, u"", u"CursorEditor", u"Cursor", Keyword, 1072},
    {UserInterface, u"", u"OutlineEditor", u"Outline", Edge, 1073},

    {PageBreak, u"", u"PageBreakBeforeEditor", u"Before", Keyword, 1077},
    {PageBreak, u"", u"PageBreakAfterEditor", u"After", Keyword, 1078},
    {PageBreak, u"", u"PageBreakInsideEditor", u"Inside", Keyword, 1079},

    {group_editor::Quotes, u"", u"QuotesTypeSelector", u"Quotes", ControlKind::Quotes, 1101},

    {group_editor::Content, u"", u"ContentEditor", u"Content", ControlKind::Content, 1106},
});

/// The parts of one control stand together.
constexpr auto Parts = std::to_array<ControlPart>({
    {1018, u"HorizontalEditor", u"Horizontal", Length, 1018, 1018, true},
    {1018, u"VerticalEditor", u"Vertical", Length, 1018, 1018, true},

    {1096, u"HorizontalEditor", u"Horizontal", Length, 1096, 1096},
    {1096, u"VerticalEditor", u"Vertical", Length, 1096, 1096},

    {1048, u"ValueType", u"Shape", Keyword, 1048, 1048},
    {1048, u"TopEditor", u"Top", Length, 1030, 1030, true},
    {1048, u"RightEditor", u"Right", Length, 1033, 1033, true},
    {1048, u"BottomEditor", u"Bottom", Length, 1032, 1032, true},
    {1048, u"LeftEditor", u"Left", Length, 1031, 1031, true},

    {1073, u"OutlineWidthEditor", u"Width", Length, 1075, 1075},
    {1073, u"OutlineColorEditor", u"Color", Color, 1076, 1076},
    {1073, u"OutlineStyleEditor", u"Style", Keyword, 1074, 1074},

    // Only two border numbers have the right words.
    {1052, u"BorderWidthEditor", u"Width", Length, 1054, 1052},
    {1052, u"BorderColorEditor", u"Color", Color, 1053, 1053},
    {1052, u"BorderStyleEditor", u"Style", Keyword, 1059, 1059},
    {1055, u"BorderWidthEditor", u"Width", Length, 1061, 1052},
    {1055, u"BorderColorEditor", u"Color", Color, 1062, 1062},
    {1055, u"BorderStyleEditor", u"Style", Keyword, 1060, 1059},
    {1056, u"BorderWidthEditor", u"Width", Length, 1064, 1052},
    {1056, u"BorderColorEditor", u"Color", Color, 1065, 1065},
    {1056, u"BorderStyleEditor", u"Style", Keyword, 1063, 1059},
    {1057, u"BorderWidthEditor", u"Width", Length, 1067, 1052},
    {1057, u"BorderColorEditor", u"Color", Color, 1068, 1068},
    {1057, u"BorderStyleEditor", u"Style", Keyword, 1066, 1059},
    {1058, u"BorderWidthEditor", u"Width", Length, 1070, 1052},
    {1058, u"BorderColorEditor", u"Color", Color, 1071, 1071},
    {1058, u"BorderStyleEditor", u"Style", Keyword, 1069, 1059},

    {1101, u"QuotesTypeSelector", u"Quotes", Keyword, 1101, 1101},

    {1106, u"ContentEditor", u"Content", Keyword, 1106, 1106},
    {1106, u"KeywordContent", u"Keyword", Keyword, 1107, 1107},
});

/// The row that a border number is a part of, and an outline's.
int EdgeOf(int property) noexcept {
    const auto* const part = std::find_if(Parts.begin(), Parts.end(), [=](const ControlPart& row) {
        return row.number == property && row.compound >= 1052 && row.compound <= 1073;
    });
    return part == Parts.end() ? property : part->compound;
}

const ControlRow* FindRow(int editor, int number) noexcept {
    const auto rows = RowsOfEditor(editor);
    const auto found =
        std::find_if(rows.begin(), rows.end(), [=](const ControlRow& row) { return row.number == number; });
    return found == rows.end() ? nullptr : &*found;
}

/// The part that has the number; of an edge the style, if none has it.
const ControlPart* FindPart(const ControlRow& row, int number) noexcept {
    const auto parts = PartsOfControl(row.number);
    const auto found =
        std::find_if(parts.begin(), parts.end(), [=](const ControlPart& part) { return part.number == number; });
    if (found != parts.end())
        return &*found;
    return row.kind == Edge ? &parts.back() : nullptr;
}

}  // namespace

std::span<const ControlRow> ControlRows() noexcept { return Rows; }

std::span<const ControlRow> RowsOfEditor(int editor) noexcept {
    const auto isOfEditor = [=](const ControlRow& row) { return row.editor == editor; };
    const auto* const first = std::find_if(Rows.begin(), Rows.end(), isOfEditor);
    return {first, std::find_if_not(first, Rows.end(), isOfEditor)};
}

std::span<const ControlPart> PartsOfControl(int compound) noexcept {
    const auto isOfControl = [=](const ControlPart& part) { return part.compound == compound; };
    const auto* const first = std::find_if(Parts.begin(), Parts.end(), isOfControl);
    return {first, std::find_if_not(first, Parts.end(), isOfControl)};
}

const ControlRow* RowOfDeclaration(int editor, TextView name) noexcept {
    for (const ControlRow& row : RowsOfEditor(editor)) {
        if (PropertyNameFromNumber(row.number) == name)
            return &row;
    }
    // Of a misspelled name the number is the only trace.
    const bool hasEdges = editor == Border || editor == UserInterface;
    return hasEdges ? FindRow(editor, EdgeOf(PropertyNumberFromName(name))) : nullptr;
}

FocusPlace PlaceOfFocus(int editor, int property) noexcept {
    const ControlRow* const row = FindRow(editor, EdgeOf(property));
    return row == nullptr ? FocusPlace() : FocusPlace{row, FindPart(*row, property)};
}

}  // namespace tintora
