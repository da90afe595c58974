#pragma once

#include "document/RecoveryCopies.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tintora {

/// A recovery copy that an earlier run of the program has left.
struct LeftCopy {
    /// The copy's name, by which it is dropped or taken over.
    std::string name;
    RecoveryRecord record;
};

/// Recovery copies as files of one folder, which belongs to one running program at a time.
///
/// Each copy is written beside its predecessor and then takes its place, so there is always a whole one. What may wait
/// a moment is written by a thread of its own: a disk may take its time.
///
///     RecoveryFolder folder("/home/ann/.local/state/tintora/recovery");
///     for (const LeftCopy& copy : folder.ReadLeftCopies())   // what the last run couldn't save
///         Offer(copy);
class RecoveryFolder final : public RecoveryCopies, private WriteObserver {
  public:
    /// `path` is made, for the user alone, when the first copy is kept.
    explicit RecoveryFolder(std::string path);

    /// Writes what still waits.
    ~RecoveryFolder() override;

    /// The copies that lie in the folder, but for those that this object has kept, the oldest first. A file that is no
    /// whole copy is passed over and stays.
    [[nodiscard]] std::vector<LeftCopy> ReadLeftCopies() const;

    [[nodiscard]] std::string MakeName() override;
    void KeepSoon(const std::string& name, const RecoveryRecord& record) override;
    void Keep(const std::string& name, const RecoveryRecord& record) override;
    void Drop(const std::string& name) override;
    [[nodiscard]] WriteObserver* Journal() override { return this; }

  private:
    void BeforeWrite(TextView path, std::string_view bytes) override;
    void AfterWrite(TextView path, std::string_view bytes) override;
    void AfterFailedWrite(TextView path) override;

    [[nodiscard]] std::string PathOf(const std::string& name) const;
    void WriteCopy(const std::string& name, const RecoveryRecord& record) const noexcept;
    void WriteWaitingCopies();
    /// Nothing of that name waits or is being written afterwards.
    void Withdraw(const std::string& name);
    void DropJournal();

    std::string path_;
    std::string ownPrefix_;
    int nameCount_ = 0;
    /// The copy of the file that is being written; "" for none.
    std::string journalName_;

    std::mutex mutex_;
    std::condition_variable changed_;
    std::map<std::string, RecoveryRecord> waiting_;
    /// The name of the copy that the thread is writing; "" for none.
    std::string beingWritten_;
    bool isEnding_ = false;
    std::thread thread_;
};

}  // namespace tintora
