#pragma once

#include "text/Text.h"

namespace tintora {

/// What outlives the process: texts addressed by application, section and key.
///
/// Every question reads the store and every change writes at once. A read never writes.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    /// The stored value; `defaultValue` if the key is missing or can't be read.
    [[nodiscard]] virtual Text GetSetting(TextView application, TextView section, TextView key,
                                          TextView defaultValue) const = 0;

    /// Stores `value`, making section and key where they are missing.
    virtual void SaveSetting(TextView application, TextView section, TextView key, TextView value) = 0;
};

}  // namespace tintora
