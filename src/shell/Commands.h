#pragma once

#include "text/Text.h"

#include <span>
#include <vector>

/// Every command of the main window: which key stands for which operation.
///
/// A key is the name of a tool: menu items begin with "mi", buttons with "tb", combo boxes with "cb", menus with "mnu".
/// What a tool looks like is no part of this.
///
///     const Command* command = CommandFor(u"miClassSelector");
///     command->operation          // CommandOperation::NewStatement
///     command->parameter          // "Class"
namespace tintora {

/// What a command does. An operation that needs a document does nothing without one.
enum class CommandOperation {
    LoadNewDoc,
    NewStyleSheetWizard,
    NewLayout,
    OpenStyleSheet,
    /// Empties the list of recent files.
    ClearOpenMenu,
    /// Closes the active document's pane.
    CloseWindow,
    /// Opens the file that was chosen in the list of recent files, which stays where it is in the list; for the entry
    /// "" it is `OpenStyleSheet`.
    OpenRecentFile,
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
    /// A command that is known and does nothing.
    DoNothing,
    PageSetup,
    EditOptions,
    /// Closes the main window.
    Exit,

    /// These four go to the palette that has the focus, and to the active document where the documents have it.
    Paste,
    Cut,
    Copy,
    Clear,
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

    /// `ShowFloatingWindow` of the pane whose key is the parameter.
    ShowFloatingWindow,
    /// The same, and then `UpdateEditorsOnStyleSheetChange` of the active document, if there is one: a palette that was
    /// hidden is stale.
    ShowFloatingWindowAndUpdate,
    ShowCurrentInfo,
    ShowCurrentCompatabilityInfo,
    ShowPalettes,
    HidePalettes,
    ShowAllToolbars,
    HideAllToolbars,
    /// The layout whose name is the parameter.
    UseLayout,

    /// Shows the pane "dwPreview", and previews the active document.
    PreviewNow,
    PreviewCurrentRule,
    /// Turns the live preview off if the item is checked, and on otherwise.
    ToggleLivePreview,
    ManagePreviewDocuments,
    ManagePreviewBrowsers,
    PreviewInIE,
    PreviewInNS,
    PreviewInOpera,
    PreviewInMozilla,
    PreviewIn1,

    /// A statement of the kind that is the parameter; "" asks for the kind.
    NewStatement,
    EditStatement,
    RemoveStatement,
    DuplicateStatement,
    NewAtImportRule,
    NewAtMediaRule,

    /// The editor whose name is the parameter.
    OpenPropertyEditor,
    EditMoreFonts,
    /// The text of the tool becomes the value of the property whose name is the parameter.
    PropertyHasChanged,
    ToggleBold,
    ToggleItalic,
    ToggleUnderline,
    ToggleLinethrough,
    /// The parameter is the alignment.
    ToggleTextAlign,
    EditColorGM,
    EditBackgroundColorGM,

    /// The manual's page on the topic that is the parameter.
    ShowManualPage,
    ShowTutorial,
    About,
    FAQ,
    Tips,
    /// The page whose key is the key of the command.
    ShowOnlinePage,

    NewBreadCrumbWizard,
    NewLinkWizard,
    NewLayoutWizard,
    NewNavbarWizard,
};

struct Command {
    TextView key;
    CommandOperation operation;
    /// What the operation is given; "" for one that is given nothing, or "".
    TextView parameter = {};

    friend bool operator==(const Command&, const Command&) = default;
};

/// All commands that have a key of their own, in the order in which a key is looked for.
[[nodiscard]] std::span<const Command> Commands() noexcept;

/// The command of a key: the first that has it. All other keys that begin with "miH" share one command,
/// `ShowOnlinePage`, whose own key is "miH". `nullptr` for a key that is no command. Letter case matters.
[[nodiscard]] const Command* CommandFor(TextView key) noexcept;

/// The keys that stand for the same command as `key`, itself among them, in the order of the commands; none for a key
/// that has no command of its own.
[[nodiscard]] std::vector<TextView> KeysSharing(TextView key);

/// Whether the operation acts on the active document, or on all of them, and does nothing without one.
[[nodiscard]] bool NeedsDocument(CommandOperation operation) noexcept;

}  // namespace tintora
