// When the list of what may be typed comes up, and what a choice of it does.

#include "EditorRecorders.h"
#include "editor/CSSEditorSrcView.h"
#include "language/Bracketed.h"
#include "language/Words.h"
#include "settings/Settings.h"
#include "text/LineEnds.h"
#include "text/Narrowing.h"

#include <random>

namespace tintora::test {
namespace {

/// A list that comes up, or none, when `typed` is typed where the caret is and a second passes.
struct PauseCase {
    Text drawn;
    Text typed;
    Text partial;
    /// The first items of the list; none where nothing comes up.
    Text begins;
};

const std::vector<PauseCase> PauseCases = {
    {u"a |", u"{", u"", u"[}][background][background-attachment]"},
    {u"a {|}", u"\n", u"", u"[}][background]"},
    {u"a {|}", u"co", u"co", u"[color][content][counter-increment]"},
    {u"a {|}", u"\n\tcon", u"con", u"[content]"},
    {u"a {col|}", u"or", u"color", u""},
    {u"a {|}", u"Col", u"Col", u""},
    {u"a {|}", u"border", u"border", u"[border][border-bottom]"},
    {u"a {color:|}", u"r", u"r", u"[red]"},
    {u"a {color:|}", u" r", u"r", u"[red]"},
    {u"a {color: |}", u"b", u"b", u"[black][blue]"},
    {u"a {color: |}", u"R", u"R", u""},
    {u"a {color: re|}", u"d", u"red", u""},
    {u"a {color: |}", u"1", u"1", u""},
    {u"a {font-weight: |}", u"1", u"1", u"[100]"},
    {u"a {float: |; top: 0}", u"l", u"l", u"[left]"},
    {u"a {nonsense: |}", u"e", u"e", u""},
    {u"a {top: 0|}", u"; ", u"", u"[}][background]"},
    {u"a {top: 0|}", u";", u"", u""},
    {u"a {top|}", u":", u"", u""},
    {u"a {color|}", u": ", u"", u"[inherit][aqua]"},
    {u"|", u"abc", u"", u""},
    {u"h1, |", u"h2", u"", u""},
    {u"a {} |", u"b", u"", u""},
    {u"a {font-family: a, |}", u"s", u"", u""},
};

/// What each key does to a list that waits already, and whether it has one wait that doesn't yet.
struct KeyCase {
    Text characters;
    /// How long after the key the waiting list comes up that has waited for 400 ms; -1 for never.
    int waitsOn;
    /// The same where nothing was waiting.
    int waits;
};

const std::vector<KeyCase> KeyCases = {
    {u"{", 600, 1000},
    {u";:\b\x7F", -1, -1},
    {u"azAZ19\t\n\f\r ", 1000, 1000},
    {u"0-_.,}([#!\x1B\u00E9\xD800\xFFFF", 600, -1},
};

struct ChoiceCase {
    Text drawn;
    int type;
    Text choice;
    Text result;
};

/// By the separators that hold without settings.
const std::vector<ChoiceCase> ChoiceCases = {
    {u"a {\n\tco|\n}\n", 19, u"color", u"a {\ncolor:|}\n"},
    {u"a {col|or: red}", 19, u"content", u"a {\ncontent:| red}"},
    {u"a {|color: red}", 19, u"top", u"a {\ntop:|color: red}"},
    {u"a {color: r|\n}\n", 21, u"red", u"a {color: red;\n|}\n"},
    {u"a {color: r|e; top: 0}", 21, u"red", u"a {color: red;\n| top: 0}"},
    {u"a {color: red;\n|  ", 19, u"}", u"a {color: red;}|\n  "},
    {u"a {co|\n\nb {}", 19, u"color", u"a {\ncolor:|\n\nb {}"},
    {u"a {color: r|\n\nb {}", 21, u"red", u"a {color: red;\n|\n\nb {}"},
    {u"a {^co|lor: red}", 19, u"top", u"a {\ntop:|color: red}"},
    {u"a {c|ol^or: red}", 19, u"top", u"a {\ntop:| red}"},
    {u"a|", 19, u"top", u"\ntop:|"},
    {u"", 19, u"top", u"\ntop:|"},
    {u"\U0001F600 {|}", 19, u"top", u"\U0001F600 {\ntop:|}"},

    // What writes nothing.
    {u"a {c|}", 19, u"", u"a {c|}"},
    {u"a {c|}", 21, u"", u"a {c|}"},
    {u"a {c|}", 0, u"top", u"a {c|}"},
};

class TypeAheadTest : public EditorTest {
  protected:
    /// The parts of a press that matter to the editor.
    void Type(TextView characters) {
        for (const char16_t character : characters) {
            editor_.CharacterTyped(character);
            memory_.TypeCharacter(character);
        }
    }

    void Wait(int milliseconds) { clock_.Advance(std::chrono::milliseconds(milliseconds)); }

    void AskForList() { editor_.KeyPressedDown(key_code::Space, shift_state::Control); }

    /// What came up since it was last asked, "" for nothing.
    [[nodiscard]] Text TakeList() { return Bracketed(std::exchange(popup_.list, {})); }

    [[nodiscard]] bool HasComeUp() { return !TakeList().empty(); }

    void SetTypeAhead(bool isOn) { Settings(settings_).SetTypeAhead(isOn); }
};

TEST_F(TypeAheadTest, AListComesUpASecondAfterAKeyWhereTheCasesSay) {
    for (const PauseCase& row : PauseCases) {
        SCOPED_TRACE(Utf8FromText(row.drawn) + " + " + Utf8FromText(row.typed));
        Load(row.drawn);
        Type(row.typed);
        Wait(999);
        EXPECT_EQ(TakeList(), u"");
        Wait(1);
        const Text list = TakeList();
        EXPECT_EQ(list.substr(0, row.begins.size()), row.begins);
        EXPECT_EQ(list.empty(), row.begins.empty());
        if (!list.empty()) {
            EXPECT_EQ(popup_.partial, row.partial);
        }
        Wait(5000);
        EXPECT_EQ(TakeList(), u"") << "it comes up once";
    }
}

TEST_F(TypeAheadTest, EachKeyDoesToAWaitingListWhatTheCasesSay) {
    const auto comesUpAfter = [this](int milliseconds) {
        if (milliseconds > 0) {
            Wait(milliseconds - 1);
            EXPECT_FALSE(HasComeUp());
        }
        Wait(milliseconds > 0 ? 1 : 5000);
        EXPECT_EQ(HasComeUp(), milliseconds > 0);
        Wait(5000);
    };
    for (const KeyCase& row : KeyCases) {
        for (const char16_t character : row.characters) {
            SCOPED_TRACE(static_cast<int>(character));
            Load(u"a {|}");
            editor_.CharacterTyped(u' ');
            Wait(400);
            editor_.CharacterTyped(character);
            comesUpAfter(row.waitsOn);
            editor_.CharacterTyped(character);
            comesUpAfter(row.waits);
        }
    }
}

TEST_F(TypeAheadTest, AKeyWhereNothingIsOfferedLeavesAWaitingListToItsTime) {
    Load(u"a {| b, c}");
    editor_.CharacterTyped(u' ');
    Wait(400);
    memory_.MoveCaret(9);
    editor_.CharacterTyped(u'x');
    memory_.MoveCaret(3);
    Wait(599);
    EXPECT_FALSE(HasComeUp());
    Wait(1);
    EXPECT_TRUE(HasComeUp());
}

TEST_F(TypeAheadTest, WhatThePlaceTakesIsToldWhenTheSecondHasPassed) {
    Load(u"a {| b: c, d} ");
    for (const auto& [offset, list] : {std::pair(7, u""), std::pair(10, u""), std::pair(13, u""), std::pair(0, u"")}) {
        SCOPED_TRACE(offset);
        memory_.MoveCaret(3);
        editor_.CharacterTyped(u' ');
        memory_.MoveCaret(offset);
        Wait(1000);
        EXPECT_EQ(TakeList(), list);
    }
    editor_.CharacterTyped(u'{');
    editor_.SetText(u"");
    Wait(1000);
    EXPECT_FALSE(HasComeUp()) << "the text has gone meanwhile";
}

TEST_F(TypeAheadTest, SwitchedOffNoKeyBringsAList) {
    SetTypeAhead(false);
    Load(u"a {|}");
    for (const char16_t character : Text(u"{ ac;"))
        editor_.CharacterTyped(character);
    editor_.StartTypeAhead(0, true);
    Wait(5000);
    EXPECT_FALSE(HasComeUp());
}

TEST_F(TypeAheadTest, SwitchedOffNoKeyStopsAListThatIsWaiting) {
    Load(u"a {|}");
    editor_.CharacterTyped(u' ');
    SetTypeAhead(false);
    editor_.CharacterTyped(u';');
    Wait(1000);
    EXPECT_TRUE(HasComeUp());
}

TEST_F(TypeAheadTest, ControlWithSpaceBringsTheListAtOnceSwitchedOffOrOn) {
    for (const bool isOn : {true, false}) {
        SetTypeAhead(isOn);
        Load(u"a {col|}");
        AskForList();
        EXPECT_EQ(TakeList(), u"[color]");
        Wait(5000);
        EXPECT_FALSE(HasComeUp());
    }
    SetTypeAhead(true);
    editor_.StartTypeAhead(0, true);
    EXPECT_EQ(TakeList(), u"[color]");
}

TEST_F(TypeAheadTest, AListThatIsAskedForTakesThePlaceOfTheOneThatIsWaiting) {
    Load(u"a {|}");
    editor_.CharacterTyped(u' ');
    Wait(500);
    AskForList();
    EXPECT_TRUE(HasComeUp());
    Wait(5000);
    EXPECT_FALSE(HasComeUp());
}

TEST_F(TypeAheadTest, OnlyControlWithSpaceAsksForAList) {
    Load(u"a {|}");
    editor_.KeyPressedDown(key_code::Space, 0);
    editor_.KeyPressedDown(key_code::Space, shift_state::Control + shift_state::Shift);
    editor_.KeyPressedDown(key_code::Space, shift_state::Alt);
    editor_.KeyPressedDown('A', shift_state::Control);
    EXPECT_FALSE(HasComeUp());
}

TEST_F(TypeAheadTest, WhereNothingIsOfferedControlWithSpaceDoesNothing) {
    for (const TextView drawn : {u"|", u"abc|", u"a,|", u"a {}|", u"a {b: c,|}", u"a {color: red|}", u"a {Col|}"}) {
        SCOPED_TRACE(Utf8FromText(drawn));
        Load(drawn);
        AskForList();
        EXPECT_EQ(log_.Take(), "");
    }
}

TEST_F(TypeAheadTest, AListKeepsTheDocumentFromUpdatingAndStandsBelowTheCaret) {
    Load(u"a {\n  co|}");
    editor_.CtrlKeyDown = true;
    AskForList();
    EXPECT_EQ(log_.Take(), "DisableUpdates, TypeAhead(7,2)");
    EXPECT_EQ(popup_.partial, u"co");
    EXPECT_EQ(editor_.TypeAheadReturnType, 19);
    EXPECT_FALSE(editor_.CtrlKeyDown) << "its release belongs to the list";
    Load(u"a {color: |}");
    AskForList();
    EXPECT_EQ(log_.Take(), "DisableUpdates, TypeAhead(13,1)");
    EXPECT_EQ(editor_.TypeAheadReturnType, 21);
}

TEST_F(TypeAheadTest, AListThatDoesNotComeUpIsKnownByItsTypeAllTheSame) {
    Load(u"a {Col|}");
    AskForList();
    EXPECT_EQ(editor_.TypeAheadReturnType, 19);
    Load(u"a {color: red|}");
    AskForList();
    EXPECT_EQ(editor_.TypeAheadReturnType, 21);
    Load(u"a {}|");
    AskForList();
    EXPECT_EQ(editor_.TypeAheadReturnType, 21) << "where nothing is offered it stays";
    EXPECT_EQ(log_.Take(), "");
}

TEST_F(TypeAheadTest, WithoutTheFocusInTheTextNoListComesUp) {
    Load(u"a {|}");
    popup_.canOpen = false;
    AskForList();
    EXPECT_EQ(log_.Take(), "") << "and the document goes on";
}

TEST_F(TypeAheadTest, TheValuesOfTheStyleSheetAreOfferedWithTheWords) {
    parent_.colors = {u"red", u"#123", u"nonsense", u"rgb(1,1,1)"};
    parent_.urls = {u"url(a)", u"url(b)"};
    parent_.fonts = {u"Gill Sans"};
    Load(u"a {color: |}");
    AskForList();
    EXPECT_TRUE(TakeList().ends_with(u"[white][yellow][red][#123][rgb(1,1,1)]"));
    Load(u"a {background-image: |}");
    AskForList();
    EXPECT_EQ(TakeList(), u"[inherit][url(b)][url(a)]");
    Load(u"a {font-family: G|}");
    AskForList();
    EXPECT_EQ(TakeList(), u"[Gill Sans]");
}

TEST_F(TypeAheadTest, AListThatIsAskedForByItsPartsIsWhatItsPlaceWouldBring) {
    editor_.GetTypeAheadValue(21, u"float", u"\t le", 5, 9);
    EXPECT_EQ(log_.Take(), "DisableUpdates, TypeAhead(9,5)");
    EXPECT_EQ(TakeList(), u"[left]");
    EXPECT_EQ(popup_.partial, u"le");
    editor_.GetTypeAheadValue(19, u" z-", u"", 5, 9);
    EXPECT_EQ(TakeList(), u"[z-index]");
}

TEST_F(TypeAheadTest, AChoiceWritesWhatTheCasesSayInOneStep) {
    for (const TextView lineEnd : {u"\n", u"\r\n", u"\r"}) {
        for (const ChoiceCase& row : ChoiceCases) {
            SCOPED_TRACE(Utf8FromText(row.drawn) + " " + Utf8FromText(row.choice));
            Load(WithLineEnds(row.drawn, lineEnd));
            const Text before = editor_.GetText();
            const bool hasLineEnd = row.drawn.find(u'\n') != Text::npos;
            editor_.TypeAheadReturnType = static_cast<std::int16_t>(row.type);
            editor_.SetTypeAheadChoice(row.choice);
            const bool hasChanged = editor_.GetText() != before;
            EXPECT_EQ(hasChanged, row.result != row.drawn);
            if (hasChanged) {
                EXPECT_EQ(DrawnText(), WithLineEnds(row.result, hasLineEnd ? lineEnd : TextView(u"\n")));
            }
            EXPECT_EQ(editor_.CanUndo(), hasChanged);
            editor_.Undo();
            EXPECT_EQ(editor_.GetText(), before);
            EXPECT_FALSE(editor_.CanUndo());
        }
    }
}

TEST_F(TypeAheadTest, AChoiceTellsTheDocumentThatItsPalettesAreStale) {
    Load(u"a {c|}");
    editor_.TypeAheadReturnType = 19;
    editor_.SetTypeAheadChoice(u"color");
    EXPECT_EQ(log_.Count("NeedsUpdating"), 1);
    log_.Forget();
    editor_.SetTypeAheadChoice(u"");
    EXPECT_EQ(log_.Take(), "");
}

TEST_F(TypeAheadTest, TheSeparatorsOfTheSettingsHold) {
    settings_.SaveSetting(ApplicationTitle, u"Formatting", u"PropertySeparator", u"\r\t");
    settings_.SaveSetting(ApplicationTitle, u"Formatting", u"LastPropertySeparator", u"\r");
    Load(u"a {c|}");
    editor_.TypeAheadReturnType = 19;
    editor_.SetTypeAheadChoice(u"color");
    EXPECT_EQ(DrawnText(), u"a {\n\tcolor:|}");
    editor_.TypeAheadReturnType = 21;
    editor_.SetTypeAheadChoice(u"red");
    EXPECT_EQ(DrawnText(), u"a {\n\tcolor: red;\n\t|}");
    editor_.TypeAheadReturnType = 19;
    editor_.SetTypeAheadChoice(u"}");
    EXPECT_EQ(DrawnText(), u"a {\n\tcolor: red;\n}|\n\t}");
}

TEST_F(TypeAheadTest, ATextBeyondTheLimitOverflowsWhenAListWouldComeUpAndTakesKeys) {
    Text text = LongText(32'800);
    text[0] = u'{';
    editor_.SetText(text);
    memory_.MoveCaret(1);
    EXPECT_NO_THROW(editor_.CharacterTyped(u'a'));
    EXPECT_THROW(Wait(1000), OverflowFailure);
    EXPECT_THROW(AskForList(), OverflowFailure);
    EXPECT_EQ(log_.Count("DisableUpdates"), 0);
}

TEST_F(TypeAheadTest, InAnyTextNothingThrowsAndOneUndoTakesAChoiceBack) {
    const Texts pieces = {u"a ",     u"{",  u"}",    u":",     u";",    u",",          u"\n",
                          u"\r\n",   u"\r", u"\t",   u"color", u"top ", u"/*",         u"*/",
                          u"@media", u"\"", u"url(", u"b",     u"0",    u"\U0001F600", u"\xD800"};
    const Texts choices = {u"}", u"color", u"red", u"", u"url(x.gif)", u"a;b", u"\n"};
    std::mt19937 engine(99);
    const auto any = [&](const Texts& texts) -> const Text& { return texts[engine() % texts.size()]; };
    for (int round = 0; round < 5'000; ++round) {
        Text text;
        for (std::size_t count = engine() % 12; count > 0; --count)
            text += any(pieces);
        editor_.SetText(text);
        const auto caret = static_cast<int>(engine() % (text.size() + 1));
        SelectOffsets(memory_, engine() % 4 == 0 ? static_cast<int>(engine() % (text.size() + 1)) : caret, caret);
        if (engine() % 50 == 0)
            editor_.CurrentSelectionStart = static_cast<std::int16_t>(engine());
        ASSERT_NO_THROW(editor_.CharacterTyped(any(pieces)[0]));
        ASSERT_NO_THROW(Wait(1000));
        ASSERT_NO_THROW(AskForList());
        editor_.TypeAheadReturnType = static_cast<std::int16_t>(engine() % 3 == 0 ? 0 : engine() % 2 == 0 ? 19 : 21);
        ASSERT_NO_THROW(editor_.SetTypeAheadChoice(any(choices))) << Utf8FromText(text) << " " << caret;
        if (editor_.CanUndo()) {
            editor_.Undo();
            ASSERT_FALSE(editor_.CanUndo());
        }
        ASSERT_EQ(editor_.GetText(), text);
        log_.Forget();
    }
}

}  // namespace
}  // namespace tintora::test
