#include "preview/qt/PageViewPane.h"

#include "text/qt/QtText.h"

#include <QUrl>

namespace tintora {

PageViewPane::PageViewPane(PageView& view, PageTurns& turns) : view_(view), turns_(turns) {
    connect(
        &view, &PageView::PageShown, this,
        [this](const QString& path) {
            if (path == path_)
                turns_.PageLoaded(url_);
        },
        // A page that can't be shown may be told of while it is asked for.
        Qt::QueuedConnection);
    connect(&view, &PageView::CameIntoView, this, [this] { turns_.PaneShown(); });
    turns_.SetPane(this);
}

PageViewPane::~PageViewPane() { turns_.SetPane(nullptr); }

void PageViewPane::Navigate(TextView url) {
    url_ = url;
    path_ = QUrl(ToQString(url)).toLocalFile();
    view_.ShowPage(path_);
}

}  // namespace tintora
