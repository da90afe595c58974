#include "preview/TemporaryFiles.h"

#include "linking/TextFiles.h"
#include "linking/TextWriting.h"
#include "text/Encoding.h"
#include "text/NumberText.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <filesystem>

namespace tintora {

namespace {

constexpr TextView Stem = u"ktTemp";
constexpr TextView PageExtension = u".html";
constexpr TextView SheetExtension = u".css";
constexpr mode_t OwnerOnly = 0600;

bool HoldsNul(TextView path) { return path.find(u'\0') != TextView::npos; }

/// The path through its last separator. Here "\" is a letter of a name: nothing but the real folder will do.
Text FolderOf(TextView path) { return Text(path.substr(0, path.rfind(u'/') + 1)); }

bool FolderExists(TextView folder) {
    std::error_code failed;
    return !folder.empty() && !HoldsNul(folder) && std::filesystem::is_directory(FileNameFromText(folder), failed);
}

/// Whether anything has that name, a link that leads nowhere among it.
bool IsTaken(TextView path) {
    struct stat status {};
    return !HoldsNul(path) && ::lstat(FileNameFromText(path).c_str(), &status) == 0;
}

int LastError() { return errno; }

/// Writes all bytes into a file and closes it; 0, or the system's number for what went wrong.
int WriteAndClose(int file, std::string_view bytes) {
    int error = 0;
    while (!bytes.empty() && error == 0) {
        const ssize_t count = ::write(file, bytes.data(), bytes.size());
        if (count >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            error = LastError();
    }
    if (::close(file) == -1 && error == 0 && errno != EINTR)
        error = LastError();
    return error;
}

/// Makes a file that isn't there yet. Leaves none where it fails.
void MakeFile(TextView path, std::string_view bytes) {
    CheckLimitOfFileSizes(bytes.size(), path);
    if (HoldsNul(path))
        throw FileCreationFailure(std::make_error_code(std::errc::invalid_argument), path);
    const std::string name = FileNameFromText(path);
    const int file = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, OwnerOnly);
    if (file == -1)
        throw FileCreationFailure(std::error_code(LastError(), std::generic_category()), path);
    if (const int error = WriteAndClose(file, bytes); error != 0) {
        ::unlink(name.c_str());
        throw FileFailure(std::error_code(error, std::generic_category()), path);
    }
}

}  // namespace

bool IsTemporaryFile(TextView path) { return path.substr(FolderOf(path).size()).starts_with(Stem); }

bool DeleteTemporaryFile(TextView path) {
    if (!IsTemporaryFile(path) || HoldsNul(path) || ::unlink(FileNameFromText(path).c_str()) == 0)
        return true;
    // A folder of that name isn't ours.
    constexpr int NothingToDelete[] = {ENOENT, ENOTDIR, ENAMETOOLONG, EISDIR};
    return std::ranges::find(NothingToDelete, LastError()) != std::end(NothingToDelete);
}

std::string ReadPageBytes(TextView path) {
    std::error_code failed;
    if (FileExists(path) && !std::filesystem::is_regular_file(FileNameFromText(path), failed))
        throw FileFailure(WriteFault::NoOrdinaryFile, path);
    return ReadFileBytes(path);
}

TemporaryFiles::TemporaryFiles(PreviewFolders folders, ReadTime now)
    : folders_(std::move(folders)), now_(std::move(now)) {}

Text TemporaryFiles::MakeName(TextView extension) {
    using std::chrono::microseconds;
    const auto now = std::chrono::duration_cast<microseconds>(now_().time_since_epoch());
    last_ = std::max(now, last_ + microseconds(1));
    const microseconds sinceMidnight = last_ % std::chrono::days(1);
    const auto seconds = static_cast<double>(sinceMidnight.count()) / 1e6;
    return Text(Stem).append(NumberText(seconds)).append(extension);
}

Text TemporaryFiles::NewPath(TextView folder, TextView extension) {
    Text path;
    do
        path = Text(folder).append(MakeName(extension));
    while (IsTaken(path));
    return path;
}

Text TemporaryFiles::MakeTempFileName() { return MakeName(PageExtension); }

Text TemporaryFiles::MakeTempCSSName(TextView documentPath) {
    return NewPath(SheetFolders(documentPath).front(), SheetExtension);
}

Text TemporaryFiles::MakeTempFileInFolder(TextView documentPath) {
    return NewPath(RulePageFolders(documentPath).front(), PageExtension);
}

Text TemporaryFiles::MakeTempCopyOfFile(TextView path) {
    try {
        return WritePageBeside(path, ReadPageBytes(path), [](TextView) {});
    } catch (const FileFailure&) {
        return {};
    }
}

Text TemporaryFiles::WriteSheet(TextView documentPath, std::string_view bytes, const Announce& announce) {
    return WriteInOneOf(SheetFolders(documentPath), SheetExtension, bytes, announce);
}

Text TemporaryFiles::WriteRulePage(TextView documentPath, std::string_view bytes, const Announce& announce) {
    return WriteInOneOf(RulePageFolders(documentPath), PageExtension, bytes, announce);
}

Text TemporaryFiles::WritePageBeside(TextView pagePath, std::string_view bytes, const Announce& announce) {
    return WriteInOneOf(PageFolders(pagePath), PageExtension, bytes, announce);
}

Text TemporaryFiles::DefaultFolder() const { return folders_.application + u"/Help_Files/Preview/"; }

Texts TemporaryFiles::SheetFolders(TextView documentPath) const {
    Texts folders = {DefaultFolder(), folders_.temporary + u"/"};
    if (FileExists(documentPath))
        folders.insert(folders.begin(), FolderOf(documentPath));
    return folders;
}

Texts TemporaryFiles::PageFolders(TextView pagePath) const {
    Texts folders = {FolderOf(pagePath)};
    if (folders.front() == DefaultFolder())
        folders.push_back(folders_.temporary + u"/");
    return folders;
}

Texts TemporaryFiles::RulePageFolders(TextView documentPath) const {
    Texts folders = {folders_.temporary + u"/"};
    if (FolderExists(FolderOf(documentPath)))
        folders.insert(folders.begin(), FolderOf(documentPath));
    return folders;
}

Text TemporaryFiles::WriteInOneOf(const Texts& folders, TextView extension, std::string_view bytes,
                                  const Announce& announce) {
    std::exception_ptr failure;
    for (const Text& folder : folders) {
        Text path = NewPath(folder, extension);
        announce(path);
        try {
            MakeFile(path, bytes);
            return path;
        } catch (const FileFailure&) {
            // What goes wrong at the first place is what counts.
            if (!failure)
                failure = std::current_exception();
        }
    }
    announce({});
    std::rethrow_exception(failure);
}

}  // namespace tintora
