#include "settings/MemorySettingsStore.h"

namespace tintora {

Text MemorySettingsStore::GetSetting(TextView application, TextView section, TextView key,
                                     TextView defaultValue) const {
    const auto found = values_.find({Text(application), Text(section), Text(key)});
    return found == values_.end() ? Text(defaultValue) : found->second;
}

void MemorySettingsStore::SaveSetting(TextView application, TextView section, TextView key, TextView value) {
    values_[{Text(application), Text(section), Text(key)}] = value;
}

}  // namespace tintora
