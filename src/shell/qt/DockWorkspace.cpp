#include "shell/qt/DockWorkspace.h"

#include "shell/Layouts.h"
#include "shell/Panes.h"
#include "shell/qt/PlaceOnScreens.h"
#include "text/qt/QtText.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QToolBar>
#include <algorithm>
#include <utility>

namespace tintora {

namespace {

/// Raised when panes or toolbars change so much that old arrangements make no sense.
constexpr int ArrangementVersion = 1;

Qt::DockWidgetArea AreaOf(DockSide side) {
    switch (side) {
        case DockSide::Left: return Qt::LeftDockWidgetArea;
        case DockSide::Right: return Qt::RightDockWidgetArea;
        case DockSide::Bottom: return Qt::BottomDockWidgetArea;
    }
    return Qt::NoDockWidgetArea;
}

/// The form in an area that scrolls it where it has too little room.
QScrollArea* MakeScroller(QWidget& form) {
    auto* const scroller = new QScrollArea;
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus);
    // Who gives the focus to the content of a pane means the form.
    if (form.focusPolicy() != Qt::NoFocus || form.focusProxy() != nullptr)
        scroller->setFocusProxy(&form);
    scroller->setWidgetResizable(true);
    scroller->setWidget(&form);
    return scroller;
}

/// Has a window that isn't shown yet count as shown, as large as it will be, without a sight of it.
///
/// What is restored in a hidden window the toolkit keeps aside until that is shown and resized, with pointers into its
/// own layout that may dangle by then: it crashes where the window comes up smaller than the arrangement.
class ShownOffScreen {
  public:
    explicit ShownOffScreen(QMainWindow& window)
        : window_(window), wasHidden_(!window.isVisible()), state_(window.windowState()) {
        if (!wasHidden_)
            return;
        if (window_.isMaximized())
            window_.resize(window_.screen()->availableSize());
        window_.setAttribute(Qt::WA_DontShowOnScreen);
        window_.show();
    }
    ~ShownOffScreen() {
        if (!wasHidden_)
            return;
        window_.hide();
        window_.setAttribute(Qt::WA_DontShowOnScreen, false);
        window_.setWindowState(state_);
    }
    ShownOffScreen(const ShownOffScreen&) = delete;
    ShownOffScreen& operator=(const ShownOffScreen&) = delete;

  private:
    QMainWindow& window_;
    bool wasHidden_;
    Qt::WindowStates state_;
};

}  // namespace

DockWorkspace::DockWorkspace(QMainWindow& window, std::function<void()> refreshCurrentEditor,
                             std::function<void()> updatePropertiesEditor)
    : window_(window),
      refreshCurrentEditor_(std::move(refreshCurrentEditor)),
      updatePropertiesEditor_(std::move(updatePropertiesEditor)),
      sizes_(window) {
    // Side panes reach from the toolbars down to the status bar.
    window.setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    window.setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    window.setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
}

QDockWidget* DockWorkspace::FindPane(TextView key) const {
    // The toolkit takes no name for any name.
    return key.empty() ? nullptr : window_.findChild<QDockWidget*>(ToQString(key), Qt::FindDirectChildrenOnly);
}

QToolBar* DockWorkspace::FindToolbar(TextView caption) const {
    const QString name = ToQString(caption);
    for (QToolBar* const toolbar : window_.findChildren<QToolBar*>(Qt::FindDirectChildrenOnly)) {
        if (toolbar->windowTitle() == name || toolbar->objectName() == name)
            return toolbar;
    }
    return nullptr;
}

QDockWidget* DockWorkspace::AddPane(TextView key, const QString& title, QWidget* form) {
    const auto* const designed = std::ranges::find(Panes, key, &Pane::key);
    if (designed == Panes.end())
        return nullptr;
    QDockWidget* pane = FindPane(key);
    if (pane == nullptr) {
        pane = new QDockWidget(&window_);
        pane->setObjectName(ToQString(key));
        window_.addDockWidget(AreaOf(designed->side), pane);
        PutBehind(*pane, designed->behind);
        BringPaneForward(designed->behind);
        if (designed->pixels > 0)
            SetPaneSize(key, designed->side == DockSide::Bottom ? Qt::Vertical : Qt::Horizontal, designed->pixels);
    }
    pane->setWindowTitle(title);
    if (form != nullptr)
        SetForm(key, form);
    return pane;
}

void DockWorkspace::SetForm(TextView key, QWidget* form) {
    QDockWidget* const pane = FindPane(key);
    if (pane == nullptr || form == nullptr)
        return;
    QWidget* const former = pane->widget();
    pane->setWidget(MakeScroller(*form));
    delete former;
}

QWidget* DockWorkspace::GetFloatingWindow(TextView key) const {
    const QDockWidget* const pane = FindPane(key);
    const auto* const scroller = pane == nullptr ? nullptr : qobject_cast<QScrollArea*>(pane->widget());
    return scroller == nullptr ? nullptr : scroller->widget();
}

void DockWorkspace::ChangeBandCaption(TextView key, const QString& caption) {
    if (QDockWidget* const pane = FindPane(key))
        pane->setWindowTitle(caption);
}

void DockWorkspace::CheckWhileShown(QAction& action, TextView key) {
    QDockWidget* const pane = FindPane(key);
    if (pane == nullptr)
        return;
    action.setCheckable(true);
    const auto follow = [&action, pane] { action.setChecked(!pane->isHidden()); };
    QObject::connect(pane->toggleViewAction(), &QAction::toggled, &action, follow);
    // A trigger turns the check mark over, whether the pane changes or not.
    QObject::connect(&action, &QAction::triggered, pane, follow, Qt::QueuedConnection);
    follow();
}

void DockWorkspace::PutBehind(QDockWidget& pane, TextView front) {
    if (QDockWidget* const other = FindPane(front))
        window_.tabifyDockWidget(other, &pane);
}

void DockWorkspace::ArrangeAsDesigned() {
    for (const Pane& designed : Panes) {
        DockPane(designed.key, designed.side);
        if (QDockWidget* const pane = FindPane(designed.key))
            PutBehind(*pane, designed.behind);
        ShowPane(designed.key);
    }
    for (const Pane& designed : Panes) {
        if (!designed.behind.empty())
            continue;
        BringPaneForward(designed.key);
        SetPaneSize(designed.key, designed.side == DockSide::Bottom ? Qt::Vertical : Qt::Horizontal, designed.pixels);
    }
    ShowAllToolbars(*this);
}

QByteArray DockWorkspace::SaveArrangement() const { return window_.saveState(ArrangementVersion); }

bool DockWorkspace::RestoreArrangement(const QByteArray& bytes) {
    const ShownOffScreen shown(window_);
    const QByteArray before = SaveArrangement();
    if (!window_.restoreState(bytes, ArrangementVersion)) {
        // After bytes that it can't read the toolkit lays out nothing any more, until it is given some that it can.
        window_.restoreState(before, ArrangementVersion);
        return false;
    }
    sizes_.Forget();
    for (QDockWidget* const pane : window_.findChildren<QDockWidget*>(Qt::FindDirectChildrenOnly)) {
        if (pane->isFloating())
            pane->setGeometry(PlaceOnScreens(pane->geometry()));
    }
    return true;
}

void DockWorkspace::ShowPane(TextView key) {
    if (QDockWidget* const pane = FindPane(key)) {
        pane->show();
        sizes_.Settle();
    }
}

void DockWorkspace::HidePane(TextView key) {
    if (QDockWidget* const pane = FindPane(key))
        pane->hide();
}

void DockWorkspace::BringPaneForward(TextView key) {
    if (QDockWidget* const pane = FindPane(key))
        pane->raise();
}

void DockWorkspace::DockPane(TextView key, DockSide side) {
    QDockWidget* const pane = FindPane(key);
    if (pane == nullptr)
        return;
    pane->setFloating(false);
    window_.addDockWidget(AreaOf(side), pane);
}

void DockWorkspace::SetPaneSize(TextView key, Qt::Orientation direction, int pixels) {
    if (QDockWidget* const pane = FindPane(key))
        sizes_.Set(*pane, direction, pixels);
}

void DockWorkspace::SetPaneWidth(TextView key, int pixels) { SetPaneSize(key, Qt::Horizontal, pixels); }

void DockWorkspace::SetPaneHeight(TextView key, int pixels) { SetPaneSize(key, Qt::Vertical, pixels); }

void DockWorkspace::ShowToolbar(TextView caption) {
    if (QToolBar* const toolbar = FindToolbar(caption))
        toolbar->show();
}

void DockWorkspace::HideToolbar(TextView caption) {
    if (QToolBar* const toolbar = FindToolbar(caption))
        toolbar->hide();
}

void DockWorkspace::RefreshCurrentEditor() {
    if (refreshCurrentEditor_)
        refreshCurrentEditor_();
}

void DockWorkspace::UpdatePropertiesEditor() {
    if (updatePropertiesEditor_)
        updatePropertiesEditor_();
}

}  // namespace tintora
