// The state of the menus.

#include "EditorRecorders.h"
#include "editor/CSSEditorSrcView.h"

namespace tintora::test {
namespace {

struct MenuCase {
    Text drawn;
    Text clipboard;
    bool hasSelection;
    bool canPaste;
    bool hasText;
};

const std::vector<MenuCase> MenuCases = {
    {u"|", u"", false, false, false},     {u"|", u"x", false, true, false},  {u"a|", u"", false, false, true},
    {u"a|", u"x", false, true, true},     {u"^a|", u"", true, false, true},  {u"|a^", u"x", true, true, true},
    {u"a^\n|b", u"x", true, true, true},  {u"\n|", u"", false, false, true}, {u" |", u"", false, false, true},
    {u"|\r\nb", u"", false, false, true},
};

struct ContextCase {
    Text drawn;
    Text clipboard;
    Text property;
    std::string entries;
};

const std::string ForText = "Edit Selector, Duplicate Statement, Remove Statement";

/// Entries by their captions, separators as "-".
const std::vector<ContextCase> ContextCases = {
    {u"|", u"", u"", "New Statement"},
    {u"|", u"x", u"", "New Statement, -, Paste"},
    {u"|", u"", u"color", "Edit Property, -, New Statement"},
    {u"|", u"x", u"color", "Edit Property, -, New Statement, -, Paste"},
    {u"a|", u"", u"", "New Statement, " + ForText + ", -, Select All"},
    {u"a|", u"x", u"", "New Statement, " + ForText + ", -, Paste, -, Select All"},
    {u"a|", u"", u"color", "Edit Property, -, New Statement, " + ForText + ", -, Select All"},
    {u"a|", u"x", u"color", "Edit Property, -, New Statement, " + ForText + ", -, Paste, -, Select All"},
    {u"^a|", u"", u"", "New Statement, " + ForText + ", -, Cut, Copy, -, Select All, Clear"},
    {u"^a|", u"x", u"", "New Statement, " + ForText + ", -, Cut, Copy, Paste, -, Select All, Clear"},
    {u"|a^", u"", u"color", "Edit Property, -, New Statement, " + ForText + ", -, Cut, Copy, -, Select All, Clear"},
    {u"|a^", u"x", u"color",
     "Edit Property, -, New Statement, " + ForText + ", -, Cut, Copy, Paste, -, Select All, Clear"},
};

struct CommandCase {
    Text key;
    std::string calls;
};

const std::vector<CommandCase> CommandCases = {
    {u"mnuCSSPopupEditProperty", "EditCurrentProperty"},
    {u"mnuCSSPopupNewStatement", "NewStatement()"},
    {u"mnuCSSPopUpEditStatement", "EditStatement"},
    {u"mnuCSSPopupDuplicateStatement", "DuplicateStatement"},
    {u"mnuCSSPopupRemoveStatement", "DeleteStatement"},
    {u"mnuCSSPopUpCut", "CutSelection, TextChanged, CaretPosition: Line 1 Col 1, HandleCutPasteClear(bc)"},
    {u"mnuCSSPopUpCopy", "CopySelection"},
    {u"mnuCSSPopUpPaste", "PasteClipboard, TextChanged, CaretPosition: Line 1 Col 4, HandleCutPasteClear(xyz)"},
    {u"mnuCSSPopupSelectAll",
     "ScrollToPosition(0,0), SelectRange(0,0,4,0), SelectionChanged, CaretPosition: Line 1 Col 4"},
    {u"mnuCSSPopUpClear", "ClearSelection, TextChanged, CaretPosition: Line 1 Col 1, HandleCutPasteClear(bc)"},
    {u"mnuCSSPopUpSeparator1", ""},
    {u"mnuCSSPopUpSeparator2", ""},
    {u"mnuCSSPopUpSeparator3", ""},
    {u"mnucsspopupcopy", ""},
    {u"Copy", ""},
    {u"", ""},
};

TEST_F(EditorTest, TheMenusFollowTheSelectionTheClipboardAndTheText) {
    for (const MenuCase& row : MenuCases) {
        SCOPED_TRACE(Utf8FromText(row.drawn) + " with " + Utf8FromText(row.clipboard));
        Load(row.drawn);
        clipboard_.text = row.clipboard;
        frame_.items.clear();
        editor_.UpdateMenu();
        EXPECT_EQ(frame_.items, (std::map<std::string, bool>{{"miECut", row.hasSelection},
                                                             {"miECopy", row.hasSelection},
                                                             {"miEClear", row.hasSelection},
                                                             {"miECommentOut", row.hasSelection},
                                                             {"miEPaste", row.canPaste},
                                                             {"miSEdit", row.hasText},
                                                             {"miSDuplicate", row.hasText},
                                                             {"miESelectAll", row.hasText},
                                                             {"miSRemove", row.hasText},
                                                             {"miSNew", true},
                                                             {"miEUndo", false},
                                                             {"miERedo", false}}));
        EXPECT_EQ(log_.Take(), "menus") << "the document's own items come last, once";
    }
}

TEST_F(EditorTest, WhileAPaletteIsInFrontOnlyThreeItemsAreSet) {
    Load(u"^a|");
    frame_.isDocumentInFront = false;
    frame_.items.clear();
    editor_.UpdateMenu();
    EXPECT_EQ(frame_.items, (std::map<std::string, bool>{{"miSNew", true}, {"miEUndo", false}, {"miERedo", false}}));
    EXPECT_EQ(log_.Take(), "menus");
}

TEST_F(EditorTest, UndoAndRedoAreEnabledWhileThereIsSomethingForThem) {
    Load(u"a|");
    for (const bool isDocumentInFront : {true, false}) {
        frame_.isDocumentInFront = isDocumentInFront;
        editor_.InsertText(u"b", 1);
        EXPECT_TRUE(frame_.items["miEUndo"]);
        EXPECT_FALSE(frame_.items["miERedo"]);
        editor_.Undo();
        EXPECT_FALSE(frame_.items["miEUndo"]);
        EXPECT_TRUE(frame_.items["miERedo"]);
        editor_.Redo();
        EXPECT_TRUE(frame_.items["miEUndo"]);
        EXPECT_FALSE(frame_.items["miERedo"]);
        Load(u"a|");
    }
}

TEST_F(EditorTest, TheContextualMenuShowsWhatCanBeDone) {
    for (const ContextCase& row : ContextCases) {
        SCOPED_TRACE(row.entries);
        Load(row.drawn);
        clipboard_.text = row.clipboard;
        parent_.currentPropertyName = row.property;
        std::string shown;
        for (const ContextMenuEntry& entry : editor_.UpdateContextualMenu()) {
            EXPECT_EQ(entry.IsSeparator(), entry.key.starts_with(u"mnuCSSPopUpSeparator"));
            shown.append(shown.empty() ? "" : ", ");
            shown.append(entry.IsSeparator() ? "-" : Utf8FromText(entry.caption));
        }
        EXPECT_EQ(shown, row.entries);
        EXPECT_EQ(log_.Take(), "");
    }
}

TEST_F(EditorTest, TheEntriesOfTheContextualMenuHaveTheirKeys) {
    Load(u"^a|");
    clipboard_.text = u"x";
    parent_.currentPropertyName = u"color";
    EXPECT_EQ(editor_.UpdateContextualMenu(),
              (std::vector<ContextMenuEntry>{{u"mnuCSSPopupEditProperty", u"Edit Property"},
                                             {u"mnuCSSPopUpSeparator1", u""},
                                             {u"mnuCSSPopupNewStatement", u"New Statement"},
                                             {u"mnuCSSPopUpEditStatement", u"Edit Selector"},
                                             {u"mnuCSSPopupDuplicateStatement", u"Duplicate Statement"},
                                             {u"mnuCSSPopupRemoveStatement", u"Remove Statement"},
                                             {u"mnuCSSPopUpSeparator2", u""},
                                             {u"mnuCSSPopUpCut", u"Cut"},
                                             {u"mnuCSSPopUpCopy", u"Copy"},
                                             {u"mnuCSSPopUpPaste", u"Paste"},
                                             {u"mnuCSSPopUpSeparator3", u""},
                                             {u"mnuCSSPopupSelectAll", u"Select All"},
                                             {u"mnuCSSPopUpClear", u"Clear"}}));
}

TEST_F(EditorTest, EachEntryOfTheContextualMenuDoesWhatItSays) {
    RecordControl();
    for (const CommandCase& row : CommandCases) {
        SCOPED_TRACE(Utf8FromText(row.key));
        Load(u"a^bc|d");
        clipboard_.text = u"xyz";
        // The caret comes from within the only token of the row, whatever the case before has left.
        editor_.LastTokenType = 24;
        editor_.RunContextMenuEntry(row.key);
        EXPECT_EQ(log_.TakeWithout("menus"), row.calls);
    }
}

}  // namespace
}  // namespace tintora::test
