#pragma once

#include "text/Text.h"

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace tintora {

/// Gives the time.
using ReadTime = std::function<std::chrono::system_clock::time_point()>;

/// The folders in which the preview makes files beside those of the user's files. Neither has a separator at its end.
struct PreviewFolders {
    /// The folder that holds "Help_Files".
    Text application;
    /// The system's folder for temporary files.
    Text temporary;
};

/// Whether the path names a file of the preview, by its name alone: it begins with "ktTemp".
[[nodiscard]] bool IsTemporaryFile(TextView path);

/// Deletes a file of the preview; whether nothing is left to delete. So it is true for "", for a path where no file is,
/// and for a file with any other name, which is never deleted.
bool DeleteTemporaryFile(TextView path);

/// The bytes of a page. Throws `FileFailure` for one that doesn't exist or can't be read, and for what isn't an
/// ordinary file: the program might wait for a pipe for ever.
[[nodiscard]] std::string ReadPageBytes(TextView path);

/// Makes the files of previews. They lie beside the user's files, so that relative URLs lead where they should, and
/// belong to the user alone.
///
///     TemporaryFiles files({u"/opt/tintora", u"/tmp"}, clock);
///     files.MakeTempCSSName(u"/site/main.css");                           // "/site/ktTemp 61234.56.css"
///     files.WriteSheet(u"/site/main.css", "h1 { color: red }", announce); // the same, and the file is there
///
/// A name is "ktTemp", the seconds since midnight as a number's text with its blank, and an extension. No two names of
/// one object are equal, and none is that of a file that exists. Paths have "/" between their folders.
///
/// The operations that make a file tell its path before it is there, so that whoever keeps a list of the files misses
/// none, however the process ends; where nothing can be made they tell "" at last. Files aren't flushed to the disk.
class TemporaryFiles {
  public:
    using Announce = std::function<void(TextView path)>;

    TemporaryFiles(PreviewFolders folders, ReadTime now);

    /// A bare name with ".html".
    [[nodiscard]] Text MakeTempFileName();

    /// The path for a temporary style sheet: in the document's folder if a file of that path exists, otherwise beside
    /// the default preview document.
    [[nodiscard]] Text MakeTempCSSName(TextView documentPath);

    /// The path for a temporary page: in the document's folder if there is such a folder, otherwise in the system's
    /// temporary folder.
    [[nodiscard]] Text MakeTempFileInFolder(TextView documentPath);

    /// Copies a page to a temporary file beside it; the path of the copy, "" for a page that doesn't exist, isn't an
    /// ordinary file, can't be read or can't be copied there.
    [[nodiscard]] Text MakeTempCopyOfFile(TextView path);

    /// Makes a temporary style sheet under `MakeTempCSSName`. Where it can't be made, it lies beside the default
    /// preview document, and where that can't be either, in the system's temporary folder. Gives its path; throws
    /// `FileFailure`, that of the first place, if it could be made nowhere.
    [[nodiscard]] Text WriteSheet(TextView documentPath, std::string_view bytes, const Announce& announce);

    /// Makes a temporary page under `MakeTempFileInFolder`, or else in the system's temporary folder; otherwise as
    /// `WriteSheet`.
    [[nodiscard]] Text WriteRulePage(TextView documentPath, std::string_view bytes, const Announce& announce);

    /// Makes a temporary page beside the page `pagePath`, and nowhere else, but for the program's own pages: where its
    /// folder isn't the user's to write in, they are copied to the system's temporary folder. Otherwise as
    /// `WriteSheet`.
    [[nodiscard]] Text WritePageBeside(TextView pagePath, std::string_view bytes, const Announce& announce);

  private:
    /// The folder of the default preview document, with a separator at its end.
    [[nodiscard]] Text DefaultFolder() const;
    [[nodiscard]] Text MakeName(TextView extension);
    [[nodiscard]] Text NewPath(TextView folder, TextView extension);
    [[nodiscard]] Texts SheetFolders(TextView documentPath) const;
    [[nodiscard]] Texts PageFolders(TextView pagePath) const;
    [[nodiscard]] Texts RulePageFolders(TextView documentPath) const;
    [[nodiscard]] Text WriteInOneOf(const Texts& folders, TextView extension, std::string_view bytes,
                                    const Announce& announce);

    PreviewFolders folders_;
    ReadTime now_;
    std::chrono::microseconds last_{0};
};

}  // namespace tintora
