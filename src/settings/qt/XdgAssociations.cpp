#include "settings/qt/XdgAssociations.h"

#include "text/qt/QtText.h"

#include <QProcess>
#include <QStandardPaths>

namespace tintora {

namespace {

constexpr int MillisecondsToWait = 5000;

/// What the tool prints; nothing where there is no such tool, or it fails.
std::optional<QString> RunTool(const QStringList& arguments) {
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (tool.isEmpty())
        return std::nullopt;
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished(MillisecondsToWait) || process.exitStatus() != QProcess::NormalExit)
        return std::nullopt;
    return QString::fromUtf8(process.readAllStandardOutput());
}

}  // namespace

std::optional<Text> XdgAssociations::QueryDefault(TextView mimeType) const {
    const auto printed = RunTool({QStringLiteral("query"), QStringLiteral("default"), ToQString(mimeType)});
    return printed ? std::optional<Text>(ToText(printed->trimmed())) : std::nullopt;
}

void XdgAssociations::SetDefault(TextView mimeType, TextView desktopFile) {
    static_cast<void>(RunTool({QStringLiteral("default"), ToQString(desktopFile), ToQString(mimeType)}));
}

}  // namespace tintora
