#include "shell/qt/RecentMenu.h"

#include "linking/TextFiles.h"
#include "text/qt/QtText.h"

#include <QFontMetrics>

namespace tintora {

namespace {

constexpr int LongestPath = 360;

/// A path as one line of a menu, whatever it holds: no mnemonic in it, and no line end.
QString MenuText(TextView path, const QFontMetrics& metrics) {
    QString text = metrics.elidedText(ToQString(path).simplified(), Qt::ElideMiddle, LongestPath);
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

}  // namespace

RecentMenu::RecentMenu(const RecentFiles& recent, std::function<void(TextView)> onChosen,
                       std::function<void()> onCleared, QWidget* parent)
    : QMenu(parent), recent_(recent), onChosen_(std::move(onChosen)), onCleared_(std::move(onCleared)) {
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::Fill);
    setToolTipsVisible(true);
}

void RecentMenu::Fill() {
    clear();
    int number = 0;
    for (const Text& path : recent_.Read()) {
        ++number;
        // The mnemonics are the digits.
        const QString mark = number < 10 ? QStringLiteral("&%1  ").arg(number) : QStringLiteral("1&0  ");
        QAction* const action = addAction(mark + MenuText(path, fontMetrics()));
        action->setToolTip(ToQString(path));
        action->setEnabled(FileExists(path));
        connect(action, &QAction::triggered, this, [this, path] { onChosen_(path); });
    }
    if (number == 0)
        addAction(QStringLiteral("No files yet"))->setEnabled(false);
    addSeparator();
    QAction* const clearing = addAction(QStringLiteral("&Clear List"));
    clearing->setObjectName(QStringLiteral("miFClearOpen"));
    clearing->setEnabled(number > 0);
    connect(clearing, &QAction::triggered, this, [this] { onCleared_(); });
}

}  // namespace tintora
