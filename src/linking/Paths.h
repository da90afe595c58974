#pragma once

#include "text/Text.h"

/// Paths as text. "/" and "\" both separate, whatever the platform's own separator is. Nothing here looks at a disk,
/// and characters that are special in a URL are kept as they are.
namespace tintora {

/// Everything before the last separator; "" if there is none.
[[nodiscard]] Text GetFolderPath(TextView path);

/// What stands behind the last separator; the whole path if there is none.
[[nodiscard]] Text GetFileNamePart(TextView path);

/// The file name's extension without its dot, in lower case; "" if there is none.
[[nodiscard]] Text GetExtension(TextView path);

/// The URL that leads from the file `fromFile` to the file `toFile`, with "/" for each separator:
///
///     GetRelativePath(u"/site/pages/index.html", u"/site/css/main.css")   // "../css/main.css"
///
/// Where the two share no folder it is `toFile` as it was given. Both paths must be absolute; letters count as they
/// stand. What they share is found by a search for the beginnings of the one folder anywhere in the other, so that a
/// folder whose path stands further back in the other's misleads it.
[[nodiscard]] Text GetRelativePath(TextView fromFile, TextView toFile);

/// The path of the file to which the URL `relativePath` leads from the file `basePath`. Each separator in it is "\"
/// where one of the arguments holds a "\", and "/" otherwise:
///
///     ResolveRelativePath(u"/site/pages/index.html", u"../css/main.css")  // "/site/css/main.css"
///     ResolveRelativePath(u"/site/index.html", u"main.css")               // "/site//main.css"
///
/// A folder part that is ".." alone stays in the path, and an absolute `relativePath` is taken for a relative one. A
/// folder part without "../" in it keeps its "/".
[[nodiscard]] Text ResolveRelativePath(TextView basePath, TextView relativePath);

/// `text` with a double quote at each end that has none; "" stays "".
[[nodiscard]] Text QuoteText(TextView text);

/// `text` without one double quote at its start and one at its end, each where it is there.
[[nodiscard]] Text UnquoteText(TextView text);

}  // namespace tintora
