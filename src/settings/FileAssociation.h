#pragma once

#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <functional>
#include <optional>

namespace tintora {

/// The desktop's choice of the program that opens style sheets.
class DesktopAssociations {
  public:
    virtual ~DesktopAssociations() = default;

    /// The name of the desktop file that opens the MIME type by default, "" if there is none; nothing on a desktop that
    /// keeps no such choice.
    [[nodiscard]] virtual std::optional<Text> QueryDefault(TextView mimeType) const = 0;

    /// Makes the desktop file the one that opens the MIME type. A failure isn't reported.
    virtual void SetDefault(TextView mimeType, TextView desktopFile) = 0;
};

/// Whether this program is the default editor of style sheets; true where the desktop keeps no such choice, so that
/// nothing is asked there. The comparison is exact, white space behind the name aside.
[[nodiscard]] bool IsDefaultCSSEditor(const DesktopAssociations& desktop);

/// Makes this program the default editor of style sheets.
void MakeDefaultCSSEditor(DesktopAssociations& desktop);

/// At start-up: calls `askDefault` if the user may be asked whether this program shall be the default editor of style
/// sheets, and it isn't yet. The desktop is asked only where the user may be. What the answer means is up to who asks.
void OfferDefaultCSSEditor(SettingsStore& store, const DesktopAssociations& desktop,
                           const std::function<void()>& askDefault);

}  // namespace tintora
