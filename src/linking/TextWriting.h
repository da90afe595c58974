#pragma once

#include "linking/TextFiles.h"
#include "text/Text.h"

#include <functional>
#include <string_view>
#include <system_error>

/// Whole texts into files.
///
/// A file that exists keeps its encoding, its owner, its permissions and the links to it: it is written in place. A new
/// one is UTF-8. Nothing is written beside it. The bytes are made and the disk's space is reserved before the first
/// byte of the file changes, so that a write that fails leaves the old text, and leaves no file where there was none.
///
///     WriteTextFile(u"/tmp/a.css", u"a { }");                        // nobody hears of a failure
///     if (WriteTextFileChecked(u"/tmp/a.css", u"a { }", messages))   // the user does
///         isDirty = false;
namespace tintora {

/// Why a text can't be written, beside the system's own reasons.
enum class WriteFault {
    /// The file exists and doesn't allow writing.
    ReadOnly = 1,
    /// The encoding has no bytes for one of the text's characters.
    NotEncodable,
    /// A pipe, a socket or a device.
    NoOrdinaryFile,
};

[[nodiscard]] std::error_code make_error_code(WriteFault fault) noexcept;

/// A file that doesn't exist and can't be made.
class FileCreationFailure : public FileFailure {
  public:
    using FileFailure::FileFailure;
};

/// Shows the user why a text wasn't written.
class WriteMessages {
  public:
    WriteMessages() = default;
    WriteMessages(const WriteMessages&) = delete;
    WriteMessages& operator=(const WriteMessages&) = delete;
    virtual ~WriteMessages() = default;

    virtual void ShowWriteFailure(TextView message) = 0;
};

/// Is told of a write before it starts, and how it ended. A write that can't even start has no call; one that fails and
/// leaves the file neither as it was nor as it was to be has no second one.
class WriteObserver {
  public:
    WriteObserver() = default;
    WriteObserver(const WriteObserver&) = delete;
    WriteObserver& operator=(const WriteObserver&) = delete;
    virtual ~WriteObserver() = default;

    /// No byte of the file has changed yet. An exception stops the write and reaches the writer's caller.
    virtual void BeforeWrite(TextView path, std::string_view bytes) = 0;
    /// `bytes` are on the disk.
    virtual void AfterWrite(TextView path, std::string_view bytes) = 0;
    /// The file is as it was before.
    virtual void AfterFailedWrite(TextView path) = 0;
};

/// What the user is told about a write that failed: a sentence of its own for a read-only file, otherwise the file's
/// name and the reason.
[[nodiscard]] Text WriteFailureMessage(const FileFailure& failure);

/// Throws `FileFailure` where a file of `size` bytes in `path` would be larger than the process may make it: the write
/// wouldn't only fail, it would end the process.
void CheckLimitOfFileSizes(std::size_t size, TextView path);

/// What writes a text into the file with a path.
using FileWriter = std::function<void(TextView path, TextView text)>;

/// Writes `text`. Throws `FileFailure` for each failure, `FileCreationFailure` where there is no file afterwards
/// because it can't be made.
void WriteTextFileOrThrow(TextView path, TextView text, WriteObserver* observer = nullptr);

/// As `WriteTextFileOrThrow`, with bytes, whatever the file's encoding is.
void WriteBytesOrThrow(TextView path, std::string_view bytes);

/// Writes `text`. A file that can't be written stays as it is, without a word.
void WriteTextFile(TextView path, TextView text, WriteObserver* observer = nullptr);

/// Writes `text`. A failure is shown to the user by its `WriteFailureMessage`. A file that can't be made is no such
/// failure, and goes without a word.
void WriteTextFileWarning(TextView path, TextView text, WriteMessages& messages, WriteObserver* observer = nullptr);

/// As `WriteTextFileWarning`; whether the text was written.
[[nodiscard]] bool WriteTextFileChecked(TextView path, TextView text, WriteMessages& messages,
                                        WriteObserver* observer = nullptr);

}  // namespace tintora

template <>
struct std::is_error_code_enum<tintora::WriteFault> : std::true_type {};
