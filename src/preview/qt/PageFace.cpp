#include "preview/qt/PageFace.h"

#include "preview/qt/PictureScript.h"
#include "preview/qt/PreviewPage.h"

#include <signal.h>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QWebEngineHistory>
#include <QWebEngineLoadingInfo>

namespace tintora {

namespace {

constexpr int MostTries = 2;

/// How long it may take to read a page to its end and to draw it, in times of the patience with a load.
constexpr int TimesForReading = 3;
constexpr int TimesForDrawing = 2;

const QUrl& Nowhere() {
    static const QUrl address(QStringLiteral("about:blank"));
    return address;
}

}  // namespace

PageFace::PageFace(QWebEngineProfile& profile, PagePatience patience, QWidget* parent)
    : QWebEngineView(parent), patience_(patience), page_(new PreviewPage(profile, this)) {
    setPage(page_);
    setAcceptDrops(false);
    loadPatience_.setSingleShot(true);
    loadPatience_.setInterval(patience.load);
    connect(&loadPatience_, &QTimer::timeout, this, [this] {
        if (hasArrived_)
            AwaitPicture();
    });
    picturePatience_.setSingleShot(true);
    picturePatience_.setInterval((TimesForReading + TimesForDrawing) * patience.load);
    connect(&picturePatience_, &QTimer::timeout, this, &PageFace::DoWithoutPicture);
    connect(page_, &QWebEnginePage::loadingChanged, this, &PageFace::Follow);
    connect(page_, &PreviewPage::Arrived, this, &PageFace::NoteArrival);
    connect(page_, &QWebEnginePage::renderProcessTerminated, this, &PageFace::NoteEnd);
    connect(page_, &PreviewPage::Said, this, &PageFace::Hear);
}

/// A page that goes answers what it has been asked, and speaks of its end, while this is still here to hear it.
PageFace::~PageFace() {
    page_->disconnect(this);
    ++question_;
    ++load_;
    setPage(nullptr);
    delete page_;
}

void PageFace::Load(const QString& path, const PageFace& seen) {
    path_ = path;
    seen_ = &seen;
    setZoomFactor(seen.zoomFactor());
    stage_ = Stage::Loading;
    loadPatience_.start();
    Head(QUrl::fromLocalFile(path));
}

void PageFace::Leave() {
    loadPatience_.stop();
    if (stage_ == Stage::Empty || stage_ == Stage::Dead)
        return;
    stage_ = Stage::Leaving;
    Head(Nowhere());
}

void PageFace::Head(const QUrl& address) {
    address_ = address;
    ++load_;
    tries_ = 0;
    hasArrived_ = isPictureAwaited_ = false;
    isBound_ = true;
    GoOn();
}

/// The engine mixes up two loads at once, so that an earlier one has to end first. A page that keeps wanting to go
/// elsewhere would break off the next load, however often it is refused; so it ends with its process.
void PageFace::GoOn() {
    if (!isBound_)
        return;
    if (IsStuck() || page_->HasStrayed()) {
        Kill();
    } else if (page_->isLoading()) {
        page_->triggerAction(QWebEnginePage::Stop);
    } else if (!isUnderway_) {
        isBound_ = false;
        isUnderway_ = true;
        hasStarted_ = false;
        page_->Go(address_);
    }
}

void PageFace::Fail() {
    Leave();
    Q_EMIT LoadFailed();
}

void PageFace::Follow(const QWebEngineLoadingInfo& info) {
    const bool isEnd = info.status() != QWebEngineLoadingInfo::LoadStartedStatus;
    if (isUnderway_)
        hasStarted_ = hasStarted_ || info.url() == page_->Address();
    if (isEnd && (hasStarted_ || page_->HasStrayed()))
        isUnderway_ = false;
    if (isBound_)
        QMetaObject::invokeMethod(this, &PageFace::GoOn, Qt::QueuedConnection);
    else if (isEnd && (hasStarted_ || page_->HasStrayed()))
        End(info.status() == QWebEngineLoadingInfo::LoadSucceededStatus);
}

/// A page that wants to go elsewhere ends as one that was stopped, and has been read all the same.
void PageFace::End(bool isWhole) {
    if (!isWhole && !hasArrived_ && page_->HasStrayed() && ++tries_ < MostTries) {
        // The page before broke this load off.
        isBound_ = true;
        GoOn();
    } else if (stage_ == Stage::Leaving) {
        stage_ = Stage::Empty;
        page_->history()->clear();
        ForgetQuestions();
    } else if (stage_ == Stage::Loading) {
        hasArrived_ = hasArrived_ || isWhole;
        hasArrived_ ? AwaitPicture() : Fail();
    }
}

void PageFace::NoteArrival() {
    if (isBound_ || stage_ != Stage::Loading)
        return;
    hasArrived_ = true;
    ForgetQuestions();
    if (!loadPatience_.isActive())
        AwaitPicture();
}

void PageFace::AwaitPicture() {
    if (isPictureAwaited_)
        return;
    isPictureAwaited_ = true;
    page_->RunApart(PictureScript(page_->Mark(), load_, seen_->Place(), TimesForReading * patience_.load));
    picturePatience_.start();
}

void PageFace::Hear(const QString& words) {
    if (stage_ != Stage::Loading)
        return;
    if (words == QStringLiteral("nothing %1").arg(load_)) {
        Fail();
    } else if (words == QStringLiteral("painted %1").arg(load_)) {
        // The engine's word to the widget that it has a picture lies in the queue.
        QMetaObject::invokeMethod(this, &PageFace::TakePicture, Qt::QueuedConnection);
    }
}

/// The picture is seen once the widget has drawn its scene again.
void PageFace::TakePicture() {
    const auto* const surface = qobject_cast<QQuickWidget*>(focusProxy());
    if (!surface)
        return;
    const auto note = [this, load = load_] {
        if (load == load_ && stage_ == Stage::Loading)
            NotePicture();
    };
    connect(surface->quickWindow(), &QQuickWindow::afterRendering, this, note,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    surface->quickWindow()->update();
}

/// A machine that is overloaded may never draw what isn't seen. A page that answers is taken as it is then.
void PageFace::DoWithoutPicture() {
    page_->RunApart(QStringLiteral("0"), [this, load = load_](const QVariant&) {
        if (load == load_ && stage_ == Stage::Loading)
            NotePicture();
    });
}

void PageFace::NotePicture() {
    stage_ = Stage::Loaded;
    loadPatience_.stop();
    picturePatience_.stop();
    page_->history()->clear();
    Q_EMIT LoadReady();
}

QPointF PageFace::Place() const { return page_->scrollPosition() / zoomFactor(); }

void PageFace::Kill() {
    const auto process = static_cast<pid_t>(page_->renderProcessPid());
    if (process > 0)
        kill(process, SIGKILL);
}

void PageFace::NoteEnd() {
    const Stage stage = stage_;
    isUnderway_ = false;
    ForgetQuestions();
    // The process may have been doomed before this page came to it.
    isBound_ = isBound_ || (stage == Stage::Loading && !hasArrived_ && ++tries_ < MostTries);
    if (isBound_) {
        QMetaObject::invokeMethod(this, &PageFace::GoOn, Qt::QueuedConnection);
        return;
    }
    stage_ = stage == Stage::Leaving ? Stage::Empty : Stage::Dead;
    loadPatience_.stop();
    if (stage == Stage::Loading)
        Q_EMIT LoadFailed();
    else if (stage == Stage::Loaded)
        Q_EMIT Died();
}

std::chrono::milliseconds PageFace::AskingInterval() const { return patience_.answer / MissedAnswers; }

void PageFace::AskForLife() {
    if (stage_ == Stage::Empty || stage_ == Stage::Dead)
        return;
    GoOn();
    if (isAnswerOut_) {
        ++missedAnswers_;
        NoteMissedAnswers();
        return;
    }
    isAnswerOut_ = true;
    const int question = ++question_;
    page_->RunApart(QStringLiteral("0"), [this, question](const QVariant&) {
        if (question_ == question)
            ForgetQuestions();
    });
}

void PageFace::NoteMissedAnswers() {
    if (missedAnswers_ != MissedAnswers)
        return;
    // What is stuck is an earlier page, which the user sees no more.
    if (stage_ == Stage::Leaving || (stage_ == Stage::Loading && !hasArrived_))
        Kill();
    else
        Q_EMIT LifeChanged();
}

void PageFace::ForgetQuestions() {
    const bool wasStuck = IsStuck();
    ++question_;
    isAnswerOut_ = false;
    missedAnswers_ = 0;
    if (wasStuck)
        Q_EMIT LifeChanged();
}

}  // namespace tintora
