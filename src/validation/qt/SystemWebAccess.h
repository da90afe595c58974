#pragma once

#include "preview/BrowserLocations.h"
#include "preview/BrowserSurroundings.h"
#include "validation/ValidationSurroundings.h"

#include <QNetworkInformation>
#include <functional>

namespace tintora {

/// Tells how far the network reaches.
using ReadReachability = std::function<QNetworkInformation::Reachability()>;

/// What the system knows of its network, which is nothing where nobody looks after it. To be asked on the main thread.
[[nodiscard]] QNetworkInformation::Reachability SystemReachability();

/// The system's network, and the browser at the location of `NamedBrowser::IE`, as a process of its own.
class SystemWebAccess final : public WebAccess {
  public:
    /// `locations` and `processes` must outlive the object.
    SystemWebAccess(const BrowserLocations& locations, ProcessStarter& processes,
                    ReadReachability reachability = SystemReachability)
        : locations_(locations), processes_(processes), reachability_(std::move(reachability)) {}

    /// Not where the network doesn't go beyond this computer and its neighbours.
    [[nodiscard]] bool IsConnected() const override;
    void OpenURLInBrowser(TextView url) override;

  private:
    const BrowserLocations& locations_;
    ProcessStarter& processes_;
    ReadReachability reachability_;
};

}  // namespace tintora
