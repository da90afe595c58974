#include "linking/TextFiles.h"

#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>

namespace tintora {

namespace {

constexpr std::size_t LargestFile = std::size_t{64} * 1024 * 1024;

struct FileCloser {
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

/// The system would take such a path for the part of it in front of the NUL.
bool HoldsNul(TextView path) { return path.find(u'\0') != TextView::npos; }

std::error_code LastError() { return {errno, std::generic_category()}; }

}  // namespace

FileFailure::FileFailure(std::error_code code, TextView path) : std::system_error(code), path_(path) {}

bool FileExists(TextView path) {
    if (HoldsNul(path))
        return false;
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(FileNameFromText(path), ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

FileStamp GetFileStamp(TextView path) {
    struct stat status {};
    if (HoldsNul(path) || ::stat(FileNameFromText(path).c_str(), &status) == -1)
        return {};
    constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;
    return {static_cast<std::uintmax_t>(status.st_size),
            status.st_mtim.tv_sec * NanosecondsPerSecond + status.st_mtim.tv_nsec};
}

Text ReadTextFile(TextView path) { return ReadDecodedFile(path).text; }

DecodedText ReadDecodedFile(TextView path) {
    if (!FileExists(path))
        return {};
    return DecodeBytes(ReadFileBytes(path));
}

std::string ReadFileBytes(TextView path) {
    if (HoldsNul(path))
        throw FileFailure(std::make_error_code(std::errc::no_such_file_or_directory), path);
    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(FileNameFromText(path).c_str(), "rb"));
    if (!file)
        throw FileFailure(LastError(), path);
    std::string bytes;
    std::array<char, 65536> buffer{};
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), file.get())) {
        bytes.append(buffer.data(), count);
        if (bytes.size() > LargestFile)
            throw FileFailure(std::make_error_code(std::errc::file_too_large), path);
    }
    if (std::ferror(file.get()) != 0)
        throw FileFailure(LastError(), path);
    return bytes;
}

}  // namespace tintora
