#include "document/KnownFile.h"

#include "document/RecoveryRecord.h"

namespace tintora {

void KnownFile::Remember(TextView path, Text text) {
    text_ = std::move(text);
    stamp_ = GetFileStamp(path);
}

void KnownFile::RememberUnknown() noexcept {
    text_.emplace();
    stamp_ = {};
}

void KnownFile::Forget() noexcept {
    text_.reset();
    stamp_ = {};
}

bool KnownFile::HasChanged(TextView path) {
    if (!text_ || !FileExists(path))
        return false;
    const FileStamp present = GetFileStamp(path);
    if (present == stamp_)
        return false;
    try {
        if (IsOther(ReadTextFile(path)))
            return true;
    } catch (const FileFailure&) {
        return false;
    }
    stamp_ = present;
    return false;
}

std::uint64_t KnownFile::TextFingerprint() const noexcept { return text_ ? Fingerprint(*text_) : 0; }

}  // namespace tintora
