// How what a user does reaches the document.

#include "EditorRecorders.h"
#include "editor/CSSEditorSrcView.h"
#include "text/Narrowing.h"

namespace tintora::test {
namespace {

struct MoveCase {
    int offset;
    /// What is called, the menus aside.
    std::string calls;
    int lastTokenType;
};

const Text Rule = u"h1 {color: red;}\nh2 {}\n\n";

/// A walk of the caret through the rule, from its start.
const std::vector<MoveCase> Walk = {
    {1, "SelectionChanged, CaretPosition: Line 1 Col 1", 24},
    {2, "CaretPosition: Line 1 Col 2", 24},
    {0, "CaretPosition: Line 1 Col 0", 24},
    {3, "SelectionChanged, CaretPosition: Line 1 Col 3", 23},
    {4, "SelectionChanged, CaretPosition: Line 1 Col 4", 19},
    {8, "CaretPosition: Line 1 Col 8", 19},
    // Colons and semicolons belong to what they stand behind.
    {9, "CaretPosition: Line 1 Col 9", 19},
    {6, "CaretPosition: Line 1 Col 6", 19},
    {10, "SelectionChanged, CaretPosition: Line 1 Col 10", 21},
    {14, "CaretPosition: Line 1 Col 14", 21},
    {15, "SelectionChanged, CaretPosition: Line 1 Col 15", 23},
    {16, "SelectionChanged, CaretPosition: Line 1 Col 16", 0},
    // Another row is always told, whatever stands there.
    {18, "SelectionChanged, CaretPosition: Line 2 Col 1", 24},
    {19, "CaretPosition: Line 2 Col 2", 24},
    {1, "SelectionChanged, CaretPosition: Line 1 Col 1", 24},
    {9, "CaretPosition: Line 1 Col 9", 24},
    {22, "SelectionChanged, CaretPosition: Line 2 Col 5", 0},
    {23, "SelectionChanged, CaretPosition: Line 3 Col 0", 0},
    {24, "SelectionChanged, CaretPosition: Line 4 Col 0", 0},
};

TEST_F(EditorTest, AMoveReachesTheDocumentOnlyWhereItLeavesItsTokenOrItsRow) {
    Load(Rule);
    for (const MoveCase& row : Walk) {
        SCOPED_TRACE(row.offset);
        memory_.MoveCaret(row.offset);
        EXPECT_EQ(log_.TakeWithout("menus"), row.calls);
        EXPECT_EQ(editor_.LastTokenType, row.lastTokenType);
        EXPECT_EQ(editor_.GetSelectionStart(), row.offset);
        EXPECT_EQ(editor_.LastCaretX, memory_.CaretColumn());
        EXPECT_EQ(editor_.LastCaretY, memory_.CaretRow());
    }
}

TEST_F(EditorTest, AMoveUpdatesTheMenusFirst) {
    Load(Rule);
    memory_.MoveCaret(4);
    EXPECT_EQ(log_.Take(), "menus, SelectionChanged, CaretPosition: Line 1 Col 4");
    memory_.MoveCaret(5);
    EXPECT_EQ(log_.Take(), "menus, CaretPosition: Line 1 Col 5");
}

TEST_F(EditorTest, TheDocumentIsToldBeforeTheCaretsPlaceIsStored) {
    Load(Rule);
    memory_.MoveCaret(4);
    int columnThen = 0;
    int rowThen = 0;
    int typeThen = 0;
    int startThen = 0;
    parent_.whenSelectionChanges = [&] {
        columnThen = editor_.LastCaretX;
        rowThen = editor_.LastCaretY;
        typeThen = editor_.LastTokenType;
        startThen = editor_.GetSelectionStart();
    };
    memory_.MoveCaret(20);
    EXPECT_EQ(columnThen, 4);
    EXPECT_EQ(rowThen, 0);
    EXPECT_EQ(typeThen, 23);
    EXPECT_EQ(startThen, 20);
    EXPECT_EQ(editor_.LastCaretX, 3);
    EXPECT_EQ(editor_.LastCaretY, 1);
}

TEST_F(EditorTest, BeforeTheControlIsReadyNothingIsDone) {
    Load(Rule);
    editor_.Initialized = false;
    memory_.MoveCaret(4);
    EXPECT_EQ(log_.Take(), "");
    EXPECT_EQ(editor_.GetSelectionStart(), 0);
    EXPECT_EQ(editor_.LastCaretX, 0);
    editor_.Ready();
    memory_.MoveCaret(5);
    EXPECT_EQ(log_.TakeWithout("menus"), "SelectionChanged, CaretPosition: Line 1 Col 5");
}

TEST_F(EditorTest, WhileATextIsLoadedNothingIsDone) {
    Load(Rule);
    editor_.Loading = true;
    memory_.MoveCaret(4);
    memory_.TypeCharacter(u'x');
    EXPECT_EQ(log_.Take(), "");
    EXPECT_EQ(editor_.GetSelectionStart(), 0);
    EXPECT_EQ(editor_.LastCaretX, 0);
    editor_.Loading = false;
    memory_.TypeCharacter(u'x');
    EXPECT_EQ(log_.TakeWithout("menus"), "TextChanged, SelectionChanged, CaretPosition: Line 1 Col 6");
}

TEST_F(EditorTest, WhileTheButtonIsDownOnlyTheMenusAreUpdated) {
    Load(Rule);
    editor_.MousePressed(MouseButton::Left, 0, {});
    EXPECT_TRUE(editor_.MouseDown);
    memory_.MoveCaret(20);
    EXPECT_EQ(log_.Take(), "menus");
    EXPECT_EQ(editor_.GetSelectionStart(), 0);
    EXPECT_EQ(editor_.LastCaretX, 0);
    EXPECT_EQ(editor_.LastCaretY, 0);
    EXPECT_EQ(editor_.LastTokenType, 0);
    editor_.MouseReleased(MouseButton::Left, 0, {});
    EXPECT_FALSE(editor_.MouseDown);
    EXPECT_EQ(log_.Take(), "menus");

    // The control reports the selection once more, and now the document hears of the click.
    editor_.SelectionChanged(3, 1);
    EXPECT_EQ(log_.Take(), "menus, SelectionChanged, CaretPosition: Line 2 Col 3");
    EXPECT_EQ(editor_.GetSelectionStart(), 20);
}

TEST_F(EditorTest, WhileAKeyIsSaidToBeDownOnlyTheMenusAreUpdated) {
    Load(Rule);
    editor_.KeyDown = true;
    memory_.MoveCaret(20);
    EXPECT_EQ(log_.Take(), "menus");
    EXPECT_EQ(editor_.GetSelectionStart(), 0);
    EXPECT_EQ(editor_.LastCaretY, 0);
    editor_.KeyDown = false;
    memory_.MoveCaret(19);
    EXPECT_EQ(log_.TakeWithout("menus"), "SelectionChanged, CaretPosition: Line 2 Col 2");
}

TEST_F(EditorTest, NoKeyIsEverSaidToBeDown) {
    Load(Rule);
    for (int code = 0; code < 256; ++code) {
        editor_.KeyPressedDown(code, shift_state::Control);
        EXPECT_FALSE(editor_.KeyDown);
    }
}

TEST_F(EditorTest, ACaretThatStaysInItsPlaceKeepsItsDocumentUndisturbed) {
    Load(Rule);
    SelectOffsets(memory_, 0, 8);
    EXPECT_EQ(log_.TakeWithout("menus"), "SelectionChanged, CaretPosition: Line 1 Col 8");
    EXPECT_EQ(editor_.GetSelectionStart(), 0);
    SelectOffsets(memory_, 4, 8);
    EXPECT_EQ(log_.Take(), "menus");
    EXPECT_EQ(editor_.GetSelectionStart(), 4) << "the anchor has moved all the same";
    memory_.MoveCaret(8);
    EXPECT_EQ(log_.Take(), "menus");
    EXPECT_EQ(editor_.GetSelectionStart(), 8);
}

TEST_F(EditorTest, ASelectionStartsAtItsAnchor) {
    Load(Rule);
    SelectOffsets(memory_, 20, 8);
    EXPECT_EQ(editor_.GetSelectionStart(), 20);
    SelectOffsets(memory_, 8, 20);
    EXPECT_EQ(editor_.GetSelectionStart(), 8);
}

TEST_F(EditorTest, AChangeOfTheTextReachesTheDocumentAndThenTheMenus) {
    Load(Rule);
    editor_.TextChanged();
    EXPECT_EQ(log_.Take(), "TextChanged, menus");
    editor_.Loading = true;
    editor_.TextChanged();
    EXPECT_EQ(log_.Take(), "");
}

TEST_F(EditorTest, TypingReachesTheDocument) {
    Load(Rule);
    memory_.MoveCaret(4);
    log_.Forget();
    memory_.TypeCharacter(u'x');
    EXPECT_EQ(log_.TakeWithout("menus"), "TextChanged, SelectionChanged, CaretPosition: Line 1 Col 5")
        << "the name isn't known any longer";
    memory_.TypeCharacter(u'y');
    EXPECT_EQ(log_.TakeWithout("menus"), "TextChanged, CaretPosition: Line 1 Col 6");
    memory_.PressDelete();
    EXPECT_EQ(log_.TakeWithout("menus"), "TextChanged");
    memory_.TypeCharacter(u'\n');
    EXPECT_EQ(log_.TakeWithout("menus"), "TextChanged, SelectionChanged, CaretPosition: Line 2 Col 0");
}

TEST_F(EditorTest, AnyOtherChangeHasTheDocumentNeedAnUpdate) {
    Load(Rule);
    editor_.ChangedOtherwise();
    EXPECT_EQ(log_.Take(), "NeedsUpdating");
}

TEST_F(EditorTest, TheControlKeyIsKnownWhileItIsHeld) {
    editor_.KeyPressedDown(key_code::Control, shift_state::Control);
    EXPECT_TRUE(editor_.CtrlKeyDown);
    editor_.KeyPressedDown('A', shift_state::Control);
    EXPECT_TRUE(editor_.CtrlKeyDown);
    editor_.KeyReleased('A', shift_state::Control);
    EXPECT_FALSE(editor_.CtrlKeyDown) << "whichever key comes up";
    editor_.KeyPressedDown('A', shift_state::Control);
    EXPECT_FALSE(editor_.CtrlKeyDown);
    EXPECT_EQ(log_.Take(), "");
}

TEST_F(EditorTest, TheDeleteKeyReachesTheDocumentWhenItGoesDown) {
    editor_.KeyPressedDown(key_code::Delete, 0);
    EXPECT_EQ(log_.Take(), "DeleteKeyDown");
    editor_.KeyReleased(key_code::Delete, 0);
    EXPECT_EQ(log_.Take(), "");
}

TEST_F(EditorTest, TheBackspaceKeyReachesTheDocumentWhenItComesUp) {
    editor_.KeyPressedDown(key_code::Backspace, 0);
    EXPECT_EQ(log_.Take(), "");
    editor_.CtrlKeyDown = true;
    editor_.KeyReleased(key_code::Backspace, 0);
    EXPECT_EQ(log_.Take(), "SpecialKeyUp");
    EXPECT_FALSE(editor_.CtrlKeyDown);
}

TEST_F(EditorTest, OtherKeysAndCharactersReachNobody) {
    Load(Rule);
    for (int code = 0; code < 256; ++code) {
        if (code != key_code::Delete)
            editor_.KeyPressedDown(code, 0);
        if (code != key_code::Backspace)
            editor_.KeyReleased(code, 0);
        editor_.CharacterTyped(static_cast<char16_t>(code));
    }
    editor_.KeyPressedDown(key_code::Space, shift_state::Control);
    EXPECT_EQ(log_.Take(), "");
    EXPECT_EQ(editor_.GetText(), Rule);
}

TEST_F(EditorTest, OnlyTheLeftButtonCounts) {
    Load(Rule);
    editor_.MousePressed(MouseButton::Right, 0, {});
    editor_.MousePressed(MouseButton::Middle, 0, {});
    EXPECT_FALSE(editor_.MouseDown);
    editor_.MousePressed(MouseButton::Left, 0, {});
    editor_.MouseReleased(MouseButton::Middle, 0, {});
    EXPECT_TRUE(editor_.MouseDown);
    EXPECT_EQ(log_.Take(), "");
    editor_.MouseReleased(MouseButton::Right, 0, {});
    EXPECT_TRUE(editor_.MouseDown);
    EXPECT_EQ(log_.Take(), "ChooseFromMenu");
}

TEST_F(EditorTest, TheRightButtonOffersTheMenuAndDoesWhatIsChosen) {
    Load(u"a^bc|d");
    dialogs_.chosenEntry = u"mnuCSSPopupDuplicateStatement";
    editor_.MouseReleased(MouseButton::Right, 0, {});
    EXPECT_EQ(log_.Take(), "ChooseFromMenu, DuplicateStatement");
    EXPECT_EQ(dialogs_.offered, editor_.UpdateContextualMenu());
    dialogs_.chosenEntry = u"mnuCSSPopUpClear";
    editor_.MouseReleased(MouseButton::Right, 0, {});
    EXPECT_EQ(DrawnText(), u"a|d");
    log_.Forget();
    dialogs_.chosenEntry = u"";
    editor_.MouseReleased(MouseButton::Right, 0, {});
    EXPECT_EQ(log_.Take(), "ChooseFromMenu");
}

TEST_F(EditorTest, ACaretBeyondTheLargestTextOverflows) {
    editor_.SetText(LongText(32800));
    memory_.MoveCaret(32767);
    EXPECT_EQ(editor_.GetSelectionStart(), 32767);
    EXPECT_THROW(memory_.MoveCaret(32768), OverflowFailure);
    memory_.MoveCaret(0);
    EXPECT_EQ(editor_.GetSelectionStart(), 0);
}

}  // namespace
}  // namespace tintora::test
