#include "shell/Commands.h"

#include "language/Vocabulary.h"
#include "language/Words.h"
#include "shell/CorePropertiesToolbar.h"
#include "shell/ManualPages.h"
#include "shell/Panes.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tintora {
namespace {

using enum CommandOperation;

enum class Document { Needed, NotNeeded };

struct OperationCase {
    /// Parted by blanks.
    Text keys;
    CommandOperation operation;
    Document document;
    /// One for each key; none where all are "".
    Texts parameters = {};
};

const std::vector<OperationCase> OperationCases = {
    {u"miFNew tbpFNew cbSNew", LoadNewDoc, Document::NotNeeded},
    {u"miFNewStyleSheetWizard", NewStyleSheetWizard, Document::NotNeeded},
    {u"miFNewFromTemplate", NewLayout, Document::NotNeeded},
    {u"miFOpen pOpenStyleSheet", OpenStyleSheet, Document::NotNeeded},
    {u"miFClearOpen", ClearOpenMenu, Document::NotNeeded},
    {u"miFCloseWindow", CloseWindow, Document::Needed},
    {u"MRUFileList", OpenRecentFile, Document::NotNeeded},
    {u"miFSave", SaveStyleSheet, Document::Needed},
    {u"miFSaveAs", SaveStyleSheetAs, Document::Needed},
    {u"miFSaveAll", SaveAllStyleSheets, Document::Needed},
    {u"miFLinkPage", LinkStyleSheet, Document::Needed},
    {u"miFLinkPageAdvanced", LinkPageAdvanced, Document::Needed},
    {u"miFLinkSite", LinkSite, Document::Needed},
    {u"miFLinkSiteAdvanced", LinkSiteAdvanced, Document::Needed},
    {u"miFEmbedStyleSheet", EmbedStylesheet, Document::Needed},
    {u"miFEmbedAdvanced", EmbedStylesheetAdvanced, Document::Needed},
    {u"miFPrint", PrintStyleSheet, Document::Needed},
    {u"miFPrintPreview", DoNothing, Document::NotNeeded},
    {u"miFPageSetup", PageSetup, Document::NotNeeded},
    {u"miFOptions", EditOptions, Document::NotNeeded},
    {u"miFExit", Exit, Document::NotNeeded},
    {u"miEPaste", Paste, Document::NotNeeded},
    {u"miEUndo", Undo, Document::Needed},
    {u"miERedo", Redo, Document::Needed},
    {u"miECut", Cut, Document::NotNeeded},
    {u"miECopy", Copy, Document::NotNeeded},
    {u"miEClear", Clear, Document::NotNeeded},
    {u"miESelectAll", SelectAll, Document::Needed},
    {u"miEFind", Find, Document::Needed},
    {u"miEFindNext", FindAgain, Document::Needed},
    {u"miEReplace", Replace, Document::Needed},
    {u"miEGotoLine", GotoLine, Document::Needed},
    {u"miECommentOut", CommentOut, Document::Needed},
    {u"miEIndent", Indent, Document::Needed},
    {u"miEOutdent", Outdent, Document::Needed},
    {u"miEFormatStyleSheet", FormatStyleSheetText, Document::Needed},
    {u"miEValidate", ValidateStyleSheet, Document::Needed},
    {u"miWNew", LoadNewDoc, Document::NotNeeded},
    {u"miWPropertiesEditor miWSelectorsEditor",
     ShowFloatingWindowAndUpdate,
     Document::NotNeeded,
     {u"dwPropertiesEditor", u"dwSelectorsEditor"}},
    {u"miWInfoFloater", ShowCurrentInfo, Document::NotNeeded},
    {u"miWCompatibilityFloater", ShowCurrentCompatabilityInfo, Document::NotNeeded},
    {u"miWBrowserSupportFloater", ShowFloatingWindow, Document::NotNeeded, {u"dwBrowserSupport"}},
    {u"miWShowAllPalettes", ShowPalettes, Document::NotNeeded},
    {u"miWHideAllPalettes", HidePalettes, Document::NotNeeded},
    {u"miWShowAllToolbars", ShowAllToolbars, Document::NotNeeded},
    {u"miWHideAllToolbars", HideAllToolbars, Document::NotNeeded},
    {u"miWUseEditLayout miWUseDesignLayout miWUseStandardLayout",
     UseLayout,
     Document::NotNeeded,
     {u"Edit", u"Designer", u"Standard"}},
    {u"miPPreviewNow tbPreview", PreviewNow, Document::Needed},
    {u"miPCurrentRule", PreviewCurrentRule, Document::Needed},
    {u"miPLivePreview", ToggleLivePreview, Document::NotNeeded},
    {u"miPManageDocuments", ManagePreviewDocuments, Document::NotNeeded},
    {u"miPManageBrowsers", ManagePreviewBrowsers, Document::NotNeeded},
    {u"miPPreviewInIE", PreviewInIE, Document::Needed},
    {u"miPPreviewInNS", PreviewInNS, Document::Needed},
    {u"miPPreviewInOpera", PreviewInOpera, Document::Needed},
    {u"miPPreviewinMoz", PreviewInMozilla, Document::Needed},
    {u"miPPreviewIn1", PreviewIn1, Document::Needed},
    {u"miSNew miSNewStatement", NewStatement, Document::Needed},
    {u"miSEdit", EditStatement, Document::Needed},
    {u"miSRemove", RemoveStatement, Document::Needed},
    {u"miSDuplicate", DuplicateStatement, Document::Needed},
    {u"miSNewComment", NewStatement, Document::Needed, {u"Comment"}},
    {u"miSNewAtImport", NewAtImportRule, Document::Needed},
    {u"miSNewAtMedia", NewAtMediaRule, Document::Needed},
    {u"miTypeSelector miLinkSelector miClassSelector miGroupSelector miIDSelector",
     NewStatement,
     Document::Needed,
     {u"Type", u"Link", u"Class", u"Group", u"ID"}},
    {u"miTDescendantSelector miDescendantSelector miDynamicSelector miLanguageSelector miTypographicalSelector",
     NewStatement,
     Document::Needed,
     {u"Descendant", u"Descendant", u"Dynamic", u"Language", u"Typographical"}},
    {u"miGeneratedContentSelector miFirstChildSelector miChildSelector miAdjacentSiblingSelector miAttributeSelector",
     NewStatement,
     Document::Needed,
     {u"Generated Content", u"First Child", u"Child", u"Adjacent Sibling", u"Attribute"}},
    {u"miAllLinkStates miAllBasicText miAllHeadingLevels miAllTable miAllForm",
     NewStatement,
     Document::Needed,
     {u"All Link States", u"All Basic Text", u"All Heading Levels", u"All Table", u"All Form"}},
    {u"miPropsTextStyle miPropsText miPropsBackground miPropsBorder miPropsMargin miPropsPadding miPropsDisplayType",
     OpenPropertyEditor,
     Document::NotNeeded,
     {u"Text Style Editor", u"Text Editor", u"Background Editor", u"Border Editor", u"Margin Editor", u"Padding Editor",
      u"Display Type Editor"}},
    {u"miPropsPageLayout miPropsUI miPropsAdvancedLayout miPropsAdvancedText miPropsPageBreak miPropsQuotes "
     u"miPropsContent",
     OpenPropertyEditor,
     Document::NotNeeded,
     {u"Page Layout Editor", u"User Interface Editor", u"Advanced Layout Editor", u"Advanced Text Editor",
      u"Page Break Editor", u"Quotes Editor", u"Content Editor"}},
    {u"miFoFont", EditMoreFonts, Document::Needed},
    {u"cbBPFontFamily cbBPFontSize", PropertyHasChanged, Document::Needed, {u"font-family", u"font-size"}},
    {u"miFoBold", ToggleBold, Document::Needed},
    {u"miFoItalic", ToggleItalic, Document::Needed},
    {u"miFoUnderline", ToggleUnderline, Document::Needed},
    {u"miFoStrikeThrough", ToggleLinethrough, Document::Needed},
    {u"miFoLeft miFoCenter miFoRight miFoJustify",
     ToggleTextAlign,
     Document::Needed,
     {u"left", u"center", u"right", u"justify"}},
    {u"miColor", EditColorGM, Document::Needed},
    {u"miBackgroundColor", EditBackgroundColorGM, Document::Needed},
    {u"mnuHManual miHManualContents", ShowManualPage, Document::NotNeeded},
    {u"miHManualFile miHManualEdit miHManualStyle miHManualStatement miHManualPreview miHManualWindow",
     ShowManualPage,
     Document::NotNeeded,
     {u"File", u"Edit", u"Style", u"Statement", u"Preview", u"Window"}},
    {u"miHManualHandCoding miHManualPropertiesEditors miHManualPalettes miHManualWorkSpace miHManualOptions "
     u"miHManualIndex",
     ShowManualPage,
     Document::NotNeeded,
     {u"HandCoding", u"Properties", u"Palettes", u"WorkSpace", u"Options", u"Index"}},
    {u"miHTutorial", ShowTutorial, Document::NotNeeded},
    {u"miHAbout", About, Document::NotNeeded},
    {u"miHFAQ", FAQ, Document::NotNeeded},
    {u"miHTips", Tips, Document::NotNeeded},
    {u"miWizBreadCrumb", NewBreadCrumbWizard, Document::Needed},
    {u"miWizLink", NewLinkWizard, Document::Needed},
    {u"miWizLayout", NewLayoutWizard, Document::NotNeeded},
    {u"miWizNavbar", NewNavbarWizard, Document::Needed},
};

/// The cases with one row a key.
std::vector<Command> ExpectedCommands(const std::vector<Texts>& keys) {
    std::vector<Command> expected;
    for (std::size_t row = 0; row < OperationCases.size(); ++row) {
        for (std::size_t place = 0; place < keys[row].size(); ++place) {
            const Texts& parameters = OperationCases[row].parameters;
            expected.push_back({keys[row][place], OperationCases[row].operation,
                                parameters.empty() ? TextView() : TextView(parameters.at(place))});
        }
    }
    return expected;
}

TEST(Commands, EveryKeyHasItsOperationAndWhatItIsGivenInTheFixedOrder) {
    std::vector<Texts> keys;
    for (const OperationCase& row : OperationCases)
        keys.push_back(GetWordsFromText(row.keys, u" "));
    const std::vector<Command> expected = ExpectedCommands(keys);
    ASSERT_EQ(Commands().size(), expected.size());
    for (std::size_t place = 0; place < expected.size(); ++place) {
        SCOPED_TRACE(Utf8FromText(expected[place].key));
        EXPECT_EQ(Utf8FromText(Commands()[place].key), Utf8FromText(expected[place].key));
        EXPECT_EQ(Commands()[place].operation, expected[place].operation);
        EXPECT_EQ(Utf8FromText(Commands()[place].parameter), Utf8FromText(expected[place].parameter));
        EXPECT_EQ(CommandFor(expected[place].key), &Commands()[place]) << "the first that has the key";
    }
}

TEST(Commands, AnOperationOnTheActiveDocumentNeedsOne) {
    for (const OperationCase& row : OperationCases)
        EXPECT_EQ(NeedsDocument(row.operation), row.document == Document::Needed) << Utf8FromText(row.keys);
    EXPECT_FALSE(NeedsDocument(ShowOnlinePage));
}

struct UnknownCase {
    Text key;
    bool isOnline;
};

const std::vector<UnknownCase> UnknownCases = {
    {u"miH", true},          {u"miHW3C", true},
    {u"miHManual", true},    {u"miHManualFile ", true},
    {u"miHabout", true},     {u"", false},
    {u"mi", false},          {u"MIHAbout", false},
    {u"mihAbout", false},    {u" miHAbout", false},
    {u"mifnew", false},      {u"miFNew ", false},
    {u"mnuHManuals", false}, {u"miPPreviewInMoz", false},
};

TEST(Commands, OtherKeysOfTheHelpMenuOpenAPageAndAnyOtherIsNoCommand) {
    for (const UnknownCase& row : UnknownCases) {
        SCOPED_TRACE(Utf8FromText(row.key));
        const Command* const command = CommandFor(row.key);
        ASSERT_EQ(command != nullptr, row.isOnline);
        if (row.isOnline) {
            EXPECT_EQ(*command, (Command{u"miH", ShowOnlinePage}));
        }
        EXPECT_TRUE(KeysSharing(row.key).empty());
    }
}

struct SharedCase {
    Text key;
    Text keys;
};

const std::vector<SharedCase> SharedCases = {
    {u"miFNew", u"miFNew tbpFNew cbSNew miWNew"},
    {u"miWNew", u"miFNew tbpFNew cbSNew miWNew"},
    {u"pOpenStyleSheet", u"miFOpen pOpenStyleSheet"},
    {u"tbPreview", u"miPPreviewNow tbPreview"},
    {u"miSNew", u"miSNew miSNewStatement"},
    {u"miSNewComment", u"miSNewComment"},
    {u"miDescendantSelector", u"miTDescendantSelector miDescendantSelector"},
    {u"miHManualContents", u"mnuHManual miHManualContents"},
    {u"miFSave", u"miFSave"},
};

TEST(Commands, KeysShareACommandWithAllThatItIsGiven) {
    for (const SharedCase& row : SharedCases) {
        Texts keys;
        for (const TextView key : KeysSharing(row.key))
            keys.emplace_back(key);
        EXPECT_EQ(keys, GetWordsFromText(row.keys, u" ")) << Utf8FromText(row.key);
    }
}

TEST(Commands, NoKeyStandsTwice) {
    std::set<TextView> keys;
    for (const Command& command : Commands())
        EXPECT_TRUE(keys.insert(command.key).second) << Utf8FromText(command.key);
}

TEST(Commands, WhatACommandIsGivenExists) {
    for (const Command& command : Commands()) {
        SCOPED_TRACE(Utf8FromText(command.key));
        if (command.operation == ShowFloatingWindow || command.operation == ShowFloatingWindowAndUpdate) {
            const auto pane = std::ranges::find(Panes, command.parameter, &Pane::key);
            ASSERT_NE(pane, Panes.end());
            EXPECT_EQ(pane->menuItem, command.key);
        }
        if (command.operation == ShowManualPage && !command.parameter.empty()) {
            EXPECT_NE(ManualPage(command.parameter), u"index.html");
        }
        if (command.operation == ToggleTextAlign) {
            const auto tool = std::ranges::find(TextAlignTools, command.parameter, &TextAlignTool::alignment);
            ASSERT_NE(tool, TextAlignTools.end());
            EXPECT_EQ(tool->key, command.key);
        }
    }
    EXPECT_EQ(PropertyNumberFromName(CommandFor(u"cbBPFontFamily")->parameter), 1011);
    EXPECT_EQ(PropertyNumberFromName(CommandFor(u"cbBPFontSize")->parameter), 1001);
}

TEST(Commands, TheToolsOfTheCorePropertiesAreCommands) {
    for (const TextView key : CorePropertyTools) {
        const Command* const command = CommandFor(key);
        ASSERT_NE(command, nullptr) << Utf8FromText(key);
        EXPECT_TRUE(NeedsDocument(command->operation)) << Utf8FromText(key);
    }
}

}  // namespace
}  // namespace tintora
