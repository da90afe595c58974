#pragma once

#include "settings/SettingKeys.h"
#include "settings/SettingsStore.h"

#include <stdexcept>

namespace tintora {

/// A stored number or truth value that can't be converted.
class MalformedSettingFailure : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

/// The place of the main window in twips, 1440 to the inch.
struct WindowPlace {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;

    friend bool operator==(const WindowPlace&, const WindowPlace&) = default;
};

/// The settings by their names and types. Nothing is cached: each call goes to the store.
///
/// A truth value is true only if its text is exactly "True".
class Settings {
  public:
    /// `store` must outlive the object.
    explicit Settings(SettingsStore& store) : store_(store) {}

    /// The text of a key, and its default where the key is missing.
    [[nodiscard]] Text Get(const SettingKey& key) const;
    void Save(const SettingKey& key, TextView value);

    [[nodiscard]] bool GetSetupWizardCompleted() const;
    void SetSetupWizardCompleted(bool completed);
    [[nodiscard]] bool GetAskToMakeDefaultCSSEditor() const;
    void SetAskToMakeDefaultCSSEditor(bool ask);
    [[nodiscard]] bool GetTypeAhead() const;
    void SetTypeAhead(bool on);
    [[nodiscard]] bool GetUseShorthands() const;
    void SetUseShorthands(bool use);
    [[nodiscard]] bool GetLivePreviewOn() const;
    void SetLivePreviewOn(bool on);

    [[nodiscard]] Text GetTextEditorFont() const;
    [[nodiscard]] Text GetPreferredUnits() const;
    void SetPreferredUnits(TextView units);

    /// 0 where the stored text begins with no number.
    [[nodiscard]] int GetAutoSelectEditors() const;
    void SaveAutoSelectEditors(int value);

    /// Throws `MalformedSettingFailure` for a text that is no number.
    [[nodiscard]] WindowPlace GetWindowPlace() const;
    void SaveWindowPlace(const WindowPlace& place);

    /// The one truth value that is converted as a number is: "True" and "False" in whatever case, and any number, of
    /// which only 0 is false. Throws `MalformedSettingFailure` for any other text.
    [[nodiscard]] bool GetMaximized() const;
    void SaveMaximized(bool maximized);

    /// The stored style of a token type, "" if there is none. Its key is the type as `NumberText` writes it.
    [[nodiscard]] Text GetTokenStyleText(int tokenType) const;
    void SaveTokenStyleText(int tokenType, TextView style);

  private:
    [[nodiscard]] bool IsTrue(const SettingKey& key) const;
    void SaveTruth(const SettingKey& key, bool value);
    [[nodiscard]] float GetTwips(const SettingKey& key) const;

    SettingsStore& store_;
};

}  // namespace tintora
