#pragma once

#include "settings/SettingsStore.h"

#include <QString>

namespace tintora {

/// Settings in INI files, one for each application, which several processes may share: each question reads the file
/// anew, each change writes it at once.
///
/// A file that can't be understood is renamed to end in ".damaged" (".damaged.2" and so on where that exists), and
/// every default holds then. A change that can't be written is lost quietly.
class IniSettingsStore final : public SettingsStore {
  public:
    /// `folder` is made at the first change.
    explicit IniSettingsStore(QString folder);

    /// The user's own folder for the settings of this program.
    [[nodiscard]] static QString UserFolder();

    [[nodiscard]] Text GetSetting(TextView application, TextView section, TextView key,
                                  TextView defaultValue) const override;
    void SaveSetting(TextView application, TextView section, TextView key, TextView value) override;

    /// The file that holds an application's settings.
    [[nodiscard]] QString FilePath(TextView application) const;

  private:
    QString folder_;
};

}  // namespace tintora
