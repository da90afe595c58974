#include "preview/qt/BrowserActions.h"

#include "text/qt/QtText.h"

#include <QMenu>

namespace tintora {

QString MenuText(const BrowserMenuEntry& entry) {
    return ToQString(entry.caption).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

void AddBrowserActions(QMenu& menu, const std::vector<BrowserMenuEntry>& entries,
                       const std::function<void(const QString& key)>& choose) {
    for (const BrowserMenuEntry& entry : entries) {
        if (entry.IsSeparator()) {
            menu.addSeparator();
            continue;
        }
        const QString key = ToQString(entry.key);
        QAction* const action = menu.addAction(MenuText(entry));
        action->setObjectName(key);
        QObject::connect(action, &QAction::triggered, &menu, [choose, key] { choose(key); });
    }
}

}  // namespace tintora
