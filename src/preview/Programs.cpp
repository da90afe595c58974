#include "preview/Programs.h"

#include "linking/TextFiles.h"
#include "text/Encoding.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>

namespace tintora {

namespace {

/// The path without "." and "..", and nothing else.
Text PlainPath(TextView path) {
    return TextFromFileName(std::filesystem::path(FileNameFromText(path)).lexically_normal().native());
}

/// The path of the file itself, where links lead to it; "" if there is none.
Text RealPath(TextView path) {
    std::error_code failed;
    return FileExists(path) ? TextFromFileName(std::filesystem::canonical(FileNameFromText(path), failed).native())
                            : Text();
}

}  // namespace

bool IsProgram(TextView path) { return FileExists(path) && ::access(FileNameFromText(path).c_str(), X_OK) == 0; }

bool IsSameProgram(TextView path, TextView other) {
    const Text one = PlainPath(path);
    const Text two = PlainPath(other);
    return one == two || RealPath(path) == two || one == RealPath(other);
}

ProgramSearch::ProgramSearch(TextView searchPath) {
    for (std::size_t start = 0; start < searchPath.size();) {
        const std::size_t end = std::min(searchPath.find(u':', start), searchPath.size());
        const TextView folder = searchPath.substr(start, end - start);
        if (folder.starts_with(u'/'))
            folders_.emplace_back(folder);
        start = end + 1;
    }
}

Text ProgramSearch::Find(TextView name) const {
    if (name.starts_with(u'/'))
        return IsProgram(name) ? Text(name) : Text();
    if (name.empty() || name.find(u'/') != TextView::npos)
        return {};
    for (const Text& folder : folders_) {
        Text path = folder + (folder.ends_with(u'/') ? u"" : u"/");
        path.append(name);
        if (IsProgram(path))
            return path;
    }
    return {};
}

Text ProgramSearch::FindFirst(std::span<const TextView> names) const {
    for (const TextView name : names) {
        if (Text path = Find(name); !path.empty())
            return path;
    }
    return {};
}

}  // namespace tintora
