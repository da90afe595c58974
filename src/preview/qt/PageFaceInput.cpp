// What the user does in a page.

#include "preview/qt/PageFace.h"
#include "preview/qt/PreviewPage.h"

#include <QChildEvent>
#include <QContextMenuEvent>
#include <QMenu>

namespace tintora {

void PageFace::SetReachable(bool isReachable) {
    isReachable_ = isReachable;
    const Qt::FocusPolicy policy = isReachable ? Qt::StrongFocus : Qt::NoFocus;
    for (QWidget* const widget : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        widget->setFocusPolicy(policy);
}

void PageFace::contextMenuEvent(QContextMenuEvent* event) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* const copy =
        menu->addAction(QStringLiteral("&Copy"), page_, [this] { page_->triggerAction(QWebEnginePage::Copy); });
    copy->setEnabled(page_->hasSelection());
    menu->addAction(QStringLiteral("Select &All"), page_, [this] { page_->triggerAction(QWebEnginePage::SelectAll); });
    menu->addSeparator();
    menu->addAction(QStringLiteral("&Reload"), this, &PageFace::ReloadWanted);
    menu->popup(event->globalPos());
    event->accept();
}

/// The widget that has the mouse and the keys is a child that the engine makes anew from time to time.
bool PageFace::event(QEvent* event) {
    if (event->type() == QEvent::ChildPolished) {
        if (auto* const widget = qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child())) {
            widget->setAcceptDrops(false);
            widget->installEventFilter(this);
            SetReachable(isReachable_);
        }
    }
    return QWebEngineView::event(event);
}

bool PageFace::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonRelease:
        case QEvent::KeyPress:
        case QEvent::TouchEnd: page_->NoteUserAction(); break;
        default: break;
    }
    return QWebEngineView::eventFilter(watched, event);
}

}  // namespace tintora
