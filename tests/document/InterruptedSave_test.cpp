// A save into which something really breaks: the process is killed, the disk is full, a file may grow no further.

#include "DocumentFiles.h"
#include "document/RecoveryFolder.h"

#include <sched.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <new>
#include <thread>

namespace tintora::test {
namespace {

namespace fs = std::filesystem;

struct SaveCase {
    const char* name;
    /// The file before, and the text that is saved into it.
    std::string before;
    Text text;
    std::string after;
};

const std::string PageHead = "<html><head><style type=\"text/css\" >";
const std::string PageFoot = "</style></head><body>" + std::string(3000, 'w') + "</body></html>";

const std::vector<SaveCase> SaveCases = {
    {"a.css", std::string(3000, 'o'), Text(500, u'n'), std::string(500, 'n')},
    {"b.css", std::string(500, 'o'), Text(3000, u'n'), std::string(3000, 'n')},
    {"c.html", PageHead + std::string(2000, 'o') + PageFoot, Text(100, u'n'),
     PageHead + std::string(100, 'n') + PageFoot},
};

/// Runs `run` in a process of its own, and gives the process's number.
pid_t Fork(const std::function<void()>& run) {
    const pid_t process = ::fork();
    if (process != 0)
        return process;
    run();
    ::_exit(0);
}

/// Whether the process is in front of or behind a call that only manages memory, of which there may be more or fewer in
/// each run. `call` is the number of the last call.
bool IsAtMemoryCall(pid_t process, std::uint64_t& call) {
    __ptrace_syscall_info stop{};
    ::ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof(stop), &stop);
    if (stop.op == PTRACE_SYSCALL_INFO_ENTRY)
        call = stop.entry.nr;
    constexpr std::array<std::uint64_t, 6> MemoryCalls = {SYS_mmap, SYS_munmap,  SYS_mprotect,
                                                          SYS_brk,  SYS_madvise, SYS_futex};
    return std::find(MemoryCalls.begin(), MemoryCalls.end(), call) != MemoryCalls.end();
}

enum class End { Finished, Killed, CannotTrace };

/// Runs `run` in a process of its own, which is killed at a call of the system: each has a stop in front of it and one
/// behind it, and `stopNumber` counts them.
End RunAndKill(const std::function<void()>& run, int stopNumber) {
    const pid_t process = Fork([&] {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == -1)
            ::_exit(1);
        ::raise(SIGSTOP);
        run();
    });
    int status = 0;
    ::waitpid(process, &status, 0);
    if (WIFEXITED(status))
        return End::CannotTrace;
    ::ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD);
    std::uint64_t call = 0;
    for (int stop = 0; stop < stopNumber; stop += IsAtMemoryCall(process, call) ? 0 : 1) {
        ::ptrace(PTRACE_SYSCALL, process, nullptr, nullptr);
        ::waitpid(process, &status, 0);
        if (WIFEXITED(status))
            return End::Finished;
    }
    ::kill(process, SIGKILL);
    ::waitpid(process, &status, 0);
    return End::Killed;
}

class InterruptedSaveTest : public ::testing::Test {
  protected:
    [[nodiscard]] std::string RecoveryPath() const { return files_.FilePath("recovery"); }
    [[nodiscard]] std::vector<LeftCopy> Left() const { return RecoveryFolder(RecoveryPath()).ReadLeftCopies(); }

    /// A document of the file with a new text, ready to be saved.
    std::unique_ptr<RecordedDocument> ChangedDocument(TextView path, TextView text) const {
        auto document = std::make_unique<RecordedDocument>(std::make_unique<RecoveryFolder>(RecoveryPath()));
        document->window.OpenStyleSheet(path);
        document->window.CSSEditor().ReplaceAllText(text);
        return document;
    }

    /// Whether a copy would bring the file to `bytes`.
    [[nodiscard]] bool IsOffered(TextView path, const std::string& bytes) const {
        for (const LeftCopy& copy : Left()) {
            if (copy.record.kind == RecoveryRecord::Kind::InterruptedWrite && copy.record.path == path &&
                copy.record.bytes == bytes)
                return true;
        }
        return false;
    }

    TemporaryFolder files_;
};

TEST_F(InterruptedSaveTest, KilledAtAnyCallTheFileIsTheOldOneOrTheNewOneOrACopyIsOffered) {
    for (const SaveCase& row : SaveCases) {
        int old = 0;
        int now = 0;
        int between = 0;
        End end = End::Killed;
        for (int stop = 1; end == End::Killed; ++stop) {
            fs::remove_all(RecoveryPath());
            const Text path = files_.Write(row.name, row.before);
            const auto document = ChangedDocument(path, row.text);
            end = RunAndKill([&] { document->window.Save(); }, stop);
            if (end == End::CannotTrace)
                GTEST_SKIP() << "processes can't be traced here";
            const std::string bytes = ReadFileBytes(path);
            const bool isDamaged = bytes != row.before && bytes != row.after;
            ASSERT_TRUE(!isDamaged || IsOffered(path, row.after)) << row.name << " at stop " << stop;
            ++(isDamaged ? between : bytes == row.before ? old : now);
        }
        EXPECT_EQ(end, End::Finished);
        EXPECT_TRUE(Left().empty()) << "a save that succeeds leaves nothing to offer";
        EXPECT_GT(old, 10) << row.name;
        EXPECT_GT(now, 2) << row.name;
        EXPECT_GT(between, 0) << row.name;
    }
}

TEST_F(InterruptedSaveTest, KilledWhileTypingTheTextOfASecondBeforeIsOffered) {
    // What the other process has typed: the number of characters, and when.
    struct Typed {
        std::atomic<int> count{0};
        std::chrono::steady_clock::time_point times[4000];
    };
    void* const memory = ::mmap(nullptr, sizeof(Typed), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    Typed& typed = *new (memory) Typed;
    int whenLongEnough[2];
    ASSERT_EQ(::pipe(whenLongEnough), 0);
    const Text path = files_.Write("a.css", "");
    const pid_t process = Fork([&] {
        const auto document = ChangedDocument(path, u"a {}");
        const auto start = std::chrono::steady_clock::now();
        auto now = start;
        for (int count = 1; count < 4000; ++count) {
            document->view.TypeCharacter(u'x');
            const auto later = std::chrono::steady_clock::now();
            typed.times[count] = later;
            typed.count = count;
            document->clock.Advance(std::chrono::duration_cast<std::chrono::milliseconds>(later - now));
            now += std::chrono::duration_cast<std::chrono::milliseconds>(later - now);
            if (later - start > std::chrono::milliseconds(2500))
                static_cast<void>(::write(whenLongEnough[1], "", 1));
            // A quick typist.
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    });
    char byte = 0;
    ASSERT_EQ(::read(whenLongEnough[0], &byte, 1), 1);
    ::kill(process, SIGKILL);
    const auto killed = std::chrono::steady_clock::now();
    ::waitpid(process, nullptr, 0);
    int aSecondBefore = typed.count;
    while (aSecondBefore > 0 && typed.times[aSecondBefore] > killed - std::chrono::seconds(1))
        --aSecondBefore;
    const std::vector<LeftCopy> left = Left();
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left[0].record.path, path);
    EXPECT_GT(aSecondBefore, 10);
    EXPECT_GE(static_cast<int>(left[0].record.bytes.size()), aSecondBefore);
    ::munmap(memory, sizeof(Typed));
    ::close(whenLongEnough[0]);
    ::close(whenLongEnough[1]);
}

TEST_F(InterruptedSaveTest, AFullDiskLeavesTheOldTextAndTheDocumentDirty) {
    // In a process of its own, since it needs disks of its own.
    const pid_t process = Fork([&] {
        const std::string disk = files_.FilePath("disk");
        fs::create_directory(disk);
        if (::unshare(CLONE_NEWNS) == -1 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == -1 ||
            ::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=64k") == -1)
            ::_exit(2);
        for (const SaveCase& row : SaveCases) {
            const Text path = files_.Write(std::string("disk/") + row.name, row.before);
            std::ofstream(disk + "/filler", std::ios::binary) << std::string(100'000, 'f');
            const auto document = ChangedDocument(path, Text(20'000, u'n'));
            document->window.KeepRecoveryCopy();
            document->window.Save();
            const bool isTold =
                std::any_of(document->calls.begin(), document->calls.end(), [](const std::string& call) {
                    return call.find("No space left on device") != std::string::npos ||
                           call.find("couldn't be put") != std::string::npos;
                });
            if (ReadFileBytes(path) != row.before || !document->window.IsDirty() || !isTold || Left().size() != 1U ||
                Left()[0].record.bytes.size() != 20'000U)
                ::_exit(1);
            document->window.SetDirty(false);
            document->window.Unload();
            fs::remove(disk + "/filler");
        }
    });
    int status = 0;
    ::waitpid(process, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 2)
        GTEST_SKIP() << "only root mounts disks";
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(InterruptedSaveTest, ALimitOnTheSizeOfFilesLeavesTheOldTextAndTheDocumentDirty) {
    const pid_t process = Fork([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{5000, 5000};
        const Text path = files_.Write("a.css", "old");
        const auto document = ChangedDocument(path, Text(20'000, u'n'));
        ::setrlimit(RLIMIT_FSIZE, &limit);
        document->window.Save();
        if (ReadFileBytes(path) != "old" || !document->window.IsDirty() ||
            !Has(document->calls, "[a.css can't be saved: File too large.]"))
            ::_exit(1);
    });
    int status = 0;
    ::waitpid(process, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

}  // namespace
}  // namespace tintora::test
