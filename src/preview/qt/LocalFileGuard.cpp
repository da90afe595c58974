#include "preview/qt/LocalFileGuard.h"

#include <QDir>
#include <QFileInfo>

namespace tintora {

namespace {

bool EndsInOneOf(const QUrl& file, std::initializer_list<QLatin1String> endings) {
    const QString name = file.path();
    return std::any_of(endings.begin(), endings.end(),
                       [&](QLatin1String ending) { return name.endsWith(ending, Qt::CaseInsensitive); });
}

bool MayLoad(const QWebEngineUrlRequestInfo& request) {
    const QUrl file = request.requestUrl();
    switch (request.resourceType()) {
        // The page itself, and no other gets as far as here.
        case QWebEngineUrlRequestInfo::ResourceTypeMainFrame:
        case QWebEngineUrlRequestInfo::ResourceTypeImage:
        case QWebEngineUrlRequestInfo::ResourceTypeFontResource:
        case QWebEngineUrlRequestInfo::ResourceTypeMedia: return true;
        // The ending tells the engine what a file is. With another one, a script could read rules out of any text.
        case QWebEngineUrlRequestInfo::ResourceTypeStylesheet: return EndsInOneOf(file, {QLatin1String(".css")});
        // A module may import JSON, which would be reading.
        case QWebEngineUrlRequestInfo::ResourceTypeScript:
            return EndsInOneOf(file, {QLatin1String(".js"), QLatin1String(".mjs")});
        case QWebEngineUrlRequestInfo::ResourceTypeSubFrame:
        case QWebEngineUrlRequestInfo::ResourceTypeObject:
            return LocalFileGuard::IsBeside(file, request.firstPartyUrl());
        default: return false;
    }
}

}  // namespace

void LocalFileGuard::interceptRequest(QWebEngineUrlRequestInfo& request) {
    if (request.requestUrl().isLocalFile() && !MayLoad(request))
        request.block(true);
}

bool LocalFileGuard::IsBeside(const QUrl& file, const QUrl& page) {
    if (!file.isLocalFile() || !page.isLocalFile())
        return false;
    const QString escaped = file.path(QUrl::FullyEncoded);
    if (escaped.contains(QLatin1String("%2F"), Qt::CaseInsensitive) || !file.host().isEmpty())
        return false;
    const QString folder = QFileInfo(QDir::cleanPath(page.toLocalFile())).path();
    const QString path = QDir::cleanPath(file.toLocalFile());
    return path.startsWith(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

}  // namespace tintora
