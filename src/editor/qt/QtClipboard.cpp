#include "editor/qt/QtClipboard.h"

#include "text/qt/QtText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace tintora {

bool QtClipboard::HasText() const {
    const QMimeData* const content = QGuiApplication::clipboard()->mimeData();
    return content != nullptr && content->hasText();
}

Text QtClipboard::GetText() const { return ToText(QGuiApplication::clipboard()->text()); }

void QtClipboard::SetText(TextView text) { QGuiApplication::clipboard()->setText(ToQString(text)); }

}  // namespace tintora
