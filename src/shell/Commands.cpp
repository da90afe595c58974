#include "shell/Commands.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

using enum CommandOperation;

constexpr auto CommandTable = std::to_array<Command>({
    {u"miFNew", LoadNewDoc},
    {u"tbpFNew", LoadNewDoc},
    {u"cbSNew", LoadNewDoc},
    {u"miFNewStyleSheetWizard", NewStyleSheetWizard},
    {u"miFNewFromTemplate", NewLayout},
    {u"miFOpen", OpenStyleSheet},
    {u"pOpenStyleSheet", OpenStyleSheet},
    {u"miFClearOpen", ClearOpenMenu},
    {u"miFCloseWindow", CloseWindow},
    {u"MRUFileList", OpenRecentFile},
    {u"miFSave", SaveStyleSheet},
    {u"miFSaveAs", SaveStyleSheetAs},
    {u"miFSaveAll", SaveAllStyleSheets},
    {u"miFLinkPage", LinkStyleSheet},
    {u"miFLinkPageAdvanced", LinkPageAdvanced},
    {u"miFLinkSite", LinkSite},
    {u"miFLinkSiteAdvanced", LinkSiteAdvanced},
    {u"miFEmbedStyleSheet", EmbedStylesheet},
    {u"miFEmbedAdvanced", EmbedStylesheetAdvanced},
    {u"miFPrint", PrintStyleSheet},
    {u"miFPrintPreview", DoNothing},
    {u"miFPageSetup", PageSetup},
    {u"miFOptions", EditOptions},
    {u"miFExit", Exit},

    {u"miEPaste", Paste},
    {u"miEUndo", Undo},
    {u"miERedo", Redo},
    {u"miECut", Cut},
    {u"miECopy", Copy},
    {u"miEClear", Clear},
    {u"miESelectAll", SelectAll},
    {u"miEFind", Find},
    {u"miEFindNext", FindAgain},
    {u"miEReplace", Replace},
    {u"miEGotoLine", GotoLine},
    {u"miECommentOut", CommentOut},
    {u"miEIndent", Indent},
    {u"miEOutdent", Outdent},
    {u"miEFormatStyleSheet", FormatStyleSheetText},
    {u"miEValidate", ValidateStyleSheet},

    {u"miWNew", LoadNewDoc},
    {u"miWPropertiesEditor", ShowFloatingWindowAndUpdate, u"dwPropertiesEditor"},
    {u"miWSelectorsEditor", ShowFloatingWindowAndUpdate, u"dwSelectorsEditor"},
    {u"miWInfoFloater", ShowCurrentInfo},
    {u"miWCompatibilityFloater", ShowCurrentCompatabilityInfo},
    {u"miWBrowserSupportFloater", ShowFloatingWindow, u"dwBrowserSupport"},
    {u"miWShowAllPalettes", ShowPalettes},
    {u"miWHideAllPalettes", HidePalettes},
    {u"miWShowAllToolbars", ShowAllToolbars},
    {u"miWHideAllToolbars", HideAllToolbars},
    {u"miWUseEditLayout", UseLayout, u"Edit"},
    {u"miWUseDesignLayout", UseLayout, u"Designer"},
    {u"miWUseStandardLayout", UseLayout, u"Standard"},

    {u"miPPreviewNow", PreviewNow},
    {u"tbPreview", PreviewNow},
    {u"miPCurrentRule", PreviewCurrentRule},
    {u"miPLivePreview", ToggleLivePreview},
    {u"miPManageDocuments", ManagePreviewDocuments},
    {u"miPManageBrowsers", ManagePreviewBrowsers},
    {u"miPPreviewInIE", PreviewInIE},
    {u"miPPreviewInNS", PreviewInNS},
    {u"miPPreviewInOpera", PreviewInOpera},
    {u"miPPreviewinMoz", PreviewInMozilla},
    {u"miPPreviewIn1", PreviewIn1},

    {u"miSNew", NewStatement},
    {u"miSNewStatement", NewStatement},
    {u"miSEdit", EditStatement},
    {u"miSRemove", RemoveStatement},
    {u"miSDuplicate", DuplicateStatement},
    {u"miSNewComment", NewStatement, u"Comment"},
    {u"miSNewAtImport", NewAtImportRule},
    {u"miSNewAtMedia", NewAtMediaRule},
    {u"miTypeSelector", NewStatement, u"Type"},
    {u"miLinkSelector", NewStatement, u"Link"},
    {u"miClassSelector", NewStatement, u"Class"},
    {u"miGroupSelector", NewStatement, u"Group"},
    {u"miIDSelector", NewStatement, u"ID"},
    {u"miTDescendantSelector", NewStatement, u"Descendant"},
    {u"miDescendantSelector", NewStatement, u"Descendant"},
    {u"miDynamicSelector", NewStatement, u"Dynamic"},
    {u"miLanguageSelector", NewStatement, u"Language"},
    {u"miTypographicalSelector", NewStatement, u"Typographical"},
    {u"miGeneratedContentSelector", NewStatement, u"Generated Content"},
    {u"miFirstChildSelector", NewStatement, u"First Child"},
    {u"miChildSelector", NewStatement, u"Child"},
    {u"miAdjacentSiblingSelector", NewStatement, u"Adjacent Sibling"},
    {u"miAttributeSelector", NewStatement, u"Attribute"},
    {u"miAllLinkStates", NewStatement, u"All Link States"},
    {u"miAllBasicText", NewStatement, u"All Basic Text"},
    {u"miAllHeadingLevels", NewStatement, u"All Heading Levels"},
    {u"miAllTable", NewStatement, u"All Table"},
    {u"miAllForm", NewStatement, u"All Form"},

    {u"miPropsTextStyle", OpenPropertyEditor, u"Text Style Editor"},
    {u"miPropsText", OpenPropertyEditor, u"Text Editor"},
    {u"miPropsBackground", OpenPropertyEditor, u"Background Editor"},
    {u"miPropsBorder", OpenPropertyEditor, u"Border Editor"},
    {u"miPropsMargin", OpenPropertyEditor, u"Margin Editor"},
    {u"miPropsPadding", OpenPropertyEditor, u"Padding Editor"},
    {u"miPropsDisplayType", OpenPropertyEditor, u"Display Type Editor"},
    {u"miPropsPageLayout", OpenPropertyEditor, u"Page Layout Editor"},
    {u"miPropsUI", OpenPropertyEditor, u"User Interface Editor"},
    {u"miPropsAdvancedLayout", OpenPropertyEditor, u"Advanced Layout Editor"},
    {u"miPropsAdvancedText", OpenPropertyEditor, u"Advanced Text Editor"},
    {u"miPropsPageBreak", OpenPropertyEditor, u"Page Break Editor"},
    {u"miPropsQuotes", OpenPropertyEditor, u"Quotes Editor"},
    {u"miPropsContent", OpenPropertyEditor, u"Content Editor"},
    {u"miFoFont", EditMoreFonts},
    {u"cbBPFontFamily", PropertyHasChanged, u"font-family"},
    {u"cbBPFontSize", PropertyHasChanged, u"font-size"},
    {u"miFoBold", ToggleBold},
    {u"miFoItalic", ToggleItalic},
    {u"miFoUnderline", ToggleUnderline},
    {u"miFoStrikeThrough", ToggleLinethrough},
    {u"miFoLeft", ToggleTextAlign, u"left"},
    {u"miFoCenter", ToggleTextAlign, u"center"},
    {u"miFoRight", ToggleTextAlign, u"right"},
    {u"miFoJustify", ToggleTextAlign, u"justify"},
    {u"miColor", EditColorGM},
    {u"miBackgroundColor", EditBackgroundColorGM},

    {u"mnuHManual", ShowManualPage},
    {u"miHManualContents", ShowManualPage},
    {u"miHManualFile", ShowManualPage, u"File"},
    {u"miHManualEdit", ShowManualPage, u"Edit"},
    {u"miHManualStyle", ShowManualPage, u"Style"},
    {u"miHManualStatement", ShowManualPage, u"Statement"},
    {u"miHManualPreview", ShowManualPage, u"Preview"},
    {u"miHManualWindow", ShowManualPage, u"Window"},
    {u"miHManualHandCoding", ShowManualPage, u"HandCoding"},
    {u"miHManualPropertiesEditors", ShowManualPage, u"Properties"},
    {u"miHManualPalettes", ShowManualPage, u"Palettes"},
    {u"miHManualWorkSpace", ShowManualPage, u"WorkSpace"},
    {u"miHManualOptions", ShowManualPage, u"Options"},
    {u"miHManualIndex", ShowManualPage, u"Index"},
    {u"miHTutorial", ShowTutorial},
    {u"miHAbout", About},
    {u"miHFAQ", FAQ},
    {u"miHTips", Tips},

    {u"miWizBreadCrumb", NewBreadCrumbWizard},
    {u"miWizLink", NewLinkWizard},
    {u"miWizLayout", NewLayoutWizard},
    {u"miWizNavbar", NewNavbarWizard},
});

constexpr auto WithDocument = std::to_array<CommandOperation>({
    CloseWindow,
    SaveStyleSheet,
    SaveStyleSheetAs,
    SaveAllStyleSheets,
    LinkStyleSheet,
    LinkPageAdvanced,
    LinkSite,
    LinkSiteAdvanced,
    EmbedStylesheet,
    EmbedStylesheetAdvanced,
    PrintStyleSheet,
    Undo,
    Redo,
    SelectAll,
    Find,
    FindAgain,
    Replace,
    GotoLine,
    CommentOut,
    Indent,
    Outdent,
    FormatStyleSheetText,
    ValidateStyleSheet,
    PreviewNow,
    PreviewCurrentRule,
    PreviewInIE,
    PreviewInNS,
    PreviewInOpera,
    PreviewInMozilla,
    PreviewIn1,
    NewStatement,
    EditStatement,
    RemoveStatement,
    DuplicateStatement,
    NewAtImportRule,
    NewAtMediaRule,
    EditMoreFonts,
    PropertyHasChanged,
    ToggleBold,
    ToggleItalic,
    ToggleUnderline,
    ToggleLinethrough,
    ToggleTextAlign,
    EditColorGM,
    EditBackgroundColorGM,
    NewBreadCrumbWizard,
    NewLinkWizard,
    NewNavbarWizard,
});

constexpr TextView OnlinePrefix = u"miH";
constexpr Command OnlinePageCommand{OnlinePrefix, ShowOnlinePage};

}  // namespace

std::span<const Command> Commands() noexcept { return CommandTable; }

const Command* CommandFor(TextView key) noexcept {
    const auto found = std::ranges::find(CommandTable, key, &Command::key);
    if (found != CommandTable.end())
        return &*found;
    return key.starts_with(OnlinePrefix) ? &OnlinePageCommand : nullptr;
}

std::vector<TextView> KeysSharing(TextView key) {
    std::vector<TextView> keys;
    const Command* const shared = CommandFor(key);
    if (shared == nullptr || shared->key != key)
        return keys;
    for (const Command& command : CommandTable) {
        if (command.operation == shared->operation && command.parameter == shared->parameter)
            keys.push_back(command.key);
    }
    return keys;
}

bool NeedsDocument(CommandOperation operation) noexcept {
    return std::ranges::find(WithDocument, operation) != WithDocument.end();
}

}  // namespace tintora
