#pragma once

#include <QStringList>

class QMimeData;

namespace tintora {

/// The paths of the files of this computer among what is dragged, in their order.
[[nodiscard]] QStringList LocalFiles(const QMimeData& data);

}  // namespace tintora
