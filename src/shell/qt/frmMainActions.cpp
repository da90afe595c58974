// The menus and toolbars of the main window, from the tables of commands.

#include "selectors/qt/ktSelectorPalette.h"
#include "shell/DocumentMenus.h"
#include "shell/OnlinePages.h"
#include "shell/Toolbars.h"
#include "shell/qt/CommandLooks.h"
#include "shell/qt/CorePropertiesBar.h"
#include "shell/qt/RecentMenu.h"
#include "shell/qt/WindowPreviews.h"
#include "shell/qt/frmMain.h"
#include "text/qt/QtText.h"

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace tintora {

namespace {

constexpr int IconSize = 22;

/// Without separators at its ends and without two of them in a row, where commands between them are missing.
void TidySeparators(QMenu& menu) {
    bool isBehindSeparator = true;
    for (QAction* const action : menu.actions()) {
        if (action->isSeparator() && isBehindSeparator)
            menu.removeAction(action);
        else
            isBehindSeparator = action->isSeparator();
    }
    if (!menu.isEmpty() && menu.actions().constLast()->isSeparator())
        menu.removeAction(menu.actions().constLast());
}

}  // namespace

QAction* frmMain::FindAction(TextView key) const {
    return findChild<QAction*>(ToQString(key), Qt::FindDirectChildrenOnly);
}

QAction* frmMain::FindTool(TextView key) const {
    if (QAction* const action = FindAction(key))
        return action;
    // A tool may stand for an entry of a menu.
    for (const TextView other : KeysSharing(key)) {
        if (QAction* const action = FindAction(other))
            return action;
    }
    return nullptr;
}

void frmMain::RunCommand(TextView key) { handlers_.Run(key); }

void frmMain::SetUpMenus() {
    for (const MenuLook& look : MenuLooks()) {
        auto* const menu = new QMenu(QString::fromUtf8(look.title), this);
        menu->setObjectName(QString::fromUtf8(look.key));
        FillMenu(*menu, look);
        if (menu->isEmpty())
            delete menu;
        else
            menuBar()->addMenu(menu);
    }
}

void frmMain::FillMenu(QMenu& menu, const MenuLook& look) {
    for (const ActionLook& entry : look.entries) {
        if (QLatin1String(entry.key) == QLatin1String(MenuSeparator))
            menu.addSeparator();
        else if (QLatin1String(entry.key).startsWith(QLatin1String("mnu")))
            AddSubmenu(menu, SubmenuLook(QLatin1String(entry.key)));
        else
            AddEntry(menu, entry);
    }
    TidySeparators(menu);
}

void frmMain::AddEntry(QMenu& menu, const ActionLook& look) {
    const Text key = ToText(QString::fromUtf8(look.key));
    if (QAction* const shared = coreProperties_->Action(key)) {
        menu.addAction(shared);
        return;
    }
    if (*look.text == '\0' || !handlers_.CanRun(key))
        return;
    QAction* const action = MakeAction(look, this);
    connect(action, &QAction::triggered, this, [this, key] { RunCommand(key); });
    menu.addAction(action);
    statements_->NameShortcut(key, look.shortcut);
}

void frmMain::AddSubmenu(QMenu& menu, const MenuLook& look) {
    const QLatin1String key(look.key);
    QMenu* submenu = nullptr;
    if (key == QLatin1String("mnuFOpenRecent"))
        submenu = new RecentMenu(
            recent_, [this](TextView path) { OpenOneStyleSheet(path); }, [this] { RunCommand(u"miFClearOpen"); },
            &menu);
    else
        submenu = new QMenu(&menu);
    submenu->setTitle(QString::fromUtf8(look.title));
    submenu->setObjectName(key);
    FillMenu(*submenu, look);
    if (key == QLatin1String("mnuHOnline"))
        FillOnlineMenu(*submenu);
    if (submenu->isEmpty() && key != QLatin1String("mnuFOpenRecent"))
        delete submenu;
    else
        menu.addMenu(submenu);
}

void frmMain::FillOnlineMenu(QMenu& menu) {
    QMenu* group = nullptr;
    TextView groupName;
    for (const OnlinePage& page : OnlinePages()) {
        if (group == nullptr || page.menu != groupName)
            group = menu.addMenu(ToQString(page.menu));
        groupName = page.menu;
        auto* const action = new QAction(ToQString(page.text), this);
        action->setObjectName(ToQString(page.key));
        action->setStatusTip(ToQString(page.statusTip));
        connect(action, &QAction::triggered, this,
                [this, key = page.key] { messages_->OpenAddress(ToQString(OnlinePageAddress(key))); });
        group->addAction(action);
    }
}

void frmMain::SetUpToolbars() {
    for (const Toolbar& look : Toolbars()) {
        if (ToQString(look.caption) == coreProperties_->windowTitle()) {
            addToolBar(coreProperties_);
            continue;
        }
        auto* const bar = new QToolBar(ToQString(look.caption), this);
        bar->setObjectName(ToQString(look.caption));
        bar->setIconSize({IconSize, IconSize});
        AddTools(*bar, look.keys);
        if (bar->actions().isEmpty())
            delete bar;
        else
            addToolBar(bar);
    }
}

void frmMain::AddTools(QToolBar& bar, std::span<const TextView> keys) {
    for (const TextView key : keys) {
        QAction* const action = key == ToolbarSeparator ? nullptr : FindTool(key);
        if (action != nullptr)
            bar.addAction(action);
        else if (key == ToolbarSeparator && !bar.actions().isEmpty() && !bar.actions().constLast()->isSeparator())
            bar.addSeparator();
    }
    if (!bar.actions().isEmpty() && bar.actions().constLast()->isSeparator())
        bar.removeAction(bar.actions().constLast());
}

void frmMain::UpdateMenuItem(TextView key, bool enabled) {
    if (QAction* const action = FindAction(key))
        action->setEnabled(enabled);
    statements_->UpdateMenuItemInSelectorTB(key, enabled);
}

void frmMain::UpdateMenus() {
    if (StyleSheetPane* const pane = ActiveDocument())
        pane->Window().UpdateMenus();
}

void frmMain::EnableDocumentCommands(bool enabled) {
    for (const TextView key : enabled ? MenusToEnable() : MenusToDisable())
        UpdateMenuItem(key, enabled);
    previews_->EnablePreviews(enabled);
    for (const TextView key :
         {TextView(u"miFoProperty"), TextView(u"miWNextDocument"), TextView(u"miWPreviousDocument")})
        UpdateMenuItem(key, enabled);
}

}  // namespace tintora
