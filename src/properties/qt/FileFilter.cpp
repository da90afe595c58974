#include "properties/qt/FileFilter.h"

#include "text/qt/QtText.h"

#include <QStringList>

namespace tintora {

namespace {

QString PatternsOf(const QString& text) {
    QStringList patterns = text.split(u';', Qt::SkipEmptyParts);
    for (QString& pattern : patterns) {
        pattern = pattern.trimmed();
        if (pattern == QStringLiteral("*.*"))
            pattern = QStringLiteral("*");
    }
    return patterns.join(u' ');
}

}  // namespace

QString ToolkitFilter(TextView filter) {
    const QStringList parts = ToQString(filter).split(u'|');
    QStringList filters;
    for (qsizetype index = 0; index + 1 < parts.size(); index += 2) {
        const QString& caption = parts[index];
        const qsizetype bracket = caption.indexOf(u'(');
        filters.append(QStringLiteral("%1 (%2)").arg(caption.left(bracket).trimmed(), PatternsOf(parts[index + 1])));
    }
    return filters.join(QStringLiteral(";;"));
}

}  // namespace tintora
