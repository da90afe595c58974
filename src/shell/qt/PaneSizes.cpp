#include "shell/qt/PaneSizes.h"

#include <QDockWidget>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QScopedValueRollback>
#include <QTabBar>
#include <algorithm>

namespace tintora {

namespace {

bool IsLaidOut(const QDockWidget& pane) { return !pane.isHidden() && !pane.isFloating(); }

/// The direction in which the panes of a side stand one after another.
Qt::Orientation DirectionOf(Qt::DockWidgetArea side) {
    return side == Qt::LeftDockWidgetArea || side == Qt::RightDockWidgetArea ? Qt::Vertical : Qt::Horizontal;
}

}  // namespace

PaneSizes::PaneSizes(QMainWindow& window) : window_(window) { window.installEventFilter(this); }

void PaneSizes::Set(QDockWidget& pane, Qt::Orientation direction, int pixels) {
    std::erase_if(waiting_,
                  [&](const WantedSize& other) { return other.pane == &pane && other.direction == direction; });
    waiting_.push_back({&pane, window_.dockWidgetArea(&pane), direction, pixels});
    Settle();
}

void PaneSizes::Forget() { waiting_.clear(); }

void PaneSizes::Settle() {
    if (isSettling_)
        return;
    std::erase_if(waiting_, [this](const WantedSize& wanted) { return IsOutdated(wanted); });
    if (waiting_.empty() || !window_.isVisible())
        return;
    // To lay out may resize the window, which comes back here.
    const QScopedValueRollback<bool> settling(isSettling_, true);
    window_.layout()->activate();
    for (const WantedSize& wanted : waiting_) {
        if (IsLaidOut(*wanted.pane))
            Give(wanted);
    }
    std::erase_if(waiting_, [this](const WantedSize& wanted) { return IsReached(wanted); });
}

bool PaneSizes::IsOutdated(const WantedSize& wanted) const {
    return wanted.pane == nullptr || wanted.pane->isFloating() || window_.dockWidgetArea(wanted.pane) != wanted.side;
}

int PaneSizes::Extent(const QDockWidget& pane, Qt::Orientation direction) const {
    if (direction == Qt::Horizontal)
        return pane.width();
    const QList<QTabBar*> tabs = window_.findChildren<QTabBar*>(Qt::FindDirectChildrenOnly);
    const auto above = std::ranges::find_if(tabs, [&](const QTabBar* bar) {
        return bar->isVisible() && bar->x() == pane.x() && bar->y() + bar->height() == pane.y();
    });
    return pane.height() + (above == tabs.end() ? 0 : (*above)->height());
}

bool PaneSizes::IsReached(const WantedSize& wanted) const {
    return IsLaidOut(*wanted.pane) && Extent(*wanted.pane, wanted.direction) == wanted.pixels;
}

std::vector<QDockWidget*> PaneSizes::PanesBeside(const QDockWidget& pane) const {
    const QList<QDockWidget*> tabs = window_.tabifiedDockWidgets(const_cast<QDockWidget*>(&pane));
    std::vector<QDockWidget*> beside;
    for (QDockWidget* const other : window_.findChildren<QDockWidget*>(Qt::FindDirectChildrenOnly)) {
        const bool isInFront = window_.rect().intersects(other->geometry());
        if (other != &pane && IsLaidOut(*other) && isInFront && !tabs.contains(other) &&
            window_.dockWidgetArea(other) == window_.dockWidgetArea(const_cast<QDockWidget*>(&pane)))
            beside.push_back(other);
    }
    return beside;
}

void PaneSizes::Give(const WantedSize& wanted) {
    QList<QDockWidget*> panes{wanted.pane};
    QList<int> sizes{wanted.pixels};
    if (wanted.direction == DirectionOf(wanted.side)) {
        // The toolkit would deal out what is left to all panes of the side, this one among them.
        std::vector<QDockWidget*> beside = PanesBeside(*wanted.pane);
        int shared = 0;
        for (const QDockWidget* const pane : beside)
            shared += Extent(*pane, wanted.direction);
        int left = shared + Extent(*wanted.pane, wanted.direction) - wanted.pixels;
        for (QDockWidget* const pane : beside) {
            const int extent = Extent(*pane, wanted.direction);
            const int share = std::max(left * extent / std::max(shared, 1), 1);
            panes.append(pane);
            sizes.append(share);
            // What is lost by rounding comes to those behind.
            left -= share;
            shared -= extent;
        }
    }
    window_.resizeDocks(panes, sizes, wanted.direction);
    window_.layout()->activate();
}

bool PaneSizes::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &window_) {
        if (event->type() == QEvent::Show || event->type() == QEvent::Resize)
            Settle();
        else if (event->type() == QEvent::MouseButtonPress)
            Forget();
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace tintora
