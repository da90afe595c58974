#pragma once

#include "preview/BrowserLocations.h"
#include "properties/qt/ControlSurroundings.h"
#include "settings/Settings.h"
#include "shell/CommandHandlers.h"
#include "shell/CorePropertiesHost.h"
#include "shell/RecentFiles.h"
#include "shell/qt/DockWorkspace.h"
#include "shell/qt/FrameSurroundings.h"
#include "shell/qt/StyleSheetPane.h"
#include "shell/qt/UnbuiltPalettes.h"
#include "shell/qt/UserMessages.h"
#include "shell/qt/options/OptionsHost.h"
#include "text/Text.h"
#include "validation/StyleSheetValidator.h"

#include <QMainWindow>
#include <memory>
#include <set>
#include <span>
#include <vector>

class QLabel;
class QMenu;
class QTabWidget;
class QToolBar;

namespace tintora {

class CorePropertiesBar;
class WindowPreviews;
class WindowProperties;
class ktPropertiesEditor;
class ktSelectorPalette;
struct ActionLook;
struct MenuLook;

/// The main window: the open style sheets in tabs, the palettes around them, and the commands.
///
/// Its parts lie in files of their own: menus and toolbars, what the commands do, the open style sheets, the panes.
class frmMain : public QMainWindow,
                private PaneFrame,
                private OptionsHost,
                private CorePropertiesHost,
                private PaletteMenus {
    Q_OBJECT

  public:
    explicit frmMain(FrameSurroundings surroundings);
    ~frmMain() override;

    /// The load step: brings the window to its stored place, and opens `file`, or a new style sheet if `file` is "" and
    /// this isn't the very first run. Each part of it runs, whether those before it failed or not.
    void LoadStep(TextView file);

    /// Opens the file in a pane of its own, or brings the pane to the front that has it open. A path that names no file
    /// does nothing; a file that can't be read is told.
    void OpenOneStyleSheet(TextView path);

    /// Asks what to do about the recovery copies that the last run has left, and does it. Those whose text is in their
    /// file already are dropped.
    void OfferLeftCopies(const std::vector<LeftCopy>& left);

    /// Keeps the recovery copies of all unsaved style sheets, now.
    void KeepRecoveryCopies();

    /// Opens a new, empty style sheet.
    void LoadNewDoc() { OpenNewStyleSheet({}); }

    /// Opens a new style sheet with this text, which counts as unsaved unless it is "".
    StyleSheetPane* OpenNewStyleSheet(TextView text);

    /// Shows the pane of properties, and the editor of a caption or property there.
    void OpenPropertyEditor(TextView name);

    /// Shows the pane of properties, and gives the focus to the control for the property at the caret.
    void EditPropertyAtCaret();

    /// Shows the pane of previews, and previews the style sheet in front.
    void PreviewNow();

    /// Shows the pane of the current rule, and previews that.
    void PreviewCurrentRule();

    /// Stores whether each change is previewed, and shows it where it can be seen.
    void SetLivePreview(bool isOn);

    /// Brings the window before all others of the screen.
    void BringToFront();

    /// Tells the user of each style sheet that is too long, once until it fits again.
    void ReportOverflow();

    /// Tells the user of a fault of the program.
    void ReportFault(const QString& what);

    /// The open panes, in the order of their activation, the latest first.
    [[nodiscard]] const std::vector<StyleSheetPane*>& OpenDocuments() const noexcept { return openDocuments_; }

    /// The pane in front, `nullptr` if there is none.
    [[nodiscard]] StyleSheetPane* ActiveDocument() const;

    /// "Document" or "Editor": whether the documents or the palettes took the focus last.
    [[nodiscard]] TextView CurrentForm() const noexcept { return currentForm_; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    // PaneFrame
    [[nodiscard]] bool IsActivePane(const StyleSheetPane& pane) const override { return ActiveDocument() == &pane; }
    void WindowActivated(StyleSheetPane& pane) override;
    void WindowClosed(StyleSheetPane& pane) override;
    void EnableDocumentCommands(bool enabled) override;
    void EnableCorePropertiesToolbar(bool enabled) override;
    void SetUpCorePropertiesToolbar(TextView body) override;
    void BringPaneToFront(StyleSheetPane& pane) override;

    // EditorFrame
    [[nodiscard]] bool IsDocumentInFront() const override { return currentForm_ == u"Document"; }
    void UpdateMenuItem(TextView key, bool enabled) override;
    void UpdateMenus() override;
    void SetStatusBarText(TextView pane, TextView text) override;

    // CorePropertiesHost
    [[nodiscard]] const FrontDocument* ActiveStyleSheet() const override;
    [[nodiscard]] Texts CurrentDeclarations() const override;
    void PropertyHasChanged(TextView value, int number) override;
    void FocusText() override;

    // PaletteMenus
    [[nodiscard]] bool IsEditorInFront() const override { return currentForm_ == u"Editor"; }

    // OptionsHost
    void UpdateColorCoding() override;
    void FormatAllStyleSheets() override;

    void SetUpStatusBar();
    void SetLocation();
    void SaveLocationOnClose();

    // Panes.
    void SetUpPanes();
    void SetUpPropertiesPane();
    void SetUpPreviewPanes();
    void SetUpPaneMarks();
    void ToggleFloatingWindow(TextView pane);
    void UpdateAfterPalettes();
    void FollowFocus(const QWidget* now);
    /// What can be cut, copied, pasted and cleared where the focus is.
    void UpdateClipboardItems();
    void GoToNextPane();
    /// The form of the pane that has the focus; `nullptr` for none.
    [[nodiscard]] QWidget* ActiveEditor() const;
    void GoToDocument(int step);

    // Menus and toolbars.
    void SetUpMenus();
    void FillMenu(QMenu& menu, const MenuLook& look);
    void AddEntry(QMenu& menu, const ActionLook& look);
    void AddSubmenu(QMenu& menu, const MenuLook& look);
    void FillOnlineMenu(QMenu& menu);
    void SetUpPreviewMenu();
    void SetUpToolbars();
    void AddTools(QToolBar& bar, std::span<const TextView> keys);
    [[nodiscard]] QAction* FindAction(TextView key) const;
    /// The action of a tool: its own, or that of an entry for the same command.
    [[nodiscard]] QAction* FindTool(TextView key) const;
    /// Runs the command of a key; a key that is no command does nothing.
    void RunCommand(TextView key);

    // What the commands do.
    void SetUpHandlers();
    void SetUpFileHandlers();
    void SetUpEditHandlers();
    void SetUpClipboardHandlers();
    void SetUpStatementHandlers();
    void SetUpPreviewHandlers();
    void SetUpWindowHandlers();
    void SetUpCorePropertyHandlers();
    void SetUpPropertyHandlers();
    void SetUpHelpHandlers();
    void HandleForDocument(CommandOperation operation, void (ktStyleSheetWindow::*command)());
    void HandleForEditor(CommandOperation operation, void (CSSEditorSrcView::*command)());
    void HandleByFocus(CommandOperation operation, void (CSSEditorSrcView::*command)(),
                       void (ktPropertiesEditor::*inPalette)());

    // The open style sheets.
    void AskForStyleSheet();
    void LoadInto(StyleSheetPane& pane, TextView path);
    void SaveStyleSheet();
    void SaveAllStyleSheets();
    void ClosePane(int index);
    void RemovePane(StyleSheetPane* pane);
    void PaneActivated();
    void UpdateCaption(const StyleSheetPane* pane);
    void Recover(const LeftCopy& copy);
    void FinishWriting(const LeftCopy& copy);

    SettingsStore& store_;
    RecoveryCopies& recovery_;
    Settings settings_;
    RecentFiles recent_;
    std::unique_ptr<UserMessages> messages_;
    PreviewFolders previewFolders_;
    AskFiles askFiles_;
    AskColor askColor_;
    std::unique_ptr<ProcessStarter> processes_;
    BrowserLocations browserLocations_;
    std::unique_ptr<WebAccess> web_;
    StyleSheetValidator validator_;
    CommandHandlers handlers_;
    QString layoutPath_;
    DockWorkspace workspace_;
    UnbuiltPalettes unbuilt_;
    std::unique_ptr<WindowProperties> properties_;
    std::unique_ptr<WindowPreviews> previews_;
    QTabWidget* documents_;
    ktSelectorPalette* statements_;
    CorePropertiesBar* coreProperties_;
    QLabel* caretPosition_;
    QLabel* format_;
    std::vector<StyleSheetPane*> openDocuments_;
    std::set<const StyleSheetPane*> reportedAsTooLong_;
    TextView currentForm_ = u"Document";
    int newDocumentCount_ = 0;
};

/// The main window of the process, `nullptr` before there is one.
[[nodiscard]] frmMain* GetMainWindow();

}  // namespace tintora
