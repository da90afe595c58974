#pragma once

#include "text/Text.h"

#include <optional>

/// Local files as URLs, as browsers read them.
///
///     FileURLFromPath(u"/site/50% a.css")                      // "file:///site/50%25%20a.css"
///     ResolveFileURL(u"/site/a.html", u"css/b%20c.css?v=2")    // "/site/css/b c.css"
///
/// Paths are texts as `TextFromFileName` makes them; here a "\" of a path is a letter like any other.
namespace tintora {

/// The URL of the file with that absolute path. All bytes of the path are percent-encoded but letters, digits, "-",
/// "_", ".", "~" and "/", so that the URL may stand in an attribute, whatever the path holds.
[[nodiscard]] Text FileURLFromPath(TextView path);

/// The absolute path, without "." and "..", to which `url` leads from the file with the absolute path `basePath`. A
/// query and a fragment don't count, and "\" in a URL separates as "/" does. "" leads to the file itself.
///
/// Nothing for a URL that leads to no local file: one with another scheme than "file", one with a host, and one whose
/// encoded bytes can't be part of a path.
[[nodiscard]] std::optional<Text> ResolveFileURL(TextView basePath, TextView url);

/// Whether the two paths lead to one file: by their names, or because the disk says so.
[[nodiscard]] bool IsSameFile(TextView path, TextView other);

}  // namespace tintora
