#include "preview/LastPreviewFiles.h"

#include "settings/Settings.h"

namespace tintora {

void LastPreviewFiles::DeleteAll() {
    DeleteLastPreviewCSSFile();
    DeleteLastPreviewHTMLFile();
    DeleteLastCurrentRulePreviewFile();
    filesToDelete_.PurgeFilesToDelete();
}

Text LastPreviewFiles::Get(const SettingKey& key) const { return Settings(store_).Get(key); }

void LastPreviewFiles::Set(const SettingKey& key, TextView path) {
    // What is "" already needn't be written; a name is always a new one.
    if (!path.empty() || !Get(key).empty())
        Settings(store_).Save(key, path);
}

void LastPreviewFiles::Delete(const SettingKey& key) {
    filesToDelete_.DeleteOrQueueFile(Get(key));
    Set(key, {});
}

}  // namespace tintora
