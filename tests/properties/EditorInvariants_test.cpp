#include "ModelControls.h"
#include "PaletteRecorders.h"
#include "WindowDocument.h"
#include "language/Vocabulary.h"
#include "language/Words.h"
#include "properties/GroupEditor.h"
#include "properties/GroupEditors.h"
#include "properties/PropertiesHost.h"
#include "properties/SelectorViews.h"
#include "text/LowerCase.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>
#include <algorithm>
#include <chrono>
#include <random>

// What holds for the palette over whatever text.

namespace tintora::test {
namespace {

const Texts Pieces = {u"font:",
                      u"font-size: ",
                      u"margin: ",
                      u"padding:",
                      u"border-top: ",
                      u"background: ",
                      u"background-position:",
                      u"clip: rect(",
                      u"quotes: ",
                      u"content: ",
                      u"outline: ",
                      u"display: ",
                      u"color: ",
                      u"text-decoration: ",
                      u"position: ",
                      u"z-index: ",
                      u"list-style-image: ",
                      u"12px",
                      u"-1.5em",
                      u"0",
                      u"50%",
                      u"bold",
                      u"solid",
                      u"#fff",
                      u"#",
                      u"rgb(1, 2, 3)",
                      u"rgb",
                      u"red",
                      u"url(a b.gif)",
                      u"url(\"a)",
                      u"none",
                      u"inherit",
                      u"auto",
                      u"serif, \"A B\"",
                      u"12px/1.5",
                      u"!important",
                      u"! IMPORTANT",
                      u" ",
                      u"\t",
                      u"\r\n",
                      u";",
                      u";;",
                      u":",
                      u"{",
                      u"}",
                      u"(",
                      u")",
                      u"\"",
                      u"'",
                      u"\"a;b}\"",
                      u"/*",
                      u"*/",
                      u"/* c: d; */",
                      u"/",
                      u"-",
                      u"+",
                      u"%",
                      u",",
                      u"\xD800",
                      u"é",
                      Text(1, u'\0'),
                      u"aaaaaaaaaaaaaaaaaaaa"};

class RandomText {
  public:
    explicit RandomText(unsigned seed) : engine_(seed) {}

    std::size_t Below(std::size_t count) { return engine_() % count; }

    Text Value(std::size_t longest) {
        Text text;
        for (std::size_t count = Below(longest + 1); count > 0; --count)
            text += Pieces[Below(Pieces.size())];
        return text;
    }

    Text Body() {
        Text body = u"{";
        for (std::size_t count = Below(8); count > 0; --count) {
            if (Below(3) == 0)
                body += Value(4);
            const ControlRow& row = ControlRows()[Below(ControlRows().size())];
            body.append(PropertyNameFromNumber(row.number)).append(u":").append(Value(5)).append(u";");
        }
        return body + u"}";
    }

  private:
    std::mt19937 engine_;
};

void UserDoes(KeywordChoice& control, RandomText& random) { control.Choose(random.Value(3)); }
void UserDoes(LengthFields& control, RandomText& random) {
    static_cast<void>(control.PasteValue(random.Value(2)));
    control.EnterNumber(random.Value(1));
    control.ChooseUnit(control.Units().Entries()[random.Below(control.Units().Entries().size())]);
    control.ChooseSign(static_cast<int>(random.Below(4)));
    control.SelectUnit(random.Value(1));
}
void UserDoes(ColorFields& control, RandomText& random) {
    control.ChooseMode(static_cast<ColorMode>(random.Below(5)));
    if (control.Mode() == ColorMode::Hex)
        control.EnterHex(random.Value(2));
    else if (control.Mode() == ColorMode::RGB)
        control.EnterRGB(random.Value(2));
    else
        control.ChooseWord(random.Value(1));
    if (random.Below(3) == 0)
        control.TakeColor(static_cast<ColorValue>(random.Below(0x1000000)));
}
void UserDoes(URLField& control, RandomText& random) {
    control.EnterText(random.Value(2));
    control.Locate(random.Value(2), random.Value(2));
    control.SetFilter(random.Value(2));
    static_cast<void>(control.Drop(random.Value(2)));
}
void UserDoes(TextDecorationBoxes& control, RandomText& random) {
    control.Tick(static_cast<TextDecorationBoxes::Box>(random.Below(5)), random.Below(2) == 0);
}
void UserDoes(LengthPair& control, RandomText& random) {
    UserDoes(control.Horizontal(), random);
    UserDoes(control.Vertical(), random);
}
void UserDoes(ClipFields& control, RandomText& random) {
    UserDoes(control.Shape(), random);
    UserDoes(control.Side(static_cast<ClipFields::SideIndex>(random.Below(4))), random);
}
void UserDoes(EdgeFields& control, RandomText& random) {
    UserDoes(control.Width(), random);
    UserDoes(control.Color(), random);
    UserDoes(control.Style(), random);
}
void UserDoes(QuotesFields& control, RandomText& random) {
    control.ChooseType(random.Below(2) == 0 ? Text(u"list") : random.Value(1));
    control.SelectEntry(random.Below(4));
    control.EnterOpening(random.Value(2));
    control.EnterClosing(random.Value(2));
    control.Add();
    control.Change();
    control.Remove();
}
void UserDoes(ContentFields& control, RandomText& random) {
    control.ChooseTab(static_cast<ContentFields::Tab>(random.Below(3)));
    control.EnterString(random.Value(2));
    control.EnterAttribute(random.Value(2));
    control.ChooseKeyword(random.Value(1));
    control.Add();
    control.SelectEntry(random.Below(4));
    control.Remove();
}

TEST(EditorInvariants, AnyBodyFillsAnyEditorAndChangesNothing) {
    RandomText random(61);
    for (int round = 0; round < 1500; ++round) {
        const Text body = random.Body();
        SCOPED_TRACE(Utf8FromText(body));
        for (const GroupEditorEntry& entry : GroupEditors()) {
            PaletteCalls calls;
            PaletteFlags flags;
            MemorySettingsStore settings;
            Settings(settings).SetUseShorthands(random.Below(2) == 0);
            RecordingEditedDocument document(calls);
            OneDocument documents;
            documents.document = &document;
            ModelControls controls(entry.number);
            GroupEditor editor(entry.number, {flags, controls, documents, settings});
            controls.reportTo = &editor;
            ASSERT_NO_THROW(editor.SetProperties(GetEditorDeclarations(body)));
            ASSERT_TRUE(calls.empty());
            // The same text shows the same again.
            const std::string shown = controls.Shown();
            editor.SetProperties(GetEditorDeclarations(body));
            ASSERT_EQ(controls.Shown(), shown);
            editor.SetProperties({});
            ASSERT_EQ(controls.Shown(), "");
        }
        ASSERT_NO_THROW(static_cast<void>(CurrentPropertyNames(GetEditorDeclarations(body))));
    }
}

TEST(EditorInvariants, WhateverTheUserDoesIsWrittenAndNothingThrows) {
    RandomText random(62);
    for (int round = 0; round < 400; ++round) {
        RecordedDocument recorded;
        const Text sheet = u"a {top: 0;}\np " + random.Body() + u"\nb {left: 0;}";
        recorded.Load(sheet);
        recorded.window.SetSelection(15, 15);
        recorded.Settle();
        WindowDocument document(recorded.window);
        OneDocument documents;
        documents.document = &document;
        PaletteFlags flags;
        Settings(recorded.settings).SetUseShorthands(random.Below(2) == 0);
        const int number = GroupEditors()[random.Below(GroupEditors().size())].number;
        ModelControls controls(number);
        controls.front = &document;
        GroupEditor editor(number, {flags, controls, documents, recorded.settings});
        for (int step = 0; step < 6 && recorded.window.GetText().size() < 20'000; ++step) {
            ASSERT_NO_THROW(editor.SetProperties(document.Declarations()));
            const auto rows = RowsOfEditor(number);
            const int control = rows[random.Below(rows.size())].number;
            ASSERT_NO_THROW(std::visit([&](auto& model) { UserDoes(model, random); }, controls.models.at(control)));
            ASSERT_NO_THROW(editor.PropertyHasChanged(controls.GetValue(control), control));
            ASSERT_FALSE(flags.SettingUp || flags.ChangingProperty);
        }
        while (recorded.window.CSSEditor().CanUndo())
            recorded.window.CSSEditor().Undo();
        ASSERT_EQ(recorded.window.GetText(), ReadMarks(sheet).text);
    }
}

/// Bodies near the length limit of which each hits what might be worse than linear.
Texts LongBodies() {
    const auto repeated = [](TextView piece) {
        Text body = u"{";
        while (body.size() + piece.size() + 1 < 32'000)
            body += piece;
        return body + u"}";
    };
    const auto longValue = [](TextView name, TextView piece) {
        Text body = u"{" + Text(name) + u":";
        while (body.size() + piece.size() + 2 < 32'000)
            body += piece;
        return body + u";}";
    };
    Texts bodies = {repeated(u";"),
                    repeated(u"}"),
                    repeated(u"/**/"),
                    repeated(u"/*"),
                    repeated(u"a:b;"),
                    repeated(u"float:a;"),
                    repeated(u"color: a;color: red;"),
                    repeated(u"background:1px;"),
                    repeated(u"font:a;"),
                    repeated(u"border:red wavy;"),
                    repeated(u"quotes:'' '';"),
                    repeated(u"text-decoration:blink;"),
                    repeated(u"background-image:url(a);")};
    Text many = u"{";
    for (char16_t unit = 0x4E00; many.size() < 32'000; ++unit)
        many += u"font-family:" + Text(1, unit) + u";top:" + Text(1, unit) + u";color: " + Text(1, unit) + u";";
    bodies.push_back(many + u"}");
    for (const ControlRow& row : ControlRows()) {
        for (const TextView piece : {u"1", u" ", u"z ", u"1px ", u"top ", u"(", u"\"", u"-"})
            bodies.push_back(longValue(PropertyNameFromNumber(row.number), piece));
    }
    for (const TextView piece : {u"z ", u"1 ", u"1/", u" a"}) {
        bodies.push_back(longValue(u"font", piece));
        bodies.push_back(longValue(u"background", piece));
    }
    return bodies;
}

TEST(EditorInvariants, LongBodiesAreReadInNoTime) {
    PaletteFlags flags;
    MemorySettingsStore settings;
    OneDocument documents;
    using Clock = std::chrono::steady_clock;
    for (const Text& body : LongBodies()) {
        const Texts declarations = GetEditorDeclarations(body);
        for (const GroupEditorEntry& entry : GroupEditors()) {
            ModelControls controls(entry.number);
            GroupEditor editor(entry.number, {flags, controls, documents, settings});
            const auto start = Clock::now();
            editor.SetProperties(declarations);
            const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
            // Sanitizers make it some twenty times as long; what is quadratic takes seconds.
            EXPECT_LT(milliseconds.count(), 1000) << entry.number << " " << Utf8FromText(body.substr(0, 30));
        }
    }
}

}  // namespace
}  // namespace tintora::test
