#include "validation/qt/SystemWebAccess.h"

#include "preview/BrowserPreviews.h"

namespace tintora {

using Reachability = QNetworkInformation::Reachability;

Reachability SystemReachability() {
    if (QNetworkInformation::instance() == nullptr && !QNetworkInformation::loadDefaultBackend())
        return Reachability::Unknown;
    return QNetworkInformation::instance()->reachability();
}

bool SystemWebAccess::IsConnected() const {
    switch (reachability_()) {
        case Reachability::Disconnected:
        case Reachability::Local: return false;
        // Somebody between here and the internet may keep the system from finding out.
        case Reachability::Site:
        case Reachability::Online:
        case Reachability::Unknown: break;
    }
    return true;
}

void SystemWebAccess::OpenURLInBrowser(TextView url) {
    static_cast<void>(processes_.Start(BrowserCommand(locations_.Get(NamedBrowser::IE), url)));
}

}  // namespace tintora
