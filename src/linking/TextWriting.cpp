#include "linking/TextWriting.h"

#include "linking/InPlaceFile.h"
#include "linking/Paths.h"

#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <optional>
#include <string>

namespace tintora {

namespace {

class WriteFaultCategory final : public std::error_category {
  public:
    [[nodiscard]] const char* name() const noexcept override { return "write"; }

    [[nodiscard]] std::string message(int fault) const override {
        switch (static_cast<WriteFault>(fault)) {
            case WriteFault::ReadOnly: return "The file can't be saved because it is a read only file.";
            case WriteFault::NotEncodable: return "The file's encoding has no bytes for one of the characters";
            case WriteFault::NoOrdinaryFile: return "Not an ordinary file";
        }
        return "Unknown fault";
    }
};

enum class Target { Missing, Folder, OrdinaryFile, OtherFile };

struct TargetState {
    Target target = Target::Missing;
    bool isReadOnly = false;
};

TargetState Examine(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == -1)
        return {};
    // These bits don't bind everybody, and yet they are what says "read only".
    constexpr mode_t AnybodyWrites = S_IWUSR | S_IWGRP | S_IWOTH;
    const bool isReadOnly = (status.st_mode & AnybodyWrites) == 0;
    if (S_ISDIR(status.st_mode))
        return {Target::Folder, false};
    return {S_ISREG(status.st_mode) ? Target::OrdinaryFile : Target::OtherFile, isReadOnly};
}

bool SaysReadOnly(const std::error_code& code) {
    return code == std::errc::permission_denied || code == std::errc::operation_not_permitted ||
           code == std::errc::read_only_file_system;
}

std::string BytesFor(TextView text, Encoding encoding, TextView path) {
    std::optional<std::string> bytes = EncodeText(text, encoding);
    if (!bytes)
        throw FileFailure(WriteFault::NotEncodable, path);
    CheckLimitOfFileSizes(bytes->size(), path);
    return std::move(*bytes);
}

void Announce(WriteObserver* observer, TextView path, std::string_view bytes) {
    if (observer != nullptr)
        observer->BeforeWrite(path, bytes);
}

void Overwrite(InPlaceFile& file, std::string_view bytes, std::string_view old, TextView path,
               WriteObserver* observer) {
    try {
        file.Overwrite(bytes, old);
    } catch (const std::system_error& error) {
        if (observer != nullptr && !file.IsDamaged())
            observer->AfterFailedWrite(path);
        throw FileFailure(error.code(), path);
    }
    if (observer != nullptr)
        observer->AfterWrite(path, bytes);
}

/// Makes the bytes of a file of those that it holds.
using MakeBytes = std::function<std::string(const std::string& old)>;

void WriteExisting(TextView path, const std::string& name, const MakeBytes& makeBytes, WriteObserver* observer) {
    std::optional<InPlaceFile> file;
    try {
        file.emplace(name, InPlaceFile::Opening::Existing);
    } catch (const std::system_error& error) {
        throw FileFailure(SaysReadOnly(error.code()) ? WriteFault::ReadOnly : error.code(), path);
    }
    const std::string old = ReadFileBytes(path);
    const std::string bytes = makeBytes(old);
    Announce(observer, path, bytes);
    Overwrite(*file, bytes, old, path, observer);
}

void WriteNew(TextView path, const std::string& name, const MakeBytes& makeBytes, WriteObserver* observer) {
    const std::string bytes = makeBytes({});
    Announce(observer, path, bytes);
    std::optional<InPlaceFile> file;
    try {
        file.emplace(name, InPlaceFile::Opening::Creating);
    } catch (const std::system_error& error) {
        if (observer != nullptr)
            observer->AfterFailedWrite(path);
        throw FileCreationFailure(error.code(), path);
    }
    Overwrite(*file, bytes, {}, path, observer);
}

void WriteFile(TextView path, const MakeBytes& makeBytes, WriteObserver* observer) {
    if (path.find(u'\0') != TextView::npos)
        throw FileCreationFailure(std::make_error_code(std::errc::invalid_argument), path);
    const std::string name = FileNameFromText(path);
    const TargetState state = Examine(name);
    if (state.target == Target::Folder)
        throw FileCreationFailure(std::make_error_code(std::errc::is_a_directory), path);
    if (state.isReadOnly)
        throw FileFailure(WriteFault::ReadOnly, path);
    if (state.target == Target::OtherFile)
        throw FileFailure(WriteFault::NoOrdinaryFile, path);
    if (state.target == Target::OrdinaryFile)
        WriteExisting(path, name, makeBytes, observer);
    else
        WriteNew(path, name, makeBytes, observer);
}

}  // namespace

std::error_code make_error_code(WriteFault fault) noexcept {
    static const WriteFaultCategory Category;
    return {static_cast<int>(fault), Category};
}

Text WriteFailureMessage(const FileFailure& failure) {
    Text reason = TextFromUtf8(failure.code().message());
    if (failure.code() == WriteFault::ReadOnly)
        return reason;
    return GetFileNamePart(failure.Path()) + u" can't be saved: " + reason + u".";
}

void CheckLimitOfFileSizes(std::size_t size, TextView path) {
    rlimit limit{};
    if (::getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY && size > limit.rlim_cur)
        throw FileFailure(std::make_error_code(std::errc::file_too_large), path);
}

void WriteTextFileOrThrow(TextView path, TextView text, WriteObserver* observer) {
    // The encoding of no bytes is UTF-8.
    WriteFile(
        path, [&](const std::string& old) { return BytesFor(text, DecodeBytes(old).encoding, path); }, observer);
}

void WriteBytesOrThrow(TextView path, std::string_view bytes) {
    CheckLimitOfFileSizes(bytes.size(), path);
    WriteFile(
        path, [&](const std::string&) { return std::string(bytes); }, nullptr);
}

void WriteTextFile(TextView path, TextView text, WriteObserver* observer) {
    try {
        WriteTextFileOrThrow(path, text, observer);
    } catch (const FileFailure&) {
        // Whoever calls this writer can do without the file.
    }
}

void WriteTextFileWarning(TextView path, TextView text, WriteMessages& messages, WriteObserver* observer) {
    static_cast<void>(WriteTextFileChecked(path, text, messages, observer));
}

bool WriteTextFileChecked(TextView path, TextView text, WriteMessages& messages, WriteObserver* observer) {
    try {
        WriteTextFileOrThrow(path, text, observer);
        return true;
    } catch (const FileCreationFailure&) {
        return false;
    } catch (const FileFailure& failure) {
        messages.ShowWriteFailure(WriteFailureMessage(failure));
        return false;
    }
}

}  // namespace tintora
