#include "linking/TextWriting.h"

#include "linking/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <array>
#include <csignal>
#include <filesystem>

namespace tintora {
namespace {

using namespace std::string_view_literals;

/// A file before and after a text has been written into it.
struct WriteCase {
    std::string_view old;
    TextView text;
    std::string_view result;
};

constexpr auto WriteCases = std::to_array<WriteCase>({
    {"", u"a", "a"},
    {"a", u"", ""},
    {"short", u"a longer text", "a longer text"},
    {"a longer text", u"short", "short"},
    {"same", u"same", "same"},
    {"x", u"a\r\nb\rc\n", "a\r\nb\rc\n"},
    {"x", u"\0\x1A"sv, "\0\x1A"sv},
    {"x", u"\xFEFF", "\xEF\xBB\xBF"},

    // The encoding of the file is kept.
    {"plain", u"caf\x00E9", "caf\xC3\xA9"},
    {"\xC3\xA9", u"\x00E8\x4E2D", "\xC3\xA8\xE4\xB8\xAD"},
    {"caf\xE9", u"\x00E8 \x20AC \x0081", "\xE8 \x80 \x81"},
    {"caf\xE9", u"cafe", "cafe"},
});

/// What can't be written, and what is in the file then.
struct UnencodableCase {
    std::string_view old;
    TextView text;
};

constexpr auto UnencodableCases = std::to_array<UnencodableCase>({
    {"caf\xE9", u"\x4E2D"},
    {"caf\xE9", u"\xD83D\xDE00"},
    {"plain", u"\xD800"},
    {"\xC3\xA9", u"a\xDC00z"},
});

constexpr TextView ReadOnlySentence = u"The file can't be saved because it is a read only file.";

class RecordedMessages final : public WriteMessages {
  public:
    void ShowWriteFailure(TextView message) override { shown.emplace_back(message); }
    Texts shown;
};

class RecordingObserver : public WriteObserver {
  public:
    void BeforeWrite(TextView path, std::string_view bytes) override {
        calls.push_back("before " + std::string(bytes) + " in " + ContentOf(path));
    }
    void AfterWrite(TextView path, std::string_view bytes) override {
        calls.push_back("after " + std::string(bytes) + " in " + ContentOf(path));
    }
    void AfterFailedWrite(TextView path) override { calls.push_back("failed, " + ContentOf(path)); }
    std::vector<std::string> calls;

  private:
    static std::string ContentOf(TextView path) { return FileExists(path) ? ReadFileBytes(path) : "nothing"; }
};

/// A limit on the sizes of files, for as long as it lives.
class FileSizeLimit {
  public:
    FileSizeLimit() : handler_(std::signal(SIGXFSZ, SIG_IGN)) { ::getrlimit(RLIMIT_FSIZE, &old_); }
    explicit FileSizeLimit(rlim_t size) : FileSizeLimit() { Set(size); }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, handler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

    void Set(rlim_t size) const {
        const rlimit limit{size, old_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }

  private:
    rlimit old_{};
    void (*handler_)(int);
};

/// Lowers the limit when the write has been prepared.
class LimitingObserver final : public RecordingObserver {
  public:
    LimitingObserver(FileSizeLimit& limit, rlim_t size) : limit_(limit), size_(size) {}
    void BeforeWrite(TextView path, std::string_view bytes) override {
        RecordingObserver::BeforeWrite(path, bytes);
        limit_.Set(size_);
    }

  private:
    FileSizeLimit& limit_;
    rlim_t size_;
};

class FailingObserver final : public WriteObserver {
  public:
    void BeforeWrite(TextView, std::string_view) override { throw std::runtime_error("no copy"); }
    void AfterWrite(TextView, std::string_view) override {}
    void AfterFailedWrite(TextView) override {}
};

void Chmod(TextView path, mode_t mode) { ASSERT_EQ(::chmod(FileNameFromText(path).c_str(), mode), 0); }

/// Writes with the writer that tells all, and expects it to tell `messages` and to fail if there are any.
void WriteExpecting(TextView path, TextView text, const Texts& messages, WriteObserver* observer = nullptr) {
    RecordedMessages told;
    EXPECT_EQ(WriteTextFileChecked(path, text, told, observer), messages.empty());
    EXPECT_EQ(told.shown, messages);
}

TEST(TextWriting, AFileBecomesTheTextInItsOwnEncoding) {
    const TemporaryFolder folder;
    RecordedMessages messages;
    for (const WriteCase& row : WriteCases) {
        SCOPED_TRACE(row.result);
        WriteTextFile(folder.Write("a.css", row.old), row.text);
        EXPECT_EQ(ReadFileBytes(folder.Path() + u"/a.css"), row.result);
        WriteTextFileWarning(folder.Write("b.css", row.old), row.text, messages);
        EXPECT_EQ(ReadFileBytes(folder.Path() + u"/b.css"), row.result);
        EXPECT_TRUE(WriteTextFileChecked(folder.Write("c.css", row.old), row.text, messages));
        EXPECT_EQ(ReadFileBytes(folder.Path() + u"/c.css"), row.result);
    }
    EXPECT_EQ(messages.shown, Texts());
}

TEST(TextWriting, ANewFileIsUtf8) {
    const TemporaryFolder folder;
    for (const std::string_view name : {"a b.css"sv, "\"#%'.css"sv, "\xE4\xB8\xAD.css"sv, "\xFF.css"sv}) {
        const Text path = TextFromFileName(folder.FilePath(name));
        WriteExpecting(path, u"\x00E9\x4E2D", {});
        EXPECT_EQ(ReadFileBytes(path), "\xC3\xA9\xE4\xB8\xAD");
    }
}

TEST(TextWriting, NothingElseIsLeftInTheFolder) {
    const TemporaryFolder folder;
    WriteTextFile(folder.Write("a.css", "old"), u"new");
    WriteTextFile(folder.Path() + u"/b.css", u"new");
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.FilePath("")))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"a.css", "b.css"}));
}

TEST(TextWriting, ATextThatCannotBeEncodedLeavesTheOldOne) {
    const TemporaryFolder folder;
    const Text fault = u"a.css can't be saved: The file's encoding has no bytes for one of the characters.";
    for (const UnencodableCase& row : UnencodableCases) {
        const Text path = folder.Write("a.css", row.old);
        RecordingObserver observer;
        WriteTextFile(path, row.text, &observer);
        WriteExpecting(path, row.text, {fault}, &observer);
        EXPECT_EQ(ReadFileBytes(path), row.old);
        EXPECT_TRUE(observer.calls.empty());
    }
    WriteExpecting(folder.Path() + u"/new.css", u"\xD800",
                   {u"new.css can't be saved: The file's encoding has no bytes for one of the characters."});
    EXPECT_FALSE(FileExists(folder.Path() + u"/new.css"));
}

TEST(TextWriting, AReadOnlyFileStaysAndIsToldByItsOwnSentence) {
    const TemporaryFolder folder;
    const Text path = folder.Write("a.css", "old");
    Chmod(path, 0444);
    RecordingObserver observer;
    RecordedMessages messages;
    WriteTextFile(path, u"new", &observer);
    WriteTextFileWarning(path, u"new", messages, &observer);
    EXPECT_EQ(messages.shown, Texts{Text(ReadOnlySentence)});
    WriteExpecting(path, u"new", {Text(ReadOnlySentence)}, &observer);
    EXPECT_EQ(ReadFileBytes(path), "old");
    EXPECT_TRUE(observer.calls.empty());
    Chmod(path, 0464);
    WriteExpecting(path, u"new", {});
}

TEST(TextWriting, AFileThatCannotBeMadeIsNotAndGoesWithoutAWord) {
    const TemporaryFolder folder;
    static_cast<void>(folder.Write("file", "x"));
    const Text longName(300, u'n');
    for (const Text& path :
         {folder.Path(), folder.Path() + u"/", folder.Path() + u"/missing/a.css", folder.Path() + u"/file/a.css",
          folder.Path() + u"/" + longName, Text(), folder.Path() + Text(u"/a\0.css"sv)}) {
        RecordedMessages messages;
        WriteTextFile(path, u"new");
        WriteTextFileWarning(path, u"new", messages);
        EXPECT_FALSE(WriteTextFileChecked(path, u"new", messages));
        EXPECT_EQ(messages.shown, Texts());
        EXPECT_THROW(WriteTextFileOrThrow(path, u"new"), FileCreationFailure);
    }
    EXPECT_FALSE(FileExists(folder.Path() + u"/a"));
}

TEST(TextWriting, WhatIsNoOrdinaryFileIsNotWritten) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.FilePath("pipe.css").c_str(), 0600), 0);
    WriteExpecting(folder.Path() + u"/pipe.css", u"new", {u"pipe.css can't be saved: Not an ordinary file."});
    WriteExpecting(u"/dev/null", u"new", {u"null can't be saved: Not an ordinary file."});
}

TEST(TextWriting, LinksAndPermissionsStay) {
    const TemporaryFolder folder;
    const Text path = folder.Write("a.css", "old");
    Chmod(path, 0640);
    std::filesystem::create_symlink("a.css", folder.FilePath("link.css"));
    std::filesystem::create_hard_link(folder.FilePath("a.css"), folder.FilePath("hard.css"));
    struct stat before {};
    ASSERT_EQ(::stat(folder.FilePath("a.css").c_str(), &before), 0);
    WriteTextFile(folder.Path() + u"/link.css", u"new");
    struct stat after {};
    ASSERT_EQ(::stat(folder.FilePath("a.css").c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_nlink, before.st_nlink);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.FilePath("link.css")));
    EXPECT_EQ(ReadFileBytes(folder.Path() + u"/hard.css"), "new");
}

TEST(TextWriting, TheFileThatALinkNamesIsMade) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("made.css", folder.FilePath("link.css"));
    WriteExpecting(folder.Path() + u"/link.css", u"new", {});
    EXPECT_EQ(ReadFileBytes(folder.Path() + u"/made.css"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.FilePath("link.css")));
}

TEST(TextWriting, ANewFileHasTheUsersPermissions) {
    const TemporaryFolder folder;
    const mode_t mask = ::umask(027);
    WriteTextFile(folder.Path() + u"/a.css", u"new");
    ::umask(mask);
    struct stat status {};
    ASSERT_EQ(::stat(folder.FilePath("a.css").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST(TextWriting, TheObserverIsCalledBeforeTheFirstByteAndAfterTheLast) {
    const TemporaryFolder folder;
    RecordingObserver observer;
    RecordedMessages messages;
    const Text path = folder.Write("a.css", "\xE9");
    WriteTextFile(path, u"1\x00E8", &observer);
    WriteTextFileWarning(path, u"2", messages, &observer);
    EXPECT_TRUE(WriteTextFileChecked(folder.Path() + u"/new.css", u"3", messages, &observer));
    EXPECT_EQ(observer.calls,
              (std::vector<std::string>{"before 1\xE8 in \xE9", "after 1\xE8 in 1\xE8", "before 2 in 1\xE8",
                                        "after 2 in 2", "before 3 in nothing", "after 3 in 3"}));
}

TEST(TextWriting, AnObserverThatFailsStopsTheWrite) {
    const TemporaryFolder folder;
    FailingObserver observer;
    const Text path = folder.Write("a.css", "old");
    EXPECT_THROW(WriteTextFile(path, u"new", &observer), std::runtime_error);
    EXPECT_THROW(WriteTextFile(folder.Path() + u"/new.css", u"new", &observer), std::runtime_error);
    EXPECT_EQ(ReadFileBytes(path), "old");
    EXPECT_FALSE(FileExists(folder.Path() + u"/new.css"));
}

TEST(TextWriting, ATextBeyondTheLimitOfTheProcessLeavesTheOldOne) {
    const TemporaryFolder folder;
    const std::string old(3000, 'o');
    for (const std::size_t size : {2001U, 3000U, 5000U}) {
        const Text path = folder.Write("a.css", old);
        RecordingObserver observer;
        {
            const FileSizeLimit limit(2000);
            WriteExpecting(path, Text(size, u'n'), {u"a.css can't be saved: File too large."}, &observer);
            WriteTextFile(path, Text(size, u'n'));
            WriteExpecting(folder.Path() + u"/new.css", Text(size, u'n'), {u"new.css can't be saved: File too large."});
        }
        EXPECT_EQ(ReadFileBytes(path), old) << size;
        EXPECT_TRUE(observer.calls.empty());
        EXPECT_FALSE(FileExists(folder.Path() + u"/new.css"));
    }
    const FileSizeLimit limit(2000);
    WriteExpecting(folder.Path() + u"/a.css", Text(2000, u'n'), {});
}

TEST(TextWriting, AWriteThatTheDiskRefusesHalfwayLeavesTheOldText) {
    const TemporaryFolder folder;
    const std::string old(3000, 'o');
    for (const std::size_t size : {2001U, 2999U, 3000U, 3001U, 100000U}) {
        const Text path = folder.Write("a.css", old);
        const std::size_t length = old.size();
        {
            FileSizeLimit limit;
            LimitingObserver observer(limit, 2000);
            WriteExpecting(path, Text(size, u'n'), {u"a.css can't be saved: File too large."}, &observer);
            ASSERT_EQ(observer.calls.size(), 2U);
            EXPECT_EQ(observer.calls[1], "failed, " + old);
        }
        EXPECT_EQ(ReadFileBytes(path).size(), length) << size;
        EXPECT_EQ(ReadFileBytes(path), old) << size;
    }
}

TEST(TextWriting, ANewFileThatTheDiskRefusesIsNotLeft) {
    const TemporaryFolder folder;
    {
        FileSizeLimit limit;
        LimitingObserver observer(limit, 2000);
        WriteExpecting(folder.Path() + u"/new.css", Text(3000, u'n'), {u"new.css can't be saved: File too large."},
                       &observer);
    }
    EXPECT_FALSE(FileExists(folder.Path() + u"/new.css"));
}

TEST(TextWriting, BytesAreWrittenAsTheyAre) {
    const TemporaryFolder folder;
    for (const std::string_view old : {"plain", "caf\xE9", "\xC3\xA9"}) {
        const Text path = folder.Write("a.css", old);
        WriteBytesOrThrow(path, "\xFF\xC3\xA9\0"sv);
        EXPECT_EQ(ReadFileBytes(path), "\xFF\xC3\xA9\0"sv);
    }
    WriteBytesOrThrow(folder.Path() + u"/new.css", "\xFF");
    EXPECT_EQ(ReadFileBytes(folder.Path() + u"/new.css"), "\xFF");
    EXPECT_THROW(WriteBytesOrThrow(folder.Path(), "a"), FileFailure);
}

TEST(TextWriting, WhatHasBeenReadIsWrittenByteForByte) {
    const TemporaryFolder folder;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(TINTORA_SAMPLES)) {
        if (!entry.is_regular_file())
            continue;
        SCOPED_TRACE(entry.path());
        const std::string bytes = ReadFileBytes(TextFromFileName(entry.path().string()));
        const Text path = folder.Write("copy", bytes);
        WriteExpecting(path, ReadTextFile(path), {});
        EXPECT_EQ(ReadFileBytes(path), bytes);
    }
}

}  // namespace
}  // namespace tintora
