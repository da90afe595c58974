#pragma once

#include "preview/TemporaryFiles.h"
#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <chrono>
#include <map>
#include <set>

namespace tintora {

/// Deletes the files of previews, and keeps a list in the settings of those that can't be deleted yet.
///
///     files.HoldForAMinute(page);              // a browser is starting on it
///     files.DeleteOrQueueFile(page);           // so it is only put on the list
///     ...
///     files.PurgeFilesToDelete();              // more than a minute later: it is gone
///
/// Only files named "ktTemp..." are ever deleted; others aren't put on the list, and leave it at the next purge. A
/// file may be held, because somebody may still read it. Who holds what isn't stored: the next start of the program
/// finds nothing held.
class FilesToDelete {
  public:
    /// `store` must outlive the object.
    FilesToDelete(SettingsStore& store, ReadTime now) : store_(store), now_(std::move(now)) {}

    /// Deletes a file; whether nothing is left to delete. "", a path where no file is, and a file that isn't one of the
    /// preview's count as deleted. A held file isn't deleted.
    bool DeleteFileIfExists(TextView path);

    /// Deletes a file, or puts it on the list.
    void DeleteOrQueueFile(TextView path);

    /// Puts files on the list, in their order, each once.
    void QueueFileToDelete(TextView path) { QueueFilesToDelete({Text(path)}); }
    void QueueFilesToDelete(const Texts& paths);

    /// Deletes what is on the list; what can't be deleted stays on it. Nothing is added.
    void PurgeFilesToDelete();

    /// The list.
    [[nodiscard]] Texts Queued() const;

    /// The file is being read in the program, until it is released. Holding it twice is holding it once.
    void Hold(TextView path);
    void Release(TextView path);

    /// The file was given to another program, which has a minute from now to read it.
    void HoldForAMinute(TextView path);

  private:
    [[nodiscard]] bool IsHeld(TextView path);
    void Store(const Texts& paths);

    SettingsStore& store_;
    ReadTime now_;
    std::set<Text, std::less<>> held_;
    std::map<Text, std::chrono::system_clock::time_point, std::less<>> heldUntil_;
};

}  // namespace tintora
