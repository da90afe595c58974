#include "shell/RecentFiles.h"

#include "language/Words.h"
#include "settings/Settings.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr TextView Separator = u"^^^";
constexpr TextView StoredCaret = u"^-";

Text StoredPath(TextView path) {
    Text stored;
    for (const char16_t unit : path) {
        if (unit == u'^')
            stored += StoredCaret;
        else
            stored.push_back(unit);
    }
    return stored;
}

Text PathFromStored(TextView stored) {
    Text path;
    for (std::size_t index = 0; index < stored.size(); ++index) {
        path.push_back(stored[index]);
        if (stored.substr(index, StoredCaret.size()) == StoredCaret)
            ++index;
    }
    return path;
}

/// Adds the path behind the others, unless it is "", one of them or too many.
void Append(Texts& paths, Text path) {
    if (!path.empty() && paths.size() < RecentFiles::Most && !ListContains(paths, path))
        paths.push_back(std::move(path));
}

}  // namespace

Texts RecentFiles::Read() const {
    const Text stored = Settings(store_).Get(setting::RecentFiles);
    Texts paths;
    std::size_t start = 0;
    while (start <= stored.size() && paths.size() < Most) {
        const std::size_t end = std::min(stored.find(Separator, start), stored.size());
        Append(paths, PathFromStored(TextView(stored).substr(start, end - start)));
        start = end + Separator.size();
    }
    return paths;
}

void RecentFiles::Add(TextView path) {
    if (path.empty())
        return;
    Texts paths{Text(path)};
    for (Text& other : Read())
        Append(paths, std::move(other));
    std::ranges::transform(paths, paths.begin(), StoredPath);
    Settings(store_).Save(setting::RecentFiles, JoinItems(paths, Separator));
}

void RecentFiles::Clear() { Settings(store_).Save(setting::RecentFiles, {}); }

}  // namespace tintora
