#include "shell/qt/Application.h"

#include "text/Narrowing.h"

#include <QIcon>
#include <QPalette>
#include <QStandardPaths>
#include <exception>

/// The resources lie in a library, which the linker would leave out if nothing asked for them. The macro wants to stand
/// outside of any namespace.
static void LoadResources() { Q_INIT_RESOURCE(icons); }

namespace tintora {

namespace {

/// The program's icon in the sizes that window managers ask for; of a scalable icon alone they would learn none.
QIcon ProgramIcon() {
    const QIcon scalable(QStringLiteral(":/icons/tintora.svg"));
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128})
        icon.addPixmap(scalable.pixmap(size));
    return icon;
}

/// The desktop's own icons, and where it has none, those that go with a light or a dark window.
void SetUpIcons() {
    QStringList paths = QIcon::themeSearchPaths();
    // Not every platform knows where icons lie.
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        const QString icons = folder + QStringLiteral("/icons");
        if (!paths.contains(icons))
            paths.append(icons);
    }
    QIcon::setThemeSearchPaths(paths);
    constexpr int HalfLight = 128;
    const bool isDark = QApplication::palette().color(QPalette::Window).lightness() < HalfLight;
    const QString fallback = isDark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze");
    QIcon::setFallbackThemeName(fallback);
    if (QIcon::themeName().isEmpty())
        QIcon::setThemeName(fallback);
}

}  // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    LoadResources();
    setApplicationName(QStringLiteral("tintora"));
    setApplicationDisplayName(QStringLiteral("Tintora"));
    setApplicationVersion(QStringLiteral(TINTORA_VERSION));
    setDesktopFileName(QStringLiteral("tintora"));
    setWindowIcon(ProgramIcon());
    SetUpIcons();
}

void Application::SetFailureHandlers(std::function<void(const OverflowFailure&)> onOverflow,
                                     std::function<void(const QString&)> onFault) {
    onOverflow_ = std::move(onOverflow);
    onFault_ = std::move(onFault);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const OverflowFailure& failure) {
        if (onOverflow_)
            onOverflow_(failure);
    } catch (const std::exception& failure) {
        if (onFault_)
            onFault_(QString::fromUtf8(failure.what()));
    }
    return true;
}

}  // namespace tintora
