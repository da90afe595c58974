#pragma once

#include "document/RecoveryFolder.h"

#include <cstdint>
#include <vector>

/// The copies that a crash has left, against the files as they are now.
namespace tintora {

/// The text that a copy would bring: a document's own, or that of the whole file whose write was interrupted.
[[nodiscard]] Text TextOfCopy(const RecoveryRecord& copy);

/// What the file of a copy holds now, to be compared with `TextOfCopy`: the style sheet in a page, for a document's
/// text; "" for a file that doesn't exist or can't be read.
[[nodiscard]] Text PresentTextFor(const RecoveryRecord& copy);

/// When the file of a copy was changed last, in milliseconds since 1970 began; 0 where there is none.
[[nodiscard]] std::int64_t FileTimeOf(const RecoveryRecord& copy);

/// The copies that are worth a question: those whose text isn't in their file already, and of several that would bring
/// the same text to the same file the first. The names of the others are added to `needless`.
[[nodiscard]] std::vector<LeftCopy> CopiesToOffer(std::vector<LeftCopy> copies, std::vector<std::string>& needless);

}  // namespace tintora
