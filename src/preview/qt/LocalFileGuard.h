#pragma once

#include <QWebEngineUrlRequestInterceptor>

namespace tintora {

/// Decides what a page may load from the disk. It sees each request of each page before it is made; what goes to the
/// web is none of its business.
///
/// A page of the preview is a local file, and its sheets, scripts, images, fonts and films are as well. They load from
/// wherever they lie, as in a browser. The engine either gives a local page nothing of the disk at all or lets its
/// scripts read everything, so this guard draws the line: what a script could read as text is refused (requests by
/// script, workers, data in the coat of a script or a style sheet), and a frame shows no file outside of the page's
/// folder.
class LocalFileGuard : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT

  public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo& request) override;

    /// Whether `file` lies in the folder of `page` or below it; both are file URLs. A file whose path hides a separator
    /// in an escape lies nowhere.
    [[nodiscard]] static bool IsBeside(const QUrl& file, const QUrl& page);
};

}  // namespace tintora
