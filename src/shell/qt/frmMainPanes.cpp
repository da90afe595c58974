// The panes around the style sheets, and where the focus is among them.

#include "properties/qt/ktPropertiesEditor.h"
#include "selectors/SelectorCommands.h"
#include "selectors/qt/ktSelectorPalette.h"
#include "shell/Layouts.h"
#include "shell/Panes.h"
#include "shell/qt/WindowProperties.h"
#include "shell/qt/frmMain.h"
#include "text/qt/QtText.h"

#include <QApplication>
#include <QDockWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <algorithm>
#include <iterator>

namespace tintora {

namespace {

constexpr int NarrowestText = 280;

/// Whether an item of the palette of statements does something: the forms that the others open aren't there yet.
bool IsBuilt(TextView key) {
    const auto items = SelectorItems();
    const auto item = std::find_if(items.begin(), items.end(), [=](const SelectorItem& any) { return any.key == key; });
    if (item == items.end())
        return false;
    switch (item->command) {
        case StatementCommand::DuplicateStatement:
        case StatementCommand::DeleteStatement: return true;
        case StatementCommand::NewStatement: return item->kind.starts_with(u"All ");
        default: return false;
    }
}

}  // namespace

void frmMain::SetUpPanes() {
    // Panes don't squeeze the text.
    documents_->setMinimumWidth(NarrowestText);
    documents_->setDocumentMode(true);
    documents_->setTabsClosable(true);
    documents_->setMovable(true);
    documents_->setAccessibleName(QStringLiteral("Open style sheets"));
    setCentralWidget(documents_);
    connect(documents_, &QTabWidget::tabCloseRequested, this, &frmMain::ClosePane);
    connect(documents_, &QTabWidget::currentChanged, this, &frmMain::PaneActivated);

    statements_ = new ktSelectorPalette(this, IsBuilt);
    workspace_.AddPane(u"dwSelectorsEditor", QStringLiteral("Statements"), statements_);
    connect(statements_, &ktSelectorPalette::ShowFloatingWindow, this,
            [this](const QString& pane) { ShowFloatingWindow(workspace_, ToText(pane)); });
    SetUpPropertiesPane();
    SetUpPreviewPanes();
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* now) { FollowFocus(now); });
}

void frmMain::SetUpPaneMarks() {
    for (const Pane& pane : Panes) {
        QAction* const action = pane.menuItem.empty() ? nullptr : FindAction(pane.menuItem);
        if (action == nullptr)
            continue;
        action->setCheckable(true);
        workspace_.CheckWhileShown(*action, pane.key);
    }
}

void frmMain::ToggleFloatingWindow(TextView pane) {
    const QWidget* const form = workspace_.GetFloatingWindow(pane);
    // One that is a tab behind another comes forward.
    const bool isInView = form != nullptr && form->isVisible() && !form->visibleRegion().isEmpty();
    if (isInView) {
        workspace_.HidePane(pane);
        return;
    }
    ShowFloatingWindow(workspace_, pane);
    UpdateAfterPalettes();
}

void frmMain::UpdateAfterPalettes() {
    // A palette that was hidden is stale.
    if (StyleSheetPane* const pane = ActiveDocument())
        pane->Window().UpdateEditorsOnStyleSheetChange();
}

void frmMain::FollowFocus(const QWidget* now) {
    if (now == nullptr || now->window() != this)
        return;
    const bool isInDocument = documents_->isAncestorOf(now);
    bool isInToolbar = false;
    for (const QToolBar* const bar : findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly))
        isInToolbar = isInToolbar || bar->isAncestorOf(now);
    // What is changed from there must not go into the rule that the caret has left.
    if (StyleSheetPane* const pane = ActiveDocument(); pane != nullptr && !isInDocument)
        pane->Window().FollowCaretNow();
    if (isInToolbar)
        return;
    currentForm_ = isInDocument ? u"Document" : u"Editor";
    UpdateClipboardItems();
}

void frmMain::UpdateClipboardItems() {
    StyleSheetPane* const pane = ActiveDocument();
    if (pane == nullptr)
        return;
    if (IsDocumentInFront()) {
        pane->CSSEditor().UpdateMenu();
        return;
    }
    // The other palettes have nothing to cut, copy, paste or clear.
    const bool hasFields = ActiveEditor() == &properties_->Palette();
    for (const TextView key : {u"miECut", u"miECopy", u"miEPaste", u"miEClear"})
        UpdateMenuItem(key, hasFields);
}

QWidget* frmMain::ActiveEditor() const {
    const QWidget* const focus = QApplication::focusWidget();
    for (const Pane& pane : Panes) {
        QWidget* const form = workspace_.GetFloatingWindow(pane.key);
        if (form != nullptr && focus != nullptr && (form == focus || form->isAncestorOf(focus)))
            return form;
    }
    return nullptr;
}

void frmMain::GoToNextPane() {
    std::vector<QWidget*> round;
    if (ActiveDocument() != nullptr)
        round.push_back(ActiveDocument());
    for (const QDockWidget* const dock : findChildren<QDockWidget*>()) {
        if (dock->isVisible() && !dock->visibleRegion().isEmpty())
            round.push_back(dock->widget());
    }
    if (round.empty())
        return;
    const QWidget* const focus = QApplication::focusWidget();
    const auto here = std::find_if(round.begin(), round.end(), [=](const QWidget* pane) {
        return focus != nullptr && (pane == focus || pane->isAncestorOf(focus));
    });
    const auto next = here == round.end() || std::next(here) == round.end() ? round.begin() : std::next(here);
    QWidget* target = *next;
    // A palette without a focus proxy gives the focus to the first of its controls that takes it.
    if (target->focusPolicy() == Qt::NoFocus && target->focusProxy() == nullptr) {
        for (QWidget* const control : target->findChildren<QWidget*>()) {
            if ((control->focusPolicy() & Qt::TabFocus) != 0 && control->isVisible() && control->isEnabled()) {
                target = control;
                break;
            }
        }
    }
    target->setFocus(Qt::TabFocusReason);
}

}  // namespace tintora
