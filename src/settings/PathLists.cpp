#include "settings/PathLists.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr TextView Separator = u"^^^";
constexpr TextView StoredCaret = u"^-";

void AppendStored(Text& list, TextView path) {
    for (const char16_t unit : path) {
        if (unit == u'^')
            list += StoredCaret;
        else
            list.push_back(unit);
    }
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

}  // namespace

Text JoinPaths(const Texts& paths) {
    Text list;
    for (const Text& path : paths) {
        if (!list.empty())
            list += Separator;
        AppendStored(list, path);
    }
    return list;
}

Texts SplitPaths(TextView stored) {
    Texts paths;
    for (std::size_t start = 0; start <= stored.size();) {
        const std::size_t end = std::min(stored.find(Separator, start), stored.size());
        if (end > start)
            paths.push_back(PathFromStored(stored.substr(start, end - start)));
        start = end + Separator.size();
    }
    return paths;
}

}  // namespace tintora
