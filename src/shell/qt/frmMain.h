#pragma once

#include "editor/EditorSurroundings.h"
#include "settings/Settings.h"
#include "shell/qt/StyleSheetPane.h"
#include "shell/qt/UserMessages.h"
#include "text/Text.h"

#include <QMainWindow>
#include <functional>
#include <memory>
#include <set>
#include <vector>

class QLabel;
class QMenu;
class QTabWidget;
class QToolBar;

namespace tintora {

class StatementList;
struct ActionLook;

/// The main window: the open style sheets in tabs, and the list of the front one's statements beside them.
class frmMain : public QMainWindow, private PaneFrame {
    Q_OBJECT

  public:
    /// `store` and `recovery` must outlive the window. `messages` says and asks what the user must see; without one,
    /// boxes do.
    frmMain(SettingsStore& store, RecoveryCopies& recovery, std::unique_ptr<UserMessages> messages = nullptr);
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
    void LoadNewDoc();

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

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    // PaneFrame
    [[nodiscard]] bool IsActivePane(const StyleSheetPane& pane) const override;
    void WindowActivated(StyleSheetPane& pane) override;
    void WindowClosed(StyleSheetPane& pane) override;
    void EnableDocumentCommands(bool enabled) override;

    // EditorFrame
    [[nodiscard]] bool IsDocumentInFront() const override { return true; }
    void UpdateMenuItem(TextView key, bool enabled) override;
    void UpdateMenus() override;
    void SetStatusBarText(TextView pane, TextView text) override;

    void SetUpPanes();
    void SetUpStatusBar();
    void SetUpActions();
    QAction* AddAction(QMenu& menu, const ActionLook& look, std::function<void()> onTriggered);
    QAction* AddDocumentAction(QMenu& menu, const ActionLook& look, void (ktStyleSheetWindow::*command)());
    QAction* AddEditorAction(QMenu& menu, const ActionLook& look, void (CSSEditorSrcView::*command)());
    void SetUpFileMenu(QToolBar& standard);
    void SetUpPageCommands(QMenu& file);
    void SetUpEditMenu(QToolBar& standard);
    void SetUpStatementMenu();
    void SetUpWindowMenu();
    void SetLocation();
    void SaveLocationOnClose();
    void AskForStyleSheet();
    StyleSheetPane* OpenNewStyleSheet();
    void LoadInto(StyleSheetPane& pane, TextView path);
    void SaveStyleSheet();
    void SaveStyleSheetAs();
    void SaveAllStyleSheets();
    void ClosePane(int index);
    void RemovePane(StyleSheetPane* pane);
    void PaneActivated();
    void Recover(const LeftCopy& copy);
    void FinishWriting(const LeftCopy& copy);
    void UpdateCaption(const StyleSheetPane* pane);

    SettingsStore& store_;
    RecoveryCopies& recovery_;
    Settings settings_;
    std::unique_ptr<UserMessages> messages_;
    QTabWidget* documents_;
    StatementList* statements_;
    QLabel* caretPosition_;
    QLabel* format_;
    std::vector<StyleSheetPane*> openDocuments_;
    std::set<const StyleSheetPane*> reportedAsTooLong_;
    /// The actions that act on the front document and have no rule of their own.
    std::vector<QAction*> documentActions_;
    int newDocumentCount_ = 0;
};

/// The main window of the process, `nullptr` before there is one.
[[nodiscard]] frmMain* GetMainWindow();

}  // namespace tintora
