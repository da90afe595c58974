#include "shell/RecentFiles.h"

#include "language/Words.h"
#include "settings/PathLists.h"
#include "settings/Settings.h"

namespace tintora {

namespace {

/// Adds the path behind the others, unless it is one of them or too many.
void Append(Texts& paths, Text path) {
    if (paths.size() < RecentFiles::Most && !ListContains(paths, path))
        paths.push_back(std::move(path));
}

}  // namespace

Texts RecentFiles::Read() const {
    Texts paths;
    for (Text& path : SplitPaths(Settings(store_).Get(setting::RecentFiles)))
        Append(paths, std::move(path));
    return paths;
}

void RecentFiles::Add(TextView path) {
    if (path.empty())
        return;
    Texts paths{Text(path)};
    for (Text& other : Read())
        Append(paths, std::move(other));
    Settings(store_).Save(setting::RecentFiles, JoinPaths(paths));
}

void RecentFiles::Clear() { Settings(store_).Save(setting::RecentFiles, {}); }

}  // namespace tintora
