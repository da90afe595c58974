#pragma once

#include <memory>

namespace tintora {

/// The flags of the property palette: one set for the palette and all its editors, also for those that are still to be
/// made. They are no locks: calls nest, since a change of the text comes back to the palette before it has ended.
struct PaletteFlags {
    /// The controls are being filled from the text: what they report isn't the user's.
    bool SettingUp = false;

    /// A change is being written: what comes from the text isn't read back into the controls.
    bool ChangingProperty = false;

    /// A dialog of the palette is open: its editor must stay.
    [[nodiscard]] bool IsDialogOpen() const noexcept { return *isDialogOpen; }

    /// The palette may go while a dialog is open, and the dialog ends behind it.
    std::shared_ptr<bool> isDialogOpen = std::make_shared<bool>(false);
};

/// Sets a flag for as long as it lives; then the flag is as before, also where an exception passes.
class FlagScope {
  public:
    explicit FlagScope(bool& flag) noexcept : flag_(flag), before_(flag) { flag_ = true; }
    ~FlagScope() { flag_ = before_; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;
    FlagScope(FlagScope&&) = delete;
    FlagScope& operator=(FlagScope&&) = delete;

    /// The flag stays set.
    void Keep() noexcept { before_ = true; }

  private:
    bool& flag_;
    bool before_;
};

/// A dialog of the palette is open for as long as it lives.
class OpenDialog {
  public:
    explicit OpenDialog(const PaletteFlags& flags) : flag_(flags.isDialogOpen), scope_(*flag_) {}

  private:
    std::shared_ptr<bool> flag_;
    FlagScope scope_;
};

}  // namespace tintora
