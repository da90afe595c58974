#pragma once

#include "text/Text.h"

/// Lists of paths in one value of the settings.
///
///     JoinPaths({u"/a.css", u"/x^y.css"});    // "/a.css^^^/x^-y.css"
///     SplitPaths(u"/a.css^^^/x^-y.css");      // {"/a.css", "/x^y.css"}
///
/// The paths are joined by "^^^". A "^" of a path is stored as "^-", so that no path is taken for two, and each comes
/// back as it was, whatever it holds, line ends among it. A "^" with anything else behind it stands for itself, so that
/// a value that was written in any other way is read for what it can be.
namespace tintora {

/// The value that holds the paths, in their order.
[[nodiscard]] Text JoinPaths(const Texts& paths);

/// The paths of a stored value, in their order. Empty entries don't count; "" holds none.
[[nodiscard]] Texts SplitPaths(TextView stored);

}  // namespace tintora
