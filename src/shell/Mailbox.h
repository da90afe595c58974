#pragma once

#include "settings/SettingsStore.h"
#include "text/Text.h"

namespace tintora {

/// How a second instance hands its file to the first: one setting that holds a path, and is empty when nothing waits.
///
/// The second instance puts its path in and wakes the first, which takes it out. The wake-up carries nothing itself.
class Mailbox {
  public:
    /// `store` must outlive the object.
    explicit Mailbox(SettingsStore& store) : store_(store) {}

    /// Puts a path in, in the place of one that waits; "" for a start that names no file.
    void Put(TextView path);

    /// Takes out what waits; "" if nothing does.
    [[nodiscard]] Text Take();

  private:
    SettingsStore& store_;
};

}  // namespace tintora
