#pragma once

#include "settings/FileAssociation.h"

namespace tintora {

/// The desktop's choice of programs, by its `xdg-mime` tool. Where the tool is missing, doesn't end in time, or `CI` is
/// "true" in the environment, there is no such choice: nothing is asked and nothing changes.
class XdgAssociations final : public DesktopAssociations {
  public:
    /// How long the tool may take for an answer.
    explicit XdgAssociations(int millisecondsToWait = 5000) : millisecondsToWait_(millisecondsToWait) {}

    [[nodiscard]] std::optional<Text> QueryDefault(TextView mimeType) const override;
    void SetDefault(TextView mimeType, TextView desktopFile) override;

  private:
    int millisecondsToWait_;
};

}  // namespace tintora
