#include "shell/DocumentMenus.h"

#include "editor/EditorRecorders.h"
#include "language/Words.h"
#include "shell/Commands.h"
#include "shell/CorePropertiesToolbar.h"
#include "text/Encoding.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace tintora::test {
namespace {

const Texts Enabled = {
    u"miFCloseWindow miFSaveAs miFSaveAll miFLinkPage miFLinkPageAdvanced miFLinkSite miFLinkSiteAdvanced",
    u"miFEmbedStyleSheet miFEmbedAdvanced miFPrint",
    u"miEFind miEFindNext miEReplace miEGotoLine miEIndent miEOutdent miEFormatStyleSheet miEValidate",
    u"miPPreviewNow tbPreview miPCurrentRule",
    u"miPPreviewInIE miPPreviewInNS miPPreviewInOpera miPPreviewinMoz miPPreviewIn1",
    u"miSNewStatement miSNewComment miSNewAtMedia",
    u"miTypeSelector miLinkSelector miClassSelector miGroupSelector miIDSelector miTDescendantSelector",
    u"miDescendantSelector miDynamicSelector miLanguageSelector miTypographicalSelector miGeneratedContentSelector",
    u"miFirstChildSelector miChildSelector miAdjacentSiblingSelector miAttributeSelector",
    u"miAllLinkStates miAllBasicText miAllHeadingLevels miAllTable miAllForm",
    u"miWizBreadCrumb miWizLink miWizNavbar",
};

/// Ruled by something else as long as a document is open, and off without one.
const Texts DisabledBesides = {
    u"miFSave miSNewAtImport",
    u"miEUndo miERedo miECut miECopy miEPaste miEClear miESelectAll miECommentOut",
    u"miSNew miSEdit miSRemove miSDuplicate",
    u"cbBPFontFamily cbBPFontSize miFoLeft miFoRight miFoCenter miFoJustify miFoBold miFoItalic miFoUnderline",
    u"miFoStrikeThrough miColor miBackgroundColor miFoFont",
};

Texts KeysIn(const Texts& lines) { return GetWordsFromText(JoinItems(lines, u" "), u" "); }

std::multiset<Text> Sorted(const std::vector<TextView>& keys) { return {keys.begin(), keys.end()}; }

TEST(DocumentMenus, ADocumentEnablesWhatActsOnIt) {
    Texts keys;
    for (const TextView key : MenusToEnable())
        keys.emplace_back(key);
    EXPECT_EQ(keys, KeysIn(Enabled));
}

TEST(DocumentMenus, AClosedDocumentDisablesThatAndWhatFollowedItsState) {
    Texts expected = KeysIn(Enabled);
    std::ranges::copy(KeysIn(DisabledBesides), std::back_inserter(expected));
    EXPECT_EQ(Sorted(MenusToDisable()), std::multiset<Text>(expected.begin(), expected.end()));
}

TEST(DocumentMenus, WhatNeedsNoDocumentIsLeftAlone) {
    for (const TextView key : {u"miFNew", u"miFOpen", u"miFExit", u"miFPageSetup", u"miFOptions", u"miPLivePreview",
                               u"miWSelectorsEditor", u"miWUseEditLayout", u"miHAbout", u"miWizLayout"})
        EXPECT_EQ(std::ranges::count(MenusToDisable(), key), 0) << Utf8FromText(key);
}

using DocumentMenusWithEditor = EditorTest;

TEST_F(DocumentMenusWithEditor, WhatTheEditorRulesIsDisabledButNeverEnabled) {
    Load(u"a|");
    editor_.UpdateMenu();
    ASSERT_FALSE(frame_.items.empty());
    for (const auto& [item, isEnabled] : frame_.items) {
        const Text key = TextFromUtf8(item);
        EXPECT_EQ(std::ranges::count(MenusToEnable(), key), 0) << item;
        EXPECT_EQ(std::ranges::count(MenusToDisable(), key), 1) << item;
    }
}

}  // namespace
}  // namespace tintora::test
