#pragma once

#include <QWebEngineProfile>
#include <memory>

namespace tintora {

/// The one profile that all pages of the preview share, off the record: it keeps nothing beyond its life, neither on
/// the disk nor in another profile. It is made, and with it the engine comes up (about a tenth of a second), when
/// somebody asks first, and goes when nobody holds it any more. The pages must go before it does.
///
/// Its pages run scripts, and may load from the web and, as far as `LocalFileGuard` lets them, from the disk. They get
/// no windows, downloads or clipboard.
[[nodiscard]] std::shared_ptr<QWebEngineProfile> SharedPreviewProfile();

}  // namespace tintora
