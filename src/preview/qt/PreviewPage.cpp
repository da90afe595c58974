#include "preview/qt/PreviewPage.h"

#include <QUuid>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineScript>

namespace tintora {

namespace {

constexpr int UserActionHolds = 1000;

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
    connect(this, &QWebEnginePage::urlChanged, this, &PreviewPage::NoteArrival);
    connect(this, &QWebEnginePage::renderProcessTerminated, this, [this] { hasStrayed_ = false; });
    connect(this, &QWebEnginePage::newWindowRequested, this, [this](const QWebEngineNewWindowRequest& request) {
        if (request.isUserInitiated())
            Choose(request.requestedUrl());
    });
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

void PreviewPage::NoteArrival(const QUrl& address) {
    if (address == address_)
        hasStrayed_ = false;
    isLeaving_ = false;
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
        Q_EMIT Said(message.mid(mark_.size()));
}

}  // namespace tintora
