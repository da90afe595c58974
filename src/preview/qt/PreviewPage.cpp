#include "preview/qt/PreviewPage.h"

#include <QUuid>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>

namespace tintora {

namespace {

constexpr int UserActionHolds = 1000;

/// A page says so at its beginning, and adds its address.
constexpr QLatin1String Here("here ");

bool LeadsSomewhere(const QUrl& address) {
    static const QStringList inner = {QString(), QStringLiteral("about"), QStringLiteral("javascript"),
                                      QStringLiteral("data"), QStringLiteral("blob")};
    return address.isValid() && !inner.contains(address.scheme());
}

bool MayBeInFrame(const QUrl& address) {
    static const QStringList schemes = {QStringLiteral("file"),  QStringLiteral("http"), QStringLiteral("https"),
                                        QStringLiteral("about"), QStringLiteral("data"), QStringLiteral("blob")};
    return schemes.contains(address.scheme());
}

}  // namespace

PreviewPage::PreviewPage(QWebEngineProfile& profile, QObject* parent)
    : QWebEnginePage(&profile, parent), mark_(QUuid::createUuid().toString()) {
    RefuseRequests();
    TellOfArrivals();
    connect(this, &QWebEnginePage::urlChanged, this, [this] { isLeaving_ = false; });
    connect(this, &QWebEnginePage::renderProcessTerminated, this, [this] { hasStrayed_ = false; });
    connect(this, &QWebEnginePage::newWindowRequested, this, [this](const QWebEngineNewWindowRequest& request) {
        if (request.isUserInitiated())
            Choose(request.requestedUrl());
    });
}

void PreviewPage::TellOfArrivals() {
    QWebEngineScript script;
    script.setSourceCode(QStringLiteral("console.info('%1%2' + location.href)").arg(mark_, Here));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    scripts().insert(script);
}

void PreviewPage::Hear(const QString& words) {
    if (!words.startsWith(Here)) {
        Q_EMIT Said(words);
    } else if (QUrl::fromEncoded(words.mid(Here.size()).toUtf8()) == address_) {
        hasStrayed_ = false;
        Q_EMIT Arrived();
    }
}

void PreviewPage::RefuseRequests() {
    connect(this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl& origin, Feature feature) {
        setFeaturePermission(origin, feature, PermissionDeniedByUser);
    });
    connect(this, &QWebEnginePage::quotaRequested, this, [](QWebEngineQuotaRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::fileSystemAccessRequested, this,
            [](QWebEngineFileSystemAccessRequest request) { request.reject(); });
}

void PreviewPage::Go(const QUrl& address) {
    address_ = address;
    isLeaving_ = true;
    load(address);
}

void PreviewPage::NoteUserAction() { userAction_.start(); }

bool PreviewPage::TakeUserAction() {
    const bool isThere = userAction_.isValid() && !userAction_.hasExpired(UserActionHolds);
    userAction_.invalidate();
    return isThere;
}

void PreviewPage::RunApart(const QString& script, const std::function<void(const QVariant&)>& answer) {
    runJavaScript(script, QWebEngineScript::ApplicationWorld, answer);
}

void PreviewPage::Choose(const QUrl& address) {
    if (LeadsSomewhere(address) && TakeUserAction())
        Q_EMIT LinkChosen(address);
}

bool PreviewPage::acceptNavigationRequest(const QUrl& address, NavigationType type, bool isMainFrame) {
    if (isMainFrame && type == NavigationTypeTyped)
        return address == address_;
    if (type == NavigationTypeLinkClicked && userAction_.isValid()) {
        Choose(address);
        return false;
    }
    hasStrayed_ = hasStrayed_ || isMainFrame;
    return !isMainFrame && type != NavigationTypeFormSubmitted && MayBeInFrame(address);
}

/// A page that is being left may ask whether it is to be; it is. Every other question gets a no.
bool PreviewPage::javaScriptConfirm(const QUrl&, const QString&) { return isLeaving_; }

void PreviewPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString& message, int, const QString&) {
    if (message.startsWith(mark_))
        Hear(message.mid(mark_.size()));
}

}  // namespace tintora
