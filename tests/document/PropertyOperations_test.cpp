#include "DocumentRecorders.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

// Whole texts before and after, with the caret drawn as "|".

namespace tintora::test {
namespace {

struct ChangeCase {
    Text before;
    Text name;
    Text value;
    Text after;
};

const std::vector<ChangeCase> ChangedValues = {
    {u"h1 {color: red|;}", u"color", u"blue", u"h1 {color: blue|;}"},
    {u"h1 {color: red; /* c */ margin: 0|}", u"color", u"#123456", u"h1 {color: #123456|; /* c */ margin: 0}"},
    {u"h1 {color: red; margin: 0|}", u"margin", u"1px 2px", u"h1 {color: red; margin: 1px 2px|}"},
    {u"h1 {\n\tcolor: red|;\n}\np {color: red;}\n", u"color", u"x", u"h1 {\n\tcolor: x|;\n}\np {color: red;}\n"},
    {u"h1 {color: red;}\np {color: red|;}\n", u"color", u"x", u"h1 {color: red;}\np {color: x|;}\n"},
    // The name in whatever case; the first of two; not the end of a longer name.
    {u"h1 {COLOR: red|;}", u"color", u"blue", u"h1 {COLOR: blue|;}"},
    {u"h1 {color: red|;}", u"Color", u"blue", u"h1 {color: blue|;}"},
    {u"h1 {color : red|;}", u"color", u"blue", u"h1 {color : blue|;}"},
    {u"h1 {color: red; color: blue|;}", u"color", u"x", u"h1 {color: x|; color: blue;}"},
    {u"h1 {margin-top: 0; top: 0|;}", u"top", u"9px", u"h1 {margin-top: 0; top: 9px|;}"},
    {u"h1 {x: top: 0; top: 0;|}", u"top", u"9px", u"h1 {x: top: 0; top: 9px|;}"},
    {u"h1 {/* top: 0; */ top: 0;|}", u"top", u"9px", u"h1 {/* top: 0; */ top: 9px|;}"},
    {u"p {top: 0;} h1 {top: 0|;}", u"top", u"9px", u"p {top: 0;} h1 {top: 9px|;}"},
    // One blank is taken to follow the colon, whatever does.
    {u"h1 {color:red; margin: 0|}", u"color", u"blue", u"h1 {color: blue| margin: 0}"},
    {u"h1 {color:red|}", u"color", u"blue", u"h1 {color: blue|"},
    {u"h1 {color:  red;|}", u"color", u"blue", u"h1 {color: blue|d;}"},
    {u"h1 {color:\tred;|}", u"color", u"blue", u"h1 {color: blue|;}"},
    {u"@media print {\n  h1 {color: red|}\n}\n", u"color", u"x", u"@media print {\n  h1 {color: x|}\n}\n"},
    {u"@media print { h1 {color: red} } p {color: red|}", u"color", u"x",
     u"@media print { h1 {color: red} } p {color: x|}"},
    {u"  h1 {color: red|}", u"color", u"blue", u"  h1 {color: blue|}"},
    {u"a {} h1 {color: red}|", u"color", u"blue", u"a {} h1 {color: blue|}"},
};

const std::vector<ChangeCase> NewProperties = {
    {u"h1 {|}", u"color", u"red", u"h1 {\ncolor: red;|}"},
    {u"h1 { | }", u"color", u"red", u"h1 {\ncolor: red;|}"},
    {u"h1 {|\n\n}\n", u"color", u"red", u"h1 {\ncolor: red;|}\n"},
    {u"h1 { color: red| }", u"margin", u"0", u"h1 { color: red;\nmargin: 0;|}"},
    {u"h1 {color: red|}", u"margin", u"0", u"h1 {color: red;\nmargin: 0;|}"},
    {u"h1 {color: red;|}", u"margin", u"0", u"h1 {color: red;\nmargin: 0;|}"},
    {u"h1 {\n\tcolor: red;|\n}\np {}\n", u"margin", u"0", u"h1 {\n\tcolor: red;\nmargin: 0;|}\np {}\n"},
    {u"h1 {color: red; /* c */|}", u"margin", u"0", u"h1 {color: red; /* c */\nmargin: 0;|}"},
    {u"h1 {/* c */ |}", u"margin", u"0", u"h1 {/* c */\nmargin: 0;|}"},
    {u"h1 {a: b/|}", u"margin", u"0", u"h1 {a: b/;\nmargin: 0;|}"},
    {u"h1 {margin-top: 0;|}", u"top", u"0", u"h1 {margin-top: 0;\ntop: 0;|}"},
    {u"h1 {|} p {}", u"color", u"red", u"h1 {\ncolor: red;|} p {}"},
    {u"h1 {} p {|} q {}", u"color", u"red", u"h1 {} p {\ncolor: red;|} q {}"},
    {u"h1 {}p {|}q {}", u"color", u"red", u"h1 {}p {\ncolor: red;|}q {}"},
    {u"  h1 {|}", u"color", u"red", u"  h1 {\ncolor: red;|}"},
    {u"@media print { h1 {|} p {} }", u"color", u"red", u"@media print { h1 {\ncolor: red;|} p {} }"},
    {u"@media print {\n  h1 {}\n  p {|}\n}\n", u"color", u"red", u"@media print {\n  h1 {}\n  p {\ncolor: red;|}\n}\n"},
    // With no closing brace it goes to the end of the text.
    {u"h1 { color: red|", u"margin", u"0", u"h1 { color: red;\nmargin: 0;|"},
    {u"h1 { color: red;| ", u"margin", u"0", u"h1 { color: red;\nmargin: 0;|"},
    {u"p {} h1 {|", u"margin", u"0", u"p {} h1 {\nmargin: 0;|"},
};

const std::vector<ChangeCase> RemovedProperties = {
    {u"h1 {color: red;|}", u"color", u"", u"h1 {|}"},
    {u"h1 {color: red; margin: 0;|}", u"color", u"", u"h1 {| margin: 0;}"},
    {u"h1 { color: red; margin: 0;|}", u"color", u"", u"h1 {\n|margin: 0;}"},
    {u"h1 {color: red;| margin: 0}", u"color", u"", u"h1 {| margin: 0}"},
    {u"h1 {color: red; margin: 0; top: 0|}", u"margin", u"", u"h1 {color: red;\n|top: 0}"},
    {u"h1 {\n\tcolor: red;\n\tmargin: 0;|\n\ttop: 0;\n}\n", u"margin", u"", u"h1 {\n\tcolor: red;\n|top: 0;\n}\n"},
    {u"h1 {COLOR: red; margin: 0|; top: 0;}", u"MARGIN", u"", u"h1 {COLOR: red;\n|top: 0;}"},
    {u"h1 {margin-top: 0; top: 0;| left: 0}", u"top", u"", u"h1 {margin-top: 0;\n|left: 0}"},
    {u"@media print { h1 {top: 0; color: red;| left: 0} }", u"color", u"", u"@media print { h1 {top: 0;\n|left: 0} }"},
    // Nothing to remove.
    {u"h1 {color: red|}", u"margin", u"", u"h1 {color: red|}"},
    {u"h1 {  |  }", u"margin", u"", u"h1 {  |  }"},
    {u"|", u"margin", u"", u"|"},
};

const std::vector<ChangeCase> SelectedProperties = {
    {u"h1 {color: red; margin: 0|}", u"color", u"", u"h1 {|color: red;| margin: 0}"},
    {u"h1 {color: red; Margin: 0|}", u"margin", u"", u"h1 {color: red; |Margin: 0|}"},
    {u"h1 {margin-top: 0; top: 0;|}", u"top", u"", u"h1 {margin-top: 0; |top: 0;|}"},
    {u"p {color: red}\nh1 {|color: red}\n", u"color", u"", u"p {color: red}\nh1 {|color: red|}\n"},
    {u"h1 {|color: red} p {}", u"margin", u"", u"h1 {color: red|} p {}"},
    {u"h1 {} p {|} q {}", u"margin", u"", u"h1 {} p {|} q {}"},
    {u"h1| {", u"margin", u"", u"h1| {"},
    {u"@media print {\n  h1 {|top: 0}\n}\n", u"top", u"", u"@media print {\n  h1 {|top: 0|}\n}\n"},
};

struct PlaceCase {
    Text before;
    Text name;
    int start;
    int end;
};

const std::vector<PlaceCase> Places = {
    {u"h1 {|color: red; margin: 0}", u"color", 4, 15},
    {u"h1 {|color: red; margin: 0}", u"margin", 16, 25},
    {u"h1 {|color: red; margin: 0}", u"top", 25, 25},
    {u"a {}\nh1 {| color : red }", u"color", 10, 21},
    {u"a {}\nh1 {| color : red }", u"top", 22, 22},
    {u"a {}\nh1 {|} ", u"top", 9, 9},
    {u"h1 {|color: red ", u"top", 15, 15},
    {u"h1 {|color: red", u"color", 4, 14},
    {u"a {} h1 {|", u"color", 9, 9},
    {u"|", u"color", 0, 0},
};

struct LiveCase {
    Text drawn;
    Text declaration;
    Text name;
    Text value;
};

const std::vector<LiveCase> LiveTexts = {
    {u"h1 {color: re|d}", u"color: red", u"color", u"red"},
    {u"h1 {color: red|}", u"color: red", u"color", u"red"},
    {u"h1 {color: red;| top: 0}", u"", u"", u""},
    {u"h1 {color: red; |top: 0}", u" top: 0", u"top", u"0"},
    {u"h1 {color: red; top: 0;|}", u"", u"", u""},
    {u"h1 {|color: red; top: 0}", u"color: red", u"color", u"red"},
    {u"h1 {co|lor: red", u"color: red", u"color", u"red"},
    {u"h|1 {color: red}", u"h1 {color: red", u"h1 {color", u"red"},
    {u"|h1 {color: red}", u"", u"", u""},
    {u"h1 {color: red}|", u"color: red", u"color", u"red"},
    {u"h1 {color: red} | p {}", u"color: red}  p {", u"color", u"red}  p {"},
    {u"|", u"", u"", u""},
};

class Properties : public DocumentTest {
  protected:
    template <typename Operation>
    static void RunCases(const std::vector<ChangeCase>& rows, Operation operation) {
        for (const ChangeCase& row : rows) {
            for (const bool withCrLf : {false, true}) {
                if (withCrLf && !HasLineEnd(row.before))
                    continue;
                RecordedDocument document;
                document.Load(WithCrLfIf(withCrLf, row.before));
                SCOPED_TRACE(document.Drawn());
                operation(document.window, row);
                EXPECT_EQ(document.Drawn(), Utf8FromText(WithCrLfIf(withCrLf, row.after)));
            }
        }
    }

    static void Change(ktStyleSheetWindow& window, const ChangeCase& row) {
        window.ChangeCurrentProperty(row.name, row.value);
    }
};

TEST_F(Properties, AChangedValueTouchesNothingElse) { RunCases(ChangedValues, Change); }

TEST_F(Properties, ANewPropertyGoesInFrontOfTheClosingBrace) { RunCases(NewProperties, Change); }

TEST_F(Properties, AnEmptyValueRemovesTheProperty) { RunCases(RemovedProperties, Change); }

TEST_F(Properties, ARemovedPropertyLeavesNoWideGap) {
    RunCases(RemovedProperties, [](ktStyleSheetWindow& window, const ChangeCase& row) {
        window.RemovePropertyFromCurrentStatement(row.name);
    });
}

TEST_F(Properties, APropertyIsSelectedWithItsSemicolon) {
    RunCases(SelectedProperties, [](ktStyleSheetWindow& window, const ChangeCase& row) {
        window.SelectPropertyInCurrentStatement(row.name);
    });
}

TEST_F(Properties, AValueBeyondTheLengthLimitChangesNothing) {
    const Text rule = u"p {top: 1px;}";
    for (const TextView name : {u"top", u"left"}) {
        for (const std::size_t length : {MaximumTextLength - rule.size() + 4, MaximumTextLength, 1'000'000UL}) {
            window.SetText(rule);
            window.SetSelection(5, 5);
            EXPECT_THROW(window.ChangeCurrentProperty(name, Text(length, u'x')), OverflowFailure);
            EXPECT_EQ(window.GetText(), rule);
        }
        window.ChangeCurrentProperty(name, Text(32'000, u'x'));
        EXPECT_GT(window.GetText().size(), 32'000U);
    }
}

TEST_F(Properties, EachChangeIsOneStepToUndo) {
    for (const auto* const rows : {&ChangedValues, &NewProperties, &RemovedProperties}) {
        for (const ChangeCase& row : *rows) {
            RecordedDocument document;
            document.Load(row.before);
            SCOPED_TRACE(document.Drawn());
            const Text before = document.window.GetText();
            document.window.ChangeCurrentProperty(row.name, row.value);
            const Text after = document.window.GetText();
            document.window.CSSEditor().Undo();
            EXPECT_EQ(document.window.GetText(), before);
            EXPECT_FALSE(document.window.CSSEditor().CanUndo());
            document.window.CSSEditor().Redo();
            EXPECT_EQ(document.window.GetText(), after);
        }
    }
}

TEST_F(Properties, StartAndEndAreTheSameWhereThereIsNoProperty) {
    for (const PlaceCase& row : Places) {
        RecordedDocument document;
        document.Load(row.before);
        SCOPED_TRACE(document.Drawn() + " " + Utf8FromText(row.name));
        EXPECT_EQ(document.window.GetPropertyInCurrentStatementStart(row.name), row.start);
        EXPECT_EQ(document.window.GetPropertyInCurrentStatementEnd(row.name), row.end);
    }
}

TEST_F(Properties, ADeclarationIsReadFromTheTextAtTheCaret) {
    for (const LiveCase& row : LiveTexts) {
        RecordedDocument document;
        document.Load(row.drawn);
        SCOPED_TRACE(document.Drawn());
        const ktStyleSheetWindow& held = document.window;
        EXPECT_EQ(held.GetCurrentPropertyFromText(), row.declaration);
        EXPECT_EQ(held.GetCurrentPropertyNameFromText(), row.name);
        EXPECT_EQ(held.GetCurrentPropertyValueFromText(), row.value);
        const int offset = held.GetSelectionStart();
        EXPECT_EQ(held.GetCurrentPropertyFromChar(offset), row.declaration);
        EXPECT_EQ(held.GetCurrentPropertyNameFromChar(offset), row.name);
        EXPECT_EQ(held.GetCurrentPropertyValueFromChar(offset), row.value);
    }
}

TEST_F(Properties, TheTextIsReadLiveWhileTheCacheIsStale) {
    Load(u"h1 {color: r|d; top: 0}");
    view.TypeCharacter(u'e');
    EXPECT_EQ(window.GetCurrentPropertyValue(), u"rd");
    EXPECT_EQ(window.GetCurrentPropertyValueFromText(), u"red");
    Wait(300);
    EXPECT_EQ(window.GetCurrentPropertyValue(), u"red");
    EXPECT_EQ(window.GetCurrentPropertyName(), u"color");
    EXPECT_EQ(window.GetCurrentProperty(), u"color: red");
}

TEST_F(Properties, TheDeclarationsOfTheCurrentStatementAreListed) {
    Load(u"h1 {color: red; margin: 0}\np {|}");
    EXPECT_EQ(window.GetCurrentStatementProperties(), Texts{});
    window.SetSelection(5, 5);
    EXPECT_EQ(window.GetCurrentStatementProperties(), (Texts{u"color: red;", u"margin: 0"}));
}

TEST_F(Properties, AChangeReadsTheTextAndUpdatesTheToolbarOnly) {
    Load(u"h1 {color: red|}");
    window.ChangeCurrentProperty(u"color", u"blue");
    EXPECT_EQ(TakeCalls(), (Calls{"Dirty", "CacheStatements", "EnableToolbar", "SetUpToolbar {color: blue}"}));
    EXPECT_TRUE(window.NeedsPreviewing());
    EXPECT_FALSE(window.NeedsUpdating());
    EXPECT_FALSE(IsRunning(u"IdleTimer"));
    EXPECT_TRUE(IsRunning(u"PreviewDelay"));
    window.DisableNextPreview();
    EXPECT_FALSE(IsRunning(u"PreviewDelay"));
}

TEST_F(Properties, ARemovalOfWhatIsNotThereStillPreviews) {
    Load(u"h1 {color: red|}");
    window.ChangeCurrentProperty(u"margin", u"");
    EXPECT_EQ(TakeCalls(), (Calls{"CacheStatements", "EnableToolbar", "SetUpToolbar {color: red}"}));
    EXPECT_TRUE(window.NeedsPreviewing());
    EXPECT_TRUE(IsRunning(u"PreviewDelay"));
    EXPECT_FALSE(window.IsDirty());
    EXPECT_FALSE(window.CSSEditor().CanUndo());
}

TEST_F(Properties, SeveralChangesInARowFindTheTextOfTheLast) {
    Load(u"h1 {|}\np {}\n");
    window.ChangeCurrentProperty(u"color", u"red");
    window.ChangeCurrentProperty(u"margin", u"0");
    window.ChangeCurrentProperty(u"color", u"blue");
    EXPECT_EQ(Drawn(), "h1 {\ncolor: blue|;\nmargin: 0;}\np {}\n");
    window.ChangeCurrentProperty(u"color", u"");
    EXPECT_EQ(Drawn(), "h1 {\n|margin: 0;}\np {}\n");
}

TEST_F(Properties, SeveralChangesTogetherAreOneStepToUndo) {
    const DeclarationChanges changes = {
        {u"font-size", u""}, {u"left", u""}, {u"font", u"12px serif"}, {u"top", u"1px"}};
    const Text before = u"p {font-size: 9px; TOP: 0; color: red}\nq {}";
    Load(u"p {font-size: 9px; TOP: 0; color: red|}\nq {}");
    window.ChangeCurrentProperties(changes);
    const Text after = u"p { TOP: 1px; color: red;\nfont: 12px serif;}\nq {}";
    EXPECT_EQ(window.GetText(), after);
    EXPECT_EQ(Drawn(), "p { TOP: 1px|; color: red;\nfont: 12px serif;}\nq {}");
    // The text is read again for each change of it, and shown once.
    EXPECT_EQ(TakeCalls(), (Calls{"Dirty", "CacheStatements", "CacheStatements", "CacheStatements", "EnableToolbar",
                                  "SetUpToolbar { TOP: 1px; color: red;\nfont: 12px serif;}"}));
    window.CSSEditor().Undo();
    EXPECT_EQ(window.GetText(), before);
    EXPECT_FALSE(window.CSSEditor().CanUndo());
    window.CSSEditor().Redo();
    EXPECT_EQ(window.GetText(), after);
}

TEST_F(Properties, SeveralChangesTogetherPreviewOnce) {
    Load(u"p {font-size: 9px;|}");
    window.ChangeCurrentProperties({{u"font-size", u""}, {u"font", u"12px serif"}});
    calls.clear();
    Wait(5000);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "PreviewNow"), 1);
    window.ChangeCurrentProperties({});
    EXPECT_FALSE(window.NeedsPreviewing());
    EXPECT_EQ(window.RunningTimers(), Texts{});
}

TEST_F(Properties, AStoredSeparatorIsWrittenInFrontOfANewProperty) {
    SetPropertySeparator(settings, u"\r\t");
    Load(u"h1 {color: red;| }");
    window.ChangeCurrentProperty(u"margin", u"0");
    EXPECT_EQ(Drawn(), "h1 {color: red;\n\tmargin: 0;|}");
}

TEST_F(Properties, ThePropertyAtTheCaretGoesToAnOpenPaletteOnly) {
    Load(u"h1 {color: red; mar|gin: 0;}");
    window.EditCurrentProperty();
    EXPECT_EQ(TakeCalls(), Calls{"EditProperty margin"});
    properties.isOpen = false;
    window.EditCurrentProperty();
    EXPECT_EQ(TakeCalls(), Calls{});
}

TEST_F(Properties, TheCaretIsInTheSelectorUpToTheBrace) {
    Load(u"a {}\nh1 |{color: red}");
    EXPECT_TRUE(window.CursorInSelector());
    window.SetSelection(9, 9);
    EXPECT_FALSE(window.CursorInSelector());
}

}  // namespace
}  // namespace tintora::test
