#pragma once

#include "text/Text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tintora {

/// What a recovery copy holds. It is a file of its own, which a person can read too: lines that say what it is, an
/// empty line, and the bytes.
struct RecoveryRecord {
    enum class Kind {
        /// The text of a document that has changed since it was saved, in UTF-8.
        UnsavedText,
        /// The bytes that a file is to have, while it is written.
        InterruptedWrite,
    };

    Kind kind = Kind::UnsavedText;
    /// The file; "" for a document that was never saved.
    Text path;
    /// The name under which the user knows the document.
    Text caption;
    /// Milliseconds since 1970 began, in universal time.
    std::int64_t time = 0;
    /// The `Fingerprint` of the text that the file had when the document read or wrote it last; 0 for none.
    std::uint64_t knownFile = 0;
    std::string bytes;

    friend bool operator==(const RecoveryRecord&, const RecoveryRecord&) = default;
};

[[nodiscard]] std::string PrintRecord(const RecoveryRecord& record);

/// The record that was printed; nothing for bytes that are no whole record.
[[nodiscard]] std::optional<RecoveryRecord> ParseRecord(std::string_view bytes);

/// A number that tells texts apart, the same in each run of the program; never 0.
[[nodiscard]] std::uint64_t Fingerprint(TextView text) noexcept;

}  // namespace tintora
