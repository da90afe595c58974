#include "shell/Mailbox.h"

#include "settings/Settings.h"

namespace tintora {

void Mailbox::Put(TextView path) { Settings(store_).Save(setting::OpenMe, path); }

Text Mailbox::Take() {
    Settings settings(store_);
    Text path = settings.Get(setting::OpenMe);
    settings.Save(setting::OpenMe, {});
    return path;
}

}  // namespace tintora
