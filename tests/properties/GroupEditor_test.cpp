#include "properties/GroupEditor.h"

#include "ModelControls.h"
#include "PaletteRecorders.h"
#include "model/DeclarationText.h"
#include "properties/GroupEditors.h"
#include "settings/MemorySettingsStore.h"
#include "settings/Settings.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace tintora::test {
namespace {

using namespace group_editor;

/// A group editor whose controls report whatever changes them.
class EditorWithDocument {
  public:
    explicit EditorWithDocument(int number, bool useShorthands = false)
        : document(calls), controls(number), editor(number, {flags, controls, documents, settings}) {
        documents.document = &document;
        controls.reportTo = &editor;
        Settings(settings).SetUseShorthands(useShorthands);
    }

    void Read(TextView body) { editor.SetProperties(GetEditorDeclarations(body)); }

    /// The user sets a length.
    void Enter(int number, TextView digits, TextView unit = {}) {
        LengthFields& fields = controls.Get<LengthFields>(number);
        fields.EnterNumber(digits);
        if (!unit.empty())
            fields.ChooseUnit(unit);
        editor.PropertyHasChanged(controls.GetValue(number), number);
    }

    void Choose(int number, TextView word) {
        controls.Get<KeywordChoice>(number).Choose(word);
        editor.PropertyHasChanged(controls.GetValue(number), number);
    }

    /// What was done to the document since the last question.
    std::string TakeCalls() {
        const std::string joined = Joined(calls);
        calls.clear();
        return joined;
    }

    PaletteCalls calls;
    PaletteFlags flags;
    MemorySettingsStore settings;
    OneDocument documents;
    RecordingEditedDocument document;
    ModelControls controls;
    GroupEditor editor;
};

TEST(GroupEditor, FillingTheControlsChangesNoText) {
    for (const GroupEditorEntry& entry : GroupEditors()) {
        EditorWithDocument palette(entry.number);
        palette.Read(
            u"{font: small-caps 12px/2 serif; margin: 1px 2px; border: 1px solid red; background: red top; top: 0; "
            u"display: table; quotes: '<' '>'; content: \"a\"; clip: rect(1px 2px 3px 4px); cursor: help; "
            u"page-break-before: left;}");
        EXPECT_EQ(palette.TakeCalls(), "") << entry.number;
        EXPECT_FALSE(palette.controls.Shown().empty()) << entry.number;
        EXPECT_EQ(palette.controls.clearCount, 1);
        palette.Read(u"");
        EXPECT_EQ(palette.controls.Shown(), "") << entry.number;
        palette.Read(u"{}");
        EXPECT_EQ(palette.controls.clearCount, 3);
        EXPECT_EQ(palette.TakeCalls(), "");
        EXPECT_FALSE(palette.flags.SettingUp);
        EXPECT_FALSE(palette.flags.ChangingProperty);
    }
}

TEST(GroupEditor, AChangedLonghandRewritesTheFont) {
    EditorWithDocument palette(TextStyle);
    palette.Read(u"{font: 12px serif;}");
    EXPECT_TRUE(palette.editor.State().isShorthand);
    palette.Enter(1001, u"14");
    EXPECT_EQ(palette.TakeCalls(), "DisableNextPreview | Together 3 | font-size: | font-family: | font: 14px serif");
}

TEST(GroupEditor, ALonghandBesideTheFontTurnsToLonghands) {
    EditorWithDocument palette(TextStyle);
    palette.Read(u"{font: 12px serif; font-weight: bold;}");
    palette.Enter(1001, u"14");
    EXPECT_EQ(palette.TakeCalls(), "font-size: 14px");
}

TEST(GroupEditor, ShorthandsAreMadeFromTheFirstChangeOn) {
    EditorWithDocument text(TextStyle, true);
    text.Read(u"{}");
    text.Choose(1002, u"bold");
    EXPECT_EQ(text.TakeCalls(), "DisableNextPreview | Together 2 | font-weight: | font: bold");
    EditorWithDocument box(MarginPadding, true);
    box.Read(u"{}");
    box.Enter(1020, u"3", u"px");
    EXPECT_EQ(box.TakeCalls(), "margin: 3px");
    EditorWithDocument background(Background, true);
    background.Read(u"{background-color: red;}");
    background.Choose(1016, u"repeat");
    EXPECT_EQ(background.TakeCalls(),
              "DisableNextPreview | Together 3 | background-color: | background-repeat: | background: red repeat");
}

TEST(GroupEditor, TheTextEditorRewritesTheFontForTheLineHeightAlone) {
    EditorWithDocument palette(TextLayout);
    palette.Read(u"{font: 12px serif;}");
    palette.Enter(1005, u"1", u"px");
    EXPECT_EQ(palette.TakeCalls(), "letter-spacing: 1px");
    palette.Enter(1009, u"2", u"number");
    EXPECT_EQ(palette.TakeCalls(), "font: 12px/2 serif");
}

TEST(GroupEditor, MarginsComeBackInTheProgramsOrder) {
    EditorWithDocument palette(MarginPadding);
    palette.Read(u"{margin: 1px 2px;}");
    EXPECT_EQ(palette.controls.GetValue(1019), u"");
    palette.Enter(1020, u"3");
    EXPECT_EQ(palette.TakeCalls(), "margin: 3px 2px 1px 2px");
    palette.Read(u"{margin: 1px 2px 3px 4px;}");
    palette.Enter(1023, u"5");
    EXPECT_EQ(palette.TakeCalls(), "margin: 1px 2px 3px 5px");
    palette.Read(u"{margin: 1px;}");
    palette.Enter(1020, u"2", u"px");
    EXPECT_EQ(palette.TakeCalls(), "margin-top: 2px");
    palette.Enter(1019, u"7");
    EXPECT_EQ(palette.TakeCalls(), "margin: 7px");
}

TEST(GroupEditor, ABackgroundIsWrittenWhole) {
    EditorWithDocument palette(Background);
    palette.Read(u"{background: #fff url(a.gif) no-repeat fixed 10px 20px;}");
    EXPECT_EQ(palette.controls.Shown(),
              "1003 [url(a.gif)], 1015 [#fff], 1016 [no-repeat], 1017 [fixed], 1018 [10px 20px]");
    palette.Choose(1016, u"repeat");
    EXPECT_EQ(palette.TakeCalls(),
              "DisableNextPreview | Together 6 | background-color: | background-image: | background-repeat: | "
              "background-attachment: | "
              "background-position: | background: #fff url(a.gif) repeat fixed 10px 20px");
}

TEST(GroupEditor, TheLastBorderThatIsReadIsSeen) {
    EditorWithDocument palette(Border);
    palette.Read(u"{border: 1px solid red; border-top-color: blue;}");
    EXPECT_EQ(palette.controls.section, u"top");
    EXPECT_EQ(palette.controls.marked, (std::set<Text>{u"all", u"top"}));
    EXPECT_EQ(palette.controls.Shown(), "1052 [1px red solid], 1055 [blue]");
    EdgeFields& top = palette.controls.Get<EdgeFields>(1055);
    EXPECT_FALSE(top.HasStyle());
    top.Style().Choose(u"solid");
    palette.editor.PropertyHasChanged(top.GetValue(), 1055);
    EXPECT_EQ(palette.TakeCalls(), "border-top: blue solid");
    // Without a border the tab stays, and no tab is marked.
    palette.Read(u"{color: red;}");
    EXPECT_EQ(palette.controls.section, u"top");
    EXPECT_TRUE(palette.controls.marked.empty());
    palette.Read(u"{border-top: red; border-left: blue; border-color: red;}");
    EXPECT_EQ(palette.controls.section, u"all");
}

TEST(GroupEditor, AChangedBorderIsMarkedAtOnce) {
    EditorWithDocument palette(Border);
    palette.Read(u"{border-left: 1px solid; border-bottom-color: red; border-bottom: solid;}");
    const std::set<Text> before = {u"left", u"bottom"};
    EXPECT_EQ(palette.controls.marked, before);
    palette.editor.PropertyHasChanged(u"solid", 1055);
    EXPECT_EQ(palette.controls.marked, (std::set<Text>{u"top", u"left", u"bottom"}));
    palette.editor.PropertyHasChanged(u"", 1055);
    EXPECT_EQ(palette.controls.marked, before);
    // The color of the bottom is still declared.
    palette.editor.PropertyHasChanged(u"", 1057);
    EXPECT_EQ(palette.controls.marked, before);
    palette.editor.PropertyHasChanged(u"", 1056);
    EXPECT_EQ(palette.controls.marked, (std::set<Text>{u"bottom"}));
    EXPECT_EQ(palette.controls.section, u"bottom") << "the tab stays";
}

TEST(GroupEditor, TheOffsetsFollowThePosition) {
    const std::set<int> offsets = {1030, 1031, 1032, 1033};
    EditorWithDocument palette(PageLayout);
    palette.Read(u"{position: static; top: 1px;}");
    EXPECT_EQ(palette.controls.unusable, offsets);
    EXPECT_EQ(palette.controls.GetValue(1030), u"1px");
    palette.Choose(1029, u"absolute");
    EXPECT_EQ(palette.TakeCalls(), "position: absolute");
    EXPECT_TRUE(palette.controls.unusable.empty());
    palette.Choose(1029, u"");
    EXPECT_EQ(palette.TakeCalls(), "position:");
    EXPECT_EQ(palette.controls.unusable, offsets);
}

struct DisplayCase {
    TextView selector;
    TextView body;
    TextView display;
    TextView section;
};

constexpr DisplayCase Displays[] = {
    {u"td", u"{display: table-cell;}", u"table-cell", u"EmptyCellsEditor"},
    {u"p", u"{}", u"block", u""},
    {u"p", u"{display: table;}", u"table", u"TablePropertiesEditor"},
    {u"p", u"{display: none;}", u"none", u""},
    {u"li", u"{color: red;}", u"list-item", u"ListStylePropertiesEditor"},
    {u"table", u"{}", u"table", u"TablePropertiesEditor"},
    {u"td", u"{}", u"", u""},
    // A value that nothing knows keeps its place.
    {u"li", u"{display: flex;}", u"flex", u""},
};

TEST(GroupEditor, AnElementsOwnDisplayIsShownAndNotWritten) {
    for (const DisplayCase& row : Displays) {
        SCOPED_TRACE(Utf8FromText(row.selector) + Utf8FromText(row.body));
        EditorWithDocument palette(DisplayType);
        palette.document.selector = row.selector;
        palette.Read(row.body);
        EXPECT_EQ(palette.controls.GetValue(1090), row.display);
        EXPECT_EQ(palette.controls.section, row.section);
        EXPECT_EQ(palette.TakeCalls(), "");
        EXPECT_FALSE(palette.flags.ChangingProperty);
    }
}

TEST(GroupEditor, AnotherDisplayShowsItsSectionAtOnce) {
    EditorWithDocument palette(DisplayType);
    palette.document.selector = u"li";
    palette.Read(u"{display: list-item;}");
    EXPECT_EQ(palette.controls.section, u"ListStylePropertiesEditor");
    palette.Choose(1090, u"none");
    EXPECT_EQ(palette.controls.section, u"");
    palette.Choose(1090, u"table-caption");
    EXPECT_EQ(palette.controls.section, u"TableCaptionEditor");
    palette.Choose(1094, u"pre");
    EXPECT_EQ(palette.TakeCalls(), "display: none | display: table-caption | white-space: pre");
    palette.Choose(1090, u"");
    EXPECT_EQ(palette.TakeCalls(), "display:");
    EXPECT_EQ(palette.controls.GetValue(1090), u"list-item");
}

TEST(GroupEditor, WhatComesFromTheTextDuringAChangeIsNotReadBack) {
    EditorWithDocument palette(TextStyle);
    palette.Read(u"{font-size: 12px; color: red;}");
    const int cleared = palette.controls.clearCount;
    const int set = palette.controls.setCount;
    palette.document.onChange = [&] {
        EXPECT_TRUE(palette.flags.ChangingProperty);
        EXPECT_FALSE(palette.flags.SettingUp);
        palette.Read(u"{font-size: 1px; color: blue;}");
        palette.editor.PropertyHasChanged(u"blue", 1004);
        palette.editor.PreviewNow();
    };
    palette.Enter(1001, u"1");
    EXPECT_EQ(palette.TakeCalls(), "font-size: 1px");
    EXPECT_EQ(palette.controls.Shown(), "1001 [1px], 1004 [red]");
    EXPECT_EQ(palette.controls.clearCount, cleared);
    EXPECT_EQ(palette.controls.setCount, set);
    EXPECT_FALSE(palette.flags.ChangingProperty);
    EXPECT_FALSE(palette.flags.SettingUp);
}

TEST(GroupEditor, TheFlagsAreAsBeforeWhenAChangeFails) {
    EditorWithDocument palette(TextStyle);
    palette.document.onChange = [] { throw std::runtime_error("full"); };
    EXPECT_THROW(palette.editor.PropertyHasChanged(u"red", 1004), std::runtime_error);
    EXPECT_FALSE(palette.flags.ChangingProperty);
    palette.document.onChange = {};
    palette.calls.clear();
    palette.editor.PropertyHasChanged(u"red", 1004);
    EXPECT_EQ(palette.TakeCalls(), "color: red");
}

TEST(GroupEditor, WithoutADocumentNothingIsWritten) {
    EditorWithDocument palette(TextStyle);
    palette.documents.document = nullptr;
    palette.editor.PreviewNow();
    palette.editor.PropertyHasChanged(u"red", 1004);
    EXPECT_TRUE(palette.flags.ChangingProperty);
    EXPECT_EQ(palette.TakeCalls(), "");
}

TEST(GroupEditor, ThePreviewComesOnItsOwn) {
    EditorWithDocument palette(TextStyle);
    palette.editor.PreviewNow();
    EXPECT_EQ(palette.TakeCalls(), "PreviewNow | PreviewCurrentRule");
    palette.flags.SettingUp = true;
    palette.editor.PreviewNow();
    EXPECT_EQ(palette.TakeCalls(), "");
}

TEST(GroupEditor, AListThatDropsDownHoldsThePreviewBack) {
    EditorWithDocument palette(TextStyle);
    palette.editor.ListHasDroppedDown();
    EXPECT_EQ(palette.TakeCalls(), "DisableNextPreview");
    palette.documents.document = nullptr;
    palette.editor.ListHasDroppedDown();
    EXPECT_EQ(palette.TakeCalls(), "");
}

TEST(GroupEditor, GeneratedContentIsForItsRulesAlone) {
    for (const GroupEditorEntry& entry : GroupEditors()) {
        EditorWithDocument palette(entry.number);
        EXPECT_EQ(palette.editor.CanBeEnabled(), entry.number != Content);
        palette.document.selectorType = 14;
        EXPECT_TRUE(palette.editor.CanBeEnabled());
        palette.documents.document = nullptr;
        EXPECT_EQ(palette.editor.CanBeEnabled(), entry.number != Content);
    }
}

TEST(GroupEditor, AListOfPartsIsWrittenWhole) {
    EditorWithDocument palette(Content);
    palette.Read(u"{content: \"a\" attr(title) open-quote;}");
    ContentFields& content = palette.controls.Get<ContentFields>(1106);
    content.SelectEntry(1);
    content.Remove();
    palette.editor.PropertyHasChanged(u"list", 1106);
    EXPECT_EQ(palette.TakeCalls(), "content: \"a\" open-quote");
    palette.editor.PropertyHasChanged(u"close-quote", 1107);
    EXPECT_EQ(palette.TakeCalls(), "");
}

}  // namespace
}  // namespace tintora::test
