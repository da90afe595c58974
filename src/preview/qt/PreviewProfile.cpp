#include "preview/qt/PreviewProfile.h"

#include "preview/qt/LocalFileGuard.h"

#include <unistd.h>
#include <QQuickWindow>
#include <QWebEngineDownloadRequest>
#include <QWebEngineSettings>
#include <optional>

namespace tintora {

namespace {

/// A variable of the environment that is set for a while. The engine reads its own when it comes up, and no program
/// that is started from here shall inherit them.
class BriefVariable {
  public:
    BriefVariable(const char* name, const QByteArray& value) : name_(name) {
        if (qEnvironmentVariableIsSet(name))
            old_ = qgetenv(name);
        qputenv(name, value);
    }
    ~BriefVariable() {
        if (old_)
            qputenv(name_, *old_);
        else
            qunsetenv(name_);
    }
    Q_DISABLE_COPY_MOVE(BriefVariable)

  private:
    const char* name_;
    std::optional<QByteArray> old_;
};

/// Software draws the pages. With OpenGL the first page to be shown would turn the main window into another native
/// window before the user's eyes, and where there is no OpenGL, a page would be the end of the program. The engine sees
/// it and leaves the graphics processor alone, so it needs no flag for that, nor a shared context.
void DrawBySoftware() {
    static const bool isSet = [] {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        return true;
    }();
    Q_UNUSED(isSet);
}

/// Images come from the whole disk, so a page must not read their pixels.
QByteArray Flags() {
    return qgetenv("QTWEBENGINE_CHROMIUM_FLAGS") + " --disable-reading-from-canvas --disable-blink-features=WebCodecs";
}

std::unique_ptr<QWebEngineProfile> BringUpProfile() {
    DrawBySoftware();
    const BriefVariable flags("QTWEBENGINE_CHROMIUM_FLAGS", Flags());
    // The sandbox refuses to work for root, and the engine to come up.
    std::optional<BriefVariable> sandbox;
    if (geteuid() == 0)
        sandbox.emplace("QTWEBENGINE_DISABLE_SANDBOX", "1");
    return std::make_unique<QWebEngineProfile>();
}

void SetUp(QWebEngineSettings& settings) {
    for (const auto attribute : {
             QWebEngineSettings::LocalContentCanAccessFileUrls,
             QWebEngineSettings::LocalContentCanAccessRemoteUrls,
             QWebEngineSettings::PlaybackRequiresUserGesture,
         })
        settings.setAttribute(attribute, true);
    for (const auto attribute : {
             QWebEngineSettings::AutoLoadIconsForPage,
             QWebEngineSettings::ErrorPageEnabled,
             QWebEngineSettings::FocusOnNavigationEnabled,
             QWebEngineSettings::JavascriptCanOpenWindows,
             QWebEngineSettings::NavigateOnDropEnabled,
             QWebEngineSettings::PdfViewerEnabled,
         })
        settings.setAttribute(attribute, false);
}

}  // namespace

std::shared_ptr<QWebEngineProfile> SharedPreviewProfile() {
    static std::weak_ptr<QWebEngineProfile> shared;
    if (std::shared_ptr<QWebEngineProfile> profile = shared.lock())
        return profile;
    std::shared_ptr<QWebEngineProfile> profile = BringUpProfile();
    shared = profile;
    SetUp(*profile->settings());
    profile->setUrlRequestInterceptor(new LocalFileGuard(profile.get()));
    QObject::connect(profile.get(), &QWebEngineProfile::downloadRequested, profile.get(),
                     [](QWebEngineDownloadRequest* download) { download->cancel(); });
    return profile;
}

}  // namespace tintora
