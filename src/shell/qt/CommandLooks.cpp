#include "shell/qt/CommandLooks.h"

#include <algorithm>
#include <vector>

namespace tintora {

namespace {

using Looks = std::vector<ActionLook>;

const ActionLook Separator{MenuSeparator};

const Looks& FileMenu() {
    static const Looks Entries = {
        {"miFNew", "&New", "document-new", QKeySequence::New, "Opens a new style sheet"},
        {"miFOpen", "&Open…", "document-open", QKeySequence::Open,
         "Opens a style sheet, or the one that is embedded in a page"},
        {"mnuFOpenRecent"},
        Separator,
        {"miFSave", "&Save", "document-save", QKeySequence::Save, "Saves the style sheet"},
        {"miFSaveAs", "Save &As…", "document-save-as", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
         "Saves the style sheet in another file"},
        {"miFSaveAll", "Save A&ll", "document-save-all", {}, "Saves all style sheets that have changed"},
        Separator,
        {"miFLinkPage", "Lin&k Page…", "insert-link", {}, "Links an HTML page to the style sheet"},
        {"miFLinkSite",
         "Link Si&te…",
         "",
         {},
         "Links every HTML page of a folder and its subfolders to the style sheet"},
        {"miFEmbedStyleSheet",
         "&Embed in Page…",
         "",
         {},
         "Puts the style sheet into an HTML page, and goes on with it there"},
        Separator,
        {"miFPageSetup", "Page Set&up…", "", {}, "Chooses the paper and its margins"},
        {"miFPrint", "&Print…", "document-print", QKeySequence::Print, "Prints the style sheet"},
        Separator,
        {"miFOptions", "Opt&ions…", "configure", QKeySequence(Qt::CTRL | Qt::Key_Comma),
         "Changes how the program works and looks"},
        Separator,
        {"miFCloseWindow", "&Close", "document-close", QKeySequence::Close, "Closes the style sheet"},
        {"miFExit", "&Quit", "application-exit", QKeySequence(Qt::CTRL | Qt::Key_Q), "Closes all style sheets"},
    };
    return Entries;
}

const Looks& EditMenu() {
    static const Looks Entries = {
        {"miEUndo", "&Undo", "edit-undo", QKeySequence::Undo, "Takes the last change back"},
        {"miERedo", "&Redo", "edit-redo", QKeySequence::Redo, "Makes the change again"},
        Separator,
        {"miECut", "Cu&t", "edit-cut", QKeySequence::Cut, "Moves the selection to the clipboard"},
        {"miECopy", "&Copy", "edit-copy", QKeySequence::Copy, "Copies the selection"},
        {"miEPaste", "&Paste", "edit-paste", QKeySequence::Paste, "Inserts the clipboard"},
        {"miEClear", "C&lear", "edit-clear", {}, "Deletes the selection"},
        {"miESelectAll", "Select &All", "edit-select-all", QKeySequence::SelectAll, "Selects the whole text"},
        Separator,
        {"miEFind", "&Find…", "edit-find", QKeySequence::Find, "Finds text"},
        {"miEFindNext", "Find &Next", "go-down-search", QKeySequence(Qt::Key_F3), "Finds the next match"},
        {"miEReplace", "R&eplace…", "edit-find-replace", QKeySequence(Qt::CTRL | Qt::Key_H), "Finds and replaces text"},
        {"miEGotoLine", "&Go to Line…", "go-jump", QKeySequence(Qt::CTRL | Qt::Key_G), "Goes to a line by its number"},
        Separator,
        {"miECommentOut", "Co&mment Out", "edit-comment", QKeySequence(Qt::CTRL | Qt::Key_Slash),
         "Makes a comment of the selection"},
        {"miEIndent", "&Indent", "format-indent-more", QKeySequence(Qt::CTRL | Qt::Key_BracketRight),
         "Indents the selected lines"},
        {"miEOutdent", "&Outdent", "format-indent-less", QKeySequence(Qt::CTRL | Qt::Key_BracketLeft),
         "Outdents the selected lines"},
        {"miEFormatStyleSheet", "Format &Style Sheet", "format-text-code",
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F), "Lays out the white space of the whole style sheet anew"},
        Separator,
        {"miEValidate", "&Validate", "document-edit-verify", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V),
         "Has the W3C's validator judge the style sheet, in a browser"},
    };
    return Entries;
}

/// The looks of these commands are those of the toolbar of core properties, which shares its actions with the menu.
const Looks& StyleMenu() {
    static const Looks Entries = {
        {"mnuFoEditors"},
        {"miFoProperty", "Edit &Property", "", QKeySequence(Qt::CTRL | Qt::Key_E),
         "Goes to the control for the property at the caret"},
        Separator,
        {"miFoFont", "&Fonts…", "preferences-desktop-font", {}, "Composes the fonts of the rule's text"},
        Separator,
        {"miFoBold"},
        {"miFoItalic"},
        {"miFoUnderline"},
        {"miFoStrikeThrough"},
        Separator,
        {"miFoLeft"},
        {"miFoCenter"},
        {"miFoRight"},
        {"miFoJustify"},
        Separator,
        {"miColor"},
        {"miBackgroundColor"},
    };
    return Entries;
}

const Looks& EditorsMenu() {
    static const Looks Entries = {
        {"miPropsTextStyle", "Text &Style", "", {}, "Color, fonts and decoration of the text"},
        {"miPropsText", "&Text", "", {}, "Spacing, alignment and line height of the text"},
        {"miPropsBackground", "&Background", "", {}, "Color and image of the ground"},
        {"miPropsBorder", "B&order", "", {}, "Style, width and color of the borders"},
        {"miPropsMargin", "&Margin", "", {}, "The space around the border"},
        {"miPropsPadding", "P&adding", "", {}, "The space within the border"},
        {"miPropsPageLayout", "Page &Layout", "", {}, "Position and size"},
        {"miPropsDisplayType", "&Display Type", "", {}, "Blocks, lists and tables"},
        Separator,
        {"miPropsAdvancedText", "Ad&vanced Text", "", {}, "Small capitals, letter case and direction of the text"},
        {"miPropsAdvancedLayout", "Advan&ced Layout", "", {}, "What overflows, floats and is clipped"},
        {"miPropsUI", "&User Interface", "", {}, "Cursor and outline"},
        {"miPropsPageBreak", "Page B&reak", "", {}, "Where printed pages end"},
        {"miPropsQuotes", "&Quotes", "", {}, "The quotation marks"},
        {"miPropsContent", "Co&ntent", "", {}, "What is generated before and after an element"},
    };
    return Entries;
}

const Looks& StatementMenu() {
    static const Looks Entries = {
        {"mnuSRules"},
        Separator,
        {"miSDuplicate", "&Duplicate", "edit-duplicate", QKeySequence(Qt::CTRL | Qt::Key_D),
         "Copies the statement at the caret behind itself"},
        {"miSRemove", "&Remove", "edit-delete", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D),
         "Removes the statement at the caret"},
    };
    return Entries;
}

const Looks& RulesMenu() {
    static const Looks Entries = {
        {"miAllLinkStates",
         "All &Link States",
         "",
         {},
         "Inserts rules for links: not visited, visited, under the pointer, active"},
        {"miAllHeadingLevels", "All &Heading Levels", "", {}, "Inserts rules for the six levels of headings"},
        {"miAllBasicText", "All &Basic Text", "", {}, "Inserts rules for the page, its paragraphs and its headings"},
        {"miAllTable", "All &Table", "", {}, "Inserts rules for the parts of tables"},
        {"miAllForm", "All &Form", "", {}, "Inserts rules for forms and their controls"},
    };
    return Entries;
}

const Looks& PreviewMenu() {
    static const Looks Entries = {
        {"miPPreviewNow", "&Preview Now", "view-refresh", QKeySequence(Qt::Key_F5),
         "Shows the style sheet on the preview document"},
        {"miPCurrentRule", "Preview Current &Rule", "", QKeySequence(Qt::SHIFT | Qt::Key_F5),
         "Shows the rule at the caret on a paragraph"},
        {"miPLivePreview", "&Live Preview", "", {}, "Previews each change a moment after it"},
        Separator,
        {"miPPreviewInIE", "Preview in Default Browser", "internet-web-browser", QKeySequence(Qt::Key_F12),
         "Shows the style sheet in the system's own browser"},
        {"miPPreviewInNS", "Preview in Chromium", "", {}, "Shows the style sheet in this browser"},
        {"miPPreviewInOpera", "Preview in Opera", "", {}, "Shows the style sheet in this browser"},
        {"miPPreviewinMoz", "Preview in Firefox", "", {}, "Shows the style sheet in this browser"},
        Separator,
        {"miPPreviewIn1", "Preview in Another Browser", "", QKeySequence(Qt::SHIFT | Qt::Key_F12),
         "Shows the style sheet in this browser"},
        Separator,
        {"miPManageDocuments", "Manage Preview &Documents…", "", {}, "Adds and removes pages for previews"},
        {"miPManageBrowsers", "Manage Preview &Browsers…", "", {}, "Says where the browsers are, and adds others"},
    };
    return Entries;
}

const Looks& WindowMenu() {
    static const Looks Entries = {
        {"miWSelectorsEditor", "&Statements", "view-list-tree", {}, "Shows or hides the list of statements"},
        {"miWPropertiesEditor", "P&roperties", "document-properties", QKeySequence(Qt::Key_F4),
         "Shows or hides the forms for the properties of the current rule"},
        Separator,
        {"miWShowAllPalettes", "Show All &Palettes", "", {}, "Shows every palette"},
        {"miWHideAllPalettes", "&Hide All Palettes", "", {}, "Leaves the text alone in the window"},
        {"miWShowAllToolbars", "Show All &Toolbars", "", {}, "Shows every toolbar"},
        {"miWHideAllToolbars", "Hide All T&oolbars", "", {}, "Hides every toolbar"},
        Separator,
        {"mnuWLayouts"},
        Separator,
        {"miWNextPane", "Next Pa&ne", "", QKeySequence(Qt::Key_F6), "Goes round the text and the palettes"},
        {"miWNextDocument", "Next St&yle Sheet", "", QKeySequence(Qt::CTRL | Qt::Key_Tab), "Goes to the next tab"},
        {"miWPreviousDocument", "Pre&vious Style Sheet", "", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab),
         "Goes to the tab before"},
    };
    return Entries;
}

const Looks& LayoutsMenu() {
    static const Looks Entries = {
        {"miWUseStandardLayout", "&Standard", "", {}, "All palettes and toolbars"},
        {"miWUseEditLayout", "&Edit", "", {}, "Properties and statements on the right, for writing by hand"},
        {"miWUseDesignLayout", "&Designer", "", {}, "Properties, statements, browser support and preview"},
    };
    return Entries;
}

const Looks& HelpMenu() {
    static const Looks Entries = {
        {"mnuHOnline"},
        Separator,
        {"miHAbout", "&About Tintora", "help-about", {}, "Tells what the program is"},
    };
    return Entries;
}

}  // namespace

std::span<const MenuLook> MenuLooks() {
    static const std::vector<MenuLook> Menus = {
        {"mnuFile", "&File", FileMenu()},          {"mnuEdit", "&Edit", EditMenu()},
        {"mnuStyle", "St&yle", StyleMenu()},       {"mnuStatement", "&Statement", StatementMenu()},
        {"mnuPreview", "&Preview", PreviewMenu()}, {"mnuWindow", "&Window", WindowMenu()},
        {"mnuHelp", "&Help", HelpMenu()},
    };
    return Menus;
}

MenuLook SubmenuLook(QLatin1String key) {
    static const std::vector<MenuLook> Submenus = {
        {"mnuFOpenRecent", "Open &Recent", {}},
        {"mnuFoEditors", "&Editors", EditorsMenu()},
        {"mnuSRules", "&New Rules", RulesMenu()},
        {"mnuWLayouts", "&Layout", LayoutsMenu()},
        {"mnuHOnline", "&Online", {}},
    };
    return *std::find_if(Submenus.begin(), Submenus.end(),
                         [=](const MenuLook& menu) { return key == QLatin1String(menu.key); });
}

}  // namespace tintora
