#include "preview/qt/LocalFiles.h"

#include <QMimeData>
#include <QUrl>

namespace tintora {

QStringList LocalFiles(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& address : data.urls()) {
        if (address.isLocalFile())
            paths.append(address.toLocalFile());
    }
    return paths;
}

}  // namespace tintora
