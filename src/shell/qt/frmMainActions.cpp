// The menus and toolbars of the main window.

#include "shell/qt/Actions.h"
#include "shell/qt/StyleSheetPane.h"
#include "shell/qt/frmMain.h"

#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QToolBar>

namespace tintora {

namespace {

constexpr int IconSize = 22;

}  // namespace

QAction* frmMain::AddAction(QMenu& menu, const ActionLook& look, std::function<void()> onTriggered) {
    QAction* const action = MakeAction(look, this);
    connect(action, &QAction::triggered, this, std::move(onTriggered));
    menu.addAction(action);
    return action;
}

QAction* frmMain::AddDocumentAction(QMenu& menu, const ActionLook& look, void (ktStyleSheetWindow::*command)()) {
    QAction* const action = AddAction(menu, look, [this, command] {
        if (StyleSheetPane* const pane = ActiveDocument())
            (pane->Window().*command)();
    });
    documentActions_.push_back(action);
    return action;
}

QAction* frmMain::AddEditorAction(QMenu& menu, const ActionLook& look, void (CSSEditorSrcView::*command)()) {
    QAction* const action = AddAction(menu, look, [this, command] {
        if (StyleSheetPane* const pane = ActiveDocument())
            (pane->CSSEditor().*command)();
    });
    documentActions_.push_back(action);
    return action;
}

void frmMain::EnableDocumentCommands(bool enabled) {
    for (QAction* const action : documentActions_)
        action->setEnabled(enabled);
}

void frmMain::SetUpActions() {
    QToolBar& standard = *addToolBar(QStringLiteral("Standard"));
    standard.setObjectName(QStringLiteral("Standard"));
    standard.setIconSize({IconSize, IconSize});
    standard.setMovable(false);
    SetUpFileMenu(standard);
    SetUpEditMenu(standard);
    SetUpStatementMenu();
    SetUpWindowMenu();
}

void frmMain::SetUpFileMenu(QToolBar& standard) {
    QMenu& file = *menuBar()->addMenu(QStringLiteral("&File"));
    standard.addAction(AddAction(file, {"miFNew", "&New", "document-new", QKeySequence::New, "Opens a new style sheet"},
                                 [this] { LoadNewDoc(); }));
    standard.addAction(AddAction(file,
                                 {"miFOpen", "&Open…", "document-open", QKeySequence::Open,
                                  "Opens a style sheet, or the one that is embedded in a page"},
                                 [this] { AskForStyleSheet(); }));
    standard.addAction(AddAction(file,
                                 {"miFSave", "&Save", "document-save", QKeySequence::Save, "Saves the style sheet"},
                                 [this] { SaveStyleSheet(); }));
    AddAction(
        file,
        {"miFSaveAs", "Save &As…", "document-save-as", QKeySequence::SaveAs, "Saves the style sheet in another file"},
        [this] { SaveStyleSheetAs(); });
    AddAction(file, {"miFSaveAll", "Save A&ll", "document-save-all", {}, "Saves all style sheets that have changed"},
              [this] { SaveAllStyleSheets(); });
    AddAction(file, {"miFCloseWindow", "&Close", "document-close", QKeySequence::Close, "Closes the style sheet"},
              [this] { ClosePane(documents_->currentIndex()); });
    file.addSeparator();
    SetUpPageCommands(file);
    file.addSeparator();
    AddEditorAction(file, {"miFPrint", "&Print…", "document-print", QKeySequence::Print, "Prints the style sheet"},
                    &CSSEditorSrcView::PrintStyleSheet);
    file.addSeparator();
    AddAction(file,
              {"miFExit", "&Quit", "application-exit", QKeySequence(Qt::CTRL | Qt::Key_Q), "Closes all style sheets"},
              [this] { close(); });
}

void frmMain::SetUpPageCommands(QMenu& file) {
    AddDocumentAction(file, {"miFLinkPage", "Lin&k Page…", "insert-link", {}, "Links an HTML page to the style sheet"},
                      &ktStyleSheetWindow::LinkPage);
    AddDocumentAction(file,
                      {"miFLinkSite",
                       "Link Si&te…",
                       "",
                       {},
                       "Links every HTML page of a folder and its subfolders to the style sheet"},
                      &ktStyleSheetWindow::LinkSite);
    AddDocumentAction(file,
                      {"miFEmbedStyleSheet",
                       "&Embed in Page…",
                       "",
                       {},
                       "Puts the style sheet into an HTML page, and goes on with it there"},
                      &ktStyleSheetWindow::EmbedInPage);
}

void frmMain::SetUpEditMenu(QToolBar& standard) {
    QMenu& edit = *menuBar()->addMenu(QStringLiteral("&Edit"));
    const auto add = [&](const ActionLook& look, void (CSSEditorSrcView::*command)()) {
        return AddEditorAction(edit, look, command);
    };
    standard.addSeparator();
    standard.addAction(add({"miEUndo", "&Undo", "edit-undo", QKeySequence::Undo, "Takes the last change back"},
                           &CSSEditorSrcView::Undo));
    standard.addAction(
        add({"miERedo", "&Redo", "edit-redo", QKeySequence::Redo, "Makes the change again"}, &CSSEditorSrcView::Redo));
    edit.addSeparator();
    standard.addSeparator();
    standard.addAction(add({"miECut", "Cu&t", "edit-cut", QKeySequence::Cut, "Moves the selection to the clipboard"},
                           &CSSEditorSrcView::Cut));
    standard.addAction(
        add({"miECopy", "&Copy", "edit-copy", QKeySequence::Copy, "Copies the selection"}, &CSSEditorSrcView::Copy));
    standard.addAction(add({"miEPaste", "&Paste", "edit-paste", QKeySequence::Paste, "Inserts the clipboard"},
                           &CSSEditorSrcView::Paste));
    add({"miEClear", "C&lear", "edit-clear", {}, "Deletes the selection"}, &CSSEditorSrcView::Clear);
    add({"miESelectAll", "Select &All", "edit-select-all", QKeySequence::SelectAll, "Selects the whole text"},
        &CSSEditorSrcView::SelectAll);
    edit.addSeparator();
    standard.addSeparator();
    standard.addAction(
        add({"miEFind", "&Find…", "edit-find", QKeySequence::Find, "Finds text"}, &CSSEditorSrcView::Find));
    add({"miEFindNext", "Find &Next", "go-down", QKeySequence(Qt::Key_F3), "Finds the next match"},
        &CSSEditorSrcView::FindAgain);
    add({"miEReplace", "R&eplace…", "edit-find-replace", QKeySequence(Qt::CTRL | Qt::Key_H), "Finds and replaces text"},
        &CSSEditorSrcView::Replace);
    add({"miEGotoLine", "&Go to Line…", "go-jump", QKeySequence(Qt::CTRL | Qt::Key_G), "Goes to a line by its number"},
        &CSSEditorSrcView::GotoLine);
    edit.addSeparator();
    add({"miECommentOut", "Co&mment Out", "", QKeySequence(Qt::CTRL | Qt::Key_Slash),
         "Makes a comment of the selection"},
        &CSSEditorSrcView::CommentOut);
    add({"miEIndent", "&Indent", "format-indent-more", QKeySequence(Qt::CTRL | Qt::Key_BracketRight),
         "Indents the selected lines"},
        &CSSEditorSrcView::Indent);
    add({"miEOutdent", "&Outdent", "format-indent-less", QKeySequence(Qt::CTRL | Qt::Key_BracketLeft),
         "Outdents the selected lines"},
        &CSSEditorSrcView::Outdent);
    AddDocumentAction(edit,
                      {"miEFormatStyleSheet", "Format &Style Sheet", "", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F),
                       "Lays out the white space of the whole style sheet anew"},
                      &ktStyleSheetWindow::FormatStyleSheetText);
}

void frmMain::SetUpStatementMenu() {
    QMenu& statement = *menuBar()->addMenu(QStringLiteral("&Statement"));
    AddDocumentAction(statement,
                      {"miSDuplicate", "&Duplicate", "edit-duplicate", QKeySequence(Qt::CTRL | Qt::Key_D),
                       "Copies the statement at the caret behind itself"},
                      &ktStyleSheetWindow::DuplicateStatement);
    AddDocumentAction(statement,
                      {"miSRemove", "&Remove", "edit-delete", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D),
                       "Removes the statement at the caret"},
                      &ktStyleSheetWindow::DeleteStatement);
}

void frmMain::SetUpWindowMenu() {
    QMenu& window = *menuBar()->addMenu(QStringLiteral("&Window"));
    QAction* const showStatements = findChild<QDockWidget*>(QStringLiteral("dwSelectorsEditor"))->toggleViewAction();
    showStatements->setObjectName(QStringLiteral("miWSelectorsEditor"));
    showStatements->setText(QStringLiteral("&Statements"));
    showStatements->setStatusTip(QStringLiteral("Shows or hides the list of statements"));
    window.addAction(showStatements);
}

}  // namespace tintora
