#pragma once

#include "settings/SettingsStore.h"

#include <functional>

namespace tintora {

/// Live preview on and off: the setting, and the box and the menu item that show it.
///
///     LivePreviewSwitch live(store, [&](bool isOn) { box.setChecked(isOn); }, [&](bool isOn) { item.setChecked(isOn);
///     }); live.SetLivePreview(false);         // stored; box and item are cleared live.BoxClicked(true); // stored;
///     the item is ticked, and the box is left alone
///
/// The setting is read each time.
class LivePreviewSwitch {
  public:
    using Show = std::function<void(bool isOn)>;

    /// `store` must outlive the object. `showInBox` ticks or clears the box of the preview pane, `showInMenu` the menu
    /// item.
    LivePreviewSwitch(SettingsStore& store, Show showInBox, Show showInMenu);

    [[nodiscard]] bool IsOn() const;

    /// Stores the setting, and shows it in both places.
    void SetLivePreview(bool isOn);

    /// Shows in the box whether live preview is on; does nothing while the box's own click is at work, so that box and
    /// menu don't set each other in a circle.
    void SetUpLivePreview(bool isOn);

    /// The user has ticked or cleared the box.
    void BoxClicked(bool isTicked);

  private:
    SettingsStore& store_;
    Show showInBox_;
    Show showInMenu_;
    bool isSettingUp_ = false;
};

}  // namespace tintora
