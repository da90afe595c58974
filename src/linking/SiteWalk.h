#pragma once

#include "text/Text.h"

/// The files of a folder and of the folders below it.
///
/// Names come in the order of their bytes. Links aren't followed, to files as little as to folders: what they lead to
/// either lies in the folder, and is met there, or isn't part of it. What may not be read is passed over. The folder
/// that is asked for may itself be a link.
namespace tintora {

/// Adds the path of each file of the folder, then those of its subfolders, one subfolder after the other.
void CollectFilesInFolder(Texts& files, TextView folder);

/// Adds the path of each direct subfolder of the folder.
void CollectSubFolders(Texts& folders, TextView folder);

/// Those of the files whose extension is "html" or "htm", in whatever case, in their order.
[[nodiscard]] Texts KeepHTMLFiles(const Texts& files);

}  // namespace tintora
