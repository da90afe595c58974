#include "ModelControls.h"
#include "PaletteRecorders.h"
#include "PropertyValueDump.h"
#include "language/Vocabulary.h"
#include "model/DeclarationText.h"
#include "properties/DeclarationReading.h"
#include "properties/GroupEditor.h"
#include "properties/GroupEditors.h"
#include "settings/MemorySettingsStore.h"

#include <gtest/gtest.h>
#include <algorithm>
#include <vector>

// Bodies as people leave them: half written, written five times, endless.

namespace tintora::test {
namespace {

using namespace group_editor;

struct BodyCase {
    int editor;
    Text body;
    /// What the editor's controls show.
    const char* shown;
};

const std::vector<BodyCase> HalfWritten = {
    {TextStyle, u"{", ""},
    {TextStyle, u"}", ""},
    {TextStyle, u"{color", ""},
    {TextStyle, u"{color:", ""},
    {TextStyle, u"{color: red", ""},
    {TextStyle, u"{color: red}", ""},
    {TextStyle, u"{color: red; font-size: 12}", "1004 [red]"},
    {TextStyle, u"{color: ;}", ""},
    {TextStyle, u"{: red;}", ""},
    {TextStyle, u"{color red; font-size: 12px;}", "1001 [12px]"},
    {TextStyle, u"{color red: blue; font-size: 12px;}", "1001 [12px]"},
    {TextStyle, u"{color: red: blue;}", "1004 [red: blue]"},
    {TextStyle, u"{color: red font-size: 12px;}", "1004 [red font-size: 12px]"},
    {TextStyle, u"{color: red; /* font-size: 12px; */ font-weight: bold;}", "1002 [bold], 1004 [red]"},
    {TextStyle, u"{color: red; /* font-size: 12px;}", "1004 [red]"},
    // A comment ends its piece, and what stands behind it is the next one.
    {TextStyle, u"{color: /* c */ red;}", "1004 [/* c */]"},
    {TextStyle, u"{/* c */ color: red;}", "1004 [red]"},
    {TextStyle, u"{font-family: \"a;b\"; color: red;}", "1004 [red], 1011 [\"a]"},
    {TextStyle, u"{font-family: \"a}b\"; color: red;}", "1004 [red], 1011 [\"a]"},
    {TextStyle, u"{font: ;}", ""},
    {TextStyle, u"{font: /;}", ""},
    {TextStyle, u"{font: 12px/;}", "1001 [12px]"},
    {TextStyle, u"{font: /2 serif;}", "1011 [serif]"},
    {TextLayout, u"{line-height: ;text-align: CENTER;}", "1010 [CENTER]"},
    {TextLayout, u"{letter-spacing: 12;word-spacing: px;}", "1005 [12em]"},
    {Background, u"{background: ;}", ""},
    {Background, u"{background: url(; background-repeat: x;}", "1016 [x]"},
    {Background, u"{background: rgb(1, 2;}", ""},
    {Background, u"{background-image: url(a.gif;}", "1003 [url(a.gif)]"},
    {Border, u"{border: ;border-top:;}", ""},
    {Border, u"{border: 1px solid; border-top: x y z;}", "1052 [1px solid], 1055 [z]"},
    {MarginPadding, u"{margin: 1px 2px 3px 4px 5px;}", "1020 [1px], 1021 [2px], 1022 [3px], 1023 [4px]"},
    {MarginPadding, u"{margin: ;padding: -;}", "1024 [-]"},
    {PageLayout, u"{top: ;left: wide;width: 10;height: 10qq;}", "1031 [wide], 1034 [10em], 1035 [10qq]"},
    {AdvancedPageLayout, u"{clip: rect(1px;float: ;}", ""},
    {AdvancedPageLayout, u"{clip: 1px 2px);}", "1048 [rect(1px 2px)]"},
    {UserInterface, u"{outline: ;outline-width: ;cursor: url(a.cur;}", "1072 [url(a.cur]"},
    {DisplayType, u"{display: ;list-style-image: none url(;}", ""},
    {Quotes, u"{quotes: \"<\" \">;}", ""},
    {Quotes, u"{quotes: \"<\" \">\" \"a\";}", "1101 [\"<\" \">\"]"},
    {Content, u"{content: \"a ;}", "1106 [\"a]"},
};

/// A value that each editor shows, with the declaration in front of it.
struct PlainCase {
    int editor;
    TextView name;
    TextView value;
    const char* shown;
};

constexpr PlainCase Important[] = {
    {TextStyle, u"color", u"red", "1004 [red]"},
    {TextStyle, u"font-size", u"12px", "1001 [12px]"},
    {TextStyle, u"font", u"12px serif", "1001 [12px], 1011 [serif]"},
    {TextStyle, u"text-decoration", u"blink", "1013 [blink]"},
    {TextLayout, u"text-align", u"left", "1010 [left]"},
    {Background, u"background", u"red fixed", "1015 [red], 1017 [fixed]"},
    {Background, u"background-image", u"url(a b.gif)", "1003 [url(a b.gif)]"},
    {Background, u"background-position", u"top left", "1018 [top left]"},
    {MarginPadding, u"margin", u"1px", "1019 [1px]"},
    {MarginPadding, u"padding", u"1px 2px", "1025 [1px], 1026 [2px], 1027 [1px], 1028 [2px]"},
    {PageLayout, u"z-index", u"-4", "1041 [-4]"},
    {DisplayType, u"display", u"none", "1090 [none]"},
    {AdvancedText, u"text-transform", u"none", "1044 [none]"},
    {AdvancedPageLayout, u"clip", u"auto", "1048 [auto]"},
    {UserInterface, u"cursor", u"help", "1072 [help]"},
    {PageBreak, u"page-break-before", u"left", "1077 [left]"},
    {Quotes, u"quotes", u"none", "1101 [none]"},
    {Content, u"content", u"inherit", "1106 [inherit]"},
};

/// What a set of an editor's controls shows of a body.
std::string ShownOf(int editor, TextView body) {
    PaletteFlags flags;
    MemorySettingsStore settings;
    OneDocument documents;
    ModelControls controls(editor);
    GroupEditor(editor, {flags, controls, documents, settings}).SetProperties(GetEditorDeclarations(body));
    return controls.Shown();
}

TEST(AnyBody, HalfWrittenDeclarationsShowWhatIsThere) {
    for (const BodyCase& row : HalfWritten)
        EXPECT_EQ(ShownOf(row.editor, row.body), row.shown) << row.editor << " " << Utf8FromText(row.body);
}

TEST(AnyBody, AnImportanceInWhateverSpellingIsNotShown) {
    for (const PlainCase& row : Important) {
        for (const TextView importance : {u"!important", u" !important", u"!IMPORTANT", u"\t!Important",
                                          u" !important !important", u" !importance"}) {
            const Text body = u"{" + Text(row.name) + u": " + Text(row.value) + Text(importance) + u";}";
            EXPECT_EQ(ShownOf(row.editor, body), row.shown) << Utf8FromText(body);
        }
    }
}

TEST(AnyBody, OfAPropertyThatIsThereFiveTimesTheLastIsShown) {
    for (const PlainCase& row : Important) {
        const Text declaration = Text(row.name) + u": " + Text(row.value) + u";";
        Text body = u"{";
        for (const TextView before : {u"inherit", u"9px", u"wavy lines", u""})
            body += Text(row.name) + u": " + Text(before) + u";";
        const PropertyValues once = ReadDeclarations(row.editor, {declaration}, false).values;
        const PropertyValues all =
            ReadDeclarations(row.editor, GetEditorDeclarations(body + declaration + u"}"), false).values;
        ASSERT_GT(all.size(), once.size());
        EXPECT_TRUE(std::equal(once.rbegin(), once.rend(), all.rbegin())) << Dump(all);
    }
    EXPECT_EQ(ShownOf(PageLayout, u"{top: 1px; TOP: 2px; Top: auto; top: x; top: 5px;}"), "1030 [5px]");
    EXPECT_EQ(ShownOf(Border, u"{border: 1px; border: red; border: solid; border: 2px; border: blue;}"),
              "1052 [2px blue solid]");
    EXPECT_EQ(ShownOf(Quotes, u"{quotes: '<' '>'; quotes: none; quotes: '(' ')'; quotes: '[' ']'; quotes: inherit;}"),
              "1101 [inherit]");
}

TEST(AnyBody, AValueOfTenThousandCharactersIsReadWhole) {
    const Text value = Text(10'000, u'x');
    for (const ControlRow& row : ControlRows()) {
        const Text name(PropertyNameFromNumber(row.number));
        const Text body = u"{" + name + u": " + value + u"; " + name + u": " + value + u" !important;}";
        const EditorReading reading = ReadDeclarations(row.editor, GetEditorDeclarations(body), true);
        ASSERT_EQ(reading.values.size(), 2U) << row.number;
        EXPECT_EQ(reading.values.front().number, row.number);
        EXPECT_EQ(reading.values.front().value, value);
    }
    EXPECT_EQ(ShownOf(TextStyle, u"{font: bold 12px " + value + u";}"),
              "1001 [12px], 1002 [bold], 1011 [" + Utf8FromText(value) + "]");
    EXPECT_EQ(ShownOf(PageLayout, u"{top: " + value + u";}"), "1030 [" + Utf8FromText(value) + "]");
    EXPECT_EQ(ShownOf(Background, u"{background-image: url(" + value + u");}"),
              "1003 [url(" + Utf8FromText(value) + ")]");
    EXPECT_EQ(ShownOf(Content, u"{content: \"" + value + u" " + value + u"\";}"),
              "1106 [\"" + Utf8FromText(value) + " " + Utf8FromText(value) + "\"]");
}

}  // namespace
}  // namespace tintora::test
