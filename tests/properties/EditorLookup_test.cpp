#include "properties/EditorLookup.h"

#include "language/Words.h"
#include "text/Encoding.h"
#include "text/LowerCase.h"

#include <gtest/gtest.h>
#include <vector>

namespace tintora {
namespace {

struct EditorCase {
    int editor;
    /// Parted by commas.
    TextView names;
    std::vector<int> properties;
};

const std::vector<EditorCase> Known = {
    {0, u"Text Style Editor", {0}},
    {1, u"Text Editor", {0}},
    {2, u"Background Editor", {0}},
    {3, u"Border Editor", {0}},
    {4, u"Margin Editor,Padding Editor", {0, 0}},
    {5, u"Page Layout Editor", {0}},
    {6, u"Display Type Editor", {0}},
    {7, u"Advanced Text Editor", {0}},
    {8, u"Advanced Layout Editor", {0}},
    {9, u"User Interface Editor", {0}},
    {10, u"Page Break Editor", {0}},
    {12, u"Quotes Editor", {0}},
    {14, u"Content Editor", {0}},
    {15, u"Printing Editor", {0}},
    {0,
     u"color,font-family,font-size,font-style,font-weight,font-stretch,text-decoration",
     {1004, 1011, 1001, 1012, 1002, 1042, 1013}},
    {1,
     u"letter-spacing,word-spacing,text-align,vertical-align,text-indent,line-height",
     {1005, 1006, 1010, 1008, 1007, 1009}},
    {2,
     u"background-color,background-image,background-attachment,background-repeat,background-position",
     {1015, 1003, 1017, 1016, 1018}},
    {3, u"border,border-style,border-width,border-color", {1052, 1059, 1054, 1053}},
    {3, u"border-top-style,border-top,border-top-width,border-top-color", {1060, 1060, 1061, 1062}},
    {3, u"border-left-style,border-left,border-left-width,border-left-color", {1063, 1063, 1064, 1065}},
    {3, u"border-bottom-style,border-bottom,border-bottom-width,border-bottom-color", {1066, 1066, 1067, 1068}},
    {3, u"border-right-style,border-right,border-right-width,border-right-color", {1069, 1069, 1070, 1071}},
    {4, u"margin,margin-top,margin-left,margin-bottom,margin-right", {1019, 1020, 1021, 1022, 1023}},
    {4, u"padding,padding-top,padding-left,padding-bottom,padding-right", {1024, 1025, 1026, 1027, 1028}},
    {5, u"position,top,left,bottom,right,width,height", {1029, 1030, 1031, 1032, 1033, 1034, 1035}},
    {5, u"z-index,min-width,max-width,min-height,max-height,visibility", {1041, 1036, 1037, 1038, 1039, 1040}},
    {6, u"display,white-space,list-style-type,list-style-position,list-style-image", {1090, 1094, 1091, 1092, 1093}},
    {6, u"border-spacing,border-collapse,table-layout,caption-side,empty-cells", {1096, 1097, 1098, 1099, 1100}},
    {7, u"font-variant,text-transform,text-direction,unicode-bidi,font-size-adjust", {1043, 1044, 1045, 1046, 1047}},
    {8, u"overflow,float,clear,clip", {1049, 1050, 1051, 1048}},
    {9, u"cursor,outline,outline-style,outline-width,outline-color", {1072, 1073, 1074, 1075, 1076}},
    {10,
     u"page-break-before,page-break-after,page-break-inside,widows,orphans,page",
     {1077, 1078, 1079, 1080, 1081, 1082}},
    {12, u"quotes", {1101}},
    {14, u"content", {1106}},
    {15, u"size,marks", {1089, 1088}},
    {15,
     u"print-margin,print-margin-top,print-margin-left,print-margin-bottom,print-margin-right",
     {1019, 1020, 1021, 1022, 1023}},
};

/// Neither look-up knows them.
constexpr TextView Unknown[] = {u"",
                                u" ",
                                u"x",
                                u"font",
                                u"background",
                                u"list-style",
                                u"font ",
                                u"generic",
                                u"Margin and Padding Editor",
                                u"counter-reset"};

Text UpperCase(TextView text) {
    Text upper(text);
    for (char16_t& unit : upper)
        unit = unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 32) : unit;
    return upper;
}

TEST(EditorLookup, ACaptionOrPropertyLeadsToItsEditor) {
    for (const EditorCase& row : Known) {
        const Texts names = GetWordsFromText(row.names, u",");
        ASSERT_EQ(names.size(), row.properties.size());
        for (std::size_t index = 0; index < names.size(); ++index) {
            SCOPED_TRACE(Utf8FromText(names[index]));
            EXPECT_EQ(PlaceToEdit(names[index]), (EditorPlace{row.editor, row.properties[index]}));
            EXPECT_EQ(EditorToOpen(names[index]), row.editor);
        }
    }
}

TEST(EditorLookup, OnlyOpeningFoldsTheCase) {
    for (const EditorCase& row : Known) {
        for (const Text& name : GetWordsFromText(row.names, u",")) {
            SCOPED_TRACE(Utf8FromText(name));
            EXPECT_EQ(PlaceToEdit(UpperCase(name)), EditorPlace());
            EXPECT_EQ(EditorToOpen(UpperCase(name)), row.editor);
            EXPECT_EQ(EditorToOpen(LowerCase(name)), row.editor);
        }
    }
    EXPECT_EQ(EditorToOpen(u"Font-Size"), 0);
    EXPECT_EQ(PlaceToEdit(u"Font-Size"), EditorPlace());
}

TEST(EditorLookup, AnUnknownNameEditsTheTextStyleAndOpensNothing) {
    for (const TextView name : Unknown) {
        SCOPED_TRACE(Utf8FromText(name));
        EXPECT_EQ(PlaceToEdit(name), EditorPlace());
        EXPECT_EQ(EditorToOpen(name), std::nullopt);
    }
}

TEST(EditorLookup, ThreeNamesAreKnownOnOneWayOnly) {
    EXPECT_EQ(PlaceToEdit(u"marker-offset"), EditorPlace());
    EXPECT_EQ(EditorToOpen(u"marker-offset"), 6);
    EXPECT_EQ(EditorToOpen(u"Marker-Offset"), 6);
    EXPECT_EQ(PlaceToEdit(u"text-shadow"), (EditorPlace{13, 1105}));
    EXPECT_EQ(EditorToOpen(u"text-shadow"), std::nullopt);
    EXPECT_EQ(PlaceToEdit(u"Text Shadow Editor"), (EditorPlace{13, 0}));
    EXPECT_EQ(EditorToOpen(u"Text Shadow Editor"), std::nullopt);
    EXPECT_EQ(EditorToOpen(u"Text Shadow editor"), std::nullopt);
}

}  // namespace
}  // namespace tintora
