#include "shell/qt/Actions.h"

#include <QIcon>

namespace tintora {

namespace {

/// The text of a command without the mark of its mnemonic and without dots.
QString PlainText(QString text) {
    text.remove(QLatin1Char('&'));
    while (text.endsWith(QLatin1Char('.')) || text.endsWith(QChar(0x2026)))
        text.chop(1);
    return text;
}

}  // namespace

QAction* MakeAction(const ActionLook& look, QObject* parent) {
    auto* const action = new QAction(QString::fromUtf8(look.text), parent);
    action->setObjectName(QString::fromUtf8(look.key));
    if (*look.icon != '\0')
        action->setIcon(QIcon::fromTheme(QString::fromUtf8(look.icon)));
    action->setShortcut(look.shortcut);
    action->setStatusTip(QString::fromUtf8(look.statusTip));
    QString toolTip = PlainText(action->text());
    if (!look.shortcut.isEmpty())
        toolTip += QStringLiteral(" (%1)").arg(look.shortcut.toString(QKeySequence::NativeText));
    action->setToolTip(toolTip);
    return action;
}

}  // namespace tintora
