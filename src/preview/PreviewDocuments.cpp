#include "preview/PreviewDocuments.h"

#include "language/Words.h"
#include "linking/TextFiles.h"
#include "settings/PathLists.h"
#include "settings/Settings.h"

#include <algorithm>

namespace tintora {

PreviewDocuments::PreviewDocuments(SettingsStore& store, TextView applicationFolder)
    : store_(store), defaultFile_(Text(applicationFolder) + u"/Help_Files/Preview/default.html") {}

Text PreviewDocuments::GetPreviewFile() const {
    Text path = Settings(store_).Get(setting::PreviewFile);
    return FileExists(path) ? path : defaultFile_;
}

void PreviewDocuments::SetPreviewFile(TextView path) { Settings(store_).Save(setting::PreviewFile, path); }

Texts PreviewDocuments::Stored() const {
    Texts paths = SplitPaths(Settings(store_).Get(setting::AllPreviewFiles));
    std::erase(paths, defaultFile_);
    return paths;
}

Texts PreviewDocuments::GetAllPreviewFiles() const {
    Texts paths = Stored();
    if (paths.empty())
        paths.push_back(defaultFile_);
    return paths;
}

void PreviewDocuments::SaveAllPreviewFiles(const Texts& paths) {
    Texts kept;
    std::ranges::copy_if(paths, std::back_inserter(kept),
                         [this](const Text& path) { return !path.empty() && path != defaultFile_; });
    Settings(store_).Save(setting::AllPreviewFiles, JoinPaths(kept));
}

void PreviewDocuments::AddPreviewFile(TextView path) {
    Texts paths = Stored();
    if (path.empty() || path == defaultFile_ || ListContains(paths, path))
        return;
    paths.emplace_back(path);
    SaveAllPreviewFiles(paths);
}

void PreviewDocuments::RemovePreviewFile(TextView path) {
    Texts paths = Stored();
    if (const auto found = std::ranges::find(paths, path); found != paths.end())
        paths.erase(found);
    SaveAllPreviewFiles(paths);
    SetPreviewFile({});
}

void PreviewDocuments::ChooseDocument(TextView path) {
    if (path.empty())
        return;
    AddPreviewFile(path);
    SetPreviewFile(path);
}

void PreviewDocuments::DropDocuments(const Texts& paths) {
    for (const Text& path : paths)
        ChooseDocument(path);
}

int PreviewDocuments::IndexOfPreviewFile() const {
    const Texts paths = GetAllPreviewFiles();
    const auto found = std::ranges::find(paths, GetPreviewFile());
    return found == paths.end() ? -1 : static_cast<int>(found - paths.begin());
}

}  // namespace tintora
