#pragma once

#include "shell/Panes.h"
#include "shell/Toolbars.h"
#include "shell/qt/DockWorkspace.h"
#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QTabBar>
#include <QTextEdit>
#include <QToolBar>
#include <string>

namespace tintora::test {

/// A window with all panes, their forms and all toolbars, as the program has it: it isn't shown yet.
struct WindowWithPanes {
    explicit WindowWithPanes(QSize size = {1280, 800}) {
        window.setCentralWidget(new QTextEdit);
        for (const Toolbar& toolbar : Toolbars()) {
            QToolBar* const bar = window.addToolBar(ToQString(toolbar.caption));
            bar->setObjectName(ToQString(toolbar.caption));
            bar->addAction(QStringLiteral("A"));
        }
        for (const Pane& pane : Panes)
            workspace.AddPane(pane.key, ToQString(pane.key), new QTextEdit);
        workspace.ArrangeAsDesigned();
        window.resize(size);
    }

    [[nodiscard]] QDockWidget& PaneOf(TextView key) const {
        return *window.findChild<QDockWidget*>(ToQString(key), Qt::FindDirectChildrenOnly);
    }

    /// Whether something of the pane can be seen.
    [[nodiscard]] bool IsSeen(TextView key) const { return !PaneOf(key).visibleRegion().isEmpty(); }

    /// The panes that are shown, in the order of `Panes`: "Info r+" is docked at the right and seen, "Info r" lies
    /// behind a tab there. The keys stand without "dw".
    [[nodiscard]] std::string Shown() const {
        QStringList shown;
        for (const Pane& pane : Panes) {
            const QDockWidget& dock = PaneOf(pane.key);
            if (dock.isHidden())
                continue;
            const Qt::DockWidgetArea area = window.dockWidgetArea(&PaneOf(pane.key));
            const QString side = dock.isFloating()                 ? QStringLiteral("floats")
                                 : area == Qt::LeftDockWidgetArea  ? QStringLiteral("l")
                                 : area == Qt::RightDockWidgetArea ? QStringLiteral("r")
                                                                   : QStringLiteral("b");
            shown.append(ToQString(pane.key).mid(2) + QLatin1Char(' ') + side +
                         (IsSeen(pane.key) ? QStringLiteral("+") : QString()));
        }
        return shown.join(QStringLiteral(", ")).toStdString();
    }

    /// The captions of the toolbars that are shown.
    [[nodiscard]] std::string ShownToolbars() const {
        QStringList shown;
        for (const Toolbar& toolbar : Toolbars()) {
            if (!window.findChild<QToolBar*>(ToQString(toolbar.caption))->isHidden())
                shown.append(ToQString(toolbar.caption));
        }
        return shown.join(QStringLiteral(", ")).toStdString();
    }

    [[nodiscard]] int Width(TextView key) const { return PaneOf(key).width(); }

    /// With the tabs above it.
    [[nodiscard]] int Height(TextView key) const {
        const QDockWidget& pane = PaneOf(key);
        for (const QTabBar* const tabs : window.findChildren<QTabBar*>(Qt::FindDirectChildrenOnly)) {
            if (tabs->isVisible() && tabs->geometry().adjusted(0, 0, 0, 1).intersects(pane.geometry()))
                return pane.height() + tabs->height();
        }
        return pane.height();
    }

    QStringList calls;
    QMainWindow window;
    DockWorkspace workspace{window, [this] { calls.append(QStringLiteral("refresh")); },
                            [this] { calls.append(QStringLiteral("update")); }};
};

inline const std::string DesignedPanes =
    "SelectorsEditor l+, PropertiesEditor r+, BrowserSupport r, Compatibility r, Info r, Preview b+, PreviewRule b";

}  // namespace tintora::test
