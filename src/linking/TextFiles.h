#pragma once

#include "text/Encoding.h"
#include "text/Text.h"

#include <cstdint>
#include <string>
#include <system_error>

/// Whole files as text. Paths are texts as `TextFromFileName` makes them.
namespace tintora {

/// A file that exists and can't be read; `what()` is the system's reason.
class FileFailure : public std::system_error {
  public:
    FileFailure(std::error_code code, TextView path);

    [[nodiscard]] const Text& Path() const noexcept { return path_; }

  private:
    Text path_;
};

/// Whether the path names a file that exists: not a folder.
[[nodiscard]] bool FileExists(TextView path);

/// What a file looks like from outside; all 0 for one that doesn't exist.
struct FileStamp {
    std::uintmax_t size = 0;
    /// When it was changed last: nanoseconds since 1970 began, in universal time.
    std::int64_t changed = 0;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

[[nodiscard]] FileStamp GetFileStamp(TextView path);

/// The text of a file; "" if it doesn't exist or is empty. Throws `FileFailure` for one that can't be read.
[[nodiscard]] Text ReadTextFile(TextView path);

/// As `ReadTextFile`, with the encoding that the file is in.
[[nodiscard]] DecodedText ReadDecodedFile(TextView path);

/// The bytes of a file. Throws `FileFailure` for a file that can't be read, also for one that doesn't exist, is a
/// folder, or is larger than 64 MiB.
[[nodiscard]] std::string ReadFileBytes(TextView path);

}  // namespace tintora
