#include "settings/qt/XdgAssociations.h"

#include "text/qt/QtText.h"

#include <QProcess>
#include <QStandardPaths>

namespace tintora {

namespace {

/// The tool's path; "" where it may not be used.
QString FindTool() {
    if (qgetenv("CI") == "true")
        return {};
    return QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
}

/// What the tool prints; nothing where there is no such tool, or it fails.
std::optional<QString> RunTool(const QStringList& arguments, int millisecondsToWait) {
    const QString tool = FindTool();
    if (tool.isEmpty())
        return std::nullopt;
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished(millisecondsToWait)) {
        process.kill();
        process.waitForFinished();
        return std::nullopt;
    }
    if (process.exitStatus() != QProcess::NormalExit)
        return std::nullopt;
    return QString::fromUtf8(process.readAllStandardOutput());
}

}  // namespace

std::optional<Text> XdgAssociations::QueryDefault(TextView mimeType) const {
    const auto printed =
        RunTool({QStringLiteral("query"), QStringLiteral("default"), ToQString(mimeType)}, millisecondsToWait_);
    return printed ? std::optional<Text>(ToText(printed->trimmed())) : std::nullopt;
}

void XdgAssociations::SetDefault(TextView mimeType, TextView desktopFile) {
    static_cast<void>(
        RunTool({QStringLiteral("default"), ToQString(desktopFile), ToQString(mimeType)}, millisecondsToWait_));
}

}  // namespace tintora
