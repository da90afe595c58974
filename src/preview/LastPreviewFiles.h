#pragma once

#include "preview/FilesToDelete.h"
#include "settings/SettingKeys.h"
#include "settings/SettingsStore.h"
#include "text/Text.h"

namespace tintora {

/// The files of the latest previews, as the settings name them; "" where there is none.
class LastPreviewFiles {
  public:
    /// Both must outlive the object.
    LastPreviewFiles(SettingsStore& store, FilesToDelete& filesToDelete)
        : store_(store), filesToDelete_(filesToDelete) {}

    /// The page and the style sheet of the latest preview, in a pane or in a browser.
    [[nodiscard]] Text GetLastPreviewHTMLFile() const { return Get(setting::LastPreviewHTMLFile); }
    void SetLastPreviewHTMLFile(TextView path) { Set(setting::LastPreviewHTMLFile, path); }
    [[nodiscard]] Text GetLastPreviewCSSFile() const { return Get(setting::LastPreviewCSSFile); }
    void SetLastPreviewCSSFile(TextView path) { Set(setting::LastPreviewCSSFile, path); }

    /// The page of the latest preview of a rule.
    [[nodiscard]] Text GetLastCurrentRulePreviewFile() const { return Get(setting::LastCurrentRulePreviewFile); }
    void SetLastCurrentRulePreviewFile(TextView path) { Set(setting::LastCurrentRulePreviewFile, path); }

    /// Each deletes the file, or puts it on the list of files to delete, and clears the key.
    void DeleteLastPreviewCSSFile() { Delete(setting::LastPreviewCSSFile); }
    void DeleteLastPreviewHTMLFile() { Delete(setting::LastPreviewHTMLFile); }
    void DeleteLastCurrentRulePreviewFile() { Delete(setting::LastCurrentRulePreviewFile); }

    /// All three, and then what is on the list: on closing, and, for what a crash has left, at the start.
    void DeleteAll();

  private:
    [[nodiscard]] Text Get(const SettingKey& key) const;
    void Set(const SettingKey& key, TextView path);
    void Delete(const SettingKey& key);

    SettingsStore& store_;
    FilesToDelete& filesToDelete_;
};

}  // namespace tintora
