#pragma once

#include "linking/TextFiles.h"
#include "text/Text.h"

#include <cstdint>
#include <optional>

namespace tintora {

/// What a document knows of its file: how it was when the document read or wrote it last.
class KnownFile {
  public:
    /// The file holds `text` now.
    void Remember(TextView path, Text text);

    /// The document has a file of which it doesn't know what it held; any file that isn't empty has changed, then.
    void RememberUnknown() noexcept;

    /// Whatever the file holds now, it hasn't changed until it changes again. Its text stays another one.
    void IgnoreChange(TextView path) { stamp_ = GetFileStamp(path); }

    /// The document has no file.
    void Forget() noexcept;

    /// Whether `present`, the text of the file now, is another than the one that is known. Without a file nothing is.
    [[nodiscard]] bool IsOther(TextView present) const noexcept { return text_ && *text_ != present; }

    /// Whether the file in `path` exists and holds another text than the one that is known. Its size and its time are
    /// looked at first, and where they are as they were, the text isn't read. False also for a file that can't be read.
    [[nodiscard]] bool HasChanged(TextView path);

    /// The `Fingerprint` of the known text; 0 without a file.
    [[nodiscard]] std::uint64_t TextFingerprint() const noexcept;

  private:
    std::optional<Text> text_;
    FileStamp stamp_;
};

}  // namespace tintora
