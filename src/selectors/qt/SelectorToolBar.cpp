#include "selectors/qt/SelectorToolBar.h"

#include "selectors/SelectorCommands.h"
#include "text/qt/QtText.h"

#include <QKeySequence>
#include <QLayout>
#include <QMenu>
#include <QToolButton>

namespace tintora {

namespace {

constexpr int IconSize = 16;

constexpr TextView NewButton = u"miSNew";
constexpr TextView NewEntry = u"miSNewStatement";

bool IsInMenu(const SelectorItem& item) {
    const bool isNew = item.command == StatementCommand::NewStatement || item.command == StatementCommand::NewComment;
    return isNew && item.key != NewButton;
}

/// Several rules at once.
bool IsRuleSet(const SelectorItem& item) { return item.kind.starts_with(u"All "); }

QString EntryText(const SelectorItem& item) {
    if (item.key == NewEntry)
        return QStringLiteral("New Statement…");
    return item.command == StatementCommand::NewComment ? QStringLiteral("Comment") : ToQString(item.kind);
}

}  // namespace

SelectorToolBar::SelectorToolBar(const IsAvailable& isAvailable, QWidget* parent) : QToolBar(parent) {
    setObjectName(QStringLiteral("DockStudio"));
    setAccessibleName(QStringLiteral("Commands for statements"));
    setIconSize({IconSize, IconSize});
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    // The palette around it has the margins.
    layout()->setContentsMargins(0, 0, 0, 0);
    AddNewButton(isAvailable);
    const auto add = [&](TextView key, const QString& text, const QString& iconName) {
        if (isAvailable(key))
            Announce(AddButton(key, text, iconName));
    };
    add(u"miSEdit", QStringLiteral("Edit Statement"), QStringLiteral("document-edit"));
    // Not every theme has an icon for duplicating.
    const QString duplicate = QStringLiteral("edit-duplicate");
    add(u"miSDuplicate", QStringLiteral("Duplicate Statement"),
        QIcon::hasThemeIcon(duplicate) ? duplicate : QStringLiteral("edit-copy"));
    add(u"miSRemove", QStringLiteral("Remove Statement"), QStringLiteral("edit-delete"));
    ShowEnabled();
}

QAction* SelectorToolBar::MakeAction(TextView key, const QString& text) {
    auto* const action = new QAction(text, this);
    action->setObjectName(ToQString(key));
    return action;
}

QAction* SelectorToolBar::AddButton(TextView key, const QString& text, const QString& iconName) {
    QAction* const action = MakeAction(key, text);
    action->setIcon(QIcon::fromTheme(iconName));
    action->setToolTip(text);
    addAction(action);
    widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    return action;
}

void SelectorToolBar::Announce(QAction* action) {
    connect(action, &QAction::triggered, this, [this, action] { Q_EMIT ItemClicked(action->objectName()); });
}

QMenu* SelectorToolBar::MakeMenuOfKinds(const IsAvailable& isAvailable) {
    auto* const menu = new QMenu(this);
    bool isBehindKinds = false;
    for (const SelectorItem& item : SelectorItems()) {
        if (!IsInMenu(item) || !isAvailable(item.key))
            continue;
        if (IsRuleSet(item) && !isBehindKinds)
            menu->addSeparator();
        isBehindKinds = IsRuleSet(item);
        QAction* const action = MakeAction(item.key, EntryText(item));
        Announce(action);
        menu->addAction(action);
        if (item.key == NewEntry)
            menu->addSeparator();
    }
    return menu;
}

void SelectorToolBar::AddNewButton(const IsAvailable& isAvailable) {
    QMenu* const menu = MakeMenuOfKinds(isAvailable);
    const bool hasKinds = !menu->isEmpty();
    const bool canAsk = isAvailable(NewButton);
    if (!hasKinds && !canAsk)
        return;
    QAction* const action = AddButton(NewButton, QStringLiteral("New Statement"), QStringLiteral("list-add"));
    if (canAsk)
        Announce(action);
    if (hasKinds) {
        auto* const button = qobject_cast<QToolButton*>(widgetForAction(action));
        button->setMenu(menu);
        button->setPopupMode(canAsk ? QToolButton::MenuButtonPopup : QToolButton::InstantPopup);
    }
}

bool SelectorToolBar::HasItem(TextView key) const { return findChild<QAction*>(ToQString(key)) != nullptr; }

void SelectorToolBar::EnableItem(TextView key, bool enabled) {
    const auto set = [&](const QString& name) {
        if (enabled)
            disabled_.remove(name);
        else
            disabled_.insert(name);
    };
    set(ToQString(key));
    if (key == NewEntry)
        set(ToQString(NewButton));
    ShowEnabled();
}

void SelectorToolBar::SetDocumentInFront(bool isThere) {
    isDocumentInFront_ = isThere;
    ShowEnabled();
}

void SelectorToolBar::ShowEnabled() {
    for (const SelectorItem& item : SelectorItems()) {
        if (auto* const action = findChild<QAction*>(ToQString(item.key)))
            action->setEnabled(isDocumentInFront_ && !disabled_.contains(action->objectName()));
    }
}

void SelectorToolBar::NameShortcut(TextView key, const QKeySequence& shortcut) {
    auto* const action = findChild<QAction*>(ToQString(key));
    if (action == nullptr)
        return;
    const QString keys = shortcut.toString(QKeySequence::NativeText);
    action->setToolTip(keys.isEmpty() ? action->text() : QStringLiteral("%1 (%2)").arg(action->text(), keys));
}

}  // namespace tintora
