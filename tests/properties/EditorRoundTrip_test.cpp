#include "ModelControls.h"
#include "PaletteRecorders.h"
#include "WindowDocument.h"
#include "language/Vocabulary.h"
#include "language/Words.h"
#include "properties/GroupEditor.h"
#include "properties/GroupEditors.h"
#include "text/StringTable.h"

#include <gtest/gtest.h>
#include <string>

// Each editor over a real document: what its controls offer, goes into the text and comes back.

namespace tintora::test {
namespace {

constexpr TextView Sheet = u"/* a */ p {top: 0;}\nli:before {\n\t|/* b: c; */\n}\nq {left: 0;}\n";
constexpr TextView WithDeclaration = u"/* a */ p {top: 0;}\nli:before {\n\t/* b: c; */\n^0: ^1;}\nq {left: 0;}\n";

/// A group editor over a document with its caret in a rule.
class EditorOverText {
  public:
    EditorOverText(int number, TextView drawn, bool useShorthands = false)
        : document(recorded.window), controls(number), editor(number, {flags, controls, documents, recorded.settings}) {
        Settings(recorded.settings).SetUseShorthands(useShorthands);
        recorded.Load(drawn);
        documents.document = &document;
        controls.reportTo = &editor;
        controls.front = &document;
        Read();
    }

    void Read() { editor.SetProperties(document.Declarations()); }
    void Report(int number) { editor.PropertyHasChanged(controls.GetValue(number), number); }
    [[nodiscard]] std::string SheetText() const { return Utf8FromText(recorded.window.GetText()); }

    RecordedDocument recorded;
    WindowDocument document;
    PaletteFlags flags;
    OneDocument documents;
    ModelControls controls;
    GroupEditor editor;
};

/// Gives a control one of the values that it offers by its 0-based index; false behind the last.
bool Choose(KeywordChoice& control, std::size_t index) {
    if (index >= control.List().Entries().size())
        return false;
    control.Choose(Text(control.List().Entries()[index]));
    return true;
}

bool Choose(LengthFields& control, std::size_t index) {
    // The first unit is never what an empty control has, so a bare number would come back with another one.
    if (index >= control.Units().Entries().size())
        return false;
    control.EnterNumber(u"7");
    control.ChooseUnit(Text(control.Units().Entries()[index]));
    return true;
}

bool Choose(ColorFields& control, std::size_t index) {
    const Texts keywords = GetColorKeywords();
    const Texts system = GetUIColorKeywords();
    if (index < keywords.size()) {
        control.ChooseMode(ColorMode::Keywords);
        control.ChooseWord(keywords[index]);
    } else if (index < keywords.size() + system.size()) {
        control.ChooseMode(ColorMode::UIKeywords);
        control.ChooseWord(system[index - keywords.size()]);
    } else if (index == keywords.size() + system.size()) {
        control.ChooseMode(ColorMode::Hex);
        control.EnterHex(u"fF0");
    } else if (index == keywords.size() + system.size() + 1) {
        control.ChooseMode(ColorMode::RGB);
        control.TakeColor(ColorFromComponents(1, 2, 3));
    } else {
        return false;
    }
    return true;
}

bool Choose(URLField& control, std::size_t index) {
    if (index > control.List().Entries().size())
        return false;
    control.EnterText(index == control.List().Entries().size() ? TextView(u"a (b)/c d.gif")
                                                               : TextView(control.List().Entries()[index]));
    return true;
}

bool Choose(TextDecorationBoxes& control, std::size_t index) {
    for (std::size_t box = 0; box < 5; ++box)
        control.Tick(static_cast<TextDecorationBoxes::Box>(box), ((index >> box) & 1U) != 0);
    return index < 32;
}

bool Choose(LengthPair& control, std::size_t index) {
    // Each with each, and the horizontal ones alone.
    const std::size_t count = control.Horizontal().Units().Entries().size();
    static_cast<void>(Choose(control.Horizontal(), index % count));
    return index < count || Choose(control.Vertical(), index / count - 1);
}

bool Choose(ClipFields& control, std::size_t index) {
    if (index < 3)
        return Choose(control.Shape(), index);
    control.Shape().Choose(u"rectangle");
    for (const auto side : {ClipFields::Top, ClipFields::Right, ClipFields::Bottom, ClipFields::Left}) {
        if (!Choose(control.Side(side), index - 3))
            return false;
    }
    return true;
}

bool Choose(EdgeFields& control, std::size_t index) {
    // "inherit" is a colour wherever it stands.
    return Choose(control.Style(), index % 9 + 2) && Choose(control.Color(), index + 1) &&
           Choose(control.Width(), index % 11 + 1);
}

bool Choose(QuotesFields& control, std::size_t index) {
    const Texts words = {u"", u"inherit", u"none", u"list"};
    if (index >= words.size())
        return false;
    control.ChooseType(words[index]);
    control.EnterOpening(u"<");
    control.EnterClosing(u"\"");
    control.Add();
    control.Add();
    return true;
}

bool Choose(ContentFields& control, std::size_t index) {
    if (index == 0) {
        control.ChooseType(u"inherit");
        return true;
    }
    control.EnterString(u"a b");
    control.EnterAttribute(u"title");
    control.ChooseKeyword(u"open-quote");
    control.ChooseTab(static_cast<ContentFields::Tab>(index - 1));
    control.Add();
    control.Add();
    return index < 4;
}

bool ChooseIn(ControlModel& model, std::size_t index) {
    return std::visit([=](auto& control) { return Choose(control, index); }, model);
}

/// A value that reads back as another one of the same meaning or, for a bare number, with the unit of an empty field.
bool IsBareNumber(TextView value) { return value == u"7"; }

TEST(EditorRoundTrip, WhatAControlOffersIsWrittenAloneAndReadBack) {
    int written = 0;
    for (const ControlRow& row : ControlRows()) {
        for (std::size_t index = 0;; ++index) {
            EditorOverText palette(row.editor, Sheet);
            if (!ChooseIn(palette.controls.models.at(row.number), index))
                break;
            const Text value = palette.controls.GetValue(row.number);
            const std::string shown = palette.controls.Shown();
            palette.Report(row.number);
            SCOPED_TRACE(std::to_string(row.number) + " " + Utf8FromText(value));
            if (value.empty()) {
                EXPECT_EQ(palette.recorded.window.GetText(), ReadMarks(Sheet).text);
                continue;
            }
            const Text name(PropertyNameFromNumber(row.number));
            EXPECT_EQ(palette.recorded.window.GetText(), FormatMessage(WithDeclaration, name, value));
            EXPECT_EQ(palette.document.changes.size(), 1U);
            palette.Read();
            EXPECT_TRUE(IsBareNumber(value) || palette.controls.Shown() == shown) << palette.controls.Shown();
            EXPECT_FALSE(palette.flags.SettingUp || palette.flags.ChangingProperty);
            ++written;
        }
    }
    EXPECT_GT(written, 900);
}

struct StoryCase {
    int editor;
    bool useShorthands;
    Text before;
    int number;
    /// What the control is set to, as a value of the text.
    Text value;
    std::string after;
};

const std::vector<StoryCase> Stories = {
    {0, false, u"p {font: 12px serif;|}", 1001, u"14px", "p {font: 14px serif;}"},
    {0, false, u"p {font-size: 9px; font: 12px serif;|}", 1001, u"14px", "p { font: 14px serif;}"},
    {0, false, u"p {font: 12px serif; font-weight: bold;|}", 1001, u"14px",
     "p {font: 12px serif; font-weight: bold;\nfont-size: 14px;}"},
    {0, true, u"p {|}", 1002, u"bold", "p {\nfont: bold;}"},
    // The flag is in the text until the value changes.
    {0, false, u"p {font-size: 12px !important;|}", 1001, u"14px", "p {font-size: 14px;}"},
    {0, false, u"p {font: 12px serif;|}", 1011, u"Arial", "p {font: 12px Arial;}"},
    {1, false, u"p {font: 12px serif;|}", 1009, u"150%", "p {font: 12px/150% serif;}"},
    {1, false, u"p {font: 12px serif;|}", 1005, u"1px", "p {font: 12px serif;\nletter-spacing: 1px;}"},
    {7, false, u"p {font: bold 12px/2 serif;|}", 1043, u"small-caps", "p {font: bold 12px/2 small-caps serif;}"},
    {2, false, u"p {background: #fff url(a.gif) no-repeat fixed 10px 20px;|}", 1016, u"repeat",
     "p {background: #fff url(a.gif) repeat fixed 10px 20px;}"},
    {2, true, u"p {background-color: red;|}", 1016, u"repeat", "p {\nbackground: red repeat;}"},
    {2, false, u"p {background-color: red;|}", 1015, u"blue", "p {background-color: blue;}"},
    {4, false, u"p {margin: 1px 2px;|}", 1020, u"3px", "p {margin: 3px 2px 1px 2px;}"},
    {4, false, u"p {margin: 1px;|}", 1020, u"3px", "p {margin: 1px;\nmargin-top: 3px;}"},
    {4, false, u"p {margin: 1px;|}", 1019, u"auto", "p {margin: auto;}"},
    {4, false, u"p {margin: ;|}", 1020, u"3px", "p {margin: 3px;}"},
    {3, false, u"p {border-top-color: red;|}", 1055, u"solid", "p {border-top-color: red;\nborder-top: red solid;}"},
    {9, false, u"p {outline-color: red;|}", 1073, u"solid", "p {outline-color: red;\noutline: red solid;}"},
    {5, false, u"p {top: 0; left: 0;|}", 1031, u"-5px", "p {top: 0; left: -5px;}"},
};

TEST(EditorRoundTrip, ShorthandsAreRewrittenWhereTheyStand) {
    for (const StoryCase& row : Stories) {
        SCOPED_TRACE(Utf8FromText(row.before));
        EditorOverText palette(row.editor, row.before, row.useShorthands);
        SetModelValue(palette.controls.models.at(row.number), row.value);
        palette.Report(row.number);
        EXPECT_EQ(palette.SheetText(), row.after);
        // Whatever it took, it is taken back at once.
        palette.recorded.window.CSSEditor().Undo();
        EXPECT_EQ(palette.recorded.window.GetText(), ReadMarks(row.before).text);
        EXPECT_FALSE(palette.recorded.window.CSSEditor().CanUndo());
        palette.recorded.window.CSSEditor().Redo();
        palette.recorded.Settle();
        EXPECT_EQ(palette.SheetText(), row.after);
        palette.Read();
        palette.Report(row.number);
        EXPECT_EQ(palette.SheetText(), row.after);
    }
}

}  // namespace
}  // namespace tintora::test
