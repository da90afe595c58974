#pragma once

#include "text/Text.h"

#include <optional>
#include <string>
#include <string_view>

/// Bytes of files as text, so that every byte comes back as it was.
///
/// Files are UTF-8. Bytes that aren't valid UTF-8 are read as windows-1252, in which every byte is one character: its
/// five unassigned bytes stand for the control characters of the same value. A byte order mark is text, and so is NUL.
namespace tintora {

enum class Encoding { Utf8, Windows1252 };

struct DecodedText {
    Text text;
    Encoding encoding = Encoding::Utf8;
};

/// The bytes of a file as text, with the encoding that they are in.
[[nodiscard]] DecodedText DecodeBytes(std::string_view bytes);

/// `text` as the bytes of a file in `encoding`; nothing if the encoding has no bytes for one of its characters, as
/// UTF-8 has none for a lone surrogate.
[[nodiscard]] std::optional<std::string> EncodeText(TextView text, Encoding encoding);

/// Text of the program's surroundings (arguments, standard input, messages) that is expected to be UTF-8. Each byte
/// that isn't becomes the replacement character U+FFFD.
[[nodiscard]] Text TextFromUtf8(std::string_view bytes);

/// `text` as UTF-8 to be shown. A lone surrogate becomes U+FFFD.
[[nodiscard]] std::string Utf8FromText(TextView text);

/// File names are bytes on this platform. A byte that isn't UTF-8 becomes the lone surrogate U+DC00 plus its value, and
/// comes back from it, so that every file can be named by a text.
[[nodiscard]] Text TextFromFileName(std::string_view bytes);
[[nodiscard]] std::string FileNameFromText(TextView text);

}  // namespace tintora
