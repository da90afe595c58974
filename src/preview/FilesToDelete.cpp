#include "preview/FilesToDelete.h"

#include "language/Words.h"
#include "settings/PathLists.h"
#include "settings/Settings.h"

#include <algorithm>

namespace tintora {

bool FilesToDelete::DeleteFileIfExists(TextView path) { return !IsHeld(path) && DeleteTemporaryFile(path); }

void FilesToDelete::DeleteOrQueueFile(TextView path) {
    if (!DeleteFileIfExists(path))
        QueueFileToDelete(path);
}

void FilesToDelete::QueueFilesToDelete(const Texts& paths) {
    Texts queued = Queued();
    const std::size_t before = queued.size();
    for (const Text& path : paths) {
        if (IsTemporaryFile(path) && !ListContains(queued, path))
            queued.push_back(path);
    }
    if (queued.size() != before)
        Store(queued);
}

void FilesToDelete::PurgeFilesToDelete() {
    const Texts queued = Queued();
    Texts left;
    std::ranges::copy_if(queued, std::back_inserter(left),
                         [this](const Text& path) { return !DeleteFileIfExists(path); });
    if (left != queued)
        Store(left);
}

Texts FilesToDelete::Queued() const { return SplitPaths(Settings(store_).Get(setting::FilesToDelete)); }

void FilesToDelete::Hold(TextView path) { held_.emplace(path); }

void FilesToDelete::Release(TextView path) {
    if (const auto held = held_.find(path); held != held_.end())
        held_.erase(held);
}

void FilesToDelete::HoldForAMinute(TextView path) { heldUntil_[Text(path)] = now_() + std::chrono::minutes(1); }

bool FilesToDelete::IsHeld(TextView path) {
    std::erase_if(heldUntil_, [now = now_()](const auto& held) { return held.second <= now; });
    return held_.contains(path) || heldUntil_.contains(path);
}

void FilesToDelete::Store(const Texts& paths) { Settings(store_).Save(setting::FilesToDelete, JoinPaths(paths)); }

}  // namespace tintora
