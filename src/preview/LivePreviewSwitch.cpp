#include "preview/LivePreviewSwitch.h"

#include "settings/Settings.h"

#include <utility>

namespace tintora {

LivePreviewSwitch::LivePreviewSwitch(SettingsStore& store, Show showInBox, Show showInMenu)
    : store_(store), showInBox_(std::move(showInBox)), showInMenu_(std::move(showInMenu)) {}

bool LivePreviewSwitch::IsOn() const { return Settings(store_).GetLivePreviewOn(); }

void LivePreviewSwitch::SetLivePreview(bool isOn) {
    Settings(store_).SetLivePreviewOn(isOn);
    showInMenu_(isOn);
    SetUpLivePreview(isOn);
}

void LivePreviewSwitch::SetUpLivePreview(bool isOn) {
    if (!isSettingUp_)
        showInBox_(isOn);
}

void LivePreviewSwitch::BoxClicked(bool isTicked) {
    isSettingUp_ = true;
    SetLivePreview(isTicked);
    isSettingUp_ = false;
}

}  // namespace tintora
