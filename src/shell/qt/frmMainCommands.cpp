// What the commands do.

#include "editor/qt/PageLayout.h"
#include "properties/qt/ktPropertiesEditor.h"
#include "shell/Layouts.h"
#include "shell/qt/frmMain.h"
#include "shell/qt/frmSplash.h"
#include "shell/qt/options/frmOptions.h"

#include <QDockWidget>
#include <QTabWidget>

namespace tintora {

void frmMain::SetUpHandlers() {
    SetUpFileHandlers();
    SetUpEditHandlers();
    SetUpClipboardHandlers();
    SetUpStatementHandlers();
    SetUpCorePropertyHandlers();
    SetUpPropertyHandlers();
    SetUpPreviewHandlers();
    SetUpWindowHandlers();
    SetUpHelpHandlers();
}

void frmMain::HandleForDocument(CommandOperation operation, void (ktStyleSheetWindow::*command)()) {
    handlers_.Set(operation, [this, command](const Command&) {
        if (StyleSheetPane* const pane = ActiveDocument())
            (pane->Window().*command)();
    });
}

void frmMain::HandleForEditor(CommandOperation operation, void (CSSEditorSrcView::*command)()) {
    handlers_.Set(operation, [this, command](const Command&) {
        if (StyleSheetPane* const pane = ActiveDocument())
            (pane->CSSEditor().*command)();
    });
}

void frmMain::HandleByFocus(CommandOperation operation, void (CSSEditorSrcView::*command)(),
                            void (ktPropertiesEditor::*inPalette)()) {
    handlers_.Set(operation, [this, command, inPalette](const Command&) {
        StyleSheetPane* const pane = ActiveDocument();
        if (pane != nullptr && IsDocumentInFront())
            (pane->CSSEditor().*command)();
        else if (auto* const palette = qobject_cast<ktPropertiesEditor*>(ActiveEditor()))
            (palette->*inPalette)();
    });
}

void frmMain::SetUpFileHandlers() {
    using enum CommandOperation;
    handlers_.Set(CommandOperation::LoadNewDoc, [this](const Command&) { this->LoadNewDoc(); });
    handlers_.Set(OpenStyleSheet, [this](const Command&) { AskForStyleSheet(); });
    handlers_.Set(ClearOpenMenu, [this](const Command&) { recent_.Clear(); });
    handlers_.Set(CloseWindow, [this](const Command&) { ClosePane(documents_->currentIndex()); });
    handlers_.Set(CommandOperation::SaveStyleSheet, [this](const Command&) { this->SaveStyleSheet(); });
    HandleForDocument(SaveStyleSheetAs, &ktStyleSheetWindow::SaveAs);
    handlers_.Set(CommandOperation::SaveAllStyleSheets, [this](const Command&) { this->SaveAllStyleSheets(); });
    HandleForDocument(LinkStyleSheet, &ktStyleSheetWindow::LinkPage);
    HandleForDocument(LinkSite, &ktStyleSheetWindow::LinkSite);
    HandleForDocument(EmbedStylesheet, &ktStyleSheetWindow::EmbedInPage);
    HandleForEditor(PrintStyleSheet, &CSSEditorSrcView::PrintStyleSheet);
    handlers_.Set(PageSetup, [this](const Command&) { AskPageLayout(this); });
    handlers_.Set(EditOptions, [this](const Command&) { frmOptions(store_, *this, this).EditOptions(); });
    handlers_.Set(Exit, [this](const Command&) { close(); });
}

void frmMain::SetUpEditHandlers() {
    using enum CommandOperation;
    const auto undo = [this](CommandOperation operation, void (CSSEditorSrcView::*command)()) {
        handlers_.Set(operation, [this, command](const Command&) {
            StyleSheetPane* const pane = ActiveDocument();
            if (pane == nullptr)
                return;
            (pane->CSSEditor().*command)();
            pane->Window().PreviewNow();
        });
    };
    undo(Undo, &CSSEditorSrcView::Undo);
    undo(Redo, &CSSEditorSrcView::Redo);
    HandleForEditor(SelectAll, &CSSEditorSrcView::SelectAll);
    HandleForEditor(Find, &CSSEditorSrcView::Find);
    HandleForEditor(FindAgain, &CSSEditorSrcView::FindAgain);
    HandleForEditor(Replace, &CSSEditorSrcView::Replace);
    HandleForEditor(GotoLine, &CSSEditorSrcView::GotoLine);
    HandleForEditor(CommentOut, &CSSEditorSrcView::CommentOut);
    HandleForEditor(Indent, &CSSEditorSrcView::Indent);
    HandleForEditor(Outdent, &CSSEditorSrcView::Outdent);
    HandleForDocument(FormatStyleSheetText, &ktStyleSheetWindow::FormatStyleSheetText);
}

void frmMain::SetUpClipboardHandlers() {
    using enum CommandOperation;
    HandleByFocus(Cut, &CSSEditorSrcView::Cut, &ktPropertiesEditor::Cut);
    HandleByFocus(Copy, &CSSEditorSrcView::Copy, &ktPropertiesEditor::Copy);
    HandleByFocus(Paste, &CSSEditorSrcView::Paste, &ktPropertiesEditor::Paste);
    HandleByFocus(Clear, &CSSEditorSrcView::Clear, &ktPropertiesEditor::Clear);
}

void frmMain::SetUpStatementHandlers() {
    using enum CommandOperation;
    handlers_.Set(NewStatement, [this](const Command& command) {
        if (StyleSheetPane* const pane = ActiveDocument())
            pane->Window().NewStatement(command.parameter);
    });
    HandleForDocument(DuplicateStatement, &ktStyleSheetWindow::DuplicateStatement);
    HandleForDocument(RemoveStatement, &ktStyleSheetWindow::DeleteStatement);
}

void frmMain::SetUpWindowHandlers() {
    handlers_.Set(CommandOperation::ShowFloatingWindowAndUpdate,
                  [this](const Command& command) { ToggleFloatingWindow(command.parameter); });
    handlers_.Set(CommandOperation::ShowPalettes, [this](const Command&) {
        ShowPalettes(workspace_);
        UpdateAfterPalettes();
    });
    handlers_.Set(CommandOperation::HidePalettes, [this](const Command&) { HidePalettes(workspace_); });
    handlers_.Set(CommandOperation::ShowAllToolbars, [this](const Command&) { ShowAllToolbars(workspace_); });
    handlers_.Set(CommandOperation::HideAllToolbars, [this](const Command&) { HideAllToolbars(workspace_); });
    handlers_.Set(CommandOperation::UseLayout, [this](const Command& command) {
        UseLayout(workspace_, command.parameter);
        UpdateAfterPalettes();
    });
    handlers_.SetOwn(u"miWNextPane", [this] { GoToNextPane(); });
    handlers_.SetOwn(u"miWNextDocument", [this] { GoToDocument(1); });
    handlers_.SetOwn(u"miWPreviousDocument", [this] { GoToDocument(-1); });
}

void frmMain::SetUpHelpHandlers() {
    handlers_.Set(CommandOperation::About, [this](const Command&) { frmSplash(this).exec(); });
}

}  // namespace tintora
