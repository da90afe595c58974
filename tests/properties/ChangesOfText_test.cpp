#include "properties/ChangesOfText.h"

#include "PropertyValueDump.h"
#include "properties/GroupEditors.h"

#include <gtest/gtest.h>
#include <vector>

namespace tintora::test {
namespace {

using namespace group_editor;

EditorState Plain() { return {}; }

EditorState Shorthand(std::map<int, Text> fontParts = {}) { return {true, true, true, std::move(fontParts)}; }

struct ChangeCase {
    int editor;
    EditorState state;
    PropertyValues shown;
    PropertyValue reported;
    const char* changes;
};

const std::vector<ChangeCase> Changes = {
    // Without a shorthand.
    {TextStyle, Plain(), {{1001, u"12px"}, {1011, u"serif"}}, {1001, u"14px"}, "font-size: 14px"},
    {TextStyle, Plain(), {}, {1004, u""}, "color:"},
    {Background, Plain(), {{1015, u"red"}}, {1016, u"repeat"}, "background-repeat: repeat"},
    {MarginPadding, Plain(), {{1019, u"1px"}}, {1020, u"2px"}, "margin-top: 2px"},
    {MarginPadding, Plain(), {}, {1019, u"2px"}, "margin: 2px"},
    {MarginPadding, Plain(), {}, {1024, u""}, "padding:"},
    {PageLayout, Plain(), {}, {1041, u"-1"}, "z-index: -1"},
    {UserInterface, Plain(), {}, {1073, u"1px red solid"}, "outline: 1px red solid"},
    {DisplayType, Plain(), {}, {1090, u"table"}, "display: table"},
    {DisplayType, Plain(), {}, {1098, u"fixed"}, "table-layout: fixed"},
    {AdvancedPageLayout, Plain(), {}, {1048, u"rect(1px)"}, "clip: rect(1px)"},
    {PageBreak, Plain(), {}, {1079, u"avoid"}, "page-break-inside: avoid"},

    // An edge is written whole.
    {Border, Plain(), {}, {1052, u"1px red solid"}, "border: 1px red solid"},
    {Border, Plain(), {}, {1055, u"red solid"}, "border-top: red solid"},
    {Border, Plain(), {}, {1056, u"red"}, "border-left: red"},
    {Border, Plain(), {}, {1057, u"red"}, "border-bottom: red"},
    {Border, Shorthand(), {}, {1058, u""}, "border-right:"},

    // The text style editor removes the longhands that it writes.
    {TextStyle,
     Shorthand(),
     {{1001, u"14px"}, {1011, u"serif"}},
     {1001, u"14px"},
     "font-size: | font-family: | font: 14px serif"},
    {TextStyle, Shorthand(), {{1002, u"bold"}}, {1002, u"bold"}, "font-weight: | font: bold"},
    {TextStyle,
     Shorthand({{1009, u"1.5"}, {1043, u"small-caps"}}),
     {{1001, u"14px"}, {1011, u"serif"}, {1002, u"bold"}, {1012, u"italic"}},
     {1012, u"italic"},
     "font-weight: | font-style: | font-size: | line-height: | font-variant: | font-family: | "
     "font: bold italic 14px/1.5 small-caps serif"},
    {TextStyle, Shorthand({{1009, u"1.5"}}), {{1011, u"serif"}}, {1011, u"serif"}, "font-family: | font: serif"},
    {TextStyle, Shorthand(), {}, {1001, u""}, "font:"},
    {TextStyle, Shorthand(), {{1001, u"14px"}}, {1004, u"red"}, "color: red"},
    {TextStyle, Shorthand(), {{1001, u"14px"}}, {1013, u"none"}, "text-decoration: none"},
    // What is reported counts, also where the control doesn't show it yet.
    {TextStyle,
     Shorthand(),
     {{1001, u"12px"}, {1011, u"serif"}},
     {1011, u"Arial, serif"},
     "font-size: | font-family: | font: 12px Arial, serif"},

    // The two others leave them.
    {TextLayout, Shorthand({{1001, u"12px"}, {1011, u"serif"}}), {{1009, u"2"}}, {1009, u"2"}, "font: 12px/2 serif"},
    {TextLayout, Shorthand({{1001, u"12px"}, {1011, u"serif"}}), {}, {1009, u""}, "font: 12px serif"},
    {TextLayout, Shorthand(), {{1009, u"2"}}, {1009, u"2"}, "font:"},
    {TextLayout, Shorthand({{1001, u"12px"}}), {{1005, u"1px"}}, {1005, u"1px"}, "letter-spacing: 1px"},
    {AdvancedText,
     Shorthand({{1001, u"12px"}, {1002, u"bold"}, {1009, u"2"}, {1011, u"serif"}, {1012, u"italic"}}),
     {{1043, u"small-caps"}},
     {1043, u"small-caps"},
     "font: bold italic 12px/2 small-caps serif"},
    {AdvancedText, Shorthand({{1001, u"12px"}}), {}, {1044, u"none"}, "text-transform: none"},

    // Any change of the background writes all of it.
    {Background,
     Shorthand(),
     {{1015, u"#fff"}, {1003, u"url(a.gif)"}, {1016, u"repeat"}, {1017, u"fixed"}, {1018, u"10px 20px"}},
     {1016, u"repeat"},
     "background-color: | background-image: | background-repeat: | background-attachment: | background-position: | "
     "background: #fff url(a.gif) repeat fixed 10px 20px"},
    {Background, Shorthand(), {{1015, u"red"}}, {1015, u"red"}, "background-color: | background: red"},
    {Background, Shorthand(), {}, {1015, u""}, "background:"},
    {Background, Shorthand(), {{1018, u" 20px"}}, {1018, u" 20px"}, "background-position: | background:  20px"},

    // The sides of a box.
    {MarginPadding,
     Shorthand(),
     {{1020, u"3px"}, {1021, u"2px"}, {1022, u"1px"}, {1023, u"2px"}},
     {1020, u"3px"},
     "margin: 3px 2px 1px 2px"},
    {MarginPadding, Shorthand(), {{1020, u"3px"}}, {1020, u"3px"}, "margin: 3px"},
    {MarginPadding, Shorthand(), {{1019, u"9px"}, {1021, u"2px"}}, {1019, u"9px"}, "margin: 2px"},
    {MarginPadding, Shorthand(), {{1025, u"3px"}, {1020, u"1px"}}, {1025, u"3px"}, "padding: 3px"},
    {MarginPadding, Shorthand(), {}, {1025, u""}, "padding:"},
    {MarginPadding, {false, true, false, {}}, {{1020, u"1px"}}, {1025, u"3px"}, "padding-top: 3px"},
    {MarginPadding, {false, false, true, {}}, {{1025, u"1px"}}, {1020, u"3px"}, "margin-top: 3px"},

    // Lists.
    {Quotes, Plain(), {{1101, u"'<' '>'"}}, {1101, u"list"}, "quotes: '<' '>'"},
    {Quotes, Plain(), {{1101, u"'<' '>'"}}, {1101, u"none"}, "quotes: none"},
    {Quotes, Plain(), {}, {1101, u"list"}, "quotes:"},
    {Content, Plain(), {{1106, u"\"a\" attr(x)"}}, {1106, u"list"}, "content: \"a\" attr(x)"},
    {Content, Plain(), {{1106, u"\"a\""}}, {1106, u"inherit"}, "content: inherit"},
    {Content, Plain(), {{1106, u"\"a\""}}, {1107, u"open-quote"}, ""},

    // A number that nothing knows.
    {TextStyle, Shorthand(), {}, {4711, u"x"}, "generic: x"},
};

TEST(ChangesOfText, AReportedValueGoesIntoTheText) {
    for (const ChangeCase& row : Changes) {
        SCOPED_TRACE(std::to_string(row.editor) + " " + Utf8FromText(row.reported.value));
        EXPECT_EQ(
            Dump(ChangesOfText(row.editor, row.state, row.reported.number, row.reported.value, ShownBy(row.shown))),
            row.changes);
    }
}

}  // namespace
}  // namespace tintora::test
