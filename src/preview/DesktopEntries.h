#pragma once

#include "text/Text.h"

#include <optional>
#include <vector>

/// The programs that the system's desktop files declare.
namespace tintora {

/// What a desktop file says of an application.
struct DesktopEntry {
    /// The file's path.
    Text path;
    Text name;
    /// The program and its arguments, with field codes such as "%u" as they stand.
    Texts command;
    /// A program without which the application isn't there; "" for none.
    Text tryExec;
    Texts categories;
    /// The entry isn't to be shown to people, or counts as deleted.
    bool isHidden = false;
    bool needsTerminal = false;
};

/// The words of a command line as desktop files have it: parted by blanks, and words in double quotes may hold
/// anything, with a backslash in front of what is special there.
[[nodiscard]] Texts CommandWords(TextView command);

/// The application of a desktop file's text; nothing if it declares none. Of two equal keys the first counts, and keys
/// for other languages don't.
[[nodiscard]] std::optional<DesktopEntry> ParseDesktopEntry(TextView text);

/// The entries of all files in the folders and below them whose names end with ".desktop". A file in an earlier folder
/// takes the place of one of the same name in a later one. Hidden entries aren't among them, but hide others all the
/// same. What can't be read is passed over. The entries of a folder are in the order of their files' names.
[[nodiscard]] std::vector<DesktopEntry> ReadDesktopEntries(const Texts& folders);

/// The values of the environment that tell where desktop files lie; "" for one that isn't set.
struct DataFolders {
    /// HOME, XDG_DATA_HOME and XDG_DATA_DIRS.
    Text home;
    Text dataHome;
    Text dataDirs;
};

/// The folders of desktop files, the one that counts most first. Folders that aren't absolute don't count.
[[nodiscard]] Texts ApplicationFolders(const DataFolders& data);

}  // namespace tintora
