#include "preview/qt/PageView.h"

#include "preview/qt/LocalFiles.h"
#include "preview/qt/PageNotice.h"
#include "preview/qt/PreviewPage.h"
#include "preview/qt/PreviewProfile.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>

namespace tintora {

PageView::PageView(QWidget* parent, PagePatience patience)
    : QWidget(parent), patience_(patience), notice_(new PageNotice(this)) {
    setAcceptDrops(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&asking_, &QTimer::timeout, this, [this] {
        for (const auto& face : faces_)
            face->AskForLife();
    });
}

PageView::~PageView() {
    for (const auto& face : faces_) {
        if (face)
            face->disconnect(this);
    }
}

QSize PageView::sizeHint() const { return {400, 300}; }

void PageView::ShowPage(const QString& path) {
    last_ = wanted_ = path;
    LoadWanted();
}

void PageView::Stop() {
    wanted_.clear();
    if (SeenFace() && Hidden().IsLoading())
        Hidden().Leave();
}

void PageView::Copy() {
    if (SeenFace())
        SeenFace()->Page().triggerAction(QWebEnginePage::Copy);
}

void PageView::LoadWanted() {
    if (!isVisible() || !hasPainted_ || wanted_.isEmpty())
        return;
    if (!SeenFace())
        BringUp();
    const QString path = std::exchange(wanted_, QString());
    hasEnded_ = false;
    Hidden().Load(path, *SeenFace());
    TellWhatIsWrong();
}

void PageView::BringUp() {
    profile_ = SharedPreviewProfile();
    for (auto& face : faces_) {
        face = std::make_unique<PageFace>(*profile_, patience_, this);
        face->setGeometry(rect());
        face->show();
        Connect(*face);
    }
    SeenFace()->raise();
    SeenFace()->SetReachable(true);
    notice_->raise();
    asking_.start(SeenFace()->AskingInterval());
}

void PageView::Connect(PageFace& face) {
    connect(&face, &PageFace::LoadReady, this, &PageView::Swap);
    connect(&face, &PageFace::LoadFailed, this, &PageView::EndLoad);
    connect(&face, &PageFace::Died, this, &PageView::NoteEnd);
    connect(&face, &PageFace::LifeChanged, this, &PageView::TellWhatIsWrong);
    connect(&face, &PageFace::ReloadWanted, this, &PageView::Reload);
    connect(&face.Page(), &PreviewPage::LinkChosen, this, &PageView::LinkActivated);
}

void PageView::Swap() {
    PageFace& old = *SeenFace();
    seen_ = 1 - seen_;
    PageFace& fresh = *SeenFace();
    fresh.setZoomFactor(old.zoomFactor());
    fresh.SetReachable(true);
    // Who reads the page goes on reading it.
    if (old.hasFocus())
        fresh.setFocus();
    old.SetReachable(false);
    fresh.raise();
    notice_->raise();
    old.Leave();
    hasEnded_ = false;
    TellWhatIsWrong();
    Q_EMIT PageShown(fresh.Path());
}

void PageView::EndLoad() {
    if (Hidden().IsDead())
        NoteEnd();
    Q_EMIT PageShown(Hidden().Path());
}

void PageView::NoteEnd() {
    hasEnded_ = true;
    TellWhatIsWrong();
}

void PageView::TellWhatIsWrong() {
    if (SeenFace()->IsStuck() || (Hidden().IsStuck() && Hidden().IsLoading())) {
        notice_->Offer(QStringLiteral("The page doesn't answer."), QStringLiteral("Stop"),
                       QStringLiteral("End the page and its scripts"), [this] { StopStuck(); });
    } else if (hasEnded_) {
        notice_->Tell(QStringLiteral("The page has ended. It comes back with the next preview."));
    } else {
        notice_->hide();
    }
}

void PageView::StopStuck() {
    for (const auto& face : faces_) {
        if (face->IsStuck())
            face->Kill();
    }
}

void PageView::Reload() { ShowPage(last_); }

void PageView::dragEnterEvent(QDragEnterEvent* event) {
    // What is dragged out of the page is no gift to it.
    const auto* const source = qobject_cast<QWidget*>(event->source());
    const bool isOwn = source && (source == this || isAncestorOf(source));
    if (!isOwn && !LocalFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PageView::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    Q_EMIT FilesDropped(LocalFiles(*event->mimeData()));
}

void PageView::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (SeenFace() && Hidden().IsLoading()) {
        wanted_ = Hidden().Path();
        Hidden().Leave();
    }
}

/// The ground of a page is white whatever the palette.
void PageView::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), Qt::white);
    if (std::exchange(hasPainted_, true))
        return;
    // The window is to be seen before the engine comes up.
    QTimer::singleShot(0, this, &PageView::LoadWanted);
}

void PageView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    for (const auto& face : faces_) {
        if (face)
            face->setGeometry(rect());
    }
    notice_->Place();
}

void PageView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    LoadWanted();
    Q_EMIT CameIntoView();
}

}  // namespace tintora
