#include "linking/SiteWalk.h"

#include "linking/Paths.h"
#include "text/Encoding.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

namespace tintora {

namespace {

namespace fs = std::filesystem;

struct FolderContent {
    std::vector<std::string> files;
    std::vector<std::string> folders;
};

/// The names of what lies directly in the folder, in order.
FolderContent ContentOf(const std::string& folder) {
    FolderContent content;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed); !failed && entry != fs::directory_iterator();
         entry.increment(failed)) {
        std::error_code ignored;
        const fs::file_status status = entry->symlink_status(ignored);
        if (fs::is_regular_file(status))
            content.files.push_back(entry->path().filename().native());
        else if (fs::is_directory(status))
            content.folders.push_back(entry->path().filename().native());
    }
    std::sort(content.files.begin(), content.files.end());
    std::sort(content.folders.begin(), content.folders.end());
    return content;
}

/// The path of the folder as names are put behind it; "" for a path that names none.
std::string FolderPrefix(TextView folder) {
    if (folder.empty() || folder.find(u'\0') != TextView::npos)
        return {};
    std::string prefix = FileNameFromText(folder);
    if (!prefix.ends_with('/'))
        prefix += '/';
    return prefix;
}

}  // namespace

void CollectFilesInFolder(Texts& files, TextView folder) {
    // The folder that comes next is the last one.
    std::vector<std::string> pending = {FolderPrefix(folder)};
    while (!pending.empty()) {
        const std::string prefix = std::move(pending.back());
        pending.pop_back();
        const FolderContent content = ContentOf(prefix);
        for (const std::string& name : content.files)
            files.push_back(TextFromFileName(prefix + name));
        std::transform(content.folders.rbegin(), content.folders.rend(), std::back_inserter(pending),
                       [&](const std::string& name) { return prefix + name + '/'; });
    }
}

void CollectSubFolders(Texts& folders, TextView folder) {
    const std::string prefix = FolderPrefix(folder);
    for (const std::string& name : ContentOf(prefix).folders)
        folders.push_back(TextFromFileName(prefix + name));
}

Texts KeepHTMLFiles(const Texts& files) {
    Texts pages;
    std::copy_if(files.begin(), files.end(), std::back_inserter(pages), [](const Text& file) {
        const Text extension = GetExtension(file);
        return extension == u"html" || extension == u"htm";
    });
    return pages;
}

}  // namespace tintora
