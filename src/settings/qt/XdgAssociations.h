#pragma once

#include "settings/FileAssociation.h"

namespace tintora {

/// The desktop's choice of programs, by its `xdg-mime` tool.
class XdgAssociations final : public DesktopAssociations {
  public:
    [[nodiscard]] std::optional<Text> QueryDefault(TextView mimeType) const override;
    void SetDefault(TextView mimeType, TextView desktopFile) override;
};

}  // namespace tintora
