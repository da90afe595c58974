#include "properties/DeclarationReading.h"

#include "PropertyValueDump.h"
#include "model/DeclarationText.h"
#include "properties/GroupEditors.h"

#include <gtest/gtest.h>
#include <vector>

namespace tintora::test {
namespace {

using namespace group_editor;

struct ReadCase {
    int editor;
    Text body;
    const char* values;
    /// "s" for a shorthand, "m" and "p" for those of the box, then the kept parts of the font.
    const char* state;
    const char* stateWithShorthands;
};

const std::vector<ReadCase> Readings = {
    {TextStyle, u"", "", "", "s"},
    {TextStyle, u"{}", "", "", "s"},
    {TextStyle, u"{color: red; margin: 0}", "1004 [red]", "", "s"},
    {TextStyle, u"{COLOR: Red; Text-Decoration: UNDERLINE;}", "1004 [Red], 1013 [UNDERLINE]", "", "s"},
    {TextStyle, u"{color: red; /* color: blue; */ color; : x; color: ;}", "1004 [red], 1004 []", "", "s"},
    {TextStyle, u"{a: /* x */ color: red;}", "1004 [red]", "", "s"},
    {TextStyle, u"{color : red !important;color:blue;}", "1004 [red !important], 1004 [blue]", "", "s"},
    // A ";" directly behind another one hides the next declaration.
    {TextStyle, u"{top: 0;; color: red; font-size: 1px;}", "1001 [1px]", "", ""},
    {TextStyle, u"{font: 12px serif;}", "1001 [12px], 1011 [serif]", "s", "s"},
    {TextStyle, u"{font: small-caps bold italic 12px/1.5 serif;}",
     "1002 [bold], 1012 [italic], 1001 [12px], 1011 [serif]", "s 1009 [1.5] 1043 [small-caps]",
     "s 1009 [1.5] 1043 [small-caps]"},
    {TextStyle, u"{font: 12px serif; font-weight: bold;}", "1001 [12px], 1011 [serif], 1002 [bold]", "", ""},
    {TextStyle, u"{font-weight: bold; font: 12px serif;}", "1002 [bold], 1001 [12px], 1011 [serif]", "s", "s"},
    {TextStyle, u"{font: 12px serif; color: red;}", "1001 [12px], 1011 [serif], 1004 [red]", "s", "s"},
    {TextStyle, u"{font: 12px serif; font-variant: normal; line-height: 2;}", "1001 [12px], 1011 [serif]", "s", "s"},
    {TextLayout, u"{line-height: 1.5; letter-spacing: 1px;}", "1009 [1.5], 1005 [1px]", "", ""},
    {TextLayout, u"{letter-spacing: 1px;}", "1005 [1px]", "", "s"},
    {TextLayout, u"{font: bold 12px/1.5 a-font;}", "1009 [1.5]", "s 1001 [12px] 1002 [bold] 1011 [a-font]",
     "s 1001 [12px] 1002 [bold] 1011 [a-font]"},
    {TextLayout, u"{font: 12px serif; line-height: 2;}", "1009 [2]", " 1001 [12px] 1011 [serif]",
     " 1001 [12px] 1011 [serif]"},
    {TextLayout, u"{font: 12px serif; font-weight: bold;}", "", "s 1001 [12px] 1011 [serif]",
     "s 1001 [12px] 1011 [serif]"},
    // A second shorthand takes what the first has kept, as far as it has the part.
    {TextLayout, u"{font: bold 12px serif; font: 14px Arial;}", "", "s 1001 [14px] 1002 [bold] 1011 [Arial]",
     "s 1001 [14px] 1002 [bold] 1011 [Arial]"},
    // A longhand beside the shorthand changes nothing here.
    {AdvancedText, u"{font: small-caps 12px/2 serif; font-variant: normal;}", "1043 [small-caps], 1043 [normal]",
     "s 1001 [12px] 1009 [2] 1011 [serif]", "s 1001 [12px] 1009 [2] 1011 [serif]"},
    {AdvancedText, u"{text-transform: none; text-direction: rtl; unicode-bidi: embed;}",
     "1044 [none], 1045 [rtl], 1046 [embed]", "", "s"},
    {Background, u"{background: #fff url(a.gif) no-repeat fixed 10px 20px;}",
     "1015 [#fff], 1003 [url(a.gif)], 1016 [no-repeat], 1017 [fixed], 1018 [10px], 1018 [10px 20px]", "s", "s"},
    {Background, u"{background: red; background-color: blue;}", "1015 [red], 1015 [blue]", "s", "s"},
    {Background, u"{background-color: blue; background-position: top;}", "1015 [blue], 1018 [top]", "", "s"},
    {Background, u"{font: 12px serif;}", "", "", "s"},
    {MarginPadding, u"{margin: 1px 2px;}", "1020 [1px], 1022 [1px], 1021 [2px], 1023 [2px]", "m", "mp"},
    {MarginPadding, u"{margin: 0; padding: 1px 2px 3px;}",
     "1019 [0], 1025 [1px], 1027 [1px], 1026 [2px], 1028 [2px], 1027 [3px]", "p", "mp"},
    {MarginPadding, u"{margin: 0 !important; margin-top: 1px; padding-left: 2px;}", "1019 [0], 1020 [1px], 1026 [2px]",
     "", "mp"},
    {MarginPadding, u"{margin:; padding: !important;}", "", "mp", "mp"},
    {MarginPadding, u"{margin: ; padding: 1px;}", "1024 [1px]", "m", "mp"},
    {MarginPadding, u"{margin: 1px 2px; margin: 0;}", "1020 [1px], 1022 [1px], 1021 [2px], 1023 [2px], 1019 [0]", "m",
     "mp"},
    {Border, u"{border: 1px solid red;}", "1052 [1px solid red]", "", ""},
    {Border, u"{border-top-width: 1px; border-RIGHT: none; border-color: red;}", "1055 [1px], 1058 [none], 1052 [red]",
     "", ""},
    {Border, u"{border-left-style: solid; border-left-color: red; border-bottom-color: blue;}",
     "1056 [solid], 1056 [red], 1057 [blue]", "", ""},
    {Border, u"{border-right-color: red; border-collapse: collapse;}", "1058 [red]", "", ""},
    {UserInterface, u"{cursor: help; outline-width: 1px; outline: red; outline-style: solid; outline-color: blue;}",
     "1072 [help], 1073 [1px], 1073 [red], 1073 [solid], 1073 [blue]", "", ""},
    {PageLayout, u"{position: fixed; top: 0; z-index: -1; max-height: 1px; visibility: hidden;}",
     "1029 [fixed], 1030 [0], 1041 [-1], 1039 [1px], 1040 [hidden]", "", ""},
    {AdvancedPageLayout, u"{clip: rect(1px 2px 3px 4px); float: left; clear: both; overflow: auto;}",
     "1048 [rect(1px 2px 3px 4px)], 1050 [left], 1051 [both], 1049 [auto]", "", ""},
    {PageBreak, u"{page-break-before: left; widows: 2; orphans: 2; page: x;}", "1077 [left]", "", ""},
    {DisplayType, u"{list-style-image: url(a.gif); table-layout: fixed; border-spacing: 1px 2px; display: table;}",
     "1093 [url(a.gif)], 1098 [fixed], 1096 [1px 2px], 1090 [table]", "", ""},
    {Quotes, u"{quotes: '<' '>';}", "1101 ['<' '>']", "", ""},
    {Content, u"{content: \"a;b\"; content: attr(x);}", "1106 [\"a], 1106 [attr(x)]", "", ""},
    {Counter, u"{counter-reset: x;}", "", "", ""},
    {99, u"{color: red; font: 12px serif;}", "", "", ""},
};

std::string DumpState(const EditorState& state) {
    std::string dump = state.isShorthand ? "s" : "";
    dump += state.marginIsShorthand ? "m" : "";
    dump += state.paddingIsShorthand ? "p" : "";
    for (const auto& [number, value] : state.fontParts) {
        if (!value.empty())
            dump += " " + std::to_string(number) + " [" + Utf8FromText(value) + "]";
    }
    return dump;
}

TEST(DeclarationReading, DeclarationsGoToTheControlsThatShowThem) {
    for (const ReadCase& row : Readings) {
        SCOPED_TRACE(std::to_string(row.editor) + " " + Utf8FromText(row.body));
        const Texts declarations = GetEditorDeclarations(row.body);
        const EditorReading reading = ReadDeclarations(row.editor, declarations, false);
        EXPECT_EQ(Dump(reading.values), row.values);
        EXPECT_EQ(DumpState(reading.state), row.state);
        const EditorReading withShorthands = ReadDeclarations(row.editor, declarations, true);
        EXPECT_EQ(withShorthands.values, reading.values);
        EXPECT_EQ(DumpState(withShorthands.state), row.stateWithShorthands);
    }
}

}  // namespace
}  // namespace tintora::test
