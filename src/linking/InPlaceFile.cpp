#include "linking/InPlaceFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace tintora {

namespace {

// The user's umask takes its part away.
constexpr mode_t PermissionsOfNewFiles = 0666;

[[noreturn]] void Throw(int error) { throw std::system_error(error, std::generic_category()); }

/// Calls the system until no signal interrupts it.
template <typename Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

int Open(const std::string& path, int flags) {
    return Uninterrupted([&] { return ::open(path.c_str(), O_WRONLY | O_CLOEXEC | flags, PermissionsOfNewFiles); });
}

}  // namespace

InPlaceFile::InPlaceFile(std::string path, Opening opening) : path_(std::move(path)) {
    if (opening == Opening::Creating) {
        descriptor_ = Open(path_, O_CREAT | O_EXCL);
        isNew_ = descriptor_ != -1;
        // A link whose file is missing exists all the same, and its file is to be made.
        if (descriptor_ == -1 && errno == EEXIST)
            descriptor_ = Open(path_, O_CREAT);
    } else {
        descriptor_ = Open(path_, 0);
    }
    if (descriptor_ == -1)
        Throw(errno);
}

InPlaceFile::~InPlaceFile() {
    if (descriptor_ != -1)
        ::close(descriptor_);
    if (isNew_)
        ::unlink(path_.c_str());
}

void InPlaceFile::Overwrite(std::string_view bytes, std::string_view old) {
    try {
        Reserve(bytes.size());
        Write(bytes);
        CutTo(bytes.size());
    } catch (const std::system_error&) {
        GoBackTo(old);
        throw;
    }
    // Whether the new content has reached the disk can't be told if one of these fails.
    isDamaged_ = !isNew_;
    if (Uninterrupted([&] { return ::fsync(descriptor_); }) == -1)
        Throw(errno);
    // Network disks tell here what they refuse. The descriptor is gone in any case.
    const int closed = ::close(descriptor_);
    descriptor_ = -1;
    if (closed == -1 && errno != EINTR)
        Throw(errno);
    isDamaged_ = false;
    isNew_ = false;
}

void InPlaceFile::Reserve(std::size_t size) {
    if (size == 0)
        return;
    int error = EINTR;
    while (error == EINTR)
        error = ::posix_fallocate(descriptor_, 0, static_cast<off_t>(size));
    // A disk that can't reserve says so in one of these ways; the last one is the system's library, which would have to
    // read in order to do it itself.
    const bool canReserve =
        error != EOPNOTSUPP && error != EINVAL && error != ENOSYS && error != ENODEV && error != EBADF;
    if (error != 0 && canReserve)
        Throw(error);
}

void InPlaceFile::Write(std::string_view bytes) {
    while (written_ < bytes.size()) {
        const ssize_t count = Uninterrupted([&] {
            return ::pwrite(descriptor_, bytes.data() + written_, bytes.size() - written_,
                            static_cast<off_t>(written_));
        });
        if (count == -1)
            Throw(errno);
        written_ += static_cast<std::size_t>(count);
    }
}

void InPlaceFile::CutTo(std::size_t size) {
    if (Uninterrupted([&] { return ::ftruncate(descriptor_, static_cast<off_t>(size)); }) == -1)
        Throw(errno);
}

void InPlaceFile::GoBackTo(std::string_view old) noexcept {
    const std::string_view overwritten = old.substr(0, written_);
    written_ = 0;
    try {
        Write(overwritten);
        CutTo(old.size());
    } catch (const std::system_error&) {
        // The failure that led here is the one to be told.
        isDamaged_ = !isNew_;
    }
    ::fsync(descriptor_);
}

}  // namespace tintora
