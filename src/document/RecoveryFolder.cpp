#include "document/RecoveryFolder.h"

#include "linking/Paths.h"
#include "linking/TextFiles.h"
#include "text/Encoding.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <random>

namespace tintora {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Extension = ".recovery";
constexpr std::string_view UnfinishedExtension = ".unfinished";

std::int64_t Now() {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(sinceEpoch).count();
}

/// A file or a folder that is open, to be written or flushed.
class Descriptor {
  public:
    Descriptor(const std::string& path, int flags) : number_(::open(path.c_str(), flags | O_CLOEXEC, 0600)) {}
    ~Descriptor() {
        if (number_ != -1)
            ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] bool Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t count = ::write(number_, bytes.data(), bytes.size());
            if (count == -1 && errno != EINTR)
                return false;
            bytes.remove_prefix(count == -1 ? 0 : static_cast<std::size_t>(count));
        }
        return number_ != -1;
    }

    [[nodiscard]] bool Flush() const { return ::fsync(number_) == 0; }

  private:
    int number_;
};

bool MakeFolder(const std::string& path) {
    std::error_code failed;
    if (fs::create_directories(path, failed))
        fs::permissions(path, fs::perms::owner_all, failed);
    return fs::is_directory(path, failed);
}

}  // namespace

RecoveryFolder::RecoveryFolder(std::string path)
    : path_(std::move(path)), ownPrefix_(std::to_string(Now()) + "-" + std::to_string(std::random_device()()) + "-") {}

RecoveryFolder::~RecoveryFolder() {
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable())
        thread_.join();
}

std::string RecoveryFolder::PathOf(const std::string& name) const {
    return path_ + "/" + name + std::string(Extension);
}

std::vector<LeftCopy> RecoveryFolder::ReadLeftCopies() const {
    std::vector<LeftCopy> copies;
    std::error_code failed;
    for (fs::directory_iterator entry(path_, failed); !failed && entry != fs::directory_iterator();
         entry.increment(failed)) {
        const std::string name = entry->path().stem().native();
        if (entry->path().extension() != Extension || name.starts_with(ownPrefix_))
            continue;
        try {
            std::optional<RecoveryRecord> record = ParseRecord(ReadFileBytes(TextFromFileName(entry->path().native())));
            if (record)
                copies.push_back({name, std::move(*record)});
        } catch (const FileFailure&) {
            // It stays where it is, for a time when it can be read.
        }
    }
    std::sort(copies.begin(), copies.end(),
              [](const LeftCopy& one, const LeftCopy& other) { return one.record.time < other.record.time; });
    return copies;
}

std::string RecoveryFolder::MakeName() { return ownPrefix_ + std::to_string(++nameCount_); }

void RecoveryFolder::WriteCopy(const std::string& name, const RecoveryRecord& record) const noexcept {
    try {
        if (!MakeFolder(path_))
            return;
        const std::string path = PathOf(name);
        const std::string unfinished = path + std::string(UnfinishedExtension);
        const Descriptor file(unfinished, O_WRONLY | O_CREAT | O_TRUNC);
        if (!file.Write(PrintRecord(record)) || !file.Flush()) {
            ::unlink(unfinished.c_str());
            return;
        }
        if (std::rename(unfinished.c_str(), path.c_str()) == 0)
            static_cast<void>(Descriptor(path_, O_RDONLY | O_DIRECTORY).Flush());
    } catch (const std::exception&) {
        // There is no copy then, and the text is in the editor as before.
    }
}

void RecoveryFolder::KeepSoon(const std::string& name, const RecoveryRecord& record) {
    const std::lock_guard lock(mutex_);
    waiting_.insert_or_assign(name, record);
    if (!thread_.joinable())
        thread_ = std::thread([this] { WriteWaitingCopies(); });
    changed_.notify_all();
}

void RecoveryFolder::WriteWaitingCopies() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return isEnding_ || !waiting_.empty(); });
        if (waiting_.empty())
            return;
        const auto next = waiting_.extract(waiting_.begin());
        beingWritten_ = next.key();
        lock.unlock();
        WriteCopy(next.key(), next.mapped());
        lock.lock();
        beingWritten_.clear();
        changed_.notify_all();
    }
}

void RecoveryFolder::Withdraw(const std::string& name) {
    std::unique_lock lock(mutex_);
    waiting_.erase(name);
    changed_.wait(lock, [&] { return beingWritten_ != name; });
}

void RecoveryFolder::Keep(const std::string& name, const RecoveryRecord& record) {
    Withdraw(name);
    WriteCopy(name, record);
}

void RecoveryFolder::Drop(const std::string& name) {
    Withdraw(name);
    ::unlink(PathOf(name).c_str());
}

void RecoveryFolder::BeforeWrite(TextView path, std::string_view bytes) {
    journalName_ = MakeName();
    Keep(journalName_,
         {RecoveryRecord::Kind::InterruptedWrite, Text(path), GetFileNamePart(path), Now(), 0, std::string(bytes)});
}

void RecoveryFolder::AfterWrite(TextView, std::string_view) { DropJournal(); }

void RecoveryFolder::AfterFailedWrite(TextView) { DropJournal(); }

void RecoveryFolder::DropJournal() {
    if (!journalName_.empty())
        Drop(journalName_);
    journalName_.clear();
}

}  // namespace tintora
