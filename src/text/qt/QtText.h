#pragma once

#include "text/Text.h"

#include <QString>

/// The edge between Qt's strings and the core's texts, which are the same code units.
namespace tintora {

[[nodiscard]] inline QString ToQString(TextView text) {
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline Text ToText(QStringView string) {
    return Text(string.utf16(), static_cast<std::size_t>(string.size()));
}

}  // namespace tintora
