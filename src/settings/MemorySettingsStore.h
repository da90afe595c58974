#pragma once

#include "settings/SettingsStore.h"

#include <map>
#include <tuple>

namespace tintora {

/// A store that lives as long as its object: empty at first, so that every default holds.
class MemorySettingsStore final : public SettingsStore {
  public:
    [[nodiscard]] Text GetSetting(TextView application, TextView section, TextView key,
                                  TextView defaultValue) const override;
    void SaveSetting(TextView application, TextView section, TextView key, TextView value) override;

    /// How many keys have been stored.
    [[nodiscard]] std::size_t Size() const noexcept { return values_.size(); }

  private:
    std::map<std::tuple<Text, Text, Text>, Text> values_;
};

}  // namespace tintora
